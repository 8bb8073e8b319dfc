#include "page/ColourBar.h"

#include "page/Painted.h"
#include "page/SamplePage.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

const QRectF area(0, 0, 100, 80);
const QSizeF size(10, 30);

TEST(ColourBar, itIsAtTheLowerRightIfNothingIsInTheWay) {
  EXPECT_EQ(quietestCorner(area, size, {}), QRectF(90, 50, 10, 30));
}

TEST(ColourBar, itKeepsOffWells) {
  EXPECT_EQ(quietestCorner(area, size, {{{95, 60}, 1000}}), QRectF(0, 50, 10, 30));
}

TEST(ColourBar, itCoversTheLeastWhereEveryCornerIsTaken) {
  const std::vector<WeightedPlace> places{{{95, 60}, 5}, {{5, 60}, 4}, {{95, 10}, 1}, {{5, 10}, 3}};
  EXPECT_EQ(quietestCorner(area, size, places), QRectF(90, 0, 10, 30));
}

TEST(ColourBar, itIsInTheAreaOfItsPlot) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  const QRectF box = colourBarBox(dynamic_cast<GridDataItem&>(*map->children[1]), *map);
  EXPECT_FALSE(box.isEmpty());
  EXPECT_TRUE(map->area().contains(box));
}

TEST(ColourBar, thereIsNoneWithoutResults) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  auto& grid = dynamic_cast<GridDataItem&>(*map->children[1]);
  for (GridDataItem::DataSet& set : grid.sets)
    std::fill(set.values.begin(), set.values.end(), 0);
  EXPECT_TRUE(colourBarBox(grid, *map).isEmpty());
}

TEST(ColourBar, thereIsNoneInAPlotTooSmallForIt) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  map->size = {60, 60};
  EXPECT_TRUE(colourBarBox(dynamic_cast<GridDataItem&>(*map->children[1]), *map).isEmpty());
}

TEST(ColourBar, itRunsFromTheColourOfTheLowestValueUpToThatOfTheHighest) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  const auto& grid = dynamic_cast<GridDataItem&>(*map->children[1]);
  const QRectF box(20, 20, 15, 35);
  const QImage image = Painted::sheet(
      {60, 60}, [&](QPainter& painter) { paintColourBar(painter, grid, *map, box); });
  // The plume is warm: from nearly white to a red.
  EXPECT_GT(Painted::at(image, {22, 50}).green(), 230);
  EXPECT_LT(Painted::at(image, {22, 29}).green(), 160);
}

} // namespace
