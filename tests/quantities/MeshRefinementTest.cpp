#include "quantities/MeshRefinement.h"

#include "simulator/mesh/FVMesh.h"
#include "simulator/mesh/Well.h"

#include <gtest/gtest.h>

using namespace TVR::Quantities;

namespace {

/// Cells of these widths from `start` on.
FVGridLine lineOf(double start, const std::vector<double>& widths) {
  FVGridLine line;
  for (const double width : widths) {
    line.append(start, width);
    start += width;
  }
  return line;
}

std::vector<double> widths(const FVGridLine& line) {
  std::vector<double> result;
  for (std::size_t i = 0; i < line.count(); ++i)
    result.push_back(line.width(i));
  return result;
}

double end(const FVGridLine& line) {
  return line.start(line.count() - 1) + line.width(line.count() - 1);
}

/// A mesh of 4 m of aquifer around one well that stands in the cell from (10, 6) to (11, 7).
class MeshRefinementTest : public testing::Test {
protected:
  MeshRefinementTest() { wells.push_back(std::make_unique<Well>(0, 10.5, 6.5)); }

  FVMesh mesh{lineOf(0, {6, 4, 1, 2, 4, 8}), lineOf(0, {4, 2, 1, 2}), 4};
  std::vector<std::unique_ptr<Well>> wells;
};

using Widths = std::vector<double>;

} // namespace

TEST_F(MeshRefinementTest, allCellsAreHalvedButThoseOfWells) {
  const FVMesh fine = refined(mesh, wells);
  EXPECT_EQ(widths(fine.xLine), (Widths{3, 3, 2, 2, 1, 1, 1, 2, 2, 4, 4}));
  EXPECT_EQ(widths(fine.yLine), (Widths{2, 2, 1, 1, 1, 1, 1}));
}

TEST_F(MeshRefinementTest, cellsAreJoinedInPairsAndThoseOfWellsStay) {
  const FVMesh coarse = coarsened(mesh, wells);
  EXPECT_EQ(widths(coarse.xLine), (Widths{10, 1, 6, 8}));
  EXPECT_EQ(widths(coarse.yLine), (Widths{6, 1, 2}));
}

TEST_F(MeshRefinementTest, bothLieOverTheSameArea) {
  for (const FVMesh& other : {refined(mesh, wells), coarsened(mesh, wells)}) {
    EXPECT_EQ(other.xLine.start(0), 0);
    EXPECT_EQ(end(other.xLine), end(mesh.xLine));
    EXPECT_EQ(end(other.yLine), end(mesh.yLine));
    EXPECT_EQ(other.H, 4);
  }
}

TEST_F(MeshRefinementTest, aSliverBetweenWellsStaysOneCell) {
  const FVMesh slivered{lineOf(0, {10, 1, 1e-14, 1, 10}), mesh.yLine, 4};
  wells.push_back(std::make_unique<Well>(1, 11.5, 6.5));
  EXPECT_EQ(widths(refined(slivered, wells).xLine), (Widths{5, 5, 1, 1e-14, 1, 5, 5}));
}
