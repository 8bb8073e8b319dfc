#include "simulation/SiteSetupTest.h"

using namespace TVR;
using namespace TVR::Parameter;

namespace {

std::vector<int> ids(const SiteSetup& setup) {
  std::vector<int> result;
  for (const auto& well : setup.wells)
    result.push_back(well->id());
  return result;
}

} // namespace

// Wells that take part

TEST_F(SiteSetupTest, aWellWithoutARateTakesPartBehindOneThatHasARate) {
  BatchProject project;
  project.addWell("Idle before", 0, 60, 0);
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Idle behind", 20, 30, 0);
  project.addWell("Return", 40, 0, 0.001);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(ids(setup), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(setup.wells[1]->rate(0), 0);
  EXPECT_EQ(setup.input.wells.size(), 3u);
}

TEST_F(SiteSetupTest, aRateOfAPeriodIsEnoughForAWellToTakePart) {
  BatchProject project;
  project.addWell("Pump", 0, 0, 0);
  project.addWell("Return", 40, 0, 0);
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{0, 0}, {-0.002, 0}, {0, 0}, {0.002, -2}});
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(ids(setup), (std::vector<int>{0, 1}));
  EXPECT_EQ(setup.wells[0]->rate(1), -0.002);
}

TEST_F(SiteSetupTest, aRateCountsFromItsThresholdOn) {
  constexpr double threshold = 1e-25; // [m3/s]
  for (const double rate : {0.999 * threshold, threshold}) {
    BatchProject project;
    project.addWell("Next to idle", 0, 60, rate);
    project.addWell("Pump", 0, 0, -0.001);
    project.addWell("Return", 40, 0, 0.001);
    read(project);
    EXPECT_EQ(ids(setUp()),
              rate < threshold ? (std::vector<int>{1, 2}) : (std::vector<int>{0, 1, 2}))
        << rate;
  }
}

TEST_F(SiteSetupTest, aProjectWithoutAnyRateIsRefused) {
  BatchProject project;
  project.addWell("Pump", 0, 0, 0);
  project.addWell("Return", 40, 0, 0);
  read(project);
  EXPECT_THROW(setUp(), SetupError);
}

TEST_F(SiteSetupTest, aProjectWithoutWellsIsRefused) {
  read(BatchProject().set("installation", "number_of_wells", 0));
  EXPECT_THROW(setUp(), SetupError);
}

// Rates and changes

TEST_F(SiteSetupTest, ratesAndChangesOfAConstantDemandAreThoseOfTheWellTable) {
  BatchProject project;
  project.addWell("Pump", 0, 0, -0.001, 5);
  project.addWell("Return", 40, 0, 0.001, -3);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[0]->rate(0), -0.001);
  EXPECT_EQ(setup.wells[0]->temperatureChange(0), 0) << "a withdrawal changes no temperature";
  EXPECT_EQ(setup.wells[1]->rate(0), 0.001);
  EXPECT_EQ(setup.wells[1]->temperatureChange(0), -3);
}

TEST_F(SiteSetupTest, ratesOfThePeriodsComeAgainInEachCycle) {
  read(BatchProject::seasons());
  const SiteSetup setup = setUp();
  for (int cycle = 0; cycle < 12; ++cycle) {
    EXPECT_EQ(setup.wells[0]->rate(2 * cycle), -0.001);
    EXPECT_EQ(setup.wells[0]->rate(2 * cycle + 1), -0.002);
    EXPECT_EQ(setup.wells[1]->rate(2 * cycle), 0.001);
    EXPECT_EQ(setup.wells[1]->temperatureChange(2 * cycle), -3);
    EXPECT_EQ(setup.wells[1]->rate(2 * cycle + 1), 0.002);
    EXPECT_EQ(setup.wells[1]->temperatureChange(2 * cycle + 1), 4);
  }
}

TEST_F(SiteSetupTest, changesArePutToZeroWhereAWellDoesNotInject) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{-0.001, 7}, {0, 7}, {0.001, -3}, {-0.0005, 7}});
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[0]->temperatureChange(0), 0);
  EXPECT_EQ(setup.wells[0]->temperatureChange(1), 0);
  EXPECT_EQ(setup.wells[1]->temperatureChange(0), -3);
  EXPECT_EQ(setup.wells[1]->temperatureChange(1), 0);
}

TEST_F(SiteSetupTest, ratesOfThePeriodsAreFoundByTheWholeName) {
  BatchProject project;
  project.addWell("Well 10", 0, 0, -0.001);
  project.addWell("Well 1", 40, 0, 0.001);
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{-0.003, 0}, {-0.004, 0}, {0.005, -3}, {0.006, -3}});
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[0]->rate(0), -0.003);
  EXPECT_EQ(setup.wells[0]->rate(1), -0.004);
  EXPECT_EQ(setup.wells[1]->rate(0), 0.005);
  EXPECT_EQ(setup.wells[1]->rate(1), 0.006);
  EXPECT_EQ(setup.wells[1]->rate(2), 0.005) << "a second cycle";
}

TEST_F(SiteSetupTest, charactersOfPatternsInANameMeanThemselves) {
  for (const char* name : {"Well (1", "A.B", "A+B", "[x]", "^$", "a|b"}) {
    BatchProject project;
    project.addWell("AxB", 0, 0, -0.001);
    project.addWell(name, 40, 0, 0.001);
    project.addPeriod(year / 2);
    project.addPeriod(year / 2);
    project.addPeriodRates({{-0.003, 0}, {-0.004, 0}, {0.005, -3}, {0.006, -3}});
    read(project);
    const SiteSetup setup = setUp();
    EXPECT_EQ(setup.wells[1]->rate(0), 0.005) << name;
    EXPECT_EQ(setup.wells[1]->rate(1), 0.006) << name;
    EXPECT_EQ(setup.wells[1]->rate(2), 0.005) << name;
  }
}

// The used distance

TEST_F(SiteSetupTest, theUsedDistanceIsTheSmallestOfAnOppositePair) {
  BatchProject project;
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Second pump", 10, 0, -0.001);
  project.addWell("Return", 0, 30, 0.001);
  project.addWell("Second return", 100, 0, 0.001);
  read(project);
  setUp();
  EXPECT_DOUBLE_EQ(number(DMinUsed), 30);
}

TEST_F(SiteSetupTest, theUsedDistanceStaysIfAllWellsInject) {
  BatchProject project;
  project.addWell("Return", 0, 0, 0.001);
  project.addWell("Second return", 40, 0, 0.001);
  read(project);
  store.setValue(DMinUsed, 77.0);
  setUp();
  EXPECT_EQ(number(DMinUsed), 77);
}

TEST_F(SiteSetupTest, aPairThatWorksInOppositionInAnyPeriodCounts) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{0.001, 1}, {-0.001, 0}, {0.001, 1}, {0.001, 1}});
  read(project);
  store.setValue(DMinUsed, 77.0);
  setUp();
  EXPECT_DOUBLE_EQ(number(DMinUsed), 40);
}

TEST_F(SiteSetupTest, withPeriodsTheMeanRatesDoNotCountForTheUsedDistance) {
  BatchProject project = BatchProject::doublet(); // opposite in the mean
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{0.001, 1}, {0.001, 1}, {0.001, 1}, {0.001, 1}});
  read(project);
  store.setValue(DMinUsed, 77.0);
  setUp();
  EXPECT_EQ(number(DMinUsed), 77);
}
