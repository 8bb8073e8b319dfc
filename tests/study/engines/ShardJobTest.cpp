#include "study/engines/ShardJob.h"

#include "study/engines/Parallel.h"
#include "study/engines/Slurm.h"

#include <gtest/gtest.h>

using namespace TVR::Study;

namespace {

const ShardJob job{"/opt/tevrane-study", "/net/a b.tstudy", "/net/it's.study", 40, 2};

} // namespace

TEST(ShardJobTest, theShardsFollowTheNumberOfPartsBetweenTwentyAndAHundred) {
  EXPECT_EQ(usualShards(1), 1U);
  EXPECT_EQ(usualShards(19), 19U); // none without a part
  EXPECT_EQ(usualShards(79), 20U);
  EXPECT_EQ(usualShards(160), 40U);
  EXPECT_EQ(usualShards(4000), 100U);
}

TEST(ShardJobTest, pathsAreOneWordOfAShellWhateverStandsInThem) {
  EXPECT_EQ(job.command("7"), "'/opt/tevrane-study' run '/net/a b.tstudy' --folder "
                              "'/net/it'\\''s.study' --shard 7/40 --workers 2 --quiet");
}

TEST(ShardJobTest, numbersThatFollowEachOtherAreARange) {
  EXPECT_EQ(rangesOf({}), "");
  EXPECT_EQ(rangesOf({4}), "4");
  EXPECT_EQ(rangesOf({1, 2, 3}), "1-3");
  EXPECT_EQ(rangesOf({1, 3, 4, 5, 9, 11, 12}), "1,3-5,9,11-12");
}

TEST(ShardJobTest, theScriptForSlurmIsAnArrayWithATaskForEachShard) {
  const QByteArray script = slurmScript(job, {1, 2, 5});
  EXPECT_TRUE(script.startsWith("#!/bin/sh\n"));
  EXPECT_TRUE(script.endsWith("#SBATCH --job-name=tevrane-a_b\n"
                              "#SBATCH --array=1-2,5\n"
                              "#SBATCH --ntasks=1\n"
                              "#SBATCH --cpus-per-task=2\n"
                              "#SBATCH --no-requeue\n"
                              "#SBATCH --output=engine/slurm-%A-%a.log\n"
                              "exec '/opt/tevrane-study' run '/net/a b.tstudy' --folder "
                              "'/net/it'\\''s.study' --shard \"$SLURM_ARRAY_TASK_ID\"/40 "
                              "--workers 2 --quiet\n"))
      << script.constData();
}

TEST(ShardJobTest, theCommandsForParallelAreALineForEachShard) {
  const QList<QByteArray> lines = parallelCommands(job, {3, 40}).split('\n');
  ASSERT_EQ(lines.size(), 3);
  EXPECT_TRUE(lines[0].contains(" --shard 3/40 "));
  EXPECT_TRUE(lines[1].contains(" --shard 40/40 "));
  EXPECT_EQ(lines[2], "");
}

TEST(ShardJobTest, parallelIsToldOfHostsAndOfTheCoresOfAShard) {
  const QStringList common{"--arg-file", "/net/it's.study/engine/parallel.txt", "--joblog",
                           "/net/it's.study/engine/parallel.log"};
  ShardJob small = job;
  small.workers = 1;
  EXPECT_EQ(parallelArguments(small, ""), common);
  EXPECT_EQ(parallelArguments(small, "a,8/b,:"), common + QStringList({"--sshlogin", "a,8/b,:"}));
  EXPECT_EQ(parallelArguments(small, "@hosts"), common + QStringList({"--sshloginfile", "hosts"}));
  EXPECT_EQ(parallelArguments(job, ""), common + QStringList({"--jobs", "50%"}));
}
