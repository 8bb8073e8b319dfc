#include "page/painting/Legend.h"

#include "page/SamplePage.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

QStringList texts(const std::vector<LegendEntry>& entries) {
  QStringList all;
  for (const LegendEntry& entry : entries)
    all.append(entry.text);
  return all;
}

/// The legend of the A4 page.
LegendItem legendBox() {
  LegendItem legend(15);
  legend.position = {77.5, 175};
  legend.size = {120, 22.5};
  legend.columns = 2;
  return legend;
}

/// A heading and `count` isotherms.
std::vector<LegendEntry> manyEntries(const PlotItem& plot, int count) {
  std::vector<LegendEntry> entries{{nullptr, "Legend", QFont("Arial", 11, QFont::Bold)}};
  for (int i = 0; i < count; ++i)
    entries.push_back({&plot, QString("Isotherm (%1.25K)").arg(i), QFont("Arial", 11)});
  return entries;
}

TEST(Legend, wellsCellsAndIsolinesFollowTheHeading) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  EXPECT_EQ(texts(legendEntries(*map, QFont("Arial", 9))),
            QStringList({"Legend", "Wells", "Simulation results", "Isohypse (%1 m)",
                         "Isotherm (0.5K)", "Isotherm (1K)", "Isotherm (3K)"}));
}

TEST(Legend, aPlotWithoutAHeadingIsNotListed) {
  EXPECT_TRUE(legendEntries(*Sample::ratePlot(), QFont()).empty());
}

TEST(Legend, aHiddenPlotIsNotListed) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  map->visible = false;
  EXPECT_TRUE(legendEntries(*map, QFont()).empty());
}

TEST(Legend, whatIsHiddenTakesNoRoom) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  map->children[1]->visible = false;
  EXPECT_EQ(texts(legendEntries(*map, QFont())), QStringList({"Legend", "Wells"}));
}

TEST(Legend, whatDoesNotAskForItIsNotListed) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  dynamic_cast<CurveItem&>(*map->children[0]).inLegend = false;
  dynamic_cast<GridDataItem&>(*map->children[1]).inLegend = false;
  EXPECT_EQ(texts(legendEntries(*map, QFont())),
            QStringList({"Legend", "Isohypse (%1 m)", "Isotherm (0.5K)", "Isotherm (1K)",
                         "Isotherm (3K)"}));
}

TEST(Legend, aGridWithoutResultsIsNotListed) {
  const auto map = Sample::mapView(4, 4, 1000, false);
  auto& grid = dynamic_cast<GridDataItem&>(*map->children[1]);
  grid.sets = {};
  EXPECT_FALSE(texts(legendEntries(*map, QFont())).contains("Simulation results"));
}

TEST(Legend, aTemperatureThatOnlyHasTheNoiseOfASolverIsToldAsNoChange) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  auto& grid = dynamic_cast<GridDataItem&>(*map->children[1]);
  for (double& value : grid.sets[Sketra_lib::Property::Temperature].values)
    value *= 1e-12;
  EXPECT_EQ(texts(legendEntries(*map, QFont())).last(), "no change above 0.01 K");
  grid.inLegend = false;
  EXPECT_FALSE(texts(legendEntries(*map, QFont())).contains("no change above 0.01 K"));
}

TEST(Legend, aChangeIsNotDenied) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  EXPECT_FALSE(texts(legendEntries(*map, QFont())).contains("no change above 0.01 K"));
}

TEST(Legend, anIsolineOfALevelThatTheFieldDoesNotReachIsNotListed) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  for (const auto& line : map->children[1]->children)
    if (line->name.startsWith("Isotherm (3K"))
      dynamic_cast<IsolineItem&>(*line).line = {};
  EXPECT_FALSE(texts(legendEntries(*map, QFont())).contains("Isotherm (3K)"));
}

TEST(Legend, anIsolineWithoutATextIsListedByItsName) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  auto& grid = *map->children[1];
  dynamic_cast<IsolineItem&>(*grid.children[0]).legendText.clear();
  EXPECT_TRUE(texts(legendEntries(*map, QFont())).contains("Isohypse (-0.7 m change)"));
}

TEST(Legend, aCurveIsListedOnceForEachMeaningOfItsPoints) {
  const auto map = Sample::mapView(4, 4, 1000, false);
  auto& wells = dynamic_cast<CurveItem&>(*map->children[0]);
  wells.points = QVector<QPointF>{{0, 0}, {1, 0}, {2, 0}, {3, 0}};
  wells.marks = {{"A", CurveItem::WithdrawalWell, "Withdrawal wells"},
                 {"B", CurveItem::InjectionWell, "Injection wells"},
                 {"C", CurveItem::InjectionWell, "Injection wells"}};
  const std::vector<LegendEntry> entries = legendEntries(*map, QFont());
  EXPECT_EQ(texts(entries).mid(1, 3),
            QStringList({"Withdrawal wells", "Injection wells", "Wells"}));
  EXPECT_EQ(entries[1].symbol, CurveItem::WithdrawalWell);
  EXPECT_EQ(entries[2].symbol, CurveItem::InjectionWell);
  EXPECT_EQ(entries[3].symbol, CurveItem::Circle);
}

TEST(Legend, importedIsolinesBearTheNameOfTheirGrid) {
  const auto map = Sample::mapView(40, 40, 1000, false);
  auto& grid = dynamic_cast<GridDataItem&>(*map->children[1]);
  grid.name = "File: variant.tvr";
  grid.isImported = true;
  for (const auto& line : grid.children)
    line->parent = &grid;
  EXPECT_TRUE(texts(legendEntries(*map, QFont())).contains("Isotherm (3K), File: variant.tvr"));
}

TEST(Legend, aHiddenLineWithoutSymbolsIsNotListed) {
  PlotItem plot(1);
  plot.legendText = "Legend";
  plot.children.push_back(std::make_unique<CurveItem>(2));
  plot.children[0]->name = "Line";
  EXPECT_EQ(legendEntries(plot, QFont()).size(), 2u);
  plot.children[0]->visible = false;
  EXPECT_TRUE(legendEntries(plot, QFont()).empty());
}

TEST(Legend, entriesFillOneColumnAfterTheOther) {
  const PlotItem plot(1);
  const LegendLayout layout = layOutLegend(manyEntries(plot, 4), legendBox());
  EXPECT_EQ(layout.places[1].x(), layout.places[2].x());
  EXPECT_LT(layout.places[1].y(), layout.places[2].y());
  EXPECT_GT(layout.places[3].x(), layout.places[1].x());
  EXPECT_EQ(layout.places[3].y(), layout.places[1].y());
}

TEST(Legend, fewEntriesKeepTheirSize) {
  const PlotItem plot(1);
  EXPECT_EQ(layOutLegend(manyEntries(plot, 4), legendBox()).scale, 1);
}

TEST(Legend, manyEntriesFitTheBoxWithoutTouching) {
  const PlotItem plot(1);
  const LegendItem legend = legendBox();
  for (const int count : {1, 6, 9, 17, 40}) {
    const LegendLayout layout = layOutLegend(manyEntries(plot, count), legend);
    std::vector<QRectF> boxes;
    for (std::size_t i = 0; i < layout.places.size(); ++i) {
      boxes.emplace_back(layout.places[i] - QPointF(0, layout.sizes[i].height() / 2),
                         layout.sizes[i]);
      EXPECT_TRUE(QRectF({0, 0}, legend.size).contains(boxes.back())) << count;
      for (std::size_t k = 0; k < i; ++k)
        EXPECT_FALSE(boxes[i].intersects(boxes[k])) << count;
    }
  }
}

TEST(Legend, seventeenEntriesStayLegible) {
  const PlotItem plot(1);
  EXPECT_GT(layOutLegend(manyEntries(plot, 17), legendBox()).scale * 11, 5);
}

TEST(Legend, anEmptyBoxShowsNothing) {
  const PlotItem plot(1);
  EXPECT_EQ(layOutLegend(manyEntries(plot, 4), LegendItem(15)).scale, 0);
}

} // namespace
