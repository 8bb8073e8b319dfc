#include "page/window/SheetView.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

const QSizeF a4(297, 210);
const QSizeF window(1000, 700);

TEST(SheetView, theFittedSheetLiesInTheMiddleOfTheWindow) {
  const SheetView view = fittedView(a4, window, 20);
  const QRectF sheet = view.toWindow(QRectF({}, a4));
  EXPECT_NEAR(sheet.center().x(), 500, 1e-9);
  EXPECT_NEAR(sheet.center().y(), 350, 1e-9);
}

TEST(SheetView, theFittedSheetLeavesTheBorderOnItsTighterSides) {
  const SheetView wide = fittedView(a4, {1000, 2000}, 20);
  EXPECT_NEAR(wide.toWindow(QPointF(0, 0)).x(), 20, 1e-9);
  const SheetView flat = fittedView(a4, {2000, 700}, 20);
  EXPECT_NEAR(flat.toWindow(QPointF(0, 0)).y(), 20, 1e-9);
}

TEST(SheetView, aWindowWithoutAnAreaGivesAUsableView) {
  EXPECT_EQ(fittedView(a4, {0, 0}, 20).scale, 1);
  EXPECT_GT(fittedView(a4, {3, 3}, 20).scale, 0);
}

TEST(SheetView, toPageUndoesToWindow) {
  const SheetView view{3.7, {-120, 44}};
  const QPointF there = view.toPage(view.toWindow(QPointF(33, 144)));
  EXPECT_NEAR(there.x(), 33, 1e-9);
  EXPECT_NEAR(there.y(), 144, 1e-9);
}

TEST(SheetView, theTransformIsTheSameMapping) {
  const SheetView view{3.7, {-120, 44}};
  EXPECT_EQ(view.transform().map(QPointF(33, 144)), view.toWindow(QPointF(33, 144)));
}

TEST(SheetView, zoomingKeepsWhatLiesUnderTheMouse) {
  const SheetView view = fittedView(a4, window, 20);
  const QPointF mouse(300, 200);
  const QPointF before = view.toPage(mouse);
  const SheetView zoomed = zoomedView(view, 2.5, mouse);
  EXPECT_NEAR(zoomed.scale, 2.5 * view.scale, 1e-9);
  EXPECT_NEAR(zoomed.toPage(mouse).x(), before.x(), 1e-9);
  EXPECT_NEAR(zoomed.toPage(mouse).y(), before.y(), 1e-9);
}

TEST(SheetView, zoomingEndsAtTheLimits) {
  const SheetView view = fittedView(a4, window, 20);
  EXPECT_EQ(zoomedView(view, 1e6, {}).scale, 200);
  EXPECT_EQ(zoomedView(view, 1e-6, {}).scale, 0.2);
}

TEST(SheetView, aSheetThatIsPulledAwayStaysInSightByAStrip) {
  const SheetView away{2, {5000, -5000}};
  const QRectF sheet = keptInSight(away, a4, window).toWindow(QRectF({}, a4));
  EXPECT_NEAR(sheet.left(), window.width() - 60, 1e-9);
  EXPECT_NEAR(sheet.bottom(), 60, 1e-9);
}

TEST(SheetView, aSheetInSightStaysWhereItIs) {
  const SheetView view{2, {-100, 30}};
  EXPECT_EQ(keptInSight(view, a4, window).origin, view.origin);
}

TEST(SheetView, aSheetAsWideAsItsWindowBeginsAtItsUpperEdge) {
  const SheetView tall = widthView(a4, {1000, 300}, 20);
  EXPECT_DOUBLE_EQ(tall.scale * a4.width(), 960);
  EXPECT_EQ(tall.origin, QPointF(20, 20));
  const SheetView flat = widthView(a4, {1000, 2000}, 20);
  EXPECT_DOUBLE_EQ(flat.origin.y(), (2000 - flat.scale * a4.height()) / 2);
  EXPECT_EQ(widthView(a4, {0, 0}, 20).scale, 1);
}

} // namespace
