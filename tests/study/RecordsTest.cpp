#include "study/plan/ResultLayout.h"
#include "study/work/Exceedance.h"
#include "study/work/Journal.h"
#include "study/work/PartFile.h"
#include "study/work/Record.h"
#include "study/work/RecordKeeper.h"
#include "study/work/Results.h"
#include "support/TestDirectory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace TVR;
using namespace TVR::Study;

namespace {

ResultLayout smallLayout() {
  return {{"kf"}, {"m/s"}, {"Pump"}, {"plume_area", "temperature"},
          {10},   {-1, 1}, {5, 10},  {0, 0, 1, 4, 2}};
}

/// The plume of the first level covers the first cells, that of the second nothing.
Record recordOf(const QByteArray& name, double kf, int cells) {
  Record record;
  record.run = name;
  record.values = {kf};
  record.scalars = {1.0 / 3, 0, 11.5};
  record.series = {{10, 11}, {0.5, std::numeric_limits<double>::quiet_NaN()}};
  std::vector<char> map(8);
  appendMap(record.maps, [&] {
    std::fill_n(map.begin(), cells, 1);
    return map;
  }());
  appendMap(record.maps, std::vector<char>(8));
  return record;
}

Plan planOf(int runs, std::size_t runsPerPart) {
  Plan plan;
  plan.keys = {*studyKey("kf")};
  plan.runsPerPart = runsPerPart;
  for (int i = 0; i < runs; ++i)
    plan.runs.push_back({QByteArray("run") + char('a' + i), {0.001 * (i + 1)}, i == 0 ? 3 : 1});
  return plan;
}

class RecordsTest : public testing::Test, protected TestDirectory {
protected:
  RecordsTest() { folder.make(); }

  /// Keeps the records of the runs of the plan from `first` to before `end`.
  void keep(const Plan& plan, std::size_t first, std::size_t end, const Shard& shard = {}) {
    RecordKeeper keeper(folder, plan, layout, shard);
    ASSERT_EQ(keeper.open(), Journal::Opening::Done);
    for (std::size_t i = first; i < end; ++i) {
      const Record record = recordOf(plan.runs[i].name, plan.runs[i].values[0], int(i) + 1);
      ASSERT_TRUE(keeper.keep(record, toLine(record, true)));
    }
  }

  std::vector<std::size_t> missing(const Plan& plan, const Shard& shard = {}) {
    RecordKeeper keeper(folder, plan, layout, shard);
    EXPECT_EQ(keeper.open(), Journal::Opening::Done);
    return keeper.missing();
  }

  std::vector<QByteArray> names(const Plan& plan) const {
    std::vector<QByteArray> result;
    Results(folder, plan, layout).eachRecord([&](const Record& record) {
      result.push_back(record.run);
    });
    return result;
  }

  const ResultLayout layout = smallLayout();
  const StudyFolder folder{path("a.study")};
};

} // namespace

TEST(ExceedanceTest, mapsAreCountedCellByCellWithTheirWeight) {
  QByteArray maps;
  appendMap(maps, {1, 1, 0, 0});
  appendMap(maps, {0, 0, 0, 1});
  ExceedanceCounts counts(2, 4);
  EXPECT_TRUE(counts.add(maps, 2));
  EXPECT_TRUE(counts.add(maps, 1));
  EXPECT_EQ(counts.maps[0], (std::vector<std::uint32_t>{3, 3, 0, 0}));
  EXPECT_EQ(counts.maps[1], (std::vector<std::uint32_t>{0, 0, 0, 3}));
}

TEST(ExceedanceTest, stretchesOfAnyLengthAreTaken) {
  std::vector<char> map(100'000);
  std::fill(map.begin() + 300, map.begin() + 70'000, 1);
  QByteArray maps;
  appendMap(maps, map);
  EXPECT_LT(maps.size(), 12);
  ExceedanceCounts counts(1, map.size());
  ASSERT_TRUE(counts.add(maps, 1));
  EXPECT_TRUE(std::equal(map.begin(), map.end(), counts.maps[0].begin()));
}

TEST(ExceedanceTest, whatIsNoWholeMapIsNotCountedAtAll) {
  QByteArray maps;
  appendMap(maps, {1, 1, 0, 0});
  ExceedanceCounts two(2, 4);
  EXPECT_FALSE(two.add(maps, 1));
  ExceedanceCounts shorter(1, 3);
  EXPECT_FALSE(shorter.add(maps, 1));
  ExceedanceCounts longer(1, 5);
  EXPECT_FALSE(longer.add(maps, 1));
  for (const ExceedanceCounts& counts : {two, shorter, longer})
    for (const auto& map : counts.maps)
      EXPECT_EQ(map, std::vector<std::uint32_t>(map.size()));
}

TEST(RecordTest, aLineKeepsEveryBit) {
  const ResultLayout layout = smallLayout();
  const Record record = recordOf("abc", 1e-3 / 7, 2);
  const auto again = recordFromLine(toLine(record, true), layout);
  ASSERT_TRUE(again);
  EXPECT_EQ(again->run, "abc");
  EXPECT_EQ(again->values, record.values);
  EXPECT_EQ(again->scalars, record.scalars);
  EXPECT_EQ(again->series[0], record.series[0]);
  EXPECT_TRUE(std::isnan(again->series[1][1]));
  EXPECT_EQ(again->maps, record.maps);
  EXPECT_TRUE(recordFromLine(toLine(record, false), layout)->maps.isEmpty());
}

TEST(RecordTest, aRunThatFailedHasItsReasonAndNothingElse) {
  Record record;
  record.run = "abc";
  record.values = {1};
  record.failure = "no well has a rate";
  const auto again = recordFromLine(toLine(record, true), smallLayout());
  ASSERT_TRUE(again);
  EXPECT_EQ(again->failure, record.failure);
}

TEST(RecordTest, aLineOfAnotherLayoutIsNoRecord) {
  ResultLayout other = smallLayout();
  other.levels = {-1};
  EXPECT_FALSE(recordFromLine(toLine(recordOf("abc", 1, 1), true), other));
  EXPECT_FALSE(recordFromLine("{\"run\":\"abc\"", smallLayout()));
  EXPECT_FALSE(recordFromLine("", smallLayout()));
}

TEST(ResultLayoutTest, aLayoutComesBackFromJson) {
  EXPECT_EQ(layoutFromJson(toJson(smallLayout())), smallLayout());
  ResultLayout other = smallLayout();
  other.raster.cell = 2;
  EXPECT_NE(idOf(other), idOf(smallLayout()));
}

TEST(ResultLayoutTest, aLayoutWithoutBandsOfTheMeshKeepsItsName) {
  EXPECT_EQ(idOf(smallLayout()), "2c18b4e955438f1a"); // of results that there are
  ResultLayout banded = smallLayout();
  banded.meshBands = true;
  EXPECT_NE(idOf(banded), idOf(smallLayout()));
  EXPECT_EQ(layoutFromJson(toJson(banded)), banded);
}

TEST(ResultLayoutTest, bandsOfTheMeshFollowTheScalarsInTheirOrder) {
  ResultLayout layout = smallLayout();
  layout.meshBands = true;
  QStringList titles;
  for (const Scalar& scalar : layout.scalars())
    titles << layout.title(scalar);
  EXPECT_EQ(titles.mid(3), (QStringList{"plume_area_mesh_band -1 K 10 a [m²]",
                                        "plume_area_mesh_band 1 K 10 a [m²]",
                                        "temperature_mesh_band Pump 10 a [K]"}));
}

TEST(ResultLayoutTest, eachScalarHasATitleWithItsUnit) {
  const ResultLayout layout = smallLayout();
  QStringList titles;
  for (const Scalar& scalar : layout.scalars())
    titles << layout.title(scalar);
  EXPECT_EQ(titles, (QStringList{"plume_area -1 K 10 a [m²]", "plume_area 1 K 10 a [m²]",
                                 "temperature Pump 10 a [°C]"}));
}

TEST_F(RecordsTest, aPartComesBackAsItWasWritten) {
  const Part part = foldedPart({recordOf("b", 2, 1), recordOf("a", 1, 3)}, layout);
  ASSERT_TRUE(writePart(folder.part("x"), part, layout));
  EXPECT_TRUE(isWholePart(folder.part("x")));
  const auto again = readPart(folder.part("x"), layout);
  ASSERT_TRUE(again);
  ASSERT_EQ(again->records.size(), 2U);
  EXPECT_EQ(again->records[0].run, "a");
  EXPECT_EQ(again->records[1].scalars, part.records[1].scalars);
  EXPECT_EQ(again->counts, part.counts);
  EXPECT_EQ(again->counts.maps[0], (std::vector<std::uint32_t>{2, 1, 1, 0, 0, 0, 0, 0}));
}

TEST_F(RecordsTest, aPartThatLostAByteOrBelongsToAnotherLayoutIsNone) {
  const QString name = folder.part("x");
  ASSERT_TRUE(writePart(name, foldedPart({recordOf("a", 1, 3)}, layout), layout));
  ResultLayout other = layout;
  other.times = {11};
  EXPECT_FALSE(readPart(name, other));
  QByteArray content = contentOf(name);
  content[content.indexOf("11.5")] = '2';
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(content);
  file.close();
  EXPECT_FALSE(isWholePart(name));
  EXPECT_FALSE(readPart(name, layout));
  ASSERT_TRUE(file.resize(file.size() / 2));
  EXPECT_FALSE(isWholePart(name));
  EXPECT_FALSE(isWholePart(folder.part("none")));
}

TEST_F(RecordsTest, halfALineOfAJournalDoesNotCount) {
  const QString name = path("journal");
  {
    Journal journal(name);
    ASSERT_EQ(journal.open(), Journal::Opening::Done);
    EXPECT_TRUE(journal.append("one"));
  }
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::Append));
  file.write("tw");
  file.close();
  EXPECT_EQ(Journal::linesOf(name), QByteArrayList{"one"});
  Journal journal(name);
  ASSERT_EQ(journal.open(), Journal::Opening::Done);
  EXPECT_TRUE(journal.append("three"));
  EXPECT_EQ(Journal::linesOf(name), (QByteArrayList{"one", "three"}));
  EXPECT_TRUE(journal.replace({"four"}));
  EXPECT_TRUE(journal.append("five"));
  EXPECT_EQ(Journal::linesOf(name), (QByteArrayList{"four", "five"}));
}

TEST_F(RecordsTest, aJournalHasOneWriter) {
  Journal journal(path("journal"));
  ASSERT_EQ(journal.open(), Journal::Opening::Done);
  Journal other(path("journal"));
  EXPECT_EQ(other.open(), Journal::Opening::InUse);
}

TEST_F(RecordsTest, whatWasKeptIsNotMissingAnyMore) {
  const Plan plan = planOf(5, 2);
  EXPECT_EQ(missing(plan).size(), 5U);
  keep(plan, 0, 3);
  EXPECT_EQ(folder.parts().size(), 1);
  EXPECT_EQ(missing(plan), (std::vector<std::size_t>{3, 4}));
  keep(plan, 3, 5);
  EXPECT_EQ(folder.parts().size(), 3);
  EXPECT_TRUE(missing(plan).empty());
  EXPECT_EQ(contentOf(folder.journal(idOf(layout), "1-of-1")), "");
}

TEST_F(RecordsTest, aPartThatWasDamagedIsComputedAgain) {
  const Plan plan = planOf(4, 2);
  keep(plan, 0, 4);
  QFile file(folder.parts().first());
  ASSERT_TRUE(file.resize(10));
  EXPECT_EQ(missing(plan).size(), 2U);
}

TEST_F(RecordsTest, aPartThatTheJournalHoldsWholeIsClosedOnOpening) {
  const Plan plan = planOf(4, 2);
  Journal journal(folder.journal(idOf(layout), "1-of-1"));
  ASSERT_EQ(journal.open(), Journal::Opening::Done);
  for (std::size_t i = 0; i < 3; ++i)
    journal.append(toLine(recordOf(plan.runs[i].name, 1, 1), true));
  // as a shard that was killed before its part was written
  const std::vector<std::size_t> rest = missing(plan, {0, 2});
  EXPECT_TRUE(rest.empty());
  EXPECT_EQ(folder.parts().size(), 1);
}

TEST_F(RecordsTest, aRecordOfAnotherPlanStaysInTheJournal) {
  const Plan plan = planOf(6, 3);
  keep(plan, 4, 5);
  Plan shorter = planOf(3, 3);
  keep(shorter, 0, 3);
  EXPECT_EQ(missing(plan), (std::vector<std::size_t>{3, 5}));
}

TEST_F(RecordsTest, shardsShareTheRunsAndTakeOverWhatOthersHold) {
  const Plan plan = planOf(6, 2);
  const auto first = missing(plan, {0, 2});
  const auto second = missing(plan, {1, 2});
  EXPECT_EQ(first, (std::vector<std::size_t>{0, 1, 4, 5}));
  EXPECT_EQ(second, (std::vector<std::size_t>{2, 3}));
  keep(plan, 4, 5, {0, 2});
  EXPECT_EQ(missing(plan), (std::vector<std::size_t>{0, 1, 2, 3, 5}));
}

TEST_F(RecordsTest, resultsAreSortedByNameAndCountEachRunAsOftenAsItIsRepeated) {
  Plan plan = planOf(5, 2);
  std::swap(plan.runs[0], plan.runs[4]); // "runa", three times, comes last
  keep(plan, 0, 5);
  EXPECT_EQ(names(plan), (std::vector<QByteArray>{"runa", "runb", "runc", "rund", "rune"}));
  const Results results(folder, plan, layout);
  // the run at place i covers i + 1 cells
  EXPECT_EQ(results.counts().maps[0], (std::vector<std::uint32_t>{7, 6, 5, 4, 3, 0, 0, 0}));
}

TEST_F(RecordsTest, resultsHoldWhatStandsInJournalsToo) {
  const Plan plan = planOf(5, 2);
  keep(plan, 0, 3);
  const Results results(folder, plan, layout);
  EXPECT_EQ(results.size(), 3U);
  EXPECT_EQ(names(plan), (std::vector<QByteArray>{"runa", "runb", "runc"}));
  EXPECT_EQ(results.counts().maps[0], (std::vector<std::uint32_t>{5, 2, 1, 0, 0, 0, 0, 0}));
}
