#include "project/UserWork.h"

#include "design/ParameterId.h"
#include "project/Project.h"

#include <QPointF>

#include <gtest/gtest.h>

#include <limits>

namespace TVR {
namespace {

using namespace Parameter;

Project doublet() {
  Project project;
  project.values = {{NumberOfWells, 2}, {NumberOfDemandsPerYear, 1}, {GroundwaterGradient, 0.2}};
  project.wells.positions = {{0, 0}, {40, 0}};
  project.wells.givenPlaces = {0, 1};
  project.wells.names = {{0, "Pump"}, {1, "Return"}};
  project.wells.rates = {{0, -0.001}, {1, 0.001}};
  return project;
}

Project withValue(int id, const QVariant& value) {
  Project project = doublet();
  project.values[id] = value;
  return project;
}

TEST(UserWork, aTextIsTheNumberThatItStandsFor) {
  EXPECT_TRUE(isSameEntry(GroundwaterGradient, "0.2", 0.2));
  EXPECT_TRUE(isSameEntry(GroundwaterGradient, "2e-1", "0.20"));
  EXPECT_TRUE(isSameEntry(NumberOfWells, "4.0", 4));
  EXPECT_FALSE(isSameEntry(GroundwaterGradient, "0.2", 0.20000000000000004));
}

TEST(UserWork, aTextIsTheTruthValueThatItStandsFor) {
  EXPECT_TRUE(isSameEntry(AquiferUnconfined, "true", true));
  EXPECT_TRUE(isSameEntry(AquiferUnconfined, "false", 0.0));
  EXPECT_FALSE(isSameEntry(AquiferUnconfined, "false", true));
}

TEST(UserWork, digitsOfATextAreNoNumber) {
  EXPECT_FALSE(isSameEntry(ProjectZip, "01", "1"));
  EXPECT_FALSE(isSameEntry(ProjectName, "1.0", "1"));
}

TEST(UserWork, noValueIsAnEmptyText) {
  EXPECT_TRUE(isSameEntry(ProjectName, QVariant(), ""));
  EXPECT_FALSE(isSameEntry(ProjectName, QVariant(), "Riverside"));
  EXPECT_FALSE(isSameEntry(GroundwaterGradient, QVariant(), 0.2));
}

TEST(UserWork, whatHasNoTextIsComparedByItself) {
  EXPECT_FALSE(isSameEntry(DefaultWellPosition, QPointF(1, 2), QPointF(1, 3)));
  EXPECT_FALSE(isSameEntry(DefaultWellPosition, QPointF(1, 2), QVariant()));
  EXPECT_TRUE(isSameEntry(DefaultWellPosition, QPointF(1, 2), QPointF(1, 2)));
}

TEST(UserWork, aFormulaWithoutAnAnswerIsItself) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(isSameEntry(Drawdown, "nan", nan));
}

TEST(UserWork, aProjectIsItself) {
  EXPECT_TRUE(isSameWork(doublet(), doublet()));
}

TEST(UserWork, valuesOfTheUserCount) {
  EXPECT_FALSE(isSameWork(doublet(), withValue(GroundwaterGradient, 0.3)));
  EXPECT_FALSE(isSameWork(doublet(), withValue(ProjectName, "Riverside")));
  EXPECT_FALSE(isSameWork(doublet(), withValue(ThermalDispersivity, 5.0)));
  EXPECT_FALSE(isSameWork(doublet(), withValue(MinElementLength, 5.0)));
  EXPECT_FALSE(isSameWork(doublet(), withValue(GeneralWizardDone, true)));
}

TEST(UserWork, notesOfTheProgramDoNotCount) {
  for (const int id : {SimulationUpToDate, UsedNumberOfElements, MaximumExtent3K,
                       TimeOfMaximumExtent3K, ExportIsohypsesAsShape, ExportIsothermsAsShape})
    EXPECT_TRUE(isSameWork(doublet(), withValue(id, 1))) << id;
  EXPECT_TRUE(isSameWork(doublet(), withValue(GuiLanguage, "fr")));
  EXPECT_TRUE(isSameWork(doublet(), withValue(BatchOutputFile, "out.xml")));
  EXPECT_TRUE(isSameWork(doublet(), withValue(DefaultWellPosition, QPointF(7, 8))));
}

TEST(UserWork, thePlaceOfAWellCountsIfItWasGiven) {
  Project moved = doublet();
  moved.wells.positions[1] = {41, 0};
  EXPECT_FALSE(isSameWork(doublet(), moved));
  Project left = doublet();
  left.wells.givenPlaces = {0};
  moved.wells.givenPlaces = {0};
  EXPECT_TRUE(isSameWork(left, moved));
  EXPECT_FALSE(isSameWork(left, doublet()));
}

TEST(UserWork, namesAndRatesOfWellsCount) {
  Project named = doublet();
  named.wells.names[1] = "South";
  EXPECT_FALSE(isSameWork(doublet(), named));
  Project faster = doublet();
  faster.wells.rates[0] = -0.002;
  EXPECT_FALSE(isSameWork(doublet(), faster));
  Project colder = doublet();
  colder.wells.temperatureChanges[1] = -3;
  EXPECT_FALSE(isSameWork(doublet(), colder));
}

TEST(UserWork, anEntryThatIsWhatAFileWouldHoldAnywayIsNone) {
  Project derived = doublet();
  derived.wells.names.clear();
  Project entered = derived;
  entered.wells.names[0] = "Well 1";
  EXPECT_TRUE(isSameWork(derived, entered));
}

TEST(UserWork, ratesByPeriodCount) {
  Project seasons = doublet();
  seasons.values[NumberOfDemandsPerYear] = 2;
  seasons.durations = {{0, 1e7}, {1, 2e7}};
  Project other = seasons;
  other.wells.periodRates[1] = {{1, 0.004}};
  EXPECT_FALSE(isSameWork(seasons, other));
}

TEST(UserWork, durationsOfPeriodsCountAndEqualPartsNeedNotBeEntered) {
  Project two = withValue(NumberOfDemandsPerYear, 2);
  Project entered = two;
  entered.durations = {{0, 15778800.0}, {1, 15778800.0}};
  EXPECT_TRUE(isSameWork(two, entered));
  entered.durations[1] = 15778801.0;
  EXPECT_FALSE(isSameWork(two, entered));
}

} // namespace
} // namespace TVR
