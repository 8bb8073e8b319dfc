#include "study/page/StudyPage.h"

#include "page/model/Canvas.h"
#include "page/painting/IsolinePainter.h"
#include "page/painting/LabelPainter.h"
#include "page/painting/PageExport.h"
#include "study/page/MeshLine.h"
#include "study/page/PageTexts.h"
#include "study/page/PlumeMaps.h"
#include "study/page/StudyFindings.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>

using namespace TVR;
using namespace TVR::Study;
using namespace TVR::Page;

namespace {

SeriesBand bandOfThreeTimes() {
  return {{0, 10, 30}, {10, 9, 8}, {10, 9.5, 9}, {10, 10, 9.5}};
}

StudyFindings someFindings() {
  ProbabilityMap map = emptyMap();
  fill(map, 4, 16, 2, 8, 0.3);
  fill(map, 5, 12, 3, 7, 0.7);
  fill(map, 6, 9, 4, 6, 1);
  StudyFindings findings;
  findings.title = "doublet: variants of doublet.tbat";
  findings.runs = "8 of 10 runs (Latin hypercube), of which 1 failed";
  findings.varied = {{"Hydraulic conductivity", "kf", "uniform(1, 2)", "m/s"},
                     {"Thickness", "aquifer_h", "list(1, 2)", "m"}};
  findings.base.wells = {{"Pump", {1030, 2020}, true, CurveItem::WithdrawalWell, "Withdrawal"},
                         {"Return", {1040, 2025}, false, CurveItem::InjectionWell, "Injection"}};
  findings.mesh = "Mesh of the base (900 cells): good enough";
  findings.map = map;
  findings.temperature = bandOfThreeTimes();
  findings.temperatureTitle = "Temperature of Pump";
  findings.drawdown = bandOfThreeTimes();
  findings.drawdownTitle = "Drawdown at Pump";
  findings.tornado = {
      "Length of the plume [m]", 80, {{"Hydraulic conductivity", 60, 120}, {"Thickness", 90, 70}}};
  return findings;
}

class StudyPageTest : public testing::Test {
protected:
  StudyPageTest() : findings(someFindings()) {}
  void layOut() { layOutStudyPage(canvas, findings); }

  const PlotItem& plot(const QString& name) const {
    return *canvas.item<PlotItem>(canvas.itemByName(name));
  }
  QString allTexts() const { return shownTexts(canvas).join('\n'); }

  StudyFindings findings;
  Canvas canvas;
};

TEST_F(StudyPageTest, theMapHasTheThreeLinesWithTheirNames) {
  layOut();
  const auto lines = itemsOf<IsolineItem>(canvas.items());
  ASSERT_EQ(lines.size(), 3u);
  const std::pair<double, QString> expected[] = {{10, "P10"}, {50, "P50"}, {90, "P90"}};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i]->line.level, expected[i].first);
    EXPECT_EQ(isolineLabel(*lines[i]), expected[i].second);
    EXPECT_GT(lines[i]->line.points.size(), 3);
  }
}

TEST_F(StudyPageTest, theLegendSaysWhichLineIsWhich) {
  layOut();
  const auto lines = itemsOf<IsolineItem>(canvas.items());
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0]->legendText, "P10: 10 % of the runs are colder by 1 K or more as far as here");
  EXPECT_EQ(itemsOf<LegendItem>(canvas.items()).size(), 1u);
}

/// The boxes of the names of the lines on the map.
std::vector<QPolygonF> namesOnMap(const PlotItem& map, const GridDataItem& grid) {
  QImage image(10, 10, QImage::Format_RGB32);
  QPainter painter(&image);
  std::vector<QPolygonF> boxes;
  paintIsolineLabels(painter, grid, map, boxes);
  return boxes;
}

bool touches(const QPolygonF& box, const IsolineItem& line, const PlotItem& map) {
  for (const QPolygonF& part : isolineParts(line, map))
    for (int i = 1; i < part.size(); ++i)
      for (int k = 1; k < box.size(); ++k)
        if (QLineF(part[i - 1], part[i]).intersects({box[k - 1], box[k]}, nullptr) ==
            QLineF::BoundedIntersection)
          return true;
  return false;
}

TEST_F(StudyPageTest, namesOfBandsThatCoincideStandApartAndOnNoLine) {
  findings.map = ProbabilityMap{-1, 30, {1000, 2000, 0.5, 200, 100}, std::vector<double>(20000)};
  fill(*findings.map, 40, 160, 30, 70, 1);
  layOut();
  const auto* const grid = itemsOf<GridDataItem>(canvas.items()).front();
  const auto boxes = namesOnMap(plot("Map"), *grid);
  ASSERT_EQ(boxes.size(), 3u);
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k)
      EXPECT_FALSE(boxes[i].intersects(boxes[k]));
    for (const IsolineItem* line : itemsOf<IsolineItem>(canvas.items()))
      EXPECT_FALSE(touches(boxes[i], *line, plot("Map"))) << line->name.toStdString();
  }
}

TEST_F(StudyPageTest, aNameStandsWhereItsLinePartsFromTheOthers) {
  findings.map = ProbabilityMap{-1, 30, {1000, 2000, 0.5, 200, 100}, std::vector<double>(20000)};
  fill(*findings.map, 40, 160, 30, 70, 0.3);
  fill(*findings.map, 40, 120, 30, 70, 0.7);
  fill(*findings.map, 40, 80, 30, 70, 1);
  layOut();
  const auto* const grid = itemsOf<GridDataItem>(canvas.items()).front();
  const auto lines = itemsOf<IsolineItem>(canvas.items());
  for (const QPolygonF& box : namesOnMap(plot("Map"), *grid)) {
    const auto touched = std::count_if(lines.begin(), lines.end(), [&](const IsolineItem* line) {
      return touches(box, *line, plot("Map"));
    });
    EXPECT_LE(touched, 1);
  }
}

TEST_F(StudyPageTest, theMapShowsPercentAndTheWholePlume) {
  layOut();
  const auto grids = itemsOf<GridDataItem>(canvas.items());
  ASSERT_EQ(grids.size(), 1u);
  EXPECT_EQ(grids[0]->colouredUnit(), "%");
  const PlotItem& map = plot("Map");
  EXPECT_TRUE(map.isMap());
  const QRectF plume(map.toPage({1020, 2040}), map.toPage({1080, 2010}));
  EXPECT_TRUE(map.area().contains(plume));
  EXPECT_GT(plume.width(), map.area().width() / 2);
}

TEST_F(StudyPageTest, theMapHasTheWells) {
  layOut();
  const auto curves = itemsOf<CurveItem>(plot("Map").children);
  ASSERT_EQ(curves.size(), 1u);
  EXPECT_EQ(curves[0]->points, (QPolygonF() << QPointF(1030, 2020) << QPointF(1040, 2025)));
  EXPECT_EQ(curves[0]->marks[1].text, "Return");
}

/// Where the names of the ends of the lines stand in a diagram, from P90 to P10.
QPolygonF namesOnPage(const PlotItem& plot) {
  QPolygonF places;
  for (const CurveItem* curve : itemsOf<CurveItem>(plot.children))
    for (std::size_t i = 0; i < curve->marks.size(); ++i)
      places.append(plot.toPage(curve->points[static_cast<int>(i)]));
  return places;
}

TEST_F(StudyPageTest, aBandHasItsThreeLinesInItsArea) {
  layOut();
  const PlotItem& band = plot("Temperature of Pump");
  EXPECT_EQ(band.y.description, "Temperature [°C]");
  const auto curves = itemsOf<CurveItem>(band.children);
  ASSERT_GE(curves.size(), 4u); // the area between P10 and P90 below them
  EXPECT_EQ(curves[1]->points.last(), QPointF(30, 8));
  EXPECT_EQ(curves[2]->points.last(), QPointF(30, 9.5));
  EXPECT_EQ(curves[3]->points.last(), QPointF(30, 9));
  for (const CurveItem* curve : curves)
    for (const QPointF& point : curve->points)
      EXPECT_TRUE(band.area().contains(band.toPage(point)));
}

TEST_F(StudyPageTest, theLinesOfABandAreNamedAtTheirEnds) {
  layOut();
  const PlotItem& band = plot("Temperature of Pump");
  const QPolygonF names = namesOnPage(band);
  ASSERT_EQ(names.size(), 3);
  const double ends[] = {9.5, 9, 8};
  for (int i = 0; i < 3; ++i)
    EXPECT_NEAR(names[i].y(), band.toPage({30, ends[i]}).y(), 1e-6);
}

TEST_F(StudyPageTest, namesOfLinesThatCoincideStandApartWithinTheDiagram) {
  const double height = labelRoom("P10", QFont("Arial", 6)).height();
  for (const double end : {9., 0., 1e6}) {
    const std::vector<double> flat(3, end);
    findings.temperature = SeriesBand{{0, 10, 30}, flat, flat, flat};
    layOut();
    const PlotItem& band = plot("Temperature of Pump");
    const QPolygonF names = namesOnPage(band);
    ASSERT_EQ(names.size(), 3);
    const QRectF room = band.area().adjusted(0, height / 2, 0, -height / 2);
    for (const QPointF& name : names)
      EXPECT_TRUE(room.contains(name)) << end;
    EXPECT_GE(names[1].y() - names[0].y(), height) << end;
    EXPECT_GE(names[2].y() - names[1].y(), height) << end;
  }
}

TEST_F(StudyPageTest, withoutNumbersADiagramSaysSo) {
  findings.temperature.reset();
  findings.drawdown = SeriesBand{};
  findings.tornado.bars.clear();
  layOut();
  EXPECT_EQ(allTexts().count("Nothing to show: no run has this answer"), 3);
  EXPECT_TRUE(allTexts().contains("<b>Temperature of Pump</b>"));
  EXPECT_EQ(itemsOf<PlotItem>(canvas.items()).size(), 1u);
}

TEST_F(StudyPageTest, whereNothingMakesADifferenceTheMedianIsSaid) {
  findings.tornado.bars = {{"Thickness", 80, 80}};
  layOut();
  EXPECT_TRUE(allTexts().contains("Nothing makes a difference: the median is 80 everywhere"));
}

TEST_F(StudyPageTest, ofTwoBarsOnOneSideTheShorterOneLiesAbove) {
  findings.tornado.bars = {{"kf", 100, 120}, {"Thickness", 120, 100}};
  layOut();
  const auto bars = itemsOf<CurveItem>(plot("Tornado").children);
  ASSERT_EQ(bars.size(), 5u);
  for (const std::size_t row : {0u, 2u})
    EXPECT_GT(bars[row]->points.boundingRect().width(),
              bars[row + 1]->points.boundingRect().width());
}

TEST_F(StudyPageTest, theTornadoHasTwoBarsForEachKeyFromTheMedian) {
  layOut();
  const auto bars = itemsOf<CurveItem>(plot("Tornado").children);
  ASSERT_EQ(bars.size(), 5u); // and the line of the median
  EXPECT_EQ(bars[0]->points.boundingRect().left(), 80);
  EXPECT_EQ(bars[0]->points.boundingRect().right(), 120);
  EXPECT_EQ(bars[1]->points.boundingRect().left(), 60);
  EXPECT_EQ(bars[1]->points.boundingRect().right(), 80);
  EXPECT_LT(bars[2]->points.boundingRect().bottom(), bars[0]->points.boundingRect().top());
  EXPECT_TRUE(allTexts().contains(">Thickness</p>"));
}

TEST_F(StudyPageTest, itTellsWhatWasVariedAndHowManyRunsFailed) {
  layOut();
  const QString texts = allTexts();
  for (const char* cell : {">Thickness<", ">aquifer_h<", ">list(1, 2)<", ">m<"})
    EXPECT_TRUE(texts.contains(cell)) << cell;
  EXPECT_TRUE(texts.contains("of which 1 failed"));
  EXPECT_TRUE(texts.contains("Mesh of the base (900 cells): good enough"));
}

TEST_F(StudyPageTest, namesOfKeysAreNoHtml) {
  findings.title = "<b>a</b> & co";
  layOut();
  EXPECT_TRUE(allTexts().contains("&lt;b&gt;a&lt;/b&gt; &amp; co"));
}

TEST_F(StudyPageTest, allThatItShowsLiesOnTheSheet) {
  layOut();
  for (const auto& item : canvas.items())
    EXPECT_TRUE(QRectF({0, 0}, canvas.paperSize()).contains(item->box()))
        << item->name.toStdString();
}

TEST_F(StudyPageTest, withoutAPlumeThereIsAMapOfTheWells) {
  findings.map.reset();
  layOut();
  EXPECT_TRUE(itemsOf<GridDataItem>(canvas.items()).empty());
  EXPECT_EQ(plot("Map").legendText, "No run reaches any of the levels");
}

TEST_F(StudyPageTest, theProbabilityIsSeenInColour) {
  layOut();
  const PlotItem& map = plot("Map");
  const QImage image = pictureOf(canvas);
  const auto at = [&](const QPointF& place) {
    return image.pixelColor(
        (map.toPage(place) * image.width() / canvas.paperSize().width()).toPoint());
  };
  const QColor likely = at({1037, 2028});
  const QColor unlikely = at({1072, 2017});
  EXPECT_LT(likely.red(), unlikely.red());
  EXPECT_LT(unlikely.red(), 255);
  EXPECT_GT(likely.blue(), likely.red()); // it is colder
}

TEST(ShownMap, itIsTheLevelNextToZeroAtTheLastTime) {
  std::vector<ProbabilityMap> maps(4, emptyMap());
  maps[0].time = maps[1].time = 10;
  maps[1].level = maps[3].level = -3;
  for (ProbabilityMap& map : maps)
    fill(map, 4, 5, 2, 3, 0.5);
  const auto shown = shownMap(maps);
  ASSERT_TRUE(shown);
  EXPECT_EQ(shown->level, -1);
  EXPECT_EQ(shown->time, 30);
}

TEST(ShownMap, aLevelThatNoRunReachesIsNotShown) {
  std::vector<ProbabilityMap> maps(2, emptyMap());
  maps[1].level = -3;
  EXPECT_FALSE(shownMap(maps));
  fill(maps[1], 4, 5, 2, 3, 0.5);
  EXPECT_EQ(shownMap(maps)->level, -3);
}

/// What three meshes of two wells say of a figure.
Quantities::FigureConvergence judged(const Quantities::SiteFigure& figure, const QString& unit,
                                     double value, double band, double tolerance) {
  return {figure, {}, unit, {}, {value, value, 1., band, {}}, tolerance};
}

TEST(MeshLine, itNamesTheWorstFiguresAndHowManyTheMeshIsNotGoodEnoughFor) {
  using Quantities::SiteFigure;
  BaseSite base = someFindings().base;
  Quantities::MeshConvergence& convergence = base.mesh.convergence;
  convergence.cells = {200, 800, 3200};
  convergence.figures = {judged({SiteFigure::Temperature, 0, 1}, "°C", 10.5, 0.02, 0.1),
                         judged({SiteFigure::PlumeLength, -1}, "m", 90, 12, 9)};
  EXPECT_EQ(meshLine(base),
            "Mesh of the base (800 cells): length of the plume of -1 K 90 ± 12 m; temperature of "
            "Return 10.500 ± 0.020 °C; not good enough for 1 of 2 figures");
  convergence.figures.pop_back();
  EXPECT_TRUE(meshLine(base).endsWith("; good enough"));
}

TEST(MeshLine, aMeshThatCouldNotBeJudgedHasTheReason) {
  BaseSite base;
  base.mesh.fault = "too many cells";
  EXPECT_EQ(meshLine(base), "Mesh of the base: it could not be judged: too many cells");
}

} // namespace
