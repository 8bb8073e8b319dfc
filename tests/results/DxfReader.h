#pragma once

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

/// What a CAD library finds in a DXF file, which has to be without a fault: "version ...",
/// "units ...", "layer NAME COLOUR" and "ENTITY LAYER ...", a line each.
inline QStringList readByCadLibrary(const QString& fileName) {
  QProcess reader;
  reader.start("/usr/bin/python3", {TEVRANE_DXF_READER, fileName});
  EXPECT_TRUE(reader.waitForFinished()) << reader.errorString().toStdString();
  const QString found = QString::fromUtf8(reader.readAllStandardOutput());
  EXPECT_EQ(reader.exitCode(), 0) << found.toStdString()
                                  << reader.readAllStandardError().toStdString();
  return found.split('\n', Qt::SkipEmptyParts);
}

/// What a library for maps finds in it.
inline QString readByMapLibrary(const QString& fileName) {
  QProcess reader;
  reader.start("ogrinfo", {"-ro", "-al", fileName});
  EXPECT_TRUE(reader.waitForFinished()) << reader.errorString().toStdString();
  const QString faults = QString::fromUtf8(reader.readAllStandardError());
  EXPECT_EQ(reader.exitCode(), 0) << faults.toStdString();
  EXPECT_EQ(faults, "");
  return QString::fromUtf8(reader.readAllStandardOutput());
}
