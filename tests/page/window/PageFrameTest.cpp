#include "page/window/PageFrame.h"

#include "page/window/BusyPage.h"
#include "page/window/ShownPage.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;
using TVR::MapRange;
using namespace Sketra_lib::Property;

/// Whether a pixel has nearly this colour, in spite of smooth edges and grid lines.
bool isNearly(const QImage& image, const QPointF& pixel, const QColor& colour) {
  const QColor there = image.pixelColor(pixel.toPoint());
  return std::abs(there.red() - colour.red()) < 30 &&
         std::abs(there.green() - colour.green()) < 30 &&
         std::abs(there.blue() - colour.blue()) < 30;
}

struct PageFrameTest : testing::Test {
  ShownPage shown;
  PageWindow& window = shown.window;
  PageFrame frame{1e9};

  QImage blank(double ratio = 1) const {
    QImage image(window.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    return image;
  }
  QImage painted(int lifted = 0) {
    QImage image = blank();
    QPainter painter(&image);
    frame.paint(painter, window.canvas(), window.view(), window.size(), lifted);
    return image;
  }
  QImage paintedMoved(int lifted = 0) {
    QImage image = blank();
    QPainter painter(&image);
    frame.paintMoved(painter, window.canvas(), window.view(), window.size(), lifted);
    return image;
  }
  QRect stripAtTheLeft() {
    const QRect area = window.view().toWindow(shown.plot().area()).toAlignedRect();
    return {area.left() + 5, area.top() + 5, 60, area.height() - 10};
  }
  /// Shifts the map by whole pixels.
  void pan(const QPoint& by) {
    const double metres = 1 / (shown.plot().scale().width() * window.view().scale);
    MapRange range = shown.range();
    showRange(window.canvas(), ShownPage::map,
              {range.xMinimum - by.x() * metres, range.xMaximum - by.x() * metres,
               range.yMinimum + by.y() * metres, range.yMaximum + by.y() * metres});
  }
};

TEST_F(PageFrameTest, anUnchangedPageIsDrawnOnce) {
  painted();
  painted();
  EXPECT_EQ(frame.drawings(), 1);
}

TEST_F(PageFrameTest, aDroppedDrawingIsMadeAnew) {
  painted();
  frame.drop();
  painted();
  EXPECT_EQ(frame.drawings(), 2);
}

TEST_F(PageFrameTest, anotherViewIsDrawnAnew) {
  painted();
  window.showActualSize();
  painted();
  EXPECT_EQ(frame.drawings(), 2);
}

TEST_F(PageFrameTest, aDeviceWithFinerPixelsGetsADrawingOfItsOwn) {
  painted();
  QImage fine = blank(2);
  QPainter painter(&fine);
  frame.paint(painter, window.canvas(), window.view(), window.size());
  EXPECT_EQ(frame.drawings(), 2);
}

TEST_F(PageFrameTest, withoutADrawingAMovedFrameIsDrawn) {
  EXPECT_EQ(paintedMoved(), painted());
  EXPECT_EQ(frame.drawings(), 1);
}

TEST_F(PageFrameTest, aMovedMapTakesItsContentsAlong) {
  shown.addMapPicture();
  painted();
  const QPoint before = shown.pixelOf({680033, 226015}).toPoint();
  pan({150, -60});
  const QImage moved = paintedMoved();
  EXPECT_EQ(frame.drawings(), 1);
  EXPECT_TRUE(isNearly(moved, before + QPoint(150, -60), Qt::red));
  EXPECT_FALSE(isNearly(moved, before, Qt::red));
}

TEST_F(PageFrameTest, aZoomedMapStretchesItsContents) {
  shown.addMapPicture();
  painted();
  shown.wheel(shown.pixelOf({680020, 226010}), 3);
  const QImage moved = paintedMoved();
  EXPECT_TRUE(isNearly(moved, shown.pixelOf({680039, 226019}), Qt::red));
  EXPECT_TRUE(isNearly(moved, shown.pixelOf({680041, 226021}), Qt::white));
}

TEST_F(PageFrameTest, whatAMovedMapUncoversIsDrawnAsOnTheWholePage) {
  showBusyPage(window, 40, 40);
  painted();
  const QRect strip = stripAtTheLeft();
  pan({80, 0});
  const QImage moved = paintedMoved().copy(strip);
  EXPECT_EQ(frame.drawings(), 1);
  frame.drop();
  EXPECT_EQ(moved, painted().copy(strip));
}

TEST_F(PageFrameTest, aSlowPageLeavesWhatAMovedMapUncoversToTheNextDrawing) {
  showBusyPage(window, 40, 40);
  PageFrame slow(0);
  QImage image = blank();
  QPainter painter(&image);
  slow.paint(painter, window.canvas(), window.view(), window.size());
  pan({80, 0});
  slow.paintMoved(painter, window.canvas(), window.view(), window.size());
  QImage empty = image.copy(stripAtTheLeft());
  empty.fill(Qt::white);
  EXPECT_EQ(image.copy(stripAtTheLeft()), empty);
}

TEST_F(PageFrameTest, theAxesOfAMovedMapAreThoseOfItsRange) {
  painted();
  pan({85, 0});
  const QRect numbers = window.view().toWindow(QRectF(20, 166.5, 155, 6)).toAlignedRect();
  const QImage moved = paintedMoved().copy(numbers);
  frame.drop();
  EXPECT_EQ(moved, painted().copy(numbers));
}

TEST_F(PageFrameTest, aMovedFrameLeavesTheItemsAsTheyAre) {
  const int wells = shown.addWells();
  painted();
  pan({80, 30});
  paintedMoved();
  EXPECT_EQ(window.childItems(ShownPage::map), QList<int>{wells});
  for (const auto& item : window.canvas().items())
    EXPECT_TRUE(item->visible) << item->id;
}

TEST_F(PageFrameTest, aMovedSheetIsShownFromTheDrawing) {
  shown.addMapPicture();
  painted();
  shown.wheel({400, 300}, 2, Qt::ControlModifier);
  EXPECT_TRUE(isNearly(paintedMoved(), shown.pixelOf({680033, 226015}), Qt::red));
  EXPECT_EQ(frame.drawings(), 1);
}

TEST_F(PageFrameTest, aLiftedCurveMovesOverTheDrawing) {
  const int wells = shown.addWells();
  window.setItemProperty(wells, Brush, QBrush(Qt::blue));
  painted(wells);
  window.canvas().movePoint(wells, 1, {680063, 226052});
  const QImage moved = paintedMoved(wells);
  EXPECT_EQ(frame.drawings(), 1);
  EXPECT_TRUE(isNearly(moved, shown.pixelOf({680063, 226052}), Qt::blue));
  EXPECT_TRUE(isNearly(moved, shown.pixelOf({680050, 226030}) + QPointF(2, 2), Qt::white));
}

TEST_F(PageFrameTest, aLiftedCurveIsShownWhereItIs) {
  const int wells = shown.addWells();
  window.setItemProperty(wells, Brush, QBrush(Qt::blue));
  EXPECT_TRUE(isNearly(painted(wells), shown.pixelOf({680050, 226030}), Qt::blue));
  EXPECT_EQ(window.itemProperty(wells, Points).value<QPolygonF>().size(), 2);
}

TEST_F(PageFrameTest, aMovedPictureShowsAtItsNewPlace) {
  const int picture = shown.addMapPicture();
  painted();
  window.setItemProperty(picture, Position, QPointF(680050, 226060));
  const QColor there = paintedMoved().pixelColor(shown.pixelOf({680060, 226055}).toPoint());
  EXPECT_EQ(frame.drawings(), 1);
  EXPECT_GT(there.red(), 250);
  EXPECT_LT(there.blue(), 200);
}

} // namespace
