#pragma once

#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

/// Runs the program on the study "a.tstudy" as a user does, in a directory of its own.
class ComputedStudy : public testing::Test, protected TestDirectory {
protected:
  ComputedStudy() { write("base.tbat", smallDoublet); }

  void write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  /// The exit code; `said_` is what was said of errors.
  int study(const QString& command, const QStringList& more = {}) {
    QProcess process;
    process.start(TEVRANE_STUDY_PROGRAM, QStringList{command, path("a.tstudy"), "--quiet"} + more);
    EXPECT_TRUE(process.waitForFinished(240'000));
    said_ = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
  }

  QString said_;
};
