#include "project/ProjectChange.h"

#include "design/ParameterId.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

using namespace Parameter;

Project project() {
  Project project;
  project.values = {
      {HydraulicConductivity, 0.001}, {Gravity, 9.81}, {DefaultWellPosition, QPointF(1, 2)}};
  project.wells.positions = {{1, 2}, {30, 4}};
  project.wells.givenPlaces = {1};
  project.wells.names = {{1, "Ost"}};
  project.durations = {{0, 100.0}};
  return project;
}

Project withValue(Project project, int id, const QVariant& value) {
  project.values[id] = value;
  return project;
}

TEST(ProjectChange, ofTheProjectThatItBeginsWithIsTheOneThatItEndsWith) {
  Project to = withValue(project(), HydraulicConductivity, "0.001");
  to.wells.positions.clear();
  to.made.periods = true;
  const Project result = withChange(project(), project(), to);
  EXPECT_TRUE(result == to);
  EXPECT_TRUE(result.made.periods);
}

TEST(ProjectChange, changesOnlyTheValuesThatItIsAbout) {
  const Project present = withValue(project(), Gravity, 9.0);
  const Project to = withValue(project(), HydraulicConductivity, 0.002);
  EXPECT_TRUE(withChange(present, project(), to) ==
              withValue(present, HydraulicConductivity, 0.002));
}

TEST(ProjectChange, takesAValueAwayThatItHasNot) {
  const Project from = withValue(project(), Drawdown, 3.0);
  const Project present = withValue(from, Gravity, 9.0);
  EXPECT_TRUE(withChange(present, from, project()) == withValue(project(), Gravity, 9.0));
}

TEST(ProjectChange, aValueThatOnlyChangesItsTypeIsChanged) {
  const Project to = withValue(project(), HydraulicConductivity, "0.001");
  const Project present = withValue(project(), Gravity, 9.0);
  EXPECT_EQ(withChange(present, project(), to).values[HydraulicConductivity].userType(),
            static_cast<int>(QMetaType::QString));
}

TEST(ProjectChange, changesEachKindOfEntriesAlone) {
  const auto takes = [](auto change) {
    Project present = project();
    present.wells.rates = {{0, -0.5}};
    Project expected = present;
    Project to = project();
    change(to);
    change(expected);
    return withChange(present, project(), to) == expected;
  };
  EXPECT_TRUE(takes([](Project& to) { to.wells.positions[1] = {5, 5}; }));
  EXPECT_TRUE(takes([](Project& to) { to.wells.givenPlaces.clear(); }));
  EXPECT_TRUE(takes([](Project& to) { to.wells.names[0] = "West"; }));
  EXPECT_TRUE(takes([](Project& to) { to.wells.temperatureChanges[1] = 4; }));
  EXPECT_TRUE(takes([](Project& to) { to.wells.periodRates[1][0] = 4; }));
  EXPECT_TRUE(takes([](Project& to) { to.wells.periodTemperatureChanges[1][0] = 4; }));
  EXPECT_TRUE(takes([](Project& to) { to.durations[1] = 4; }));
}

TEST(ProjectChange, tablesThatOthersHaveMadeStay) {
  Project present = project();
  present.made.wells = true;
  Project to = project();
  to.made.periods = true;
  const Project result = withChange(present, project(), to);
  EXPECT_TRUE(result.made.wells);
  EXPECT_TRUE(result.made.periods);
  EXPECT_FALSE(result.made.wellPeriods);
}

TEST(ProjectChange, wellsThatNobodyPlacedFollowTheDefaultOfNow) {
  Project present = withValue(project(), DefaultWellPosition, QPointF(7, 8));
  present.wells.positions[0] = {7, 8};
  Project to = project();
  to.wells.positions.append({1, 2});
  const Project result = withChange(present, project(), to);
  const QVector<QPointF> expected{{7, 8}, {30, 4}, {7, 8}};
  EXPECT_EQ(result.wells.positions, expected);
}

} // namespace
} // namespace TVR
