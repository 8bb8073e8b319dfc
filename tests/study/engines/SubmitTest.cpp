#include "study/StudyProgram.h"

#include <QDir>

#include <csignal>

namespace {

/// Takes the place of sbatch: notes how it is called.
const QByteArray sbatch = R"(#!/bin/sh
here=$(dirname "$0")
pwd > "$here/directory"
printf '%s\n' "$@" > "$here/words"
echo '4711;cluster'
)";

/// Takes the place of GNU parallel: notes how it is called and carries out the commands in turn.
const QByteArray parallel = R"(#!/bin/sh
if [ "$1" = --version ]; then
  echo 'GNU parallel 20200101'
  exit
fi
printf '%s\n' "$@" > "$(dirname "$0")/words"
sh "$2"
)";

/// Runs the program where no engines are but those that a test puts there.
class SubmitTest : public StudyProgramTest {
protected:
  SubmitTest() {
    QDir(path(".")).mkdir("bin");
    makeTools();
    qputenv("PATH", (path("bin") + ':' + path("tools")).toLocal8Bit());
    writeStudy(23); // in five parts
  }
  ~SubmitTest() override { qputenv("PATH", searched_); }

  void install(const QString& name, const QByteArray& script) const {
    QFile file(write("bin/" + name, script));
    file.setPermissions(file.permissions() | QFile::ExeOwner);
  }
  QByteArrayList words() const { return contentOf(path("bin/words")).trimmed().split('\n'); }
  QByteArray script() const { return contentOf(path("a.study/engine/slurm.sh")); }

  /// Carries out a task of the job array.
  int runTask(int number) const {
    qputenv("SLURM_ARRAY_TASK_ID", QByteArray::number(number));
    const int code = run({path("a.study/engine/slurm.sh")}, "/bin/sh").exitCode;
    qunsetenv("SLURM_ARRAY_TASK_ID");
    return code;
  }

  QByteArray undisturbedTable() const {
    EXPECT_EQ(study("run", {"--folder", folder("undisturbed")}).exitCode, 0);
    return table("undisturbed");
  }

private:
  /// A directory with the tools of the scripts above, and with no engine.
  void makeTools() const {
    QDir(path(".")).mkdir("tools");
    for (const char* tool : {"dirname", "sh"})
      QFile::link(QStringLiteral("/bin/") + tool, path("tools/") + tool);
  }

  const QByteArray searched_ = qgetenv("PATH");
};

} // namespace

TEST_F(SubmitTest, aStudyIsHandedToSlurmAndCollectedWhenItsTasksAreDone) {
  install("sbatch", sbatch);
  const Outcome outcome = study("submit", {"--slurm"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_TRUE(outcome.out.endsWith("a.tstudy: job 4711, 5 of 5 shards\n"))
      << outcome.out.toStdString();
  EXPECT_EQ(words(), QByteArrayList({"--parsable", path("a.study/engine/slurm.sh").toUtf8()}));
  EXPECT_EQ(contentOf(path("bin/directory")).trimmed(), path("a.study").toUtf8());
  for (int task = 1; task <= 5; ++task)
    EXPECT_EQ(runTask(task), 0);
  EXPECT_EQ(table(), ""); // of all shards it is made once, by who collects
  EXPECT_EQ(study("collect").exitCode, 0);
  EXPECT_EQ(table(), undisturbedTable());
  EXPECT_FALSE(table().isEmpty());
}

TEST_F(SubmitTest, onlyShardsThatMissRunsAreSubmittedAgain) {
  install("sbatch", sbatch);
  ASSERT_EQ(study("submit", {"--slurm"}).exitCode, 0);
  EXPECT_TRUE(script().contains("--array=1-5\n"));
  for (const int task : {1, 2, 4})
    ASSERT_EQ(runTask(task), 0);
  const Outcome outcome = study("submit", {"--slurm"});
  EXPECT_TRUE(outcome.out.endsWith("job 4711, 2 of 5 shards\n"));
  EXPECT_TRUE(script().contains("--array=3,5\n")) << script().constData();
  for (const int task : {3, 5})
    ASSERT_EQ(runTask(task), 0);
  QFile::remove(path("bin/words"));
  EXPECT_EQ(study("submit", {"--slurm"}).exitCode, 0);
  EXPECT_FALSE(QFile::exists(path("bin/words"))); // nothing is left to submit
  EXPECT_EQ(table(), undisturbedTable());
}

TEST_F(SubmitTest, shardsWithFailedRunsAreSubmittedWhereTheseAreRetried) {
  install("sbatch", sbatch);
  write("runs.csv", "well_model\\1\\3,well_model\\2\\3\n-0.001,0.001\n0,0\n-0.002,0.002\n");
  write("a.tstudy", "[study]\nbase=base.tbat\nsampler=table\ntable=runs.csv\nruns_per_part=1\n");
  ASSERT_EQ(study("run").exitCode, 1); // where no well has a rate there is nothing to compute
  EXPECT_EQ(study("submit", {"--slurm"}).exitCode, 1);
  EXPECT_FALSE(QFile::exists(path("bin/words")));
  const Outcome outcome = study("submit", {"--slurm", "--retry-failed"});
  EXPECT_TRUE(outcome.out.endsWith("job 4711, 1 of 3 shards\n")) << outcome.err.toStdString();
  EXPECT_TRUE(script().contains("--array=2\n"));
  EXPECT_TRUE(script().endsWith(" --quiet --retry-failed\n"));
  EXPECT_EQ(runTask(2), 1);
}

TEST_F(SubmitTest, parallelIsWaitedForAndTheTableIsWritten) {
  install("parallel", parallel);
  const Outcome outcome = study("submit", {"--parallel", "--shards", "3", "--hosts", "a,2/b"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_EQ(words(),
            QByteArrayList({"--arg-file", path("a.study/engine/parallel.txt").toUtf8(), "--joblog",
                            path("a.study/engine/parallel.log").toUtf8(), "--sshlogin", "a,2/b"}));
  EXPECT_EQ(contentOf(path("a.study/engine/parallel.txt")).count("/3 --workers 1 "), 3);
  EXPECT_EQ(table(), undisturbedTable());
}

TEST_F(SubmitTest, whatShardsOfParallelLeftOutIsToldAndComesWithTheNextOne) {
  install("parallel", QByteArray(parallel).replace("sh \"$2\"", "head -n 2 \"$2\" | sh"));
  QFile::link("/usr/bin/head", path("tools/head"));
  const Outcome outcome = study("submit", {"--parallel"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.endsWith("a.tstudy: 13 of 23 runs are missing\n"))
      << outcome.err.toStdString();
  install("parallel", parallel);
  EXPECT_EQ(study("submit", {"--parallel"}).exitCode, 0);
  EXPECT_EQ(contentOf(path("a.study/engine/parallel.txt")).count('\n'), 3);
  EXPECT_EQ(table(), undisturbedTable());
}

TEST_F(SubmitTest, hostsMayCallTheProgramByAnotherPath) {
  install("sbatch", sbatch);
  ASSERT_EQ(study("submit", {"--slurm", "--program", "tevrane-study"}).exitCode, 0);
  EXPECT_TRUE(script().contains("\nexec 'tevrane-study' run "));
}

TEST_F(SubmitTest, aMissingEngineIsToldWithWhatHasBeenWritten) {
  const Outcome slurm = study("submit", {"--slurm"});
  EXPECT_EQ(slurm.exitCode, 1);
  EXPECT_EQ(slurm.err, "tevrane-study: " + path("a.tstudy") +
                           ": no program sbatch is found on this machine; on one of the cluster, "
                           "in the folder " +
                           path("a.study") + ": sbatch engine/slurm.sh\n");
  EXPECT_TRUE(script().contains("--array=1-5\n"));
  const QString noParallel = "tevrane-study: " + path("a.tstudy") +
                             ": GNU parallel is not found on this machine; the commands stand in " +
                             path("a.study/engine/parallel.txt") + "\n";
  const Outcome missing = study("submit", {"--parallel"});
  EXPECT_EQ(missing.exitCode, 1);
  EXPECT_EQ(missing.err, noParallel);
  EXPECT_EQ(contentOf(path("a.study/engine/parallel.txt")).count('\n'), 5);
  install("parallel", "#!/bin/sh\necho 'parallel: invalid option' >&2\nexit 1\n");
  EXPECT_EQ(study("submit", {"--parallel"}).err, noParallel); // one of the same name
}

TEST_F(SubmitTest, whatSlurmSaysAgainstAJobIsTold) {
  install("sbatch", "#!/bin/sh\necho 'sbatch: error: invalid partition' >&2\nexit 1\n");
  const Outcome outcome = study("submit", {"--slurm"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tevrane-study: " + path("a.tstudy") + ": sbatch did not take " +
                             path("a.study/engine/slurm.sh") +
                             ": sbatch: error: invalid partition\n");
}

TEST_F(SubmitTest, aSignalEndsParallel) {
  install("parallel", QByteArray(parallel).replace("sh \"$2\"", "echo ready\nexec tail -f \"$2\""));
  QFile::link("/usr/bin/tail", path("tools/tail"));
  QProcess program;
  program.start(TEVRANE_STUDY_PROGRAM, {"submit", path("a.tstudy"), "--parallel", "--quiet"});
  ASSERT_TRUE(program.waitForStarted());
  while (!program.readAllStandardOutput().contains("ready"))
    ASSERT_TRUE(program.waitForReadyRead(60'000));
  program.terminate();
  ASSERT_TRUE(program.waitForFinished(60'000));
  EXPECT_EQ(program.exitCode(), 128 + SIGTERM);
  EXPECT_TRUE(program.readAllStandardError().endsWith("stopped by SIGTERM\n"));
}

TEST_F(SubmitTest, theStatusTellsShardsThatMissRunsWhereverTheyWereComputed) {
  ASSERT_EQ(study("run", {"--shard", "1/3"}).exitCode, 0);
  const QString all = study("status", {"--shards", "3"}).out;
  EXPECT_TRUE(all.endsWith("shard 2 of 3: 0 of 8 runs\nshard 3 of 3: 0 of 5 runs\n"))
      << all.toStdString();
  ASSERT_EQ(study("run", {"--shard", "3/3", "--folder", folder("far")}).exitCode, 0);
  const QString both = study("status", {"--shards", "3", folder("far")}).out;
  EXPECT_TRUE(both.endsWith("far: 5 of 23 runs, 0 failed\nshard 2 of 3: 0 of 8 runs\n"))
      << both.toStdString();
}

TEST_F(SubmitTest, theCommandLineIsChecked) {
  const auto fault = [this](const QStringList& more, const QString& command = "submit") {
    const Outcome outcome = study(command, more);
    EXPECT_EQ(outcome.exitCode, 2);
    return outcome.err.mid(QString("tevrane-study: ").size()).remove(" (see --help)\n");
  };
  EXPECT_EQ(fault({}), "submit expects one of --slurm and --parallel");
  EXPECT_EQ(fault({"--slurm", "--parallel"}), "submit expects one of --slurm and --parallel");
  EXPECT_EQ(fault({"--slurm"}, "run"), "run does not take --slurm");
  EXPECT_EQ(fault({"--shards", "20"}, "run"), "run does not take --shards");
  EXPECT_EQ(fault({"--slurm", "--hosts", "a"}), "--hosts belongs to --parallel");
  EXPECT_EQ(fault({"--parallel", "--hosts", "a,,b"}),
            "--hosts expects names with commas between them, or @FILE, found \"a,,b\"");
  EXPECT_EQ(fault({"--parallel", "--hosts", "a,-b"}),
            "--hosts expects names with commas between them, or @FILE, found \"a,-b\"");
  EXPECT_EQ(fault({"--parallel", "--hosts", "@nowhere"}), "--hosts: there is no file \"nowhere\"");
  for (const char* number : {"0", "1001", "many"})
    EXPECT_EQ(fault({"--slurm", "--shards", number}), "--shards expects a number from 1 to 1000");
  EXPECT_EQ(fault({"--slurm", "--shard", "1/2"}), "submit does not take --shard");
  EXPECT_FALSE(QFile::exists(path("a.study")));
}
