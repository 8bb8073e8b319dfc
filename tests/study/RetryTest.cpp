#include "study/StudyProgram.h"
#include "study/plan/ResultLayout.h"
#include "study/work/Collection.h"
#include "study/work/Exceedance.h"
#include "study/work/PartFile.h"
#include "study/work/RecordKeeper.h"
#include "study/work/Results.h"
#include "study/work/StudySetup.h"

#include <QDir>
#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace TVR::Study;

namespace {

/// Folders of a study of four runs in two parts, the first one of which stands twice in the sample.
class RetryTest : public testing::Test, protected TestDirectory {
protected:
  RetryTest() {
    setup.layout = {{"kf"}, {"m/s"}, {"Pump"}, {"plume_area"}, {10}, {-1}, {10}, {0, 0, 1, 4, 1}};
    setup.plan.keys = {*studyKey("kf")};
    setup.plan.runsPerPart = 2;
    for (int i = 0; i < 4; ++i)
      setup.plan.runs.push_back(
          {QByteArray("run") + char('a' + i), {0.001 * (i + 1)}, i == 0 ? 2 : 1});
  }

  StudyFolder folder(const QString& name) const {
    const StudyFolder result(path(name));
    result.make();
    return result;
  }

  /// The record of a run, whose plume covers as many cells as its place says; it has failed where
  /// there is a reason.
  Record recordOf(std::size_t run, const QString& reason = {}) const {
    Record record;
    record.run = setup.plan.runs[run].name;
    record.values = setup.plan.runs[run].values;
    record.failure = reason;
    if (record.hasFailed())
      return record;
    record.scalars = {1.5 * static_cast<double>(run)};
    record.series = {{11}, {0.5}};
    std::vector<char> map(4);
    std::fill_n(map.begin(), run + 1, 1);
    appendMap(record.maps, map);
    return record;
  }

  using Reasons = std::map<std::size_t, QString>; ///< of runs by their place; empty: it went well

  /// Keeps records of these runs, as a process that is killed then. Returns what was missing.
  std::vector<std::size_t> keep(const StudyFolder& folder, const Reasons& runs,
                                FailedRuns failed = FailedRuns::Stay) const {
    RecordKeeper keeper(folder, setup.plan, setup.layout, {});
    EXPECT_EQ(keeper.open(failed), Journal::Opening::Done);
    std::vector<std::size_t> missing = keeper.missing();
    for (const auto& [run, reason] : runs) {
      const Record record = recordOf(run, reason);
      EXPECT_TRUE(keeper.keep(record, toLine(record, true)));
    }
    return missing;
  }

  /// The reasons of all runs that are there.
  std::map<QByteArray, QString> reasons(const StudyFolder& folder) const {
    std::map<QByteArray, QString> found;
    results(folder).eachRecord([&](const Record& record) {
      EXPECT_EQ(found.count(record.run), 0U);
      found[record.run] = record.failure;
    });
    return found;
  }
  Results results(const StudyFolder& folder) const { return {folder, setup.plan, setup.layout}; }

  /// The bytes of all parts.
  static std::map<QString, QByteArray> parts(const StudyFolder& folder) {
    std::map<QString, QByteArray> found;
    for (const QString& file : folder.parts())
      found[QFileInfo(file).fileName()] = contentOf(file);
    return found;
  }

  StudySetup setup;
  const Reasons allWell{{0, {}}, {1, {}}, {2, {}}, {3, {}}};
  const Reasons twoFailed{{0, "too late"}, {1, {}}, {2, "too late"}, {3, {}}};
};

using Places = std::vector<std::size_t>;

} // namespace

TEST_F(RetryTest, failedRunsAreMissingOnlyToWhoRetriesThem) {
  const StudyFolder study = folder("a");
  keep(study, twoFailed);
  EXPECT_EQ(keep(study, {}), Places{});
  EXPECT_EQ(keep(study, {}, FailedRuns::AreRetried), (Places{0, 2}));
}

TEST_F(RetryTest, aRetryThatSucceedsLeavesTheBytesOfAStudyWithoutFailures) {
  const StudyFolder study = folder("a");
  const StudyFolder undisturbed = folder("b");
  keep(undisturbed, allWell);
  keep(study, twoFailed);
  EXPECT_NE(parts(study), parts(undisturbed));
  keep(study, {{2, {}}, {0, {}}}, FailedRuns::AreRetried);
  EXPECT_EQ(parts(study), parts(undisturbed));
  EXPECT_EQ(results(study).failed(), 0U);
  EXPECT_EQ(contentOf(study.journals(idOf(setup.layout)).first()), "");
}

TEST_F(RetryTest, aRunThatFailsAgainHasItsNewReason) {
  const StudyFolder study = folder("a");
  keep(study, twoFailed);
  keep(study, {{0, "no memory"}, {2, {}}}, FailedRuns::AreRetried);
  EXPECT_EQ(reasons(study)["runa"], "no memory");
  EXPECT_EQ(results(study).failed(), 1U);
}

TEST_F(RetryTest, aFailureStandsUntilItsNewRecordIsThere) {
  const StudyFolder study = folder("a");
  keep(study, {{0, "too late"}}); // in the journal
  EXPECT_EQ(keep(study, {}, FailedRuns::AreRetried), (Places{0, 1, 2, 3}));
  EXPECT_EQ(reasons(study), (std::map<QByteArray, QString>{{"runa", "too late"}}));
  EXPECT_EQ(keep(study, {}), (Places{1, 2, 3}));
}

TEST_F(RetryTest, whatAKilledRetryHasComputedCountsInEveryLaterStart) {
  setup.plan.runsPerPart = 4;
  const StudyFolder study = folder("a");
  const StudyFolder undisturbed = folder("b");
  keep(undisturbed, allWell);
  keep(study, twoFailed);
  keep(study, {{0, {}}}, FailedRuns::AreRetried); // killed before the other one
  EXPECT_EQ(results(study).failed(), 1U);
  // runa, twice, covers the first cell, runb two and rund all of them
  EXPECT_EQ(results(study).counts().maps[0], (std::vector<std::uint32_t>{4, 2, 1, 1}));
  EXPECT_EQ(keep(study, {}), Places{}); // a plain start
  EXPECT_EQ(results(study).failed(), 1U);
  EXPECT_EQ(keep(study, {{2, {}}}, FailedRuns::AreRetried), Places{2});
  EXPECT_EQ(parts(study), parts(undisturbed));
}

TEST_F(RetryTest, ofTwoRecordsInJournalsTheOneWithResultsCounts) {
  for (const bool isFailureFirst : {true, false}) {
    const StudyFolder study = folder(isFailureFirst ? "a" : "b");
    const QByteArray failure = toLine(recordOf(0, "too late"), true);
    const QByteArray result = toLine(recordOf(0), true);
    Journal journal(study.journal(idOf(setup.layout), "collected"));
    ASSERT_EQ(journal.open(), Journal::Opening::Done);
    journal.append(isFailureFirst ? failure : result);
    journal.append(isFailureFirst ? result : failure);
    EXPECT_EQ(reasons(study), (std::map<QByteArray, QString>{{"runa", {}}}));
    EXPECT_EQ(results(study).counts().maps[0], (std::vector<std::uint32_t>{2, 0, 0, 0}));
    keep(study, {{1, {}}}); // closes the part
    ASSERT_TRUE(QFile::remove(journal.fileName()));
    EXPECT_EQ(reasons(study), (std::map<QByteArray, QString>{{"runa", {}}, {"runb", {}}}));
  }
}

TEST_F(RetryTest, collectingTakesThePartInWhichFewerRunsHaveFailed) {
  const StudyFolder study = folder("a");
  const StudyFolder other = folder("b");
  keep(study, twoFailed);
  keep(other, allWell);
  const auto best = parts(other);
  EXPECT_EQ(collect(study, other, setup), QString());
  EXPECT_EQ(parts(other), best);
  EXPECT_EQ(collect(other, study, setup), QString());
  EXPECT_EQ(parts(study), best);
}

namespace {

/// A study three of whose runs take longer than its time limit.
class RetryProgramTest : public StudyProgramTest {
protected:
  RetryProgramTest() {
    QByteArray base = smallDoublet;
    write("base.tbat", base.replace("cell_increase_factor=60", "cell_increase_factor=3"));
    write("runs.csv", "max_number_of_fv_elements,simulation_time\n200,2\n1000000,100\n1000000,101\n"
                      "1000000,102\n100,2\n");
    writeLimitedStudy("600");
    EXPECT_EQ(study("run", {"--folder", folder("undisturbed")}).exitCode, 0);
    writeLimitedStudy("0.1");
    const Outcome outcome = study("run");
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(table().contains("took longer than 0.1 s")) << table().constData();
    writeLimitedStudy("600");
  }

  void writeLimitedStudy(const QByteArray& seconds) const {
    write("a.tstudy",
          "[study]\nbase=base.tbat\nsampler=table\ntable=runs.csv\nruns_per_part=2\ntime_limit=" +
              seconds + "\n[answers]\ntimes=2\nlevels=-1\nraster_cell=10\n");
  }
  /// How many runs have failed; all of them are there.
  int failed() const {
    const QString status = study("status").out;
    EXPECT_TRUE(status.contains(": 5 of 5 runs, ")) << status.toStdString();
    return status.section(" runs, ", 1).section(' ', 0, 0).toInt();
  }
  QByteArray answers(const QString& folder) const {
    return contentOf(path(folder + "/results.sqlite"));
  }
};

} // namespace

TEST_F(RetryProgramTest, aStudyWhoseFailedRunsAreRetriedIsTheUndisturbedOne) {
  EXPECT_EQ(study("run").exitCode, 1); // it lets failures stand
  EXPECT_TRUE(table().contains("took longer"));
  const Outcome outcome = study("run", {"--retry-failed"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_EQ(table(), table("undisturbed"));
  EXPECT_EQ(answers("a.study"), answers("undisturbed"));
  EXPECT_FALSE(answers("a.study").isEmpty());
}

TEST_F(RetryProgramTest, aRetryMayBeKilledAndGoesOn) {
  QRandomGenerator random(3);
  int before = failed();
  for (int i = 0; i < kills(6); ++i) {
    StudyGroup program;
    program.start(TEVRANE_STUDY_PROGRAM, {"run", path("a.tstudy"), "--retry-failed", "--quiet"});
    ASSERT_TRUE(program.waitForStarted());
    program.waitForFinished(random.bounded(20, 900));
    program.killAll();
    const int now = failed();
    EXPECT_LE(now, before);
    before = now;
  }
  EXPECT_EQ(study("run", {"--retry-failed"}).exitCode, 0);
  EXPECT_EQ(table(), table("undisturbed"));
}
