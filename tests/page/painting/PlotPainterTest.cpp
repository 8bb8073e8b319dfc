#include "page/Painted.h"
#include "page/SamplePage.h"
#include "page/model/AxisTicks.h"
#include "page/painting/AxisPainter.h"
#include "page/painting/CurvePainter.h"
#include "page/painting/IsolinePainter.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace TVR::Page;

const QSize sheet(60, 60);

/// A plot of the range 0 to 10 by 0 to 10, whose area runs from 15 mm to 55 mm and from 5 to 45.
std::unique_ptr<PlotItem> plot() {
  auto item = std::make_unique<PlotItem>(1);
  item->size = {60, 60};
  item->margins = {15, 5, 5, 15};
  item->x.maximum = 10;
  item->y.maximum = 10;
  item->pen = Qt::NoPen;
  item->gridPen = Qt::NoPen;
  return item;
}

std::unique_ptr<PlotItem> plotWithoutAxes() {
  auto item = plot();
  item->axisPen = Qt::NoPen;
  return item;
}

std::unique_ptr<CurveItem> curve(std::initializer_list<QPointF> points) {
  auto item = std::make_unique<CurveItem>(2);
  item->points = QPolygonF(QVector<QPointF>(points));
  item->pen = QPen(Qt::red, 0.5);
  return item;
}

std::unique_ptr<PictureItem> picture(const QPointF& position, const QSizeF& size) {
  auto item = std::make_unique<PictureItem>(3);
  item->image = QImage(40, 40, QImage::Format_RGB32);
  item->image.fill(Qt::green);
  item->pen = Qt::NoPen;
  item->position = position;
  item->size = size;
  return item;
}

/// The same image as a grid of one cell of the value 1 beside one of 0, over all of the plot.
std::unique_ptr<GridDataItem> grid() {
  auto item = std::make_unique<GridDataItem>(4);
  item->mesh.nodes = {{0, 0}, {5, 0}, {10, 0}, {0, 10}, {5, 10}, {10, 10}};
  item->mesh.cells = {{0, 1, 4, 3}, {1, 2, 5, 4}};
  item->mesh.centres = {{2.5, 5}, {7.5, 5}};
  item->sets[Sketra_lib::Property::Temperature].values = {0, 1};
  return item;
}

TEST(PlotPainter, aSquareInTheMapIsWhereTheScaleSaysOnThePage) {
  auto map = Sample::mapView(4, 4, 500, false);
  map->x.minimum = 681000;
  map->x.maximum = 681000 + 0.5 * 152;
  map->y.minimum = 227000;
  map->y.maximum = 227000 + 0.5 * 147.5;
  map->axisPen = Qt::NoPen;
  map->gridPen = Qt::NoPen;
  map->pen = Qt::NoPen;
  map->children.clear();
  map->children.push_back(curve({{681010, 227010}, {681060, 227010}}));
  const QImage image = Painted::item({200, 180}, std::move(map));
  // 50 m at 1:500 are 100 mm.
  EXPECT_NEAR(Painted::inkBox(image).width(), 100, 0.6);
  EXPECT_NEAR(Painted::inkBox(image).left(), 25.5 + 20, 0.4);
}

TEST(PlotPainter, theBackgroundFillsTheArea) {
  auto item = plotWithoutAxes();
  item->brush = QColor(200, 220, 255);
  const QRectF ink = Painted::inkBox(Painted::item(sheet, std::move(item)));
  EXPECT_EQ(ink, QRectF(15, 5, 40, 40));
}

TEST(PlotPainter, aBackgroundWithoutBrushIsTransparent) {
  EXPECT_TRUE(Painted::inkBox(Painted::item(sheet, plotWithoutAxes())).isEmpty());
}

TEST(PlotPainter, contentsAreCutOffAtTheArea) {
  auto item = plotWithoutAxes();
  item->children.push_back(curve({{-20, -20}, {30, 30}}));
  const QRectF ink = Painted::inkBox(Painted::item(sheet, std::move(item)));
  // Half of the line that runs along the edge lies outside.
  EXPECT_TRUE(QRectF(15, 5, 40, 40).adjusted(-0.25, -0.25, 0.25, 0.25).contains(ink));
}

/// The plot with a red curve of 0.5 mm that runs along a frame of 0.15 mm at a height.
QImage curveAlongTheFrame(double height) {
  auto item = plot();
  item->children.push_back(curve({{0, height}, {10, height}}));
  return Painted::item(sheet, std::move(item));
}

TEST(PlotPainter, aCurveAlongTheFrameIsDrawnAboveIt) {
  EXPECT_EQ(Painted::at(curveAlongTheFrame(10), {35, 5}), QColor(Qt::red));
  EXPECT_EQ(Painted::at(curveAlongTheFrame(0), {35, 45}), QColor(Qt::red));
}

TEST(PlotPainter, aCurveAlongTheFrameShowsInItsWholeWidth) {
  const QImage image = curveAlongTheFrame(10);
  EXPECT_EQ(Painted::at(image, {35, 4.8}), QColor(Qt::red));
  EXPECT_EQ(Painted::at(image, {35, 5.1}), QColor(Qt::red));
}

TEST(PlotPainter, thePlotThatLiesOverAnotherHidesNoCurveOfThatWithItsFrame) {
  std::vector<std::unique_ptr<Item>> items;
  items.push_back(plot());
  items.back()->children.push_back(curve({{0, 10}, {10, 10}}));
  auto above = plot();
  above->x.hidden = true;
  above->y.opposite = true;
  items.push_back(std::move(above));
  const QImage image =
      Painted::sheet(sheet, [&](QPainter& painter) { paintItems(painter, items, sheet); });
  EXPECT_EQ(Painted::at(image, {35, 5}), QColor(Qt::red));
  EXPECT_NE(Painted::at(image, {55, 25}), QColor(Qt::white));
}

/// How many pixels of a colour there are in a row of the image.
int pixelsInRow(const QImage& image, int row, const QColor& colour) {
  int count = 0;
  for (int x = 0; x < image.width(); ++x)
    count += image.pixelColor(x, row) == colour;
  return count;
}

TEST(PlotPainter, aCurveOfThePlotAboveThatRunsAlongOneOfThePlotBelowLetsItShow) {
  std::vector<std::unique_ptr<Item>> items;
  items.push_back(plot());
  items.back()->children.push_back(curve({{0, 5}, {10, 5}}));
  auto above = plot();
  above->x.hidden = true;
  above->y.opposite = true;
  above->children.push_back(curve({{0, 5}, {10, 5}}));
  above->children.back()->pen.setColor(Qt::blue);
  items.push_back(std::move(above));
  const QImage image =
      Painted::sheet(sheet, [&](QPainter& painter) { paintItems(painter, items, sheet); });
  EXPECT_GT(pixelsInRow(image, 250, Qt::red), 50);
  EXPECT_GT(pixelsInRow(image, 250, Qt::blue), 50);
}

TEST(PlotPainter, aCurveOfAPlotByItselfHasNoGaps) {
  auto item = plotWithoutAxes();
  item->children.push_back(curve({{0, 5}, {10, 5}}));
  EXPECT_GE(pixelsInRow(Painted::item(sheet, std::move(item)), 250, Qt::red), 398);
}

TEST(PlotPainter, contentsMayGoBeyondAnAreaThatDoesNotClip) {
  auto item = plotWithoutAxes();
  item->clipsChildren = false;
  item->children.push_back(curve({{0, 5}, {11, 5}}));
  EXPECT_GT(Painted::inkBox(Painted::item(sheet, std::move(item))).right(), 58);
}

TEST(PlotPainter, cellsLieAbovePicturesAndBelowCurvesInAnyOrderOfItems) {
  auto item = plotWithoutAxes();
  item->children.push_back(curve({{0, 5}, {10, 5}}));
  item->children.push_back(grid());
  item->children.push_back(picture({0, 10}, {10, 10}));
  const QImage image = Painted::item(sheet, std::move(item));
  EXPECT_EQ(Painted::at(image, {40, 25}), QColor(Qt::red));
  const QColor cell = Painted::at(image, {50, 15});
  EXPECT_GT(cell.red(), cell.green());
  EXPECT_GT(Painted::at(image, {20, 15}).green(), 200);
}

TEST(PlotPainter, aMapShinesThroughCellsOfLittleChange) {
  auto item = plotWithoutAxes();
  item->children.push_back(picture({0, 10}, {10, 10}));
  item->children.push_back(grid());
  const QColor seen = Painted::at(Painted::item(sheet, std::move(item)), {20, 15});
  EXPECT_GT(seen.green() - seen.red(), 150);
}

TEST(PlotPainter, aPictureInThePlotCoversItsExtentThere) {
  auto item = plotWithoutAxes();
  item->children.push_back(picture({2.5, 10}, {5, 2.5}));
  const QRectF ink = Painted::inkBox(Painted::item(sheet, std::move(item)));
  EXPECT_EQ(ink, QRectF(25, 5, 20, 10));
}

TEST(PlotPainter, aHiddenChildIsNotDrawn) {
  auto item = plotWithoutAxes();
  item->children.push_back(picture({2.5, 10}, {5, 2.5}));
  item->children.back()->visible = false;
  item->children.push_back(grid());
  item->children.back()->visible = false;
  EXPECT_TRUE(Painted::inkBox(Painted::item(sheet, std::move(item))).isEmpty());
}

TEST(PlotPainter, aCurveThatIsNotVisibleStillShowsItsSymbols) {
  auto item = plotWithoutAxes();
  auto wells = curve({{2, 5}, {8, 5}});
  wells->visible = false;
  wells->symbol = CurveItem::Circle;
  wells->symbolSize = {25, 25};
  wells->brush = Qt::blue;
  item->children.push_back(std::move(wells));
  const QImage image = Painted::item(sheet, std::move(item));
  EXPECT_EQ(Painted::at(image, {23, 25}), QColor(Qt::blue));
  EXPECT_EQ(Painted::at(image, {35, 25}), QColor(Qt::white));
  // 2.5 mm, and the outline of 0.5 mm around it.
  EXPECT_NEAR(Painted::inkBox(image).height(), 3, 0.25);
}

TEST(PlotPainter, stepsGoAlongXFirst) {
  auto steps = curve({{0, 2}, {5, 8}, {10, 2}});
  steps->style = Sketra_lib::Property::Steps;
  EXPECT_EQ(curveLine(*steps),
            QPolygonF(QVector<QPointF>{{0, 2}, {5, 2}, {5, 8}, {10, 8}, {10, 2}}));
}

TEST(PlotPainter, flatStepsOfTwoPointsStayAsTheyAre) {
  auto steps = curve({{0, 2}, {5, 2}, {5, 8}, {10, 8}});
  const QPolygonF points = steps->points;
  steps->style = Sketra_lib::Property::Steps;
  EXPECT_EQ(curveLine(*steps), points);
}

TEST(PlotPainter, anInvalidIsolineColourIsDrawnAsTheDarkestRed) {
  IsolineItem isoline(5);
  isoline.pen.setColor(QColor());
  EXPECT_EQ(isolinePen(isoline).color(), QColor(Qt::darkRed));
}

TEST(PlotPainter, anIsolineShowsItsLevelOrTheOneItWasGiven) {
  IsolineItem isoline(5);
  isoline.line.level = -0.25;
  EXPECT_EQ(isolineLabel(isoline), "-0.25 m");
  isoline.shownLevel = 3;
  EXPECT_EQ(isolineLabel(isoline), "3 m");
  isoline.dataSet = Sketra_lib::Property::Temperature;
  EXPECT_EQ(isolineLabel(isoline), "3 K");
}

TEST(PlotPainter, anIsolineWithATextShowsIt) {
  IsolineItem isoline(5);
  isoline.shownLevel = 3;
  isoline.labelText = "P10";
  EXPECT_EQ(isolineLabel(isoline), "P10");
}

TEST(PlotPainter, aDashedIsolineHasGaps) {
  auto item = plotWithoutAxes();
  auto field = std::make_unique<GridDataItem>(4);
  auto isoline = std::make_unique<IsolineItem>(5);
  isoline->line.points = QPolygonF(QVector<QPointF>{{0, 5}, {10, 5}});
  isoline->pen = QPen(Qt::red, 0.5, Qt::DashLine);
  isoline->labelsVisible = false;
  field->children.push_back(std::move(isoline));
  item->children.push_back(std::move(field));
  const QImage image = Painted::item(sheet, std::move(item));
  int changes = 0;
  for (int x = 151; x < 549; ++x)
    changes += (image.pixel(x, 250) == 0xffffffff) != (image.pixel(x - 1, 250) == 0xffffffff);
  EXPECT_GT(changes, 15);
}

/// The height of what is drawn of one isoline.
double inkOfIsoline(bool labels, std::optional<double> shownLevel, const QPolygonF& line) {
  auto item = plotWithoutAxes();
  auto field = std::make_unique<GridDataItem>(4);
  auto isoline = std::make_unique<IsolineItem>(5);
  isoline->line.points = line;
  isoline->labelsVisible = labels;
  isoline->shownLevel = shownLevel;
  field->children.push_back(std::move(isoline));
  item->children.push_back(std::move(field));
  return Painted::inkBox(Painted::item(sheet, std::move(item))).height();
}

const QPolygonF longLine(QVector<QPointF>{{0, 5}, {10, 5}});
const QPolygonF shortLine(QVector<QPointF>{{5, 5}, {5.5, 5}});

TEST(PlotPainter, labelsOfIsolinesCanBeSwitchedOff) {
  EXPECT_LT(inkOfIsoline(false, {}, longLine), 0.5);
  EXPECT_GT(inkOfIsoline(true, {}, longLine), 1.5);
}

TEST(PlotPainter, anIsolineThatWasGivenALevelToShowAlwaysDoes) {
  EXPECT_GT(inkOfIsoline(false, 0.25, longLine), 1.5);
}

TEST(PlotPainter, aLineTooShortForItsLabelHasItAsideWithALeader) {
  EXPECT_LT(inkOfIsoline(false, {}, shortLine), 0.5);
  EXPECT_GT(inkOfIsoline(true, {}, shortLine), 1.5);
}

TEST(PlotPainter, aLoopBelowAWellHasNoLabel) {
  const auto inkWithWell = [](const QPolygonF& line) {
    auto item = plotWithoutAxes();
    auto wells = curve({{5.25, 5}});
    wells->visible = false;
    wells->symbol = CurveItem::Circle;
    wells->symbolSize = {40, 40};
    wells->pen = QPen(Qt::red, 0.1);
    auto field = std::make_unique<GridDataItem>(4);
    auto isoline = std::make_unique<IsolineItem>(5);
    isoline->line.points = line;
    isoline->shownLevel = 0.5;
    field->children.push_back(std::move(isoline));
    item->children.push_back(std::move(wells));
    item->children.push_back(std::move(field));
    return Painted::inkBox(Painted::item(sheet, std::move(item))).width();
  };
  EXPECT_LT(inkWithWell(shortLine), 4.5);
  // It stands out by 0.12 mm at both ends.
  EXPECT_LT(inkWithWell(QVector<QPointF>{{4.72, 5}, {5.78, 5}}), 4.5);
  EXPECT_GT(inkWithWell(QVector<QPointF>{{5, 5}, {6, 5}}), 4.5);
}

TEST(PlotPainter, anImportedIsolineIsDotted) {
  GridDataItem grid(4);
  IsolineItem isoline(5);
  isoline.parent = &grid;
  EXPECT_EQ(isolinePen(isoline).style(), Qt::SolidLine);
  grid.isImported = true;
  EXPECT_EQ(isolinePen(isoline).style(), Qt::DashDotLine);
  isoline.pen.setStyle(Qt::DashLine);
  EXPECT_EQ(isolinePen(isoline).style(), Qt::DotLine);
}

TEST(AxisPainter, everythingStaysInTheBoxOfThePlot) {
  for (const double top : {10., 1000., 1e6, 1e-3, 12345678.}) {
    auto item = plot();
    item->y.maximum = top;
    item->x.minimum = 680800 - top;
    item->x.maximum = 680800 + top;
    item->position = {3, 3};
    item->size = {50, 50};
    item->x.description = "Easting";
    item->y.description = "Northing";
    const QRectF ink = Painted::inkBox(Painted::item({60, 60}, std::move(item)));
    EXPECT_TRUE(QRectF(3, 3, 50, 50).contains(ink)) << top;
  }
}

TEST(AxisPainter, coordinatesOfSevenDigitsFitTheMarginOfTheMap) {
  auto map = Sample::mapView(4, 4, 500, false);
  map->x.minimum = 2681147;
  map->x.maximum = 2681223;
  map->y.minimum = 1227450;
  map->y.maximum = 1227523;
  map->pen = Qt::NoPen;
  map->children.clear();
  const QRectF ink = Painted::inkBox(Painted::item({200, 180}, std::move(map)));
  EXPECT_GT(ink.left(), 8.5);
  EXPECT_LT(ink.bottom(), 174);
}

TEST(AxisPainter, anAxisAtTheRightLeavesTheLeftMarginFree) {
  auto item = plot();
  item->margins = {15, 5, 15, 15};
  item->y.opposite = true;
  item->x.hidden = true;
  const QImage image = Painted::item(sheet, std::move(item));
  EXPECT_TRUE(Painted::inkBox(image, {0, 0, 14, 60}).isEmpty());
  EXPECT_FALSE(Painted::inkBox(image, {46, 0, 14, 60}).isEmpty());
}

TEST(AxisPainter, aHiddenAxisHasNeitherTicksNorNumbers) {
  auto item = plot();
  item->x.hidden = true;
  item->x.description = "Months";
  EXPECT_TRUE(Painted::inkBox(Painted::item(sheet, std::move(item)), {0, 47, 60, 13}).isEmpty());
}

/// Translates the descriptions of the templates.
class MonthsInGerman : public QTranslator {
public:
  QString translate(const char* context, const char* text, const char*, int) const override {
    return QString(context) == "PageTemplate" && QString(text) == "Months"
               ? "Monate des Betriebsjahres"
               : QString();
  }
  bool isEmpty() const override { return false; }
};

TEST(AxisPainter, aDescriptionOfTheTemplatesIsShownInTheLanguageOfUse) {
  const auto width = [] {
    auto item = plot();
    item->x.description = "Months";
    return Painted::inkBox(Painted::item(sheet, std::move(item)), {0, 56, 60, 4}).width();
  };
  const double english = width();
  MonthsInGerman german;
  QCoreApplication::installTranslator(&german);
  EXPECT_GT(width(), 2 * english);
  QCoreApplication::removeTranslator(&german);
}

TEST(AxisPainter, aYearHasATickForEverySecondMonth) {
  const AxisTicks ticks = plotTicks(*Sample::ratePlot(), Qt::Horizontal);
  EXPECT_EQ(ticks.major, (std::vector<double>{0, 2, 4, 6, 8, 10, 12}));
  EXPECT_EQ(ticks.minor, (std::vector<double>{1, 3, 5, 7, 9, 11}));
}

TEST(AxisPainter, ticksCoverAllThatAUniformScaleShows) {
  auto item = plot();
  item->uniformScale = true;
  item->y.maximum = 5;
  // The scale of x rules, and 10 units are to be seen in y as well.
  EXPECT_DOUBLE_EQ(plotTicks(*item, Qt::Vertical).major.back(), 10);
}

TEST(AxisPainter, gridLinesFollowTheirPen) {
  auto item = plotWithoutAxes();
  item->gridPen = QPen(Qt::gray, 0.2);
  EXPECT_FALSE(Painted::inkBox(Painted::item(sheet, std::move(item))).isEmpty());
}

TEST(AxisPainter, anEmptyRangeDrawsTheFrameOnly) {
  auto item = plot();
  item->x.maximum = item->x.minimum;
  item->children.push_back(curve({{0, 5}, {10, 5}}));
  const QRectF ink = Painted::inkBox(Painted::item(sheet, std::move(item)));
  EXPECT_NEAR(ink.left(), 15, 0.2);
  EXPECT_NEAR(ink.right(), 55, 0.2);
}

TEST(AxisPainter, aRangeThatIsNotFiniteDoesNoHarm) {
  auto item = plot();
  item->y.maximum = std::nan("");
  item->x.maximum = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(Painted::inkBox(Painted::item(sheet, std::move(item))).isEmpty());
}

} // namespace
