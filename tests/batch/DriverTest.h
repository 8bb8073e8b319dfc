#pragma once

#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QProcess>

#include <gtest/gtest.h>

/// What a program said, and how it ended.
struct Outcome {
  int exitCode;
  QString out;
  QString err;
};

/// Runs the program as a user does, in a directory of its own.
class DriverTest : public testing::Test, protected TestDirectory {
protected:
  QString write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  Outcome run(const QStringList& arguments) const {
    return runProgram(TEVRANE_BATCH_PROGRAM, arguments);
  }

  Outcome runProgram(const QString& program, const QStringList& arguments) const {
    return runIn(directory.path(), program, arguments);
  }

  static Outcome runIn(const QString& place, const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setWorkingDirectory(place);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(240000));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }
};
