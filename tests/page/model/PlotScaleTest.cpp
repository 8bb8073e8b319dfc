#include "page/model/Items.h"

#include <gtest/gtest.h>

namespace {

using TVR::Page::PlotItem;

/// The map view of the A4 page, 152 mm by 147.5 mm of map, showing the given ranges [m].
PlotItem mapOf(double width, double height) {
  PlotItem map(3);
  map.position = {7.5, 7.5};
  map.size = {180, 167.5};
  map.margins = {18, 10, 10, 10};
  map.x.minimum = 680000;
  map.x.maximum = 680000 + width;
  map.y.minimum = 226000;
  map.y.maximum = 226000 + height;
  map.uniformScale = true;
  return map;
}

TEST(PlotScale, aHundredMetresAreTwoHundredMillimetresAtOneToFiveHundred) {
  const PlotItem map = mapOf(500 * 0.152, 500 * 0.1475);
  const QPointF west = map.toPage({680000, 226000});
  const QPointF east = map.toPage({680100, 226000});
  EXPECT_NEAR(east.x() - west.x(), 200, 1e-9);
}

TEST(PlotScale, northIsUp) {
  const PlotItem map = mapOf(100, 100);
  EXPECT_LT(map.toPage({680000, 226050}).y(), map.toPage({680000, 226000}).y());
}

TEST(PlotScale, theTighterAxisRulesAUniformScale) {
  const PlotItem map = mapOf(152, 1475);
  EXPECT_DOUBLE_EQ(map.scale().width(), 0.1);
  EXPECT_DOUBLE_EQ(map.scale().height(), 0.1);
}

TEST(PlotScale, fromPageUndoesToPage) {
  const PlotItem map = mapOf(400, 380);
  const QPointF there = map.fromPage(map.toPage({680123.4, 226056.7}));
  EXPECT_NEAR(there.x(), 680123.4, 1e-6);
  EXPECT_NEAR(there.y(), 226056.7, 1e-6);
}

TEST(PlotScale, anEmptyRangeHasNoScale) {
  EXPECT_EQ(mapOf(0, 100).scale(), QSizeF(0, 0));
}

} // namespace
