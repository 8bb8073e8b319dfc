#include "design/ParameterId.h"
#include "project/Project.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace TVR {
namespace {

using namespace Parameter;

Project someProject() {
  Project project;
  project.values = {{HydraulicConductivity, 0.001},
                    {ProjectName, "Süd"},
                    {AquiferUnconfined, true},
                    {DefaultWellPosition, QPointF(1, 2)}};
  project.wells.positions = {{0, 0}, {30, 4}};
  project.wells.names = {{1, "Süd"}};
  project.wells.periodRates = {{0, {{1, -0.002}}}};
  project.durations = {{0, 100.0}, {1, 200.0}};
  return project;
}

TEST(ProjectValue, aCopyIsEqualAndLivesOnItsOwn) {
  const Project one = someProject();
  Project other = one;
  EXPECT_TRUE(one == other);
  other.wells.periodRates[0][1] = -0.003;
  EXPECT_FALSE(one == other);
  EXPECT_EQ(one.wells.periodRates[0][1], -0.002);
}

TEST(ProjectValue, everyPartCounts) {
  const Project one = someProject();
  const auto differs = [&one](auto change) {
    Project other = one;
    change(other);
    return !(one == other) && !(other == one);
  };
  EXPECT_TRUE(differs([](Project& p) { p.values[HydraulicConductivity] = 0.002; }));
  EXPECT_TRUE(differs([](Project& p) { p.values.remove(ProjectName); }));
  EXPECT_TRUE(differs([](Project& p) { p.values[Gravity] = 9.81; }));
  EXPECT_TRUE(differs([](Project& p) { p.wells.positions[1].rx() = std::nextafter(30.0, 31.0); }));
  EXPECT_TRUE(differs([](Project& p) { p.wells.givenPlaces.insert(1); }));
  EXPECT_TRUE(differs([](Project& p) { p.wells.names.clear(); }));
  EXPECT_TRUE(differs([](Project& p) { p.wells.rates[0] = 0; }));
  EXPECT_TRUE(differs([](Project& p) { p.wells.temperatureChanges[0] = 0; }));
  EXPECT_TRUE(differs([](Project& p) { p.wells.periodRates.clear(); }));
  EXPECT_TRUE(differs([](Project& p) { p.wells.periodTemperatureChanges[0][0] = 1; }));
  EXPECT_TRUE(differs([](Project& p) { p.durations[1] = 201; }));
}

TEST(ProjectValue, aTextIsNoNumberAndAPointIsComparedExactly) {
  EXPECT_FALSE(isSameValue("1", 1));
  EXPECT_FALSE(isSameValue(1, 1.0));
  EXPECT_FALSE(isSameValue(true, 1));
  EXPECT_FALSE(isSameValue(1.0, std::nextafter(1.0, 2.0)));
  EXPECT_FALSE(isSameValue(QPointF(1, 1), QPointF(1, 1 + 1e-14)));
  EXPECT_FALSE(isSameValue(QVariant(), QString()));
  EXPECT_TRUE(isSameValue(QPointF(1, 1), QPointF(1, 1)));
  EXPECT_TRUE(isSameValue("Süd", "Süd"));
}

TEST(ProjectValue, whatIsNoNumberEqualsItself) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(isSameValue(nan, nan));
  EXPECT_FALSE(isSameValue(nan, 0.0));
}

TEST(ProjectValue, twoProjectsChangePlaces) {
  Project one = someProject();
  Project other;
  swap(one, other);
  EXPECT_TRUE(one == Project());
  EXPECT_TRUE(other == someProject());
}

} // namespace
} // namespace TVR
