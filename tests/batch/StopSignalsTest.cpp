#include "DriverTest.h"

#include <QDir>
#include <QRegularExpression>

#include <unistd.h>

#include <csignal>

namespace {

/// Runs that would take minutes, and are told to stop.
class StopSignalsTest : public DriverTest {
protected:
  StopSignalsTest() { qputenv("ASAN_OPTIONS", "detect_leaks=0"); }
  ~StopSignalsTest() override { qunsetenv("ASAN_OPTIONS"); }

  QString slowSite(const QString& name) const {
    QByteArray text = smallDoublet;
    text.replace("simulation_time=2", "simulation_time=900")
        .replace("max_number_of_fv_elements=200", "max_number_of_fv_elements=20000")
        .replace("cell_increase_factor=60", "cell_increase_factor=3")
        .replace("exchange_caprock=false", "exchange_caprock=true");
    return write(name, text);
  }

  /// Starts the program and waits for the line in which it says this.
  void start(QProcess& process, const QStringList& arguments, const char* word) const {
    process.setWorkingDirectory(directory.path());
    process.start(TEVRANE_BATCH_PROGRAM, arguments);
    process.setReadChannel(QProcess::StandardError);
    QByteArray line;
    while (!line.contains(word)) {
      while (!process.canReadLine() && process.waitForReadyRead(240000)) {
      }
      ASSERT_TRUE(process.canReadLine());
      line = process.readLine();
    }
  }

  /// How the program ends after this signal; `said` takes its last words.
  int stop(const QStringList& arguments, int signal, const char* word = "output times") {
    QProcess process;
    start(process, arguments, word);
    kill(static_cast<pid_t>(process.processId()), signal);
    EXPECT_TRUE(process.waitForFinished(240000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    said = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
  }

  QStringList names() const {
    return QDir(directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  QString said;
};

} // namespace

TEST_F(StopSignalsTest, anInterruptedRunEndsWith130AndLeavesNothing) {
  EXPECT_EQ(stop({slowSite("site.tbat")}, SIGINT), 130);
  EXPECT_TRUE(said.contains(
      QRegularExpression("tevrane-batch: .*site\\.tbat: stopped by SIGINT after [0-9.]+ years\n$")))
      << said.toStdString();
  EXPECT_EQ(names(), QStringList("site.tbat"));
}

TEST_F(StopSignalsTest, aTerminatedRunEndsWith143AndTheOlderTableStands) {
  const QByteArray older = "Time [s]\tTime [a]\tPump\t\n";
  write("site.out", older);
  EXPECT_EQ(stop({slowSite("site.tbat")}, SIGTERM), 143);
  EXPECT_TRUE(said.contains("stopped by SIGTERM after ")) << said.toStdString();
  EXPECT_EQ(contentOf(path("site.out")), older);
}

TEST_F(StopSignalsTest, aRunThatWouldDrawAPageLeavesNothingEither) {
  EXPECT_EQ(
      stop({"--page", "site.pdf", "--save-project", "site.tvr", slowSite("site.tbat")}, SIGINT),
      130);
  EXPECT_TRUE(said.contains("stopped by SIGINT after ")) << said.toStdString();
  EXPECT_EQ(names(), QStringList("site.tbat"));
}

TEST_F(StopSignalsTest, jobsEndWithTheirParentInOneLine) {
  const QStringList files{"missing.tbat", slowSite("a.tbat"), slowSite("b.tbat")};
  EXPECT_EQ(stop(QStringList{"--jobs", "2"} + files, SIGTERM, "missing"), 143);
  EXPECT_EQ(said, "tevrane-batch: stopped by SIGTERM; 1 of 3 files are done\n");
  EXPECT_EQ(names(), (QStringList{"a.tbat", "b.tbat"}));
}

TEST_F(StopSignalsTest, jobsDieWithAParentThatIsKilled) {
  int held[2] = {}; // the end for writing is open as long as one of them lives
  ASSERT_EQ(pipe(held), 0);
  QProcess process;
  start(process, {"--quiet", "--jobs", "3", "missing.tbat", slowSite("a.tbat"), slowSite("b.tbat")},
        "missing");
  close(held[1]);
  process.kill();
  char byte = 0;
  EXPECT_EQ(read(held[0], &byte, 1), 0) << "all have ended";
  close(held[0]);
  process.waitForFinished(240000);
  EXPECT_EQ(names(), (QStringList{"a.tbat", "b.tbat"}));
}

TEST_F(StopSignalsTest, aSignalThatIsIgnoredFromTheStartIsIgnored) {
  const QString site = write("site.tbat", smallDoublet);
  const Outcome outcome =
      runProgram("sh", {"-c", "trap '' INT; \"$1\" --quiet site.tbat & kill -INT $!; wait $!", "sh",
                        TEVRANE_BATCH_PROGRAM});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_TRUE(QFile::exists(path("site.out")));
}
