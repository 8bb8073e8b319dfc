#include "page/model/GridColours.h"

#include "page/model/Items.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;
using namespace Sketra_lib::Property;

TEST(GridColours, theNoiseOfASolverHasNone) {
  GridDataItem grid(1);
  for (const double noise : {1e-12, -1e-12, 0.01, -0.01}) {
    grid.sets[Temperature].values = {0, noise};
    EXPECT_FALSE(GridColours::of(grid)) << noise;
  }
  grid.sets[Temperature].values = {0, -0.0101};
  EXPECT_TRUE(GridColours::of(grid));
}

TEST(GridColours, theyAreThoseOfTheDrawdownsWhereTheTemperatureStays) {
  GridDataItem grid(1);
  grid.sets[Drawdowns].values = {0, -0.5};
  grid.sets[Temperature].values = {0, 1e-12};
  EXPECT_EQ(grid.colouredSet(), &grid.sets[Drawdowns]);
  grid.sets[Drawdowns].values = {0, 1e-9};
  EXPECT_EQ(grid.colouredSet(), nullptr);
}

} // namespace
