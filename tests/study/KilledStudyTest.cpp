#include "study/StudyProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>

#include <algorithm>

namespace {

/// How a study is divided.
struct Division {
  const char* name;
  int workers;
  int shards;
};

class KilledStudyTest : public StudyProgramTest {};

class KilledAtRandomMomentsTest : public StudyProgramTest,
                                  public testing::WithParamInterface<Division> {
protected:
  /// The arguments that compute a shard, counted from 0.
  QStringList computing(int shard) const {
    const Division& division = GetParam();
    QStringList arguments{"run", path("a.tstudy"), "--quiet", "--workers",
                          QString::number(division.workers)};
    if (division.shards > 1)
      arguments << "--shard" << QStringLiteral("%1/%2").arg(shard + 1).arg(division.shards);
    return arguments;
  }
};

} // namespace

TEST_P(KilledAtRandomMomentsTest, itGivesTheSameBytesOnceItIsResumed) {
  const int count = kills(6);
  const int shards = GetParam().shards;
  constexpr int runsBetweenKills = 6;
  writeStudy(count * runsBetweenKills);
  QElapsedTimer clock;
  clock.start();
  ASSERT_EQ(study("run", {"--folder", folder("undisturbed")}).exitCode, 0);
  // The moments lie all over the study, on a slow machine too.
  const int longest = std::max(100, static_cast<int>(3 * clock.elapsed() / count));

  QRandomGenerator random(20);
  for (int i = 0; i < count; ++i) {
    StudyGroup program;
    program.start(TEVRANE_STUDY_PROGRAM, computing(i % shards));
    ASSERT_TRUE(program.waitForStarted());
    program.waitForFinished(random.bounded(20, longest));
    program.killAll();
  }
  for (int shard = 0; shard < shards; ++shard)
    EXPECT_EQ(run(computing(shard)).exitCode, 0);
  if (shards > 1) {
    EXPECT_EQ(study("collect").exitCode, 0);
  }
  EXPECT_EQ(differing("undisturbed"), "");
}

INSTANTIATE_TEST_SUITE_P(Divisions, KilledAtRandomMomentsTest,
                         testing::Values(Division{"oneWorker", 1, 1}, Division{"twoWorkers", 2, 1},
                                         Division{"fourWorkers", 4, 1},
                                         Division{"threeShards", 2, 3}),
                         [](const auto& division) { return division.param.name; });

TEST_F(KilledStudyTest, aShardThatWasKilledIsCollectedAsFarAsItCame) {
  writeStudy(40);
  StudyGroup program;
  program.start(TEVRANE_STUDY_PROGRAM,
                {"run", path("a.tstudy"), "--quiet", "--folder", folder("killed")});
  ASSERT_TRUE(program.waitForStarted());
  const auto hasRecord = [&] {
    const QDir journals(path("killed/journals"));
    for (const QFileInfo& file : journals.entryInfoList({"*.journal"}))
      if (file.size() > 0)
        return true;
    return false;
  };
  while (!hasRecord() && !program.waitForFinished(5)) {
  }
  program.killAll();
  const Outcome outcome = study("collect", {folder("killed")});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains(" of 40 runs are missing"));
  EXPECT_GE(rows().size(), 1);
  EXPECT_LT(rows().size(), 40);
  ASSERT_EQ(study("run").exitCode, 0);
  ASSERT_EQ(study("run", {"--folder", folder("undisturbed")}).exitCode, 0);
  EXPECT_EQ(differing("undisturbed"), "");
}
