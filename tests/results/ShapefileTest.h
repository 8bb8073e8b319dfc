#pragma once

#include "results/ExportTest.h"
#include "results/ShapefileExport.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTextCodec>

/// A test of shapefiles, which another program reads back.
class ShapefileTest : public ExportTest {
protected:
  ShapefileTest() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }

  TVR::ShapefileExport shapefile() { return TVR::ShapefileExport(access()); }

  /// All that the reader has to say about a file.
  static QString readBack(const QString& fileName) {
    QProcess reader;
    reader.start("ogrinfo", {"-ro", "-al", fileName});
    EXPECT_TRUE(reader.waitForFinished()) << reader.errorString().toStdString();
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
  /// What stands behind `field` in each record, in order: "(String) = " and the value, say.
  static QStringList valuesOf(const QString& read, const QString& field) {
    QStringList values;
    const QRegularExpression line(QStringLiteral("^  %1 \\([^)]*\\) = (.*)$").arg(field),
                                  QRegularExpression::MultilineOption |
                                      QRegularExpression::UseUnicodePropertiesOption);
    for (auto match = line.globalMatch(read); match.hasNext();)
      values << match.next().captured(1);
    return values;
  }
  static QStringList geometriesOf(const QString& read) {
    QStringList lines;
    for (const QString& line : read.split('\n'))
      if (line.startsWith("  LINESTRING"))
        lines << line.trimmed();
    return lines;
  }
};
