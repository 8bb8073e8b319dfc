#include "page/painting/MapFurniture.h"

#include "page/Painted.h"
#include "page/SamplePage.h"
#include "page/model/AxisTicks.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace TVR::Page;

constexpr double mapScales[] = {500, 1000, 2000, 2500, 5000, 10000, 25000};

/// The map view of the A4 page without contents, at 1 : `scale`.
std::unique_ptr<PlotItem> map(double scale) {
  auto item = Sample::mapView(4, 4, scale, false);
  item->children.clear();
  item->pen = Qt::NoPen;
  return item;
}

/// The strip above the map.
QRectF margin(const PlotItem& item) {
  return {item.position, QSizeF(item.size.width(), item.margins.top() - 0.3)};
}

TEST(ScaleBar, itHasARoundLengthAtAllMapScales) {
  for (const double scale : mapScales) {
    const ScaleBar bar = scaleBar(1000 / scale, 50);
    EXPECT_DOUBLE_EQ(niceStep(bar.length, false), bar.length) << scale;
    EXPECT_LE(bar.length * 1000 / scale, 50) << scale;
    EXPECT_GE(bar.length * 1000 / scale, 20) << scale;
  }
}

TEST(ScaleBar, itsPartsHaveRoundLengthsToo) {
  for (const double scale : mapScales) {
    const ScaleBar bar = scaleBar(1000 / scale, 50);
    const double part = bar.length / bar.parts;
    EXPECT_DOUBLE_EQ(niceStep(part, false), part) << scale;
  }
}

TEST(ScaleBar, kilometresAreCalledSo) {
  EXPECT_EQ(scaleBar(0.04, 50).unit, "km");
  EXPECT_EQ(scaleBar(0.04, 50).length / scaleBar(0.04, 50).unitLength, 1);
  EXPECT_EQ(scaleBar(2, 50).unit, "m");
}

TEST(ScaleBar, aScaleThatIsNoneHasNoBar) {
  for (const double metre : {0., -1., std::nan(""), std::numeric_limits<double>::infinity()})
    EXPECT_EQ(scaleBar(metre, 50).length, 0);
}

TEST(MapFurniture, theBarIsAsLongOnThePageAsItsLengthOnTheMap) {
  // 20 m at 1 : 500 are 40 mm, from the left edge of the map.
  auto item = map(500);
  const QRectF strip = margin(*item);
  const double left = item->area().left();
  const QImage image = Painted::item({200, 180}, std::move(item));
  const QRectF bar(left - 2, strip.bottom() - 2, 60, 1);
  EXPECT_NEAR(Painted::inkBox(image, bar).left(), left, 0.2);
  EXPECT_NEAR(Painted::inkBox(image, bar).right(), left + 40, 0.2);
}

TEST(MapFurniture, theArrowStandsAtTheRightOfTheMap) {
  auto item = map(500);
  const QRectF strip = margin(*item);
  const QRectF right(item->area().right() - 10, strip.top(), 12, strip.height());
  const QRectF ink = Painted::inkBox(Painted::item({200, 180}, std::move(item)), right);
  EXPECT_GT(ink.height(), 7);
  EXPECT_GT(ink.top(), strip.top());
}

TEST(MapFurniture, itStaysInTheMarginAtAllMapScales) {
  for (const double scale : mapScales) {
    auto item = map(scale);
    const QRectF strip = margin(*item);
    const QRectF ink = Painted::inkBox(Painted::item({200, 180}, std::move(item)), strip);
    EXPECT_FALSE(ink.isEmpty()) << scale;
    EXPECT_GT(ink.top(), strip.top()) << scale;
  }
}

TEST(MapFurniture, aMarginWithoutRoomStaysEmpty) {
  auto item = map(500);
  item->margins.setTop(4);
  const QRectF strip = margin(*item);
  EXPECT_TRUE(Painted::inkBox(Painted::item({200, 180}, std::move(item)), strip).isEmpty());
}

TEST(MapFurniture, aDiagramHasNone) {
  auto item = map(500);
  item->uniformScale = false;
  const QRectF strip = margin(*item);
  EXPECT_TRUE(Painted::inkBox(Painted::item({200, 180}, std::move(item)), strip).isEmpty());
}

} // namespace
