#include "study/page/SeriesBand.h"

#include "study/work/Record.h"
#include "study/work/RecordKeeper.h"
#include "study/work/Results.h"
#include "support/TestDirectory.h"

#include <gtest/gtest.h>

using namespace TVR;
using namespace TVR::Study;

namespace {

ResultLayout layoutOfTwoWells() {
  return {{"kf"}, {"m/s"}, {"Pump", "Return"}, {}, {10}, {-1}, {5, 10}, {0, 0, 1, 1, 1}};
}

/// Eleven runs: the temperature of Pump is 10 °C plus 0 to 10 K at the end and that of Return 5 °C;
/// the last run failed.
class SeriesBandTest : public testing::Test, protected TestDirectory {
protected:
  SeriesBandTest() : folder(path("a.study")), layout(layoutOfTwoWells()) {
    plan.keys = {*studyKey("kf")};
    plan.runsPerPart = 100;
    for (int i = 0; i < 12; ++i)
      plan.runs.push_back({QByteArray("run") + char('a' + i), {0.001 * (i + 1)}, 1});
    folder.make();
    RecordKeeper keeper(folder, plan, layout, {});
    EXPECT_EQ(keeper.open(), Journal::Opening::Done);
    for (int i = 0; i < 12; ++i) {
      Record record;
      record.run = plan.runs[std::size_t(i)].name;
      record.values = {0.001 * (i + 1)};
      if (i == 11) {
        record.failure = "the ground gave way";
      } else {
        record.series = {{10, 10. + i}, {5, 5}, {0.1, 0.2}, {-0.1, -0.2}};
        appendMap(record.maps, {0});
      }
      EXPECT_TRUE(keeper.keep(record, toLine(record, true)));
    }
  }

  StudyFolder folder;
  ResultLayout layout;
  Plan plan;
};

TEST_F(SeriesBandTest, itHasThePercentilesOfTheRunsThatHaveResults) {
  const Results results(folder, plan, layout);
  const SeriesBand band = seriesBand(layout, results, 0);
  EXPECT_EQ(band.times, (std::vector<double>{5, 10}));
  EXPECT_EQ(band.middle, (std::vector<double>{10, 15}));
  EXPECT_EQ(band.low[1], 11);
  EXPECT_EQ(band.high[1], 19);
}

TEST_F(SeriesBandTest, theExtremeSeriesHasTheGreatestOrLeastMedianAtTheEnd) {
  const Results results(folder, plan, layout);
  EXPECT_EQ(extremeSeries(results, {0, 1}, Extreme::Least), 1u);
  EXPECT_EQ(extremeSeries(results, {0, 1}, Extreme::Greatest), 0u);
  EXPECT_FALSE(extremeSeries(results, {}, Extreme::Least));
}

} // namespace
