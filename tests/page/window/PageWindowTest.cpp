#include "page/window/CountedPaints.h"
#include "page/window/PictureHandles.h"
#include "page/window/ShownPage.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;
using TVR::MapRange;
using namespace Sketra_lib::Property;

struct PageWindowTest : testing::Test {
  ShownPage shown;
  PageWindow& window = shown.window;
};

// The face for the plug-in

TEST_F(PageWindowTest, itIsAGraphicsWindow) {
  EXPECT_EQ(window.windowType(), "GraphicsWindow");
  EXPECT_EQ(window.widget(), &window);
}

TEST_F(PageWindowTest, itsWidgetCanBeCastToAWorkspaceWindow) {
  QWidget* widget = &window;
  auto* workspace = qobject_cast<BrenvikApp::WorkspaceWindow*>(widget);
  EXPECT_EQ(dynamic_cast<Sketra_lib::GraphicsWorkspaceWindow*>(workspace), &window);
}

TEST_F(PageWindowTest, theSignalOfTheMouseHasTheSignatureThatHostsConnectTo) {
  EXPECT_GE(window.metaObject()->indexOfSignal(
                "currentCoordinates(double,double,QEvent::Type,Qt::MouseButton)"),
            0);
}

TEST_F(PageWindowTest, itemsAreFoundByNameAndRemoved) {
  EXPECT_EQ(window.itemByName("Summary", 0), ShownPage::summary);
  window.removeItem(ShownPage::summary, 0);
  EXPECT_LT(window.itemByName("Summary", 0), 1);
}

TEST_F(PageWindowTest, aPictureIsGivenInTensOfTheMapsUnits) {
  const int picture = window.addPicture(ShownPage::map, 68002.0, 22602.0, 2.0, 1.0);
  EXPECT_EQ(window.itemProperty(picture, Position).toPointF(), QPointF(680020, 226020));
  EXPECT_EQ(window.itemProperty(picture, Size).toSizeF(), QSizeF(20, 10));
}

TEST_F(PageWindowTest, childrenOfTheMapAreItsCurveAndItsGrid) {
  const int wells = shown.addWells();
  const int grid = window.addGridData(ShownPage::map, 0);
  EXPECT_EQ(window.childItems(ShownPage::map), QList<int>({wells, grid}));
}

TEST_F(PageWindowTest, clearedContentsLeaveAnEmptyPage) {
  window.setCurrentItem(shown.addWells());
  window.clearContents();
  EXPECT_TRUE(window.canvas().items().empty());
  EXPECT_EQ(window.currentItem(), 0);
}

TEST_F(PageWindowTest, aPageThatIsNoneLeavesAWindowThatWorks) {
  window.setContents("<html>nothing</html>");
  shown.drag({300, 300}, {400, 300});
  shown.wheel({300, 300}, 1);
  shown.type(Qt::Key_Left);
  shown.type(Qt::Key_Plus);
  window.grab();
  window.setContents(pageWithMap());
  EXPECT_EQ(window.itemByName("Map view", 0), ShownPage::map);
}

TEST_F(PageWindowTest, theContentsComeBackFromTheirDocument) {
  const int wells = shown.addWells();
  const QByteArray document = window.contents();
  PageWindow other;
  other.setContents(document);
  EXPECT_EQ(other.itemProperty(wells, Points).value<QPolygonF>(),
            window.itemProperty(wells, Points).value<QPolygonF>());
}

// Repainting

TEST_F(PageWindowTest, manyChangesRepaintOnce) {
  CountedPaints counted(window);
  for (int i = 0; i < 20; ++i)
    window.setItemProperty(ShownPage::summary, Html, QString::number(i));
  QApplication::processEvents();
  EXPECT_EQ(counted.paints, 1);
}

TEST_F(PageWindowTest, nestedUpdatesRepaintAtTheOutermostEnd) {
  CountedPaints counted(window);
  window.beginUpdate();
  window.beginUpdate();
  window.setItemProperty(ShownPage::summary, Html, "a");
  window.endUpdate();
  QApplication::processEvents();
  EXPECT_EQ(counted.paints, 0);
  window.setItemProperty(ShownPage::summary, Html, "b");
  window.endUpdate();
  QApplication::processEvents();
  EXPECT_EQ(counted.paints, 1);
}

TEST_F(PageWindowTest, theSheetIsWhiteOnGreySurroundings) {
  const QImage image = window.grab().toImage();
  const QPoint onSheet = window.view().toWindow(QPointF(2, 2)).toPoint();
  EXPECT_EQ(image.pixelColor(onSheet), QColor(Qt::white));
  const QColor around = image.pixelColor(1, 1);
  EXPECT_EQ(around.lightness() / 16, QColor(0xd6, 0xd8, 0xda).lightness() / 16);
}

// Coordinates

TEST_F(PageWindowTest, theMouseOnTheMapTellsItsPlaceThere) {
  QList<QPointF> places;
  QObject::connect(&window, &PageWindow::currentCoordinates,
                   [&](double x, double y) { places << QPointF(x, y); });
  shown.move(shown.pixelOf({680019, 226059}));
  ASSERT_EQ(places.size(), 1);
  EXPECT_NEAR(places[0].x(), 680019, 1e-6);
  EXPECT_NEAR(places[0].y(), 226059, 1e-6);
}

TEST_F(PageWindowTest, theLowerLeftCornerOfTheMapIsItsMinimum) {
  QPointF place;
  QObject::connect(&window, &PageWindow::currentCoordinates, [&](double x, double y) {
    place = {x, y};
  });
  const QPointF corner = window.view().toWindow(QPointF(7.5 + 18, 7.5 + 167.5 - 10));
  shown.move(corner + QPointF(0.001, -0.001));
  EXPECT_NEAR(place.x(), 680000, 1e-3);
  EXPECT_NEAR(place.y(), 226000, 1e-3);
}

TEST_F(PageWindowTest, pressAndReleaseTellTypeAndButton) {
  QList<std::pair<QEvent::Type, Qt::MouseButton>> told;
  QObject::connect(&window, &PageWindow::currentCoordinates,
                   [&](double, double, QEvent::Type type, Qt::MouseButton button) {
                     told << std::pair(type, button);
                   });
  const QPointF place = shown.pixelOf({680019, 226059});
  shown.press(place, Qt::RightButton);
  shown.release(place, Qt::RightButton);
  EXPECT_EQ(told, (QList<std::pair<QEvent::Type, Qt::MouseButton>>{
                      {QEvent::MouseButtonPress, Qt::RightButton},
                      {QEvent::MouseButtonRelease, Qt::RightButton}}));
}

TEST_F(PageWindowTest, besideTheMapThereAreNoCoordinates) {
  QSignalSpy spy(&window, &PageWindow::currentCoordinates);
  shown.move(window.view().toWindow(QPointF(250, 50)));
  shown.move({1, 1});
  EXPECT_EQ(spy.count(), 0);
}

TEST_F(PageWindowTest, aPlotWithoutAUniformScaleIsNoMap) {
  window.setItemProperty(ShownPage::map, UniformScale, false);
  QSignalSpy spy(&window, &PageWindow::currentCoordinates);
  shown.move(window.view().toWindow(QPointF(100, 90)));
  EXPECT_EQ(spy.count(), 0);
}

// The view of the sheet

TEST_F(PageWindowTest, theSheetIsFittedAtFirst) {
  const QRectF sheet = window.view().toWindow(QRectF({}, window.canvas().paperSize()));
  EXPECT_TRUE(QRectF(window.rect()).contains(sheet));
  EXPECT_NEAR(sheet.center().x(), 500, 1e-6);
  EXPECT_GT(sheet.width(), 900);
}

TEST_F(PageWindowTest, theFittedSheetFollowsTheSizeOfTheWindow) {
  window.resize(500, 360);
  QApplication::processEvents();
  EXPECT_LT(window.view().toWindow(QRectF({}, window.canvas().paperSize())).width(), 500);
}

TEST_F(PageWindowTest, theWheelWithControlZoomsTheSheetAroundTheMouse) {
  const QPointF mouse(300, 200);
  const QPointF before = window.view().toPage(mouse);
  const double scale = window.view().scale;
  shown.wheel(mouse, 2, Qt::ControlModifier);
  EXPECT_NEAR(window.view().scale / scale, 1.44, 1e-9);
  EXPECT_NEAR(window.view().toPage(mouse).x(), before.x(), 1e-9);
  EXPECT_NEAR(window.view().toPage(mouse).y(), before.y(), 1e-9);
}

TEST_F(PageWindowTest, aZoomedSheetKeepsItsScaleInALargerWindow) {
  shown.wheel({300, 200}, 2, Qt::ControlModifier);
  const double scale = window.view().scale;
  window.resize(1200, 900);
  QApplication::processEvents();
  EXPECT_EQ(window.view().scale, scale);
}

TEST_F(PageWindowTest, homeFitsTheSheetAgain) {
  const SheetView fitted = window.view();
  shown.wheel({300, 200}, 5, Qt::ControlModifier);
  shown.type(Qt::Key_Home);
  EXPECT_NEAR(window.view().scale, fitted.scale, 1e-9);
  EXPECT_NEAR(window.view().origin.x(), fitted.origin.x(), 1e-9);
}

TEST_F(PageWindowTest, actualSizeShowsAnInchByTheDotsOfAnInch) {
  window.showActualSize();
  EXPECT_NEAR(window.view().scale * 25.4, window.logicalDpiX(), 1e-9);
}

TEST_F(PageWindowTest, theMiddleButtonPansTheSheet) {
  shown.wheel({300, 200}, 5, Qt::ControlModifier);
  const QPointF origin = window.view().origin;
  shown.drag({400, 300}, {430, 250}, {}, Qt::MiddleButton);
  EXPECT_NEAR(window.view().origin.x(), origin.x() + 30, 1e-9);
  EXPECT_NEAR(window.view().origin.y(), origin.y() - 50, 1e-9);
}

TEST_F(PageWindowTest, spaceLetsTheLeftButtonPanTheSheetAndNotTheMap) {
  shown.wheel({300, 200}, 5, Qt::ControlModifier);
  const QPointF origin = window.view().origin;
  const MapRange range = shown.range();
  shown.key(QEvent::KeyPress, Qt::Key_Space);
  shown.drag({400, 300}, {430, 250});
  shown.key(QEvent::KeyRelease, Qt::Key_Space);
  EXPECT_NEAR(window.view().origin.x(), origin.x() + 30, 1e-9);
  EXPECT_EQ(shown.range().xMinimum, range.xMinimum);
  shown.drag({400, 300}, {430, 250});
  EXPECT_NE(shown.range().xMinimum, range.xMinimum);
}

TEST_F(PageWindowTest, controlWithPlusZoomsTheSheet) {
  const double scale = window.view().scale;
  shown.type(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(window.view().scale / scale, 1.25, 1e-9);
  shown.type(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_NEAR(window.view().scale / scale, 1, 1e-9);
}

TEST_F(PageWindowTest, keysThatMeanNothingAreLeftToOthers) {
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(&window, &escape);
  EXPECT_FALSE(escape.isAccepted());
  QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier);
  QApplication::sendEvent(&window, &end);
  EXPECT_FALSE(end.isAccepted());
}

} // namespace
