#include "page/window/PictureHandles.h"
#include "page/window/ShownPage.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;
using TVR::MapRange;
using namespace Sketra_lib::Property;

struct PageWindowDragTest : testing::Test {
  ShownPage shown;
  PageWindow& window = shown.window;
  HeardChanges heard{window};
  const int map = ShownPage::map;

  void TearDown() override { window.clearContents(); }
};

// The map

TEST_F(PageWindowDragTest, theWheelKeepsTheMapPointUnderTheMouse) {
  const QPointF mouse = shown.pixelOf({680019, 226059});
  shown.wheel(mouse, 3);
  EXPECT_NEAR(shown.mapPointAt(mouse).x(), 680019, 1e-6);
  EXPECT_NEAR(shown.mapPointAt(mouse).y(), 226059, 1e-6);
  EXPECT_NEAR(shown.range().width(), 76 / 1.728, 1e-6);
}

TEST_F(PageWindowDragTest, theWheelTowardsTheUserShowsMoreOfTheMap) {
  shown.wheel(shown.pixelOf({680019, 226059}), -1);
  EXPECT_NEAR(shown.range().width(), 76 * 1.2, 1e-6);
}

TEST_F(PageWindowDragTest, theMapStaysUniformAndTrueToScaleWhenZoomed) {
  shown.wheel(shown.pixelOf({680019, 226059}), 3);
  EXPECT_TRUE(window.itemProperty(map, UniformScale).toBool());
  EXPECT_NEAR(shown.range().width() / 152, shown.range().height() / 147.5, 1e-9);
}

TEST_F(PageWindowDragTest, anObserverHearsOfAllFourEnds) {
  window.attachObserver(map, &heard);
  shown.wheel(shown.pixelOf({680019, 226059}), 1);
  EXPECT_EQ(heard.changes.size(), 4u);
  for (const int property : {78, 79, 83, 84})
    EXPECT_TRUE(heard.has(map, property)) << property;
}

/// Looks at the ranges of the map whenever one of them changes.
struct RangeWatch : DATA::DataObserver {
  explicit RangeWatch(ShownPage& page) : shown(page) {}
  void update(DATA::DataObject*) override {
    const MapRange range = shown.range();
    wasEmpty = wasEmpty || range.width() <= 0 || range.height() <= 0;
  }
  ShownPage& shown;
  bool wasEmpty = false;
};

TEST_F(PageWindowDragTest, noRangeIsEmptyOnTheWayToAPlaceFarOff) {
  RangeWatch watch(shown);
  window.attachObserver(map, &watch);
  showRange(window.canvas(), map, {690000, 690076, 236000, 236073.75});
  showRange(window.canvas(), map, {600000, 600076, 200000, 200073.75});
  EXPECT_FALSE(watch.wasEmpty);
  EXPECT_EQ(shown.range().xMinimum, 600000);
  EXPECT_EQ(shown.range().yMaximum, 200073.75);
}

TEST_F(PageWindowDragTest, theLeftButtonPullsTheMapAlong) {
  const QPointF from = shown.pixelOf({680019, 226059});
  const QPointF to = from + QPointF(120, 40);
  shown.drag(from, to);
  EXPECT_NEAR(shown.mapPointAt(to).x(), 680019, 1e-3);
  EXPECT_NEAR(shown.mapPointAt(to).y(), 226059, 1e-3);
}

TEST_F(PageWindowDragTest, panningLeavesTheScaleToTheLastBit) {
  const QPointF from = shown.pixelOf({680019, 226059});
  for (const QPointF& by : {QPointF(120, 40), QPointF(-37, 11), QPointF(3, -97)})
    shown.drag(from, from + by);
  EXPECT_EQ(shown.range().width(), 76.0);
  EXPECT_EQ(shown.range().height(), 73.75);
}

TEST_F(PageWindowDragTest, escapePutsTheMapBack) {
  const MapRange before = shown.range();
  const QPointF from = shown.pixelOf({680019, 226059});
  shown.press(from);
  shown.move(from + QPointF(50, 50));
  EXPECT_NE(shown.range().xMinimum, before.xMinimum);
  shown.type(Qt::Key_Escape);
  EXPECT_EQ(shown.range().xMinimum, before.xMinimum);
  shown.move(from + QPointF(80, 80));
  EXPECT_EQ(shown.range().xMinimum, before.xMinimum);
  EXPECT_EQ(shown.range().yMaximum, before.yMaximum);
}

TEST_F(PageWindowDragTest, aPressWithATremblingHandIsNoDrag) {
  const MapRange before = shown.range();
  const QPointF from = shown.pixelOf({680019, 226059});
  shown.drag(from, from + QPointF(1, 1));
  EXPECT_EQ(shown.range().xMinimum, before.xMinimum);
}

TEST_F(PageWindowDragTest, arrowsPanTheMapByATenth) {
  shown.type(Qt::Key_Right);
  EXPECT_NEAR(shown.range().xMinimum, 680007.6, 1e-3);
  shown.type(Qt::Key_Left);
  shown.type(Qt::Key_Up);
  EXPECT_NEAR(shown.range().xMinimum, 680000, 1e-3);
  EXPECT_NEAR(shown.range().yMinimum, 226007.375, 1e-3);
  shown.type(Qt::Key_Down);
  EXPECT_NEAR(shown.range().yMinimum, 226000, 1e-3);
}

TEST_F(PageWindowDragTest, plusAndMinusZoomTheMapAroundItsMiddle) {
  shown.type(Qt::Key_Plus);
  EXPECT_NEAR(shown.range().width(), 76 / 1.25, 1e-6);
  EXPECT_NEAR((shown.range().xMinimum + shown.range().xMaximum) / 2, 680038, 1e-6);
  shown.type(Qt::Key_Minus);
  EXPECT_NEAR(shown.range().width(), 76, 1e-6);
}

// Wells

TEST_F(PageWindowDragTest, aDraggedWellIsWrittenToThePolygon) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  shown.drag(shown.pixelOf({680050, 226030}), shown.pixelOf({680060, 226050}));
  const auto points = window.itemProperty(wells, Points).value<QPolygonF>();
  EXPECT_EQ(points[0], QPointF(680030, 226040));
  EXPECT_NEAR(points[1].x(), 680060, 1e-6);
  EXPECT_NEAR(points[1].y(), 226050, 1e-6);
}

TEST_F(PageWindowDragTest, theObserverHearsThatAPointOfTheWellsMoved) {
  const int wells = shown.addWells();
  window.attachObserver(wells, &heard);
  window.setCurrentItem(wells);
  shown.drag(shown.pixelOf({680050, 226030}), shown.pixelOf({680060, 226050}));
  ASSERT_FALSE(heard.changes.empty());
  EXPECT_EQ(heard.changes.back(), std::pair(wells, 117));
  EXPECT_EQ(window.lastChangedItem(), 0);
}

TEST_F(PageWindowDragTest, aWellMovesWhileTheMouseMoves) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  shown.press(shown.pixelOf({680050, 226030}));
  shown.move(shown.pixelOf({680055, 226035}));
  EXPECT_NEAR(window.itemProperty(wells, Points).value<QPolygonF>()[1].x(), 680055, 1e-6);
}

TEST_F(PageWindowDragTest, aWellIsHeldAFewPixelsBesideItsSymbolAndDoesNotJump) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  const QPointF beside = shown.pixelOf({680050, 226030}) + QPointF(7, 0);
  shown.drag(beside, beside + QPointF(0, -50));
  EXPECT_NEAR(window.itemProperty(wells, Points).value<QPolygonF>()[1].x(), 680050, 1e-6);
}

TEST_F(PageWindowDragTest, escapePutsTheWellBack) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  window.attachObserver(wells, &heard);
  shown.press(shown.pixelOf({680050, 226030}));
  shown.move(shown.pixelOf({680055, 226035}));
  heard.changes.clear();
  shown.type(Qt::Key_Escape);
  EXPECT_EQ(window.itemProperty(wells, Points).value<QPolygonF>()[1], QPointF(680050, 226030));
  EXPECT_TRUE(heard.has(wells, 117));
}

TEST_F(PageWindowDragTest, aWellIsNotDraggedOutOfTheMap) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  shown.drag(shown.pixelOf({680050, 226030}), shown.pixelOf({680500, 226030}));
  EXPECT_NEAR(window.itemProperty(wells, Points).value<QPolygonF>()[1].x(), 680076, 1e-6);
}

TEST_F(PageWindowDragTest, wellsStayWhereTheyAreUnlessTheyAreTheCurrentItem) {
  const int wells = shown.addWells();
  const auto before = window.itemProperty(wells, Points).value<QPolygonF>();
  shown.drag(shown.pixelOf({680050, 226030}), shown.pixelOf({680060, 226050}));
  EXPECT_EQ(window.itemProperty(wells, Points).value<QPolygonF>(), before);
  EXPECT_LT(shown.range().xMinimum, 680000);
}

TEST_F(PageWindowDragTest, besideTheWellsTheMapIsPannedAlsoIfTheyAreCurrent) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  shown.drag(shown.pixelOf({680010, 226010}), shown.pixelOf({680020, 226010}));
  EXPECT_NEAR(shown.range().xMinimum, 679990, 1e-3);
}

TEST_F(PageWindowDragTest, theCursorShowsAWellThatCanBeDragged) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  shown.move(shown.pixelOf({680050, 226030}));
  EXPECT_EQ(window.cursor().shape(), Qt::PointingHandCursor);
  shown.move(shown.pixelOf({680010, 226010}));
  EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

/// Ends the drag from within its notification.
struct Interrupter : DATA::DataObserver {
  explicit Interrupter(PageWindow& page) : window(page) {}
  void update(DATA::DataObject*) override { window.setCurrentItem(0); }
  PageWindow& window;
};

TEST_F(PageWindowDragTest, anObserverMayTakeTheMouseAwayInTheMiddleOfADrag) {
  const int wells = shown.addWells();
  Interrupter interrupter(window);
  window.attachObserver(wells, &interrupter);
  window.setCurrentItem(wells);
  shown.press(shown.pixelOf({680050, 226030}));
  shown.move(shown.pixelOf({680055, 226035}));
  shown.move(shown.pixelOf({680060, 226040}));
  EXPECT_NEAR(window.itemProperty(wells, Points).value<QPolygonF>()[1].x(), 680055, 1e-6);
}

TEST_F(PageWindowDragTest, removingTheWellsInTheMiddleOfADragDoesNoHarm) {
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  shown.press(shown.pixelOf({680050, 226030}));
  shown.move(shown.pixelOf({680055, 226035}));
  window.removeItem(wells, 0);
  shown.move(shown.pixelOf({680060, 226040}));
  shown.type(Qt::Key_Escape);
  EXPECT_FALSE(window.itemProperty(wells, Points).isValid());
}

// Pictures

TEST_F(PageWindowDragTest, aClickPicksThePictureOnTheMap) {
  const int picture = shown.addMapPicture();
  shown.click(shown.pixelOf({680030, 226015}));
  EXPECT_EQ(window.currentItem(), picture);
  shown.click(shown.pixelOf({680060, 226060}));
  EXPECT_EQ(window.currentItem(), 0);
}

TEST_F(PageWindowDragTest, aClickLeavesTheWellsTheCurrentItem) {
  shown.addMapPicture();
  const int wells = shown.addWells();
  window.setCurrentItem(wells);
  shown.click(shown.pixelOf({680030, 226015}));
  EXPECT_EQ(window.currentItem(), wells);
}

TEST_F(PageWindowDragTest, aPictureThatIsNotPickedIsPannedWithTheMap) {
  const int picture = shown.addMapPicture();
  shown.drag(shown.pixelOf({680030, 226015}), shown.pixelOf({680040, 226015}));
  EXPECT_EQ(window.itemProperty(picture, Position).toPointF(), QPointF(680020, 226020));
  EXPECT_NEAR(shown.range().xMinimum, 679990, 1e-3);
}

TEST_F(PageWindowDragTest, aPickedPictureIsMovedAndTheObserverHearsOfItsPosition) {
  const int picture = shown.addMapPicture();
  window.attachObserver(picture, &heard);
  window.setCurrentItem(picture);
  shown.drag(shown.pixelOf({680027, 226015}), shown.pixelOf({680037, 226035}));
  const QPointF position = window.itemProperty(picture, Position).toPointF();
  EXPECT_NEAR(position.x(), 680030, 1e-6);
  EXPECT_NEAR(position.y(), 226040, 1e-6);
  EXPECT_EQ(window.itemProperty(picture, Size).toSizeF(), QSizeF(20, 10));
  EXPECT_TRUE(heard.has(picture, 22));
  EXPECT_FALSE(heard.has(picture, 29));
}

TEST_F(PageWindowDragTest, aCornerOfThePictureResizesIt) {
  const int picture = shown.addMapPicture();
  window.attachObserver(picture, &heard);
  window.setCurrentItem(picture);
  shown.drag(shown.pixelOf({680040, 226020}), shown.pixelOf({680050, 226040}));
  const QPointF position = window.itemProperty(picture, Position).toPointF();
  const QSizeF size = window.itemProperty(picture, Size).toSizeF();
  EXPECT_EQ(position.x(), 680020);
  EXPECT_NEAR(position.y(), 226040, 1e-6);
  EXPECT_NEAR(size.width(), 30, 1e-6);
  EXPECT_NEAR(size.height(), 30, 1e-6);
  EXPECT_TRUE(heard.has(picture, 29));
}

TEST_F(PageWindowDragTest, shiftKeepsTheProportionsOfThePicture) {
  const int picture = shown.addMapPicture();
  window.setCurrentItem(picture);
  shown.drag(shown.pixelOf({680040, 226020}), shown.pixelOf({680060, 226021}), Qt::ShiftModifier);
  const QSizeF size = window.itemProperty(picture, Size).toSizeF();
  EXPECT_NEAR(size.width(), 40, 1e-6);
  EXPECT_NEAR(size.height(), 20, 1e-6);
}

/// Keeps the lower left corner of a picture as one does who stores its place: from a change of the
/// position, the size being what it is at that moment.
struct LowerEdge : DATA::DataObserver {
  explicit LowerEdge(PageWindow& page) : window(page) {}
  void update(DATA::DataObject*) override {
    const int item = window.lastChangedItem();
    if (window.lastChangedProperty() == Position)
      y = window.itemProperty(item, Position).toPointF().y() -
          window.itemProperty(item, Size).toSizeF().height();
  }
  PageWindow& window;
  double y = 226010;
};

TEST_F(PageWindowDragTest, theLowerEdgeComesOutRightWhicheverEdgeIsDragged) {
  const int picture = shown.addMapPicture();
  window.setCurrentItem(picture);
  LowerEdge edge(window);
  window.attachObserver(picture, &edge);
  shown.drag(shown.pixelOf({680030, 226010}), shown.pixelOf({680030, 226006}));
  EXPECT_NEAR(edge.y, 226006, 1e-6);
  shown.drag(shown.pixelOf({680030, 226020}), shown.pixelOf({680030, 226030}));
  EXPECT_NEAR(edge.y, 226006, 1e-6);
  EXPECT_NEAR(window.itemProperty(picture, Size).toSizeF().height(), 24, 1e-6);
}

TEST_F(PageWindowDragTest, escapePutsThePictureBackToTheLastBit) {
  const int picture = shown.addMapPicture();
  window.setCurrentItem(picture);
  shown.press(shown.pixelOf({680020, 226010}));
  shown.move(shown.pixelOf({680010, 226003}));
  EXPECT_NE(window.itemProperty(picture, Size).toSizeF(), QSizeF(20, 10));
  shown.type(Qt::Key_Escape);
  EXPECT_EQ(window.itemProperty(picture, Size).toSizeF(), QSizeF(20, 10));
  EXPECT_EQ(window.itemProperty(picture, Position).toPointF(), QPointF(680020, 226020));
}

TEST_F(PageWindowDragTest, escapeLetsGoOfAPicture) {
  window.setCurrentItem(shown.addMapPicture());
  shown.type(Qt::Key_Escape);
  EXPECT_EQ(window.currentItem(), 0);
}

TEST_F(PageWindowDragTest, aPictureOnTheSheetMovesInMillimetresIfItIsTheCurrentItem) {
  window.setCurrentItem(ShownPage::logo);
  const QPointF from = window.view().toWindow(QPointF(270, 180));
  shown.drag(from, from + QPointF(10, -10) * window.view().scale);
  const QPointF position = window.itemProperty(ShownPage::logo, Position).toPointF();
  EXPECT_NEAR(position.x(), 275, 1e-6);
  EXPECT_NEAR(position.y(), 165, 1e-6);
}

TEST_F(PageWindowDragTest, theHandlesOfAPickedPictureAreShown) {
  const int picture = shown.addMapPicture();
  window.setCurrentItem(picture);
  const QImage image = window.grab().toImage();
  const QPoint corner = shown.pixelOf({680020, 226020}).toPoint();
  EXPECT_EQ(image.pixelColor(corner), QColor(Qt::white));
  shown.move(corner);
  EXPECT_EQ(window.cursor().shape(), Qt::SizeFDiagCursor);
}

} // namespace
