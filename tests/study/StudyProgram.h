#pragma once

#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

struct Outcome {
  int exitCode;
  QString out;
  QString err;
};

/// The program with its workers, as a group that can be killed at once.
class StudyGroup : public QProcess {
public:
  void killAll() {
    // Of a program that has ended Qt knows the number 0, which is the group of this test.
    if (const auto leader = static_cast<pid_t>(processId()); leader > 0)
      ::kill(-leader, SIGKILL);
    waitForFinished();
  }

private:
  void setupChildProcess() override { setpgid(0, 0); }
};

/// Runs the program as a user does, in a directory of its own.
class StudyProgramTest : public testing::Test, protected TestDirectory {
protected:
  StudyProgramTest() { write("base.tbat", smallDoublet); }

  QString write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  void writeStudy(int runs, const QByteArray& more = {}) const {
    write("a.tstudy", "[study]\nbase=base.tbat\nruns_per_part=5\nruns=" + QByteArray::number(runs) +
                          "\n" + more +
                          "[vary]\nkf=log-uniform(0.0005, 0.005)\n"
                          "groundwater_flow_direction=uniform(40, 90)\n"
                          "[answers]\ntimes=1, 2\nlevels=-1, -0.5\n");
  }

  static Outcome run(const QStringList& arguments, const QString& program = TEVRANE_STUDY_PROGRAM) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(240'000));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }

  /// How often a program is killed: `usual`, or as TEVRANE_KILLS says.
  static int kills(int usual) {
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("TEVRANE_KILLS", &isGiven);
    return isGiven ? given : usual;
  }

  Outcome study(const QString& command, const QStringList& more = {}) const {
    return run(QStringList{command, path("a.tstudy"), "--quiet"} + more);
  }

  QString folder(const QString& name) const { return path(name); }
  QByteArray table(const QString& folder = "a.study") const {
    return contentOf(path(folder + "/runs.csv"));
  }
  /// The files of answers and of finished parts that are not the same in another folder, or not
  /// there, with commas between them.
  std::string differing(const QString& other) const {
    QStringList files{"runs.csv", "answers.csv", "results.sqlite", "summary.json"};
    for (const QString& folder : {QString("a.study"), other})
      for (const QString& part : QDir(path(folder + "/parts")).entryList(QDir::Files))
        files << "parts/" + part;
    files.removeDuplicates();
    QStringList result;
    for (const QString& file : files)
      if (const QByteArray content = contentOf(path("a.study/" + file));
          content.isEmpty() || content != contentOf(path(other + '/' + file)))
        result << file;
    return result.join(", ").toStdString();
  }
  /// The rows of the table, without its head.
  QList<QByteArrayList> rows(const QString& folder = "a.study") const {
    QList<QByteArrayList> result;
    for (const QByteArray& line : table(folder).split('\n').mid(1))
      if (!line.isEmpty())
        result << line.split(',');
    return result;
  }
};
