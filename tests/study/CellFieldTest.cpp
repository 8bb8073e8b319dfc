#include "study/work/CellField.h"

#include "project/RunFrame.h"
#include "simulator/mesh/FVMesh.h"
#include "study/work/RasterWalk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <numeric>

using namespace TVR;
using namespace TVR::Study;

namespace {

FVGridLine axis(double start, double width, int count) {
  FVGridLine line;
  for (int i = 0; i < count; ++i)
    line.append(start + i * width, width);
  return line;
}

/// Cells of 1 m from -20 to 20 m along x and y.
FVMesh mesh() {
  return {axis(-20, 1, 40), axis(-20, 1, 40), 10};
}

template <class Field>
std::vector<double> valuesOf(const FVMesh& mesh, Field field) {
  std::vector<double> values;
  for (std::size_t row = 0; row < mesh.yLine.count(); ++row)
    for (std::size_t column = 0; column < mesh.xLine.count(); ++column)
      values.push_back(field(mesh.xLine.centre(column), mesh.yLine.centre(row)));
  return values;
}

double cone(double x, double y) {
  return 10 - std::hypot(x, y);
}

int countOf(const std::vector<char>& cells) {
  return std::accumulate(cells.begin(), cells.end(), 0);
}

} // namespace

TEST(CellFieldTest, aLinearFieldIsMetExactlyBetweenTheCentres) {
  const FVMesh cells = mesh();
  const CellField field(cells, valuesOf(cells, [](double x, double y) { return 2 * x - y; }));
  EXPECT_NEAR(field.value(3.3, -4.7), 2 * 3.3 + 4.7, 1e-12);
  EXPECT_NEAR(field.value(-19.9, 0.5), 2 * -19.5 - 0.5, 1e-12); // constant behind the last centre
  EXPECT_EQ(field.value(20.1, 0), 0);
}

TEST(CellFieldTest, theAreaAboveALevelIsThatOfTheCircle) {
  const FVMesh cells = mesh();
  const CellField warm(cells, valuesOf(cells, cone));
  EXPECT_NEAR(warm.areaAbove(4), std::numbers::pi * 36, 0.6);
  EXPECT_EQ(warm.areaAbove(11), 0);
  const CellField cold(cells, valuesOf(cells, [](double x, double y) { return -cone(x, y); }));
  EXPECT_DOUBLE_EQ(cold.areaAbove(-4), warm.areaAbove(4));
}

TEST(CellFieldTest, theAreaOfAHalfPlaneIsExact) {
  const FVMesh cells = mesh();
  const CellField field(cells, valuesOf(cells, [](double x, double) { return x; }));
  EXPECT_NEAR(field.areaAbove(7.25), 40 * (20 - 7.25), 1e-9);
}

TEST(CellFieldTest, aRasterLiesOnTheMapAndTheModelIsTurnedOntoIt) {
  const FVMesh cells = mesh();
  // A stripe downstream of the origin; the flow runs to the south, and the model with it.
  const CellField field(cells, valuesOf(cells, [](double x, double y) {
                          return x > 0 && std::abs(y) < 3 ? 5.0 : 0.0;
                        }));
  const std::vector<char> above =
      cellsAbove(field, 2.5, {-30, -30, 1, 60, 60}, {{0, 0}, 180, true});
  EXPECT_NEAR(countOf(above), 20 * 6, 8);
  const auto has = [&](int x, int y) { return above[(y + 30) * 60 + x + 30] != 0; };
  EXPECT_TRUE(has(0, -10)); // south of the origin
  EXPECT_FALSE(has(0, 10));
  EXPECT_FALSE(has(10, 0));
}

TEST(CellFieldTest, aRasterThatTheFieldDoesNotReachIsEmpty) {
  const FVMesh cells = mesh();
  const CellField field(cells, valuesOf(cells, cone));
  EXPECT_EQ(countOf(cellsAbove(field, 4, {100, 100, 1, 10, 10}, {})), 0);
  EXPECT_EQ(countOf(cellsAbove(field, 4, {-2, -2, 1, 4, 4}, {})), 16);
}
