#include "page/PageSamples.h"
#include "page/document/PageDocument.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using namespace Sketra_lib::Property;
using namespace TVR::Page;

/// A grid of ten by four cells whose drawdowns rise from left to right; the drawdowns are selected.
class CanvasGrid : public testing::Test {
protected:
  CanvasGrid() {
    readPage(canvas, Samples::smallPage());
    grid = Samples::addGrid(canvas, 10, 4);
  }

  void setLevels(const QVariantList& levels) { canvas.setProperty(grid, Levels, levels); }
  std::vector<int> lines() const {
    std::vector<int> ids;
    for (const QVariant& id : canvas.property(grid, IsolineIds).toList())
      ids.push_back(id.toInt());
    return ids;
  }
  QPolygonF points(int line) const { return canvas.property(line, Points).value<QPolygonF>(); }
  const GridDataItem& item() const { return *canvas.item<GridDataItem>(grid); }

  Canvas canvas;
  int grid = 0;
};

TEST_F(CanvasGrid, holdsTheMeshAsItWasWritten) {
  EXPECT_EQ(item().mesh.nodes.size(), 55U);
  EXPECT_EQ(item().mesh.nodes[12], QPointF(1, 1));
  EXPECT_EQ(item().mesh.cells[11], (std::array{12, 13, 24, 23}));
  EXPECT_EQ(item().mesh.centres[11], QPointF(1.5, 1.5));
}

TEST_F(CanvasGrid, keepsTheValuesOfItsDataSetsApart) {
  EXPECT_EQ(item().sets[StartValues].values[3], 100);
  EXPECT_EQ(item().sets[Drawdowns].values[3], 3.5);
  EXPECT_EQ(item().sets[Temperature].values[3], 0);
}

TEST_F(CanvasGrid, hasTheSameNumberOfValuesInEachDataSet) {
  for (const int set : {StartValues, Drawdowns, Temperature}) {
    canvas.setProperty(grid, SelectedSet, set);
    EXPECT_EQ(canvas.property(grid, ValueCount).toInt(), 40);
  }
}

TEST_F(CanvasGrid, makesOneLineForEachLevel) {
  setLevels({2.0, 5.0, 8.0});
  ASSERT_EQ(lines().size(), 3U);
  EXPECT_EQ(canvas.property(lines()[1], Level).toDouble(), 5.0);
  for (const QPointF& point : points(lines()[1]))
    EXPECT_NEAR(point.x(), 5.0, 1e-9);
  EXPECT_FALSE(points(lines()[1]).isEmpty());
}

TEST_F(CanvasGrid, makesItsLinesItsChildren) {
  setLevels({2.0, 5.0});
  const std::vector<int> ids = lines();
  EXPECT_EQ(canvas.childItems(grid), QList<int>(ids.begin(), ids.end()));
}

TEST_F(CanvasGrid, showsNewLinesLabelledAndInTheLegend) {
  setLevels({2.0});
  for (const int number : {Visible, InLegend, LabelsVisible})
    EXPECT_TRUE(canvas.property(lines()[0], number).toBool());
}

TEST_F(CanvasGrid, givesItsLevelsBackAsTheyWereSet) {
  const QVariantList texts = {"2.00", "5.00"};
  setLevels(texts);
  EXPECT_EQ(canvas.property(grid, Levels).toList(), texts);
  const QVariantList numbers = {2.0, 5.0};
  setLevels(numbers);
  EXPECT_EQ(canvas.property(grid, Levels).toList(), numbers);
}

TEST_F(CanvasGrid, takesLevelsAsTexts) {
  setLevels({"2.50"});
  EXPECT_EQ(canvas.property(lines()[0], Level).toDouble(), 2.5);
  EXPECT_NEAR(points(lines()[0])[0].x(), 2.5, 1e-9);
}

TEST_F(CanvasGrid, hasNoLineForATextThatIsNoNumber) {
  setLevels({"2.00", "high", "nan", QVariant(), "5.00"});
  ASSERT_EQ(lines().size(), 2U);
  EXPECT_EQ(canvas.property(lines()[1], Level).toDouble(), 5.0);
}

TEST_F(CanvasGrid, hasALineWithoutPointsForALevelOutsideOfItsValues) {
  setLevels({100.0});
  ASSERT_EQ(lines().size(), 1U);
  EXPECT_TRUE(points(lines()[0]).isEmpty());
}

TEST_F(CanvasGrid, keepsTheLinesThatItHasForNewLevels) {
  setLevels({2.0, 5.0});
  const std::vector<int> before = lines();
  canvas.setProperty(before[0], LineColour, QColor(Qt::red));
  setLevels({3.0, 6.0, 9.0});
  ASSERT_EQ(lines().size(), 3U);
  EXPECT_EQ(lines()[0], before[0]);
  EXPECT_EQ(lines()[1], before[1]);
  EXPECT_EQ(canvas.property(before[0], LineColour).value<QColor>(), QColor(Qt::red));
  EXPECT_EQ(canvas.property(before[0], Level).toDouble(), 3.0);
}

TEST_F(CanvasGrid, removesTheLinesThatAreTooMany) {
  setLevels({2.0, 5.0, 8.0});
  const std::vector<int> before = lines();
  setLevels({5.0});
  EXPECT_EQ(lines(), std::vector<int>({before[0]}));
  EXPECT_EQ(canvas.item(before[2]), nullptr);
  EXPECT_EQ(canvas.childItems(grid), QList<int>({before[0]}));
}

TEST_F(CanvasGrid, removesAllLinesForNoLevels) {
  setLevels({2.0});
  setLevels({});
  EXPECT_TRUE(lines().empty());
  EXPECT_TRUE(canvas.childItems(grid).isEmpty());
}

TEST_F(CanvasGrid, showsTheLevelOfALineThatGotAnotherOne) {
  setLevels({2.0});
  canvas.setProperty(lines()[0], ShownLevel, 2.0);
  setLevels({5.0});
  EXPECT_EQ(canvas.property(lines()[0], ShownLevel).toDouble(), 5.0);
}

TEST_F(CanvasGrid, tracesItsLinesAnewForNewValues) {
  setLevels({5.0});
  const int line = lines()[0];
  canvas.setProperty(line, Name, "Isohypse");
  canvas.setProperty(line, LineColour, QColor(Qt::red));
  QVariantList values = canvas.property(grid, Values).toList();
  for (QVariant& value : values)
    value = value.toDouble() - 2;
  canvas.setProperty(grid, Values, values);
  ASSERT_EQ(lines(), std::vector<int>({line}));
  EXPECT_NEAR(points(line)[0].x(), 7.0, 1e-9);
  EXPECT_EQ(canvas.property(line, Name).toString(), "Isohypse");
  EXPECT_EQ(canvas.property(line, LineColour).value<QColor>(), QColor(Qt::red));
}

TEST_F(CanvasGrid, keepsTheLinesOfItsDataSetsApart) {
  setLevels({5.0});
  const std::vector<int> drawdowns = lines();
  canvas.setProperty(grid, SelectedSet, Temperature);
  setLevels({1.0, 3.0});
  const std::vector<int> temperatures = lines();
  EXPECT_EQ(temperatures.size(), 2U);
  canvas.setProperty(grid, SelectedSet, Drawdowns);
  EXPECT_EQ(lines(), drawdowns);
  EXPECT_EQ(canvas.item<IsolineItem>(temperatures[0])->dataSet, Temperature);
}

TEST_F(CanvasGrid, tracesWhatSingleEntriesChangedWhenItIsRedrawn) {
  setLevels({5.0});
  const int line = lines()[0];
  for (int cell = 0; cell < 40; ++cell)
    canvas.setProperty(grid, Value, QVariantList{cell, cell % 10 + 0.5, cell / 10 + 0.5, 0.0});
  canvas.redraw(grid);
  EXPECT_TRUE(points(line).isEmpty());
}

TEST_F(CanvasGrid, forgetsALineThatWasRemoved) {
  setLevels({2.0, 5.0});
  const std::vector<int> before = lines();
  canvas.removeItem(before[0]);
  EXPECT_EQ(lines(), std::vector<int>({before[1]}));
}

TEST_F(CanvasGrid, showsNewLevelsInOneChange) {
  QSignalSpy changes(&canvas, &Canvas::changed);
  setLevels({2.0, 5.0, 8.0});
  setLevels({2.0});
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(CanvasGrid, isRemovedWithItsLines) {
  setLevels({2.0});
  const int line = lines()[0];
  canvas.removeItem(grid);
  EXPECT_EQ(canvas.item(line), nullptr);
}

TEST_F(CanvasGrid, refusesCountsThatAreNoCounts) {
  for (const int number : {NodeCount, CellCount, ValueCount})
    for (const QVariant& count : {QVariant(-1), QVariant(2147483647), QVariant("many")}) {
      const QVariant before = canvas.property(grid, number);
      canvas.setProperty(grid, number, count);
      EXPECT_EQ(canvas.property(grid, number), before);
    }
  canvas.setProperty(grid, CellShape, QSize(2147483647, 4));
  canvas.setProperty(grid, CellShape, QSize(5, 3));
  EXPECT_EQ(canvas.property(grid, CellShape).toSize(), QSize(40, 4));
}

TEST_F(CanvasGrid, ignoresEntriesOutsideOfItsArrays) {
  const TVR::Contour::GridMesh before = item().mesh;
  for (const int index : {-1, 55, 1000000}) {
    canvas.setProperty(grid, Node, QVariantList{index, 1.0, 1.0});
    canvas.setProperty(grid, Cell, QVariantList{index, 0, 1, 2, 3});
    canvas.setProperty(grid, Value, QVariantList{index, 1.0, 1.0, 1.0});
  }
  canvas.setProperty(grid, Node, QVariantList{1, 1.0});
  canvas.setProperty(grid, Cell, QVariantList{});
  canvas.setProperty(grid, Value, "1 2 3 4");
  EXPECT_EQ(item().mesh.nodes, before.nodes);
  EXPECT_EQ(item().mesh.cells, before.cells);
  EXPECT_EQ(item().mesh.centres, before.centres);
}

TEST_F(CanvasGrid, survivesCellsThatNameNodesThatAreNotThere) {
  canvas.setProperty(grid, Cell, QVariantList{0, -5, 1, 2147483647, 3});
  setLevels({5.0});
  canvas.redraw(grid);
  EXPECT_EQ(lines().size(), 1U);
}

TEST_F(CanvasGrid, survivesFewerValuesThanCells) {
  canvas.setProperty(grid, Values, QVariantList{1.0, 2.0});
  setLevels({1.5});
  EXPECT_EQ(lines().size(), 1U);
}

TEST_F(CanvasGrid, widensTheAutomaticAxesOfItsPlotWhenItIsRedrawn) {
  canvas.setProperty(Samples::map, UniformScale, true);
  for (const int number : {XMaximum, YMaximum})
    canvas.setProperty(Samples::map, number, 1.0);
  for (const int number : {XAutoScale, YAutoScale})
    canvas.setProperty(Samples::map, number, true);
  canvas.redraw(grid);
  EXPECT_EQ(canvas.property(Samples::map, XMaximum).toDouble(), 10);
  EXPECT_EQ(canvas.property(Samples::map, YMaximum).toDouble(), 4);
}

} // namespace
