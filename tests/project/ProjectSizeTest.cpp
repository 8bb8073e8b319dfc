#include "project/ProjectSize.h"

#include "design/ParameterId.h"
#include "project/Project.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

using namespace Parameter;

constexpr int letters = 100'000;

Project project() {
  Project project;
  project.values = {{ProjectDescription, QString(letters, 'x')}, {Gravity, 9.81}};
  project.wells.positions.resize(2);
  project.wells.names = {{0, QString(letters, 'y')}};
  project.wells.periodRates = {{0, {{0, 0.1}, {1, 0.2}}}};
  return project;
}

TEST(ProjectSize, textsTakeTwoBytesALetter) {
  const qint64 bytes = bytesBeside(project(), Project());
  EXPECT_GT(bytes, 4 * letters);
  EXPECT_LT(bytes, 4 * letters + 2000);
}

TEST(ProjectSize, aCopyTakesNextToNothing) {
  const Project one = project();
  const Project other = one; // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_LE(bytesBeside(other, one), static_cast<qint64>(sizeof(Project)));
}

TEST(ProjectSize, aChangedValueTakesTheValuesAgainButNotTheirTexts) {
  const Project one = project();
  Project other = one;
  other.values[Gravity] = 9.0;
  EXPECT_GT(bytesBeside(other, one), bytesBeside(one, one));
  EXPECT_LT(bytesBeside(other, one), 2000);
  other.values[ProjectDescription] = QString(letters, 'x');
  EXPECT_GT(bytesBeside(other, one), 2 * letters);
}

TEST(ProjectSize, entriesAndPlacesOfWellsCount) {
  const Project one = project();
  const auto more = [&one](auto change) {
    Project other = one;
    change(other);
    return bytesBeside(other, one) - bytesBeside(one, one);
  };
  constexpr int wells = 1000;
  EXPECT_GT(more([](Project& other) { other.wells.positions.resize(wells); }), 16 * wells);
  EXPECT_GT(more([](Project& other) {
              for (int row = 0; row < wells; ++row)
                other.wells.periodRates[row][0] = 1;
            }),
            40 * wells);
  EXPECT_GT(more([](Project& other) {
              for (int row = 0; row < wells; ++row)
                other.wells.givenPlaces.insert(row);
            }),
            16 * wells);
  EXPECT_GT(more([](Project& other) { other.wells.names[1] = QString(wells, 'z'); }), 2 * wells);
}

} // namespace
} // namespace TVR
