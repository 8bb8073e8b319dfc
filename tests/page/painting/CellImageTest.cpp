#include "page/painting/CellImage.h"

#include "contour/GridMesh.h"

#include <QImage>
#include <QTransform>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace TVR::Page;
using TVR::Contour::GridMesh;

constexpr QRgb red = 0xffff0000;
constexpr QRgb blue = 0xff0000ff;

/// `columns` by `rows` cells of size 1.
GridMesh mesh(int columns, int rows) {
  GridMesh grid;
  for (int j = 0; j <= rows; ++j)
    for (int i = 0; i <= columns; ++i)
      grid.nodes.emplace_back(i, j);
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i) {
      const int node = j * (columns + 1) + i;
      grid.cells.push_back({node, node + 1, node + columns + 2, node + columns + 1});
    }
  return grid;
}

TEST(CellImage, eachPixelHasTheColourOfItsCell) {
  const QImage image = cellImage(mesh(2, 1), {red, blue}, QTransform::fromScale(4, 4), {8, 4});
  EXPECT_EQ(image.pixel(3, 2), red);
  EXPECT_EQ(image.pixel(4, 2), blue);
}

TEST(CellImage, neighboursLeaveNoSeamAtAnyAngle) {
  const int size = 30;
  const GridMesh grid = mesh(size, size);
  const std::vector<QRgb> colours(size * size, 0x80800000);
  for (const double angle : {0., 17., 45., 73.}) {
    const QTransform turn =
        QTransform().translate(50, 50).rotate(angle).scale(4.37, 4.37).translate(-15, -15);
    const QImage image = cellImage(grid, colours, turn, {100, 100});
    // What is so near to the middle lies within the turned square of side 131.
    for (int y = 0; y < 100; ++y)
      for (int x = 0; x < 100; ++x) {
        const bool isInside = QPointF(x - 50, y - 50).manhattanLength() < 45;
        ASSERT_EQ(isInside ? image.pixel(x, y) : 0x80800000, 0x80800000)
            << angle << ' ' << x << ' ' << y;
      }
  }
}

TEST(CellImage, outsideOfTheCellsItIsTransparent) {
  const QImage image = cellImage(mesh(1, 1), {red}, QTransform::fromScale(4, 4), {8, 8});
  EXPECT_EQ(image.pixel(6, 2), 0u);
  EXPECT_EQ(image.pixel(2, 6), 0u);
}

TEST(CellImage, cellsBeyondTheImageAreCutOff) {
  const QTransform view = QTransform().translate(-1e7, -1e7).scale(1e6, 1e6);
  const QImage image = cellImage(mesh(20, 20), std::vector<QRgb>(400, red), view, {8, 8});
  EXPECT_EQ(image.pixel(0, 0), red);
  EXPECT_EQ(image.pixel(7, 7), red);
}

TEST(CellImage, aCellOfNodesThatAreNotThereIsLeftOut) {
  GridMesh grid = mesh(2, 1);
  grid.cells[0] = {0, 1, 99, -1};
  const QImage image = cellImage(grid, {red, blue}, QTransform::fromScale(4, 4), {8, 4});
  EXPECT_EQ(image.pixel(1, 1), 0u);
  EXPECT_EQ(image.pixel(6, 1), blue);
}

TEST(CellImage, aCellWithoutAColourIsLeftOut) {
  const QImage image = cellImage(mesh(2, 1), {red}, QTransform::fromScale(4, 4), {8, 4});
  EXPECT_EQ(image.pixel(6, 1), 0u);
}

TEST(CellImage, nodesThatAreNotFiniteDoNoHarm) {
  GridMesh grid = mesh(2, 1);
  grid.nodes[0] = {std::nan(""), 0};
  grid.nodes[3] = {0, std::numeric_limits<double>::infinity()};
  const QImage image = cellImage(grid, {red, blue}, QTransform::fromScale(4, 4), {8, 4});
  EXPECT_EQ(image.pixel(6, 1), blue);
}

TEST(CellImage, anEmptySizeGivesNoImage) {
  EXPECT_TRUE(cellImage(mesh(1, 1), {red}, {}, {0, 5}).isNull());
}

} // namespace
