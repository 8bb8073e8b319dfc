#include "page/painting/ColourBar.h"

#include "page/Painted.h"
#include "page/SamplePage.h"
#include "page/model/GridColours.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

const QRectF area(0, 0, 100, 80);
const QSizeF barSize(10, 30);

TEST(ColourBar, itIsAtTheLowerRightIfNothingIsInTheWay) {
  EXPECT_EQ(quietestCorner(area, barSize, {}), QRectF(90, 50, 10, 30));
}

TEST(ColourBar, itKeepsOffWells) {
  EXPECT_EQ(quietestCorner(area, barSize, {{{95, 60}, 1000}}), QRectF(0, 50, 10, 30));
}

TEST(ColourBar, itLeavesRoomBesideAWell) {
  EXPECT_EQ(quietestCorner(area, barSize, {{{86, 60}, 1000}}), QRectF(0, 50, 10, 30));
}

TEST(ColourBar, itCoversTheLeastWhereEveryCornerIsTaken) {
  const std::vector<WeightedPlace> places{{{95, 60}, 5}, {{5, 60}, 4}, {{95, 10}, 1}, {{5, 10}, 3}};
  EXPECT_EQ(quietestCorner(area, barSize, places), QRectF(90, 0, 10, 30));
}

TEST(ColourBar, itIsInTheAreaOfItsPlot) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  const std::vector<ColourBar> bars = colourBars(*map);
  ASSERT_EQ(bars.size(), 1u);
  EXPECT_EQ(bars[0].grid, map->children[1].get());
  EXPECT_TRUE(map->area().contains(bars[0].box));
}

TEST(ColourBar, aGridMayHaveAUnitOfItsOwn) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  auto& grid = dynamic_cast<GridDataItem&>(*map->children[1]);
  EXPECT_EQ(grid.colouredUnit(), "K");
  grid.unit = "%";
  EXPECT_EQ(grid.colouredUnit(), "%");
}

TEST(ColourBar, thereIsNoneWithoutResults) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  auto& grid = dynamic_cast<GridDataItem&>(*map->children[1]);
  for (GridDataItem::DataSet& set : grid.sets)
    std::fill(set.values.begin(), set.values.end(), 0);
  EXPECT_TRUE(colourBars(*map).empty());
}

TEST(ColourBar, thereIsNoneInAPlotTooSmallForIt) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  map->size = {60, 60};
  EXPECT_TRUE(colourBars(*map).empty());
}

/// A map of 100 m by 100 m on 100 mm by 100 mm with a grid of these cells, which go from corner to
/// corner, and their temperature changes.
std::unique_ptr<PlotItem> mapOfCells(const std::vector<QRectF>& cells,
                                     const std::vector<double>& changes) {
  auto map = std::make_unique<PlotItem>(1);
  map->size = {100, 100};
  map->x.maximum = 100;
  map->y.maximum = 100;
  map->uniformScale = true;
  auto grid = std::make_unique<GridDataItem>(2);
  grid->parent = map.get();
  for (const QRectF& cell : cells) {
    const int node = static_cast<int>(grid->mesh.nodes.size());
    for (const QPointF& corner :
         {cell.topLeft(), cell.topRight(), cell.bottomRight(), cell.bottomLeft()})
      grid->mesh.nodes.push_back(corner);
    grid->mesh.cells.push_back({node, node + 1, node + 2, node + 3});
    grid->mesh.centres.push_back(cell.center());
  }
  grid->sets[Sketra_lib::Property::Temperature].values = changes;
  map->children.push_back(std::move(grid));
  return map;
}

/// The corner of the map in which its only bar lies, as its nearest edges.
Qt::Corner cornerOf(const PlotItem& map) {
  const std::vector<ColourBar> bars = colourBars(map);
  EXPECT_EQ(bars.size(), 1u);
  const QPointF place = bars.at(0).box.center();
  if (place.y() > 50)
    return place.x() > 50 ? Qt::BottomRightCorner : Qt::BottomLeftCorner;
  return place.x() > 50 ? Qt::TopRightCorner : Qt::TopLeftCorner;
}

TEST(ColourBar, aLongCellCountsWhereverItReaches) {
  // A plume along the lower edge of the map, in one cell whose centre is far from the corners.
  EXPECT_EQ(cornerOf(*mapOfCells({{0, 2, 100, 10}, {40, 50, 10, 10}}, {-4, 0})),
            Qt::TopRightCorner);
}

TEST(ColourBar, noiseDoesNotCount) {
  // The plume is in the lower right corner and next to nothing in the lower left one.
  EXPECT_EQ(cornerOf(*mapOfCells({{70, 0, 30, 40}, {0, 0, 30, 40}}, {-4, 0.04})),
            Qt::BottomLeftCorner);
}

TEST(ColourBar, itKeepsOffIsolines) {
  const auto map = mapOfCells({{40, 50, 10, 10}, {50, 50, 10, 10}}, {0, -4});
  auto line = std::make_unique<IsolineItem>(3);
  line->line.points = QPolygonF(QVector<QPointF>{{93, 0}, {93, 40}});
  map->children[0]->children.push_back(std::move(line));
  EXPECT_EQ(cornerOf(*map), Qt::BottomLeftCorner);
}

TEST(ColourBar, gridsOfOneQuantityShareABarAndItsRange) {
  const auto map = mapOfCells({{0, 30, 10, 10}, {10, 30, 10, 10}}, {0, -4});
  auto other = mapOfCells({{40, 30, 10, 10}, {50, 30, 10, 10}}, {0, 3});
  other->children[0]->parent = map.get();
  map->children.push_back(std::move(other->children[0]));
  EXPECT_EQ(colourBars(*map).size(), 1u);
  for (const auto& grid : map->children) {
    const auto colours = GridColours::of(dynamic_cast<const GridDataItem&>(*grid));
    ASSERT_TRUE(colours);
    EXPECT_EQ(colours->minimum(), -4);
    EXPECT_EQ(colours->maximum(), 3);
  }
}

TEST(ColourBar, barsOfTwoQuantitiesDoNotTouch) {
  const auto map = mapOfCells({{0, 30, 10, 10}, {10, 30, 10, 10}}, {0, -4});
  auto other = mapOfCells({{40, 30, 10, 10}, {50, 30, 10, 10}}, {});
  auto& drawdowns = dynamic_cast<GridDataItem&>(*other->children[0]);
  drawdowns.sets[Sketra_lib::Property::Drawdowns].values = {0, 0.5};
  drawdowns.parent = map.get();
  map->children.push_back(std::move(other->children[0]));
  const std::vector<ColourBar> bars = colourBars(*map);
  ASSERT_EQ(bars.size(), 2u);
  EXPECT_FALSE(bars[0].box.intersects(bars[1].box));
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
