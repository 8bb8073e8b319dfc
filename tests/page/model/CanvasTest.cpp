#include "page/PageSamples.h"
#include "page/document/PageDocument.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

using namespace Sketra_lib::Property;
using namespace TVR::Page;

/// The map shows 0 to 100 in both directions at a uniform scale, with automatic axes where a test
/// asks for it.
class CanvasTest : public testing::Test {
protected:
  CanvasTest() {
    readPage(canvas, Samples::smallPage());
    canvas.setProperty(Samples::map, UniformScale, true);
    for (const int number : {XAutoScale, YAutoScale})
      canvas.setProperty(Samples::map, number, false);
    for (const int number : {XMaximum, YMaximum})
      canvas.setProperty(Samples::map, number, 100);
  }

  void setAutomatic() {
    for (const int number : {XAutoScale, YAutoScale})
      canvas.setProperty(Samples::map, number, true);
  }

  QRectF range() const {
    const auto* plot = canvas.item<PlotItem>(Samples::map);
    return QRectF(QPointF(plot->x.minimum, plot->y.minimum),
                  QPointF(plot->x.maximum, plot->y.maximum));
  }

  Canvas canvas;
};

TEST_F(CanvasTest, itemsAreFoundByName) {
  EXPECT_EQ(canvas.itemByName("Map view"), Samples::map);
  EXPECT_EQ(canvas.itemByName("Logo"), Samples::logo);
}

TEST_F(CanvasTest, anUnknownNameHasNoItem) {
  EXPECT_EQ(canvas.itemByName("Carte"), 0);
}

TEST_F(CanvasTest, ofSeveralItemsOfANameTheLowestIdIsFound) {
  canvas.setProperty(Samples::logo, Name, "Double");
  canvas.setProperty(Samples::summary, Name, "Double");
  EXPECT_EQ(canvas.itemByName("Double"), Samples::summary);
}

TEST_F(CanvasTest, itemsInsideOthersAreFoundByName) {
  const int curve = canvas.addCurve(Samples::map, {}, true);
  canvas.setProperty(curve, Name, "Wells");
  EXPECT_EQ(canvas.itemByName("Wells"), curve);
}

TEST_F(CanvasTest, newItemsAreChildrenOfTheirPlotInTheOrderOfTheirComing) {
  const int curve = canvas.addCurve(Samples::map, {}, true);
  const int grid = canvas.addGridData(Samples::map);
  const int picture = canvas.addPicture(Samples::map, {0, 10}, {5, 5});
  EXPECT_EQ(canvas.childItems(Samples::map), QList<int>({curve, grid, picture}));
}

TEST_F(CanvasTest, anIdIsNeverUsedTwice) {
  const int first = canvas.addGridData(Samples::map);
  canvas.removeItem(first);
  EXPECT_GT(canvas.addGridData(Samples::map), first);
}

TEST_F(CanvasTest, idsGoOnCountingAfterThePageWasCleared) {
  const int first = canvas.addGridData(Samples::map);
  canvas.clear();
  EXPECT_FALSE(writePage(canvas).contains(QString("NextItemId=\"%1\"").arg(first).toUtf8()));
  EXPECT_TRUE(writePage(canvas).contains(QString("NextItemId=\"%1\"").arg(first + 1).toUtf8()));
}

/// A curve made outside of the page, with two children that have ids as well.
std::unique_ptr<Item> madeElsewhere(int id) {
  auto curve = std::make_unique<CurveItem>(id);
  curve->points << QPointF(20, 30);
  for (const int child : {id + 1, id + 2}) {
    curve->children.push_back(std::make_unique<TextItem>(child));
    curve->children.back()->parent = curve.get();
  }
  return curve;
}

TEST_F(CanvasTest, anItemMadeElsewhereIsFoundWithItsChildren) {
  const int next = canvas.contents().nextItemId;
  EXPECT_EQ(canvas.addItem(Samples::map, madeElsewhere(next)), next);
  EXPECT_EQ(canvas.childItems(Samples::map), QList<int>({next}));
  EXPECT_EQ(canvas.item(next)->parent, canvas.item(Samples::map));
  EXPECT_EQ(canvas.childItems(next), QList<int>({next + 1, next + 2}));
  EXPECT_TRUE(canvas.item(next + 2));
}

TEST_F(CanvasTest, idsGoOnCountingBehindAnItemMadeElsewhere) {
  const int next = canvas.contents().nextItemId;
  canvas.addItem(Samples::map, madeElsewhere(next));
  EXPECT_EQ(canvas.addGridData(Samples::map), next + 3);
}

TEST_F(CanvasTest, automaticAxesTakeInAnItemMadeElsewhere) {
  setAutomatic();
  canvas.setProperty(Samples::map, YMaximum, 10);
  canvas.addItem(Samples::map, madeElsewhere(canvas.contents().nextItemId));
  EXPECT_EQ(canvas.item<PlotItem>(Samples::map)->y.maximum, 30);
}

TEST_F(CanvasTest, anItemMadeElsewhereIsDroppedWithoutAPlot) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  const int next = canvas.contents().nextItemId;
  EXPECT_EQ(canvas.addItem(Samples::summary, madeElsewhere(next)), 0);
  EXPECT_FALSE(canvas.item(next));
  EXPECT_TRUE(changes.isEmpty());
}

TEST_F(CanvasTest, aPageThatIsReplacedRepaintsOnceAndForgetsItsItems) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  PageContents other;
  other.paperSize = {100, 50};
  other.items.push_back(madeElsewhere(7));
  canvas.setContents(std::move(other));
  EXPECT_EQ(changes.size(), 1);
  EXPECT_EQ(canvas.paperSize(), QSizeF(100, 50));
  EXPECT_FALSE(canvas.item(Samples::map));
  EXPECT_EQ(canvas.childItems(7), QList<int>({8, 9}));
  EXPECT_EQ(canvas.contents().nextItemId, 10);
}

TEST_F(CanvasTest, nothingIsAddedBelowAnItemThatIsNoPlot) {
  EXPECT_EQ(canvas.addGridData(Samples::summary), 0);
  EXPECT_EQ(canvas.addCurve(Samples::summary, {}, true), 0);
  EXPECT_EQ(canvas.addPicture(999, {}, {}), 0);
  EXPECT_TRUE(canvas.childItems(Samples::summary).isEmpty());
}

TEST_F(CanvasTest, anIdWithoutItemDoesNothing) {
  const QByteArray before = writePage(canvas);
  canvas.setProperty(999, Name, "nobody");
  canvas.removeItem(999);
  canvas.moveToBackground(0);
  canvas.redraw(-1);
  canvas.attachObserver(999, nullptr);
  canvas.movePoint(999, 0, {1, 1});
  EXPECT_FALSE(canvas.property(999, Name).isValid());
  EXPECT_TRUE(canvas.childItems(999).isEmpty());
  EXPECT_EQ(writePage(canvas), before);
}

TEST_F(CanvasTest, anItemTakesItsChildrenWithIt) {
  const int curve = canvas.addCurve(Samples::map, {}, true);
  canvas.removeItem(Samples::map);
  EXPECT_EQ(canvas.item(Samples::map), nullptr);
  EXPECT_EQ(canvas.item(curve), nullptr);
}

TEST_F(CanvasTest, aPictureGoesBehindTheOthersOfItsPlot) {
  const int curve = canvas.addCurve(Samples::map, {}, true);
  const int picture = canvas.addPicture(Samples::map, {}, {});
  canvas.moveToBackground(picture);
  EXPECT_EQ(canvas.childItems(Samples::map), QList<int>({picture, curve}));
}

TEST_F(CanvasTest, anItemOnTheSheetGoesBehindTheOthers) {
  canvas.moveToBackground(Samples::legend);
  EXPECT_EQ(canvas.items().front()->id, Samples::legend);
  EXPECT_EQ(canvas.items().size(), 4U);
}

TEST_F(CanvasTest, aChangeOutsideOfABracketIsShownAtOnce) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  canvas.setProperty(Samples::summary, Html, "a");
  canvas.setProperty(Samples::summary, Html, "b");
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(CanvasTest, nestedBracketsShowTheirChangesOnce) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  canvas.beginUpdate();
  canvas.setProperty(Samples::summary, Html, "a");
  canvas.beginUpdate();
  canvas.setProperty(Samples::summary, Html, "b");
  canvas.endUpdate();
  EXPECT_EQ(changes.count(), 0);
  canvas.endUpdate();
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(CanvasTest, aBracketWithoutChangeShowsNothing) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  canvas.beginUpdate();
  canvas.endUpdate();
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(CanvasTest, anEndWithoutBeginningDoesNoHarm) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  canvas.endUpdate();
  canvas.setProperty(Samples::summary, Html, "a");
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(CanvasTest, theSameValueAgainShowsNothing) {
  canvas.setProperty(Samples::summary, Html, "a");
  QSignalSpy changes(&canvas, &Canvas::changed);
  canvas.setProperty(Samples::summary, Html, "a");
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(CanvasTest, anAutomaticRangeGrowsToHoldACurve) {
  setAutomatic();
  canvas.addCurve(Samples::map, Samples::line({{-5, 20}, {50, 130}}), true);
  EXPECT_EQ(range(), QRectF(QPointF(-5, 0), QPointF(100, 130)));
}

TEST_F(CanvasTest, anAutomaticRangeGrowsToRoundNumbersIfItsScalesAreFree) {
  canvas.setProperty(Samples::map, UniformScale, false);
  setAutomatic();
  canvas.addCurve(Samples::map, Samples::line({{-5, 20}, {50, 130}}), true);
  EXPECT_EQ(range(), QRectF(QPointF(-20, 0), QPointF(100, 160)));
  canvas.redraw(Samples::map);
  EXPECT_EQ(range(), QRectF(QPointF(-20, 0), QPointF(100, 160)));
}

TEST_F(CanvasTest, aRangeThatGrewLeavesAnEighthBesideItsContents) {
  canvas.setProperty(Samples::map, UniformScale, false);
  setAutomatic();
  for (const double lowest : {-60., -120., -180., -6.}) {
    canvas.setProperty(Samples::map, YMinimum, 0.);
    const int curve = canvas.addCurve(Samples::map, Samples::line({{0, lowest}, {9, 5}}), true);
    EXPECT_LE(range().top(), lowest - (100 - lowest) / 8) << lowest;
    canvas.removeItem(curve);
  }
}

TEST_F(CanvasTest, anEndThatGrewKeepsItsRoomWhenTheOtherIsSet) {
  canvas.setProperty(Samples::map, UniformScale, false);
  setAutomatic();
  canvas.addCurve(Samples::map, Samples::line({{0, -60}, {9, -60}}), true);
  canvas.setProperty(Samples::map, YMaximum, 1000.);
  canvas.addCurve(Samples::map, Samples::line({{0, 180}, {9, 180}}), true);
  EXPECT_LE(range().top(), -60 - 1060. / 8);
}

TEST_F(CanvasTest, anEndThatWasSetStaysWhereContentsReachIt) {
  canvas.setProperty(Samples::map, UniformScale, false);
  setAutomatic();
  canvas.addCurve(Samples::map, Samples::line({{0, 0}, {9, 100}}), true);
  EXPECT_EQ(range(), QRectF(0, 0, 100, 100));
}

TEST_F(CanvasTest, anAutomaticRangeNeverShrinks) {
  setAutomatic();
  canvas.addCurve(Samples::map, Samples::line({{40, 40}, {60, 60}}), true);
  EXPECT_EQ(range(), QRectF(0, 0, 100, 100));
}

TEST_F(CanvasTest, aRangeThatIsNotAutomaticStays) {
  canvas.setProperty(Samples::map, YAutoScale, true);
  canvas.addCurve(Samples::map, Samples::line({{-5, -7}, {500, 130}}), true);
  EXPECT_EQ(range(), QRectF(QPointF(0, -7), QPointF(100, 130)));
}

TEST_F(CanvasTest, settingTheFlagAloneChangesNoRange) {
  canvas.addCurve(Samples::map, Samples::line({{-5, -7}, {500, 130}}), true);
  setAutomatic();
  EXPECT_EQ(range(), QRectF(0, 0, 100, 100));
}

TEST_F(CanvasTest, redrawingAPlotLetsItsRangeGrow) {
  canvas.addCurve(Samples::map, Samples::line({{-5, -7}, {500, 130}}), true);
  setAutomatic();
  canvas.redraw(Samples::map);
  EXPECT_EQ(range(), QRectF(QPointF(-5, -7), QPointF(500, 130)));
}

TEST_F(CanvasTest, redrawingAnItemLetsTheRangeOfItsPlotGrow) {
  const int curve = canvas.addCurve(Samples::map, Samples::line({{0, 300}}), true);
  setAutomatic();
  canvas.redraw(curve);
  EXPECT_EQ(range().bottom(), 300);
}

TEST_F(CanvasTest, aPictureOnTheMapCountsFromItsTopLeftCorner) {
  const int picture = canvas.addPicture(Samples::map, {-20, 150}, {400, 180});
  canvas.setProperty(picture, InMapCoordinates, 1);
  setAutomatic();
  canvas.redraw(Samples::map);
  EXPECT_EQ(range(), QRectF(QPointF(-20, -30), QPointF(380, 150)));
}

TEST_F(CanvasTest, aPictureOnTheSheetDoesNotWidenTheAxes) {
  setAutomatic();
  canvas.addPicture(Samples::map, {-20, 150}, {400, 180});
  EXPECT_EQ(range(), QRectF(0, 0, 100, 100));
}

TEST_F(CanvasTest, aCurveThatJoinsNothingShowsItsSymbolsOnly) {
  const int joined = canvas.addCurve(Samples::map, {}, true);
  const int loose = canvas.addCurve(Samples::map, {}, false);
  EXPECT_EQ(canvas.property(joined, CurveStyle).toInt(), Lines);
  EXPECT_EQ(canvas.property(loose, CurveStyle).toInt(), SymbolsOnly);
}

TEST_F(CanvasTest, pointsThatAreNotFiniteAreLeftOut) {
  const double nan = std::nan("");
  const int curve = canvas.addCurve(Samples::map, Samples::line({{1, 2}, {nan, 2}, {3, 4}}), true);
  EXPECT_EQ(canvas.property(curve, Points).value<QPolygonF>(), Samples::line({{1, 2}, {3, 4}}));
}

TEST_F(CanvasTest, aPictureWithoutUsableSizeHasNone) {
  const int picture = canvas.addPicture(Samples::map, {std::nan(""), 0}, {-5, 10});
  EXPECT_EQ(canvas.property(picture, Size).toSizeF(), QSizeF(0, 0));
  EXPECT_EQ(canvas.property(picture, Position).toPointF(), QPointF());
}

TEST_F(CanvasTest, clearingEmptiesThePage) {
  canvas.clear();
  EXPECT_TRUE(canvas.items().empty());
  EXPECT_EQ(canvas.itemByName("Map view"), 0);
}

} // namespace
