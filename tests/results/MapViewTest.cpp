#include "results/MapView.h"

#include "results/WellMarks.h"
#include "support/ResultPageTest.h"
#include "tables/WellModel.h"

#include <QPen>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class MapViewTest : public ResultPageTest {
protected:
  MapViewTest() {
    give(items.mapView, Size, QSizeF(180, 120));
    give(items.mapView, MarginTop, 10);
    give(items.mapView, MarginLeft, 18);
    give(items.mapView, MarginRight, 10);
    give(items.mapView, MarginBottom, 10);
    setRange(1000, 1100, 2000, 2080);
  }

  void setRange(double xMinimum, double xMaximum, double yMinimum, double yMaximum) {
    give(items.mapView, XMinimum, xMinimum);
    give(items.mapView, XMaximum, xMaximum);
    give(items.mapView, YMinimum, yMinimum);
    give(items.mapView, YMaximum, yMaximum);
  }

  MapView map() { return MapView(access(), observer); }
  double mapNumber(int property) { return of(items.mapView, property).toDouble(); }

  const std::vector<int> orderToTheLeft = {XMinimum, XMaximum,   XAutoScale, YMinimum,
                                           YMaximum, YAutoScale, XAutoScale, YAutoScale};
};

TEST(FittedMap, isTheLargestUsualScaleWithRoomAroundTheContents) {
  const MapPlace place = fittedMap(QRectF(680000, 226000, 152, 20), {152, 147.5});
  EXPECT_EQ(place.scale, 2000); // at 1 : 1000 the contents would touch the edges
}

TEST(FittedMap, putsTheContentsInTheMiddle) {
  const MapPlace place = fittedMap(QRectF(680000, 226000, 100, 20), {152, 147.5});
  EXPECT_EQ(place.scale, 1000);
  EXPECT_NEAR(place.origin.x(), 680050 - 76, 1e-6);
  EXPECT_NEAR(place.origin.y(), 226010 - 73.75, 1e-6);
}

TEST(FittedMap, aSinglePointIsShownAtOneToAHundred) {
  EXPECT_EQ(fittedMap(QRectF(5, 5, 0, 0), {152, 147.5}).scale, 100);
}

} // namespace

TEST(MapRange, aScaleHoldsTheLowerLeftCorner) {
  const MapRange range = rangeAtScale({10, 20, 30, 40}, {152, 100}, 500, true);
  EXPECT_EQ(range.xMinimum, 10);
  EXPECT_EQ(range.xMaximum, 10 + 76);
  EXPECT_EQ(range.yMinimum, 30);
  EXPECT_EQ(range.yMaximum, 30 + 50);
}

TEST(MapRange, aScaleHoldsTheCentreIfNotTheCorner) {
  const MapRange range = rangeAtScale({10, 20, 30, 40}, {152, 100}, 500, false);
  EXPECT_EQ(range.xMinimum, 15 - 38);
  EXPECT_EQ(range.xMaximum, 15 + 38);
  EXPECT_EQ(range.yMinimum, 35 - 25);
  EXPECT_EQ(range.yMaximum, 35 + 25);
}

TEST(MapRange, scalesAreCutToWholeNumbers) {
  const MapScales scales = scalesOfRange({0, 1500, 0, 999.99}, {1520, 1000});
  EXPECT_EQ(scales.x, 986);
  EXPECT_EQ(scales.y, 999);
}

TEST(MapRange, aSizeMayBeWholeOrNot) {
  EXPECT_EQ(sizeFrom(QSize(3, 4)), QSizeF(3, 4));
  EXPECT_EQ(sizeFrom(QSizeF(3.5, 4)), QSizeF(3.5, 4));
}

TEST_F(MapViewTest, theAreaIsTheSizeWithoutTheMargins) {
  EXPECT_EQ(map().area(), QSizeF(152, 100));
  give(items.mapView, Size, QSize(180, 120));
  EXPECT_EQ(map().area(), QSizeF(152, 100));
}

TEST_F(MapViewTest, aScaleSetsTheRangesAndItsText) {
  map().setScale(500, true);
  EXPECT_EQ(mapNumber(XMinimum), 1000);
  EXPECT_EQ(mapNumber(XMaximum), 1076);
  EXPECT_EQ(mapNumber(YMinimum), 2000);
  EXPECT_EQ(mapNumber(YMaximum), 2050);
  EXPECT_EQ(of(items.mapScale, Html), QVariant("<b>Map scale 1:500</b>"));
  EXPECT_EQ(page.openUpdates, 0);
}

TEST_F(MapViewTest, aScaleWritesInItsOrder) {
  map().setScale(500, true);
  EXPECT_EQ(page.propertiesSetOn(items.mapView), orderToTheLeft);
  EXPECT_EQ(page.valuesOf(items.mapView, XAutoScale), (QVariantList{true, false}));
  EXPECT_EQ(page.valuesOf(items.mapView, YAutoScale), (QVariantList{true, false}));
}

TEST_F(MapViewTest, aRangeToTheRightOfThePresentOneIsWrittenMaximumFirst) {
  setRange(1000, 900, 2000, 2000);
  map().setScale(500, true);
  EXPECT_EQ(page.propertiesSetOn(items.mapView),
            (std::vector<int>{XMaximum, XMinimum, XAutoScale, YMaximum, YMinimum, YAutoScale,
                              XAutoScale, YAutoScale}));
}

TEST_F(MapViewTest, aScaleThatHoldsTheCentreKeepsTheCentre) {
  map().setScale(1000, false);
  EXPECT_EQ(map().range().centre(), QPointF(1050, 2040));
  EXPECT_EQ(mapNumber(XMaximum) - mapNumber(XMinimum), 152);
}

TEST_F(MapViewTest, nothingIsScaledWhileTheLockIsHeld) {
  const LockedElsewhere locked(mutex);
  map().setScale(500, true);
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(MapViewTest, nothingIsScaledInAWindowOfAnotherType) {
  page.type = "TextWindow";
  map().setScale(500, true);
  map().moveToOrigin(1, 2);
  map().showWells();
  map().showMap("map.png", {}, {});
  map().setDefaultWellPositions();
  EXPECT_FALSE(map().scaleOfExtension(100));
  EXPECT_TRUE(page.sets.empty());
  EXPECT_TRUE(page.calls.isEmpty());
}

TEST_F(MapViewTest, withoutAPageNothingHappens) {
  MapView none(noPage(), observer);
  none.setScale(500, true);
  none.moveToOrigin(1, 2);
  none.showMap();
  none.showWells();
  none.takeOverLoadedPage();
  none.setDefaultWellPositions();
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(MapViewTest, anExtensionOfNothingHasNoScale) {
  EXPECT_FALSE(map().scaleOfExtension(0));
  EXPECT_FALSE(map().scaleOfExtension(-1500));
}

TEST_F(MapViewTest, anExtensionFillsTheWidthOfThePlot) {
  give(items.mapView, Size, QSizeF(1548, 120));
  EXPECT_EQ(map().scaleOfExtension(1500), 986);
}

TEST_F(MapViewTest, theOriginBecomesTheLowerLeftCorner) {
  map().moveToOrigin(500, 2500);
  EXPECT_EQ(mapNumber(XMinimum), 500);
  EXPECT_EQ(mapNumber(XMaximum), 600);
  EXPECT_EQ(mapNumber(YMinimum), 2500);
  EXPECT_EQ(mapNumber(YMaximum), 2580);
}

TEST_F(MapViewTest, aMoveWritesTheEdgeInFrontFirst) {
  map().moveToOrigin(500, 2500);
  EXPECT_EQ(page.propertiesSetOn(items.mapView),
            (std::vector<int>{UniformScale, XMinimum, XMaximum, UniformScale, UniformScale,
                              YMaximum, YMinimum, UniformScale}));
  EXPECT_EQ(page.valuesOf(items.mapView, UniformScale), (QVariantList{false, true, false, true}));
}

TEST_F(MapViewTest, aMoveToThePresentCornerLeavesTheRanges) {
  map().moveToOrigin(1000, 2000);
  EXPECT_EQ(mapNumber(XMinimum), 1000);
  EXPECT_EQ(mapNumber(XMaximum), 1100);
  EXPECT_EQ(mapNumber(YMinimum), 2000);
  EXPECT_EQ(mapNumber(YMaximum), 2080);
}

TEST_F(MapViewTest, newWellsStandInTheCentreOfTheMap) {
  map().setDefaultWellPositions();
  EXPECT_EQ(store.value(DefaultWellPosition).toPointF(), QPointF(1050, 2040));
}

TEST_F(MapViewTest, aPictureIsAddedByItsTopLeftCorner) {
  map().showMap("map.png", {680000, 226000}, {400, 300});
  EXPECT_EQ(page.calls.value(0), "addPicture 68000 22630 40 30");
  const int picture = items.mapImage;
  ASSERT_GT(picture, 0);
  EXPECT_EQ(page.propertiesSetOn(picture),
            (std::vector<int>{InMapCoordinates, Name, FramePen, PictureFile}));
  EXPECT_EQ(of(picture, InMapCoordinates), QVariant(1));
  EXPECT_EQ(of(picture, Name), QVariant("Map image"));
  EXPECT_EQ(of(picture, FramePen).value<QPen>().style(), Qt::NoPen);
  EXPECT_EQ(of(picture, PictureFile), QVariant("map.png"));
  EXPECT_EQ(page.calls.mid(1), (QStringList{QStringLiteral("moveToBackground %1").arg(picture),
                                            QStringLiteral("redrawItem %1").arg(picture)}));
  EXPECT_TRUE(page.observers.contains(picture, &observer));
}

TEST_F(MapViewTest, aPictureThatIsThereChangesItsFileOnly) {
  map().showMap("map.png", {0, 0}, {400, 300});
  const int picture = items.mapImage;
  forget();
  map().showMap("map.png", {1, 1}, {4, 3});
  EXPECT_TRUE(page.sets.empty());
  map().showMap("other.png", {1, 1}, {4, 3});
  EXPECT_EQ(items.mapImage, picture);
  EXPECT_EQ(page.propertiesSetOn(picture), std::vector<int>{PictureFile});
}

TEST_F(MapViewTest, aPictureWithoutAFileIsNone) {
  map().showMap("", {0, 0}, {400, 300});
  EXPECT_TRUE(page.calls.isEmpty());
}

TEST_F(MapViewTest, theProjectsPictureIsShown) {
  store.setValue(BackgroundImageX, 100);
  store.setValue(BackgroundImageY, 200);
  store.setValue(BackgroundImageWidth, 40);
  store.setValue(BackgroundImageHeight, 30);
  store.setValue(BackgroundImageFile, "map.png");
  store.setValue(BackgroundImage, true);
  map().showMap();
  EXPECT_EQ(page.calls.value(0), "addPicture 10 23 4 3");
}

TEST_F(MapViewTest, aPictureThatIsNotWantedIsRemovedAndItsIdKept) {
  map().showMap("map.png", {0, 0}, {400, 300});
  const int picture = items.mapImage;
  forget();
  store.setValue(BackgroundImage, false);
  map().showMap();
  EXPECT_EQ(page.calls, QStringList{QStringLiteral("removeItem %1 0").arg(picture)});
  EXPECT_EQ(items.mapImage, picture);
}

TEST_F(MapViewTest, aPictureThatWasRemovedIsShownAnewWhenItIsWantedAgain) {
  store.setValue(BackgroundImageFile, "map.png");
  store.setValue(BackgroundImage, true);
  map().showMap();
  const int removed = items.mapImage;
  store.setValue(BackgroundImage, false);
  map().showMap();
  store.setValue(BackgroundImage, true);
  map().showMap();
  EXPECT_NE(items.mapImage, removed);
  EXPECT_EQ(of(items.mapImage, PictureFile), QVariant("map.png"));
  const int again = items.mapImage;
  map().showMap();
  EXPECT_EQ(items.mapImage, again);
}

TEST_F(MapViewTest, wellsAreSymbolsInTheMap) {
  read(BatchProject::doublet());
  map().showWells();
  const int wells = items.wells;
  ASSERT_GT(wells, 0);
  EXPECT_EQ(page.calls, QStringList{QStringLiteral("addCurve %1 1 0").arg(items.mapView)});
  EXPECT_EQ(of(wells, Points).value<QPolygonF>(), store.wellPositions());
  EXPECT_EQ(page.propertiesSetOn(wells),
            (std::vector<int>{Name, CurveStyle, Symbol, Visible, Brush}));
  EXPECT_EQ(of(wells, Name), QVariant("Wells"));
  EXPECT_EQ(of(wells, CurveStyle), QVariant(4));
  EXPECT_EQ(of(wells, Symbol).toMap(),
            (QVariantMap{{"Width", 25.0}, {"Height", 25.0}, {"Type", 2}}));
  EXPECT_EQ(of(wells, Visible), QVariant(false));
  EXPECT_EQ(of(wells, Brush).value<QBrush>(), QBrush(Qt::blue));
  EXPECT_TRUE(page.observers.contains(wells, &observer));
}

TEST_F(MapViewTest, wellsThatNobodyAskedForYetAreShown) {
  store.reset();
  store.setValue(NumberOfWells, 2);
  Project project = store.project();
  project.wells.positions.clear();
  store.setProject(project);
  map().setDefaultWellPositions();
  map().showWells();
  EXPECT_EQ(of(items.wells, Points).value<QPolygonF>(),
            (QVector<QPointF>{{1050, 2040}, {1050, 2040}}));
}

TEST_F(MapViewTest, newWellsDoNotRescaleTheMapButAreListed) {
  map().showWells();
  EXPECT_EQ(page.valuesOf(items.mapView, XAutoScale), (QVariantList{false, true, false}));
  EXPECT_EQ(page.valuesOf(items.mapView, YAutoScale), (QVariantList{false, true, false}));
  EXPECT_EQ(of(items.mapLegend, ListsItems), QVariant(1));
}

TEST_F(MapViewTest, wellsAreShownOnce) {
  map().showWells();
  const int wells = items.wells;
  forget();
  map().showWells();
  EXPECT_EQ(items.wells, wells);
  EXPECT_TRUE(page.calls.isEmpty());
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(MapViewTest, wellsOfALoadedProjectReplaceTheOldOnesAndAreSmaller) {
  items.wells = page.addItem("Wells", items.mapView);
  items.mapImage = page.addItem("Map image", items.mapView);
  const int old = items.wells;
  map().takeOverLoadedPage();
  EXPECT_EQ(page.calls, (QStringList{QStringLiteral("removeItem %1 0").arg(old),
                                     QStringLiteral("addCurve %1 1 0").arg(items.mapView),
                                     QStringLiteral("moveToBackground %1").arg(items.mapImage)}));
  EXPECT_NE(items.wells, old);
  EXPECT_EQ(of(items.wells, Symbol).toMap()["Width"], QVariant(10.0));
  EXPECT_EQ(of(items.wells, Symbol).toMap()["Height"], QVariant(10.0));
  EXPECT_EQ(page.propertiesSetOn(items.wells),
            (std::vector<int>{Name, CurveStyle, Symbol, Visible, Brush}));
  EXPECT_EQ(of(items.mapView, UniformScale), QVariant(true));
  for (const int item : {items.projectAddress, items.mapView, items.wells, items.mapImage})
    EXPECT_TRUE(page.observers.contains(item, &observer)) << item;
}

TEST_F(MapViewTest, wellsBearTheirNamesAndSigns) {
  read(BatchProject::doublet());
  map().showWells();
  map().markWells();
  const QVariantList marks = of(items.wells, PointMarks).toList();
  ASSERT_EQ(marks.size(), 2);
  EXPECT_EQ(marks[0].toMap(), (QVariantMap{{"Text", "Pump"},
                                           {"Symbol", static_cast<int>(WithdrawalWell)},
                                           {"Legend", "Withdrawal wells"}}));
  EXPECT_EQ(marks[1].toMap(), (QVariantMap{{"Text", "Return"},
                                           {"Symbol", static_cast<int>(InjectionWell)},
                                           {"Legend", "Injection wells"}}));
}

TEST_F(MapViewTest, aWellThatWithdrawsAndInjectsInTurnsHasASignOfItsOwn) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(secondsPerYear / 2);
  project.addPeriod(secondsPerYear / 2);
  project.addPeriodRates({{-0.001, 0}, {0.001, 3}, {0.001, -3}, {-0.001, 0}});
  read(project);
  const QVariantList marks = wellMarks(store.wells(), 2);
  for (const QVariant& mark : marks)
    EXPECT_EQ(mark.toMap()["Symbol"], QVariant(static_cast<int>(AlternatingWell)));
}

TEST_F(MapViewTest, aWellThatDoesNothingHasNoSignOfItsOwn) {
  BatchProject project;
  project.addWell("Idle", 0, 0, 0);
  read(project);
  const QVariantMap mark = wellMarks(store.wells(), 1).value(0).toMap();
  EXPECT_EQ(mark["Symbol"], QVariant(static_cast<int>(NoSymbol)));
  EXPECT_EQ(mark["Legend"], QVariant(QString()));
}

TEST_F(MapViewTest, namesOfWellsReachThePageInPrintableLetters) {
  read(BatchProject::doublet());
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(0, WellModel::Name), QString(QChar(0x1b)) + "Pump");
  EXPECT_EQ(wellMarks(store.wells(), 1).value(0).toMap()["Text"], QVariant("\\u001bPump"));
}

TEST_F(MapViewTest, aLoadedPageWithoutWellsIsLeftAlone) {
  map().takeOverLoadedPage();
  EXPECT_TRUE(page.calls.isEmpty());
  EXPECT_TRUE(page.observers.isEmpty());
}
