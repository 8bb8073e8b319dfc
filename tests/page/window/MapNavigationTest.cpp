#include "page/window/MapNavigation.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;
using TVR::MapRange;

const MapRange swiss{680000, 680076, 226000, 226073.75};

TEST(MapNavigation, panningMovesAllFourEdgesAlike) {
  const MapRange moved = movedRange(swiss, {10, -20});
  EXPECT_NEAR(moved.xMinimum, 680010, 1e-3);
  EXPECT_NEAR(moved.xMaximum, 680086, 1e-3);
  EXPECT_NEAR(moved.yMinimum, 225980, 1e-3);
  EXPECT_NEAR(moved.yMaximum, 226053.75, 1e-3);
}

TEST(MapNavigation, panningKeepsTheSidesToTheLastBit) {
  // Up to a power of two, from where numbers are coarser.
  const MapRange start{524200, 524276, 262080, 262153.75};
  for (int step = 1; step < 100; ++step) {
    const MapRange range = movedRange(start, {0.1234567 * step, 0.0765432 * step});
    EXPECT_EQ(range.width(), start.width()) << step;
    EXPECT_EQ(range.height(), start.height()) << step;
  }
}

TEST(MapNavigation, panningIsAsFineAsAThousandthOfAPixel) {
  const MapRange moved = movedRange(swiss, {0.0765, 0});
  EXPECT_NEAR(moved.xMinimum - swiss.xMinimum, 0.0765, 76.0 / 1000 / 1000);
}

TEST(MapNavigation, zoomingKeepsThePointUnderTheMouseAtItsPlace) {
  const QPointF fixed(680019, 226059);
  const MapRange zoomed = zoomedRange(swiss, 0.5, fixed);
  EXPECT_NEAR((fixed.x() - zoomed.xMinimum) / zoomed.width(), 19.0 / 76, 1e-9);
  EXPECT_NEAR((fixed.y() - zoomed.yMinimum) / zoomed.height(), 59.0 / 73.75, 1e-9);
}

TEST(MapNavigation, zoomingKeepsTheProportionsOfTheSides) {
  const MapRange zoomed = zoomedRange(swiss, 1.7, {680019, 226059});
  EXPECT_NEAR(zoomed.width() / zoomed.height(), swiss.width() / swiss.height(), 1e-9);
  EXPECT_NEAR(zoomed.width(), 1.7 * 76, 1e-9);
}

TEST(MapNavigation, aZoomBeyondAllMeasureLeavesTheRange) {
  EXPECT_EQ(zoomedRange(swiss, 1e9, {}).width(), swiss.width());
  EXPECT_EQ(zoomedRange(swiss, 1e-9, {}).width(), swiss.width());
  EXPECT_EQ(zoomedRange(swiss, 0, {}).width(), swiss.width());
  EXPECT_EQ(zoomedRange(swiss, -1, {}).width(), swiss.width());
  EXPECT_EQ(zoomedRange(swiss, qQNaN(), {}).width(), swiss.width());
}

} // namespace
