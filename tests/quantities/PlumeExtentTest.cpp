#include "quantities/PlumeExtent.h"

#include "simulator/mesh/FVMesh.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace TVR::Quantities;

namespace {

FVGridLine evenLine(int cells, double width) {
  FVGridLine line;
  for (int i = 0; i < cells; ++i)
    line.append(i * width, width);
  return line;
}

/// 40 by 20 cells of 1 m, and a field over them that falls by `slope` K a metre along x and by
/// twice that along y, away from a cell in the middle, to 0 K.
class PlumeExtentTest : public testing::Test {
protected:
  std::vector<double> roof(double top, double slope) const {
    std::vector<double> values;
    for (const FVMeshElement& cell : mesh.elements)
      values.push_back(
          std::max(0.0, top - slope * (std::abs(cell.x - 20.5) + 2 * std::abs(cell.y - 10.5))));
    return values;
  }

  FVMesh mesh{evenLine(40, 1), evenLine(20, 1), 5};
};

} // namespace

TEST_F(PlumeExtentTest, aPlumeIsMeasuredAlongAndAcrossTheFlowToItsIsotherm) {
  const PlumeExtent extent = plumeExtent(mesh, roof(4, 0.25), 1);
  EXPECT_NEAR(extent.length, 24, 1e-9);
  EXPECT_NEAR(extent.width, 12, 1e-9);
}

TEST_F(PlumeExtentTest, aColdPlumeHasALevelBelowZero) {
  std::vector<double> cold = roof(4, 0.25);
  for (double& value : cold)
    value = -value;
  EXPECT_DOUBLE_EQ(plumeExtent(mesh, cold, -1).length, plumeExtent(mesh, roof(4, 0.25), 1).length);
  EXPECT_EQ(plumeExtent(mesh, cold, 1).length, 0);
}

TEST_F(PlumeExtentTest, whereALevelIsNowhereReachedThereIsNoPlume) {
  const PlumeExtent extent = plumeExtent(mesh, roof(4, 0.25), 5);
  EXPECT_EQ(extent.length, 0);
  EXPECT_EQ(extent.width, 0);
}

TEST_F(PlumeExtentTest, aPlumeThatLeavesTheMeshEndsAtItsEdge) {
  EXPECT_NEAR(plumeExtent(mesh, roof(20, 0.25), 12).length, 40, 1e-9);
}
