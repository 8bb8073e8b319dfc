#include "study/page/StudyPage.h"

#include "page/model/Canvas.h"
#include "page/painting/IsolinePainter.h"
#include "page/painting/PageExport.h"
#include "study/page/PlumeMaps.h"
#include "study/page/StudyFindings.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace TVR;
using namespace TVR::Study;
using namespace TVR::Page;

namespace {

SeriesBand bandOfThreeTimes(const QString& unit) {
  return {"Pump", unit, {0, 10, 30}, {10, 9, 8}, {10, 9.5, 9}, {10, 10, 9.5}};
}

StudyFindings someFindings() {
  ProbabilityMap map = emptyMap();
  fill(map, 4, 16, 2, 8, 0.3);
  fill(map, 5, 12, 3, 7, 0.7);
  fill(map, 6, 9, 4, 6, 1);
  StudyFindings findings;
  findings.title = "doublet: variants of doublet.tbat";
  findings.runs = "8 of 10 runs (Latin hypercube), of which 1 failed";
  findings.varied = {{"kf", "uniform(1, 2)", "m/s"}, {"aquifer_h", "list(1, 2)", "m"}};
  findings.base.wells = {{"Pump", {1030, 2020}, true, CurveItem::WithdrawalWell, "Withdrawal"},
                         {"Return", {1040, 2025}, false, CurveItem::InjectionWell, "Injection"}};
  findings.base.mesh = "Mesh of the base (900 cells): good enough";
  findings.map = map;
  findings.temperature = bandOfThreeTimes("°C");
  findings.temperatureTitle = "Temperature of Pump";
  findings.drawdown = bandOfThreeTimes("m");
  findings.tornado = {"plume_length -1 K 30 a [m]", 80, {{"kf", 60, 120}, {"aquifer_h", 90, 70}}};
  return findings;
}

/// All items of a kind, wherever they lie.
template <typename Kind>
std::vector<const Kind*> itemsOf(const std::vector<std::unique_ptr<Item>>& items) {
  std::vector<const Kind*> found;
  for (const auto& item : items) {
    if (const auto* one = dynamic_cast<const Kind*>(item.get()))
      found.push_back(one);
    for (const Kind* inner : itemsOf<Kind>(item->children))
      found.push_back(inner);
  }
  return found;
}

class StudyPageTest : public testing::Test {
protected:
  StudyPageTest() : findings(someFindings()) {}
  void layOut() { layOutStudyPage(canvas, findings); }

  const PlotItem& plot(const QString& name) const {
    return *canvas.item<PlotItem>(canvas.itemByName(name));
  }
  QString allTexts() const {
    QString texts;
    for (const TextItem* text : itemsOf<TextItem>(canvas.items()))
      texts += text->html + '\n';
    return texts;
  }

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

TEST_F(StudyPageTest, aBandHasItsThreeLinesInItsArea) {
  layOut();
  const PlotItem& band = plot("Temperature of Pump");
  EXPECT_EQ(band.y.description, "Temperature [°C]");
  const auto curves = itemsOf<CurveItem>(band.children);
  ASSERT_EQ(curves.size(), 4u); // the area between P10 and P90 below them
  EXPECT_EQ(curves[1]->points.last(), QPointF(30, 8));
  EXPECT_EQ(curves[1]->marks.back().text, "P10");
  EXPECT_EQ(curves[2]->points.last(), QPointF(30, 9.5));
  EXPECT_EQ(curves[2]->marks.back().text, "P90");
  for (const CurveItem* curve : curves)
    for (const QPointF& point : curve->points)
      EXPECT_TRUE(band.area().contains(band.toPage(point)));
}

TEST_F(StudyPageTest, theTornadoHasTwoBarsForEachKeyFromTheMedian) {
  layOut();
  const auto bars = itemsOf<CurveItem>(plot("Tornado").children);
  ASSERT_EQ(bars.size(), 5u); // and the line of the median
  EXPECT_EQ(bars[0]->points.boundingRect().left(), 60);
  EXPECT_EQ(bars[0]->points.boundingRect().right(), 80);
  EXPECT_EQ(bars[1]->points.boundingRect().right(), 120);
  EXPECT_LT(bars[2]->points.boundingRect().bottom(), bars[0]->points.boundingRect().top());
  EXPECT_TRUE(allTexts().contains(">aquifer_h</p>"));
}

TEST_F(StudyPageTest, itTellsWhatWasVariedAndHowManyRunsFailed) {
  layOut();
  const QString texts = allTexts();
  EXPECT_TRUE(texts.contains("<td>aquifer_h</td><td>list(1, 2)</td><td>m</td>"));
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

TEST(MeshLine, itNamesTheWorstFiguresAndHowManyTheMeshIsNotGoodEnoughFor) {
  Quantities::MeshConvergence convergence;
  convergence.cells = {200, 800, 3200};
  convergence.figures = {
      {"temperature of Pump", "°C", {10, 10, 10}, {10.5, 10.5, 2., 0.02, {}}, 0.1},
      {"plume of -1 K, length", "m", {80, 90, 95}, {90, 96, 1., 12, {}}, 9}};
  EXPECT_EQ(meshLine(convergence),
            "Mesh of the base (800 cells): plume of -1 K, length 90 ± 12 m; temperature of Pump "
            "10.500 ± 0.020 °C; not good enough for 1 of 2 figures");
  convergence.figures.pop_back();
  EXPECT_TRUE(meshLine(convergence).endsWith("; good enough"));
}

} // namespace
