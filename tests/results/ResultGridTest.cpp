#include "results/ResultGrid.h"

#include "project/RunFrame.h"
#include "simulator/mesh/FVMesh.h"
#include "support/ResultPageTest.h"

#include <QColor>
#include <QSize>

using namespace TVR;
using namespace Sketra_lib::Property;

namespace {

/// Columns of 10 m from x = 0, rows of 4 m from y = 100.
FVMesh mesh(int columns, int rows) {
  FVGridLine x;
  for (int i = 0; i < columns; ++i)
    x.append(10 * i, 10);
  FVGridLine y;
  for (int j = 0; j < rows; ++j)
    y.append(100 + 4 * j, 4);
  return FVMesh(x, y, 5);
}

class ResultGridTest : public ResultPageTest {
protected:
  ResultGrid grid() { return ResultGrid(access()); }
  QVariantList written(int property) { return page.valuesOf(items.results, property); }

  int existingGrid() { return items.results = page.addItem("Simulation results", items.mapView); }
};

QVariantList node(int number, double x, double y) {
  return {number, x, y};
}

} // namespace

TEST_F(ResultGridTest, aNewGridIsNamedAndNotListedAtFirst) {
  grid().takeMesh(mesh(2, 1), {});
  EXPECT_EQ(
      page.calls.mid(0, 2),
      (QStringList{"setCurrentItem 0", QStringLiteral("addGridData %1 0").arg(items.mapView)}));
  EXPECT_EQ(written(Name), QVariantList{"Simulation results"});
  EXPECT_EQ(written(InLegend), (QVariantList{false, true}));
  EXPECT_EQ(page.calls.last(), QStringLiteral("redrawItem %1").arg(items.results));
  EXPECT_EQ(page.openUpdates, 0);
}

TEST_F(ResultGridTest, aGridThatIsThereTakesTheMesh) {
  const int existing = existingGrid();
  grid().takeMesh(mesh(2, 1), {});
  EXPECT_EQ(items.results, existing);
  EXPECT_TRUE(written(Name).isEmpty());
  EXPECT_EQ(written(CellCount), QVariantList{2});
}

TEST_F(ResultGridTest, twoCellsHaveSixNodes) {
  grid().takeMesh(mesh(2, 1), {});
  EXPECT_EQ(written(NodeCount), QVariantList{6});
  EXPECT_EQ(written(CellShape), QVariantList{QSize(2, 4)});
  EXPECT_EQ(written(CellCount), QVariantList{2});
  EXPECT_EQ(written(ValueCount), QVariantList{2});
  EXPECT_EQ(written(Cell), (QVariantList{QVariant(QVariantList{0, 0, 1, 4, 3}),
                                         QVariant(QVariantList{1, 1, 2, 5, 4})}));
}

TEST_F(ResultGridTest, nodesAreNumberedRowByRow) {
  grid().takeMesh(mesh(2, 2), {});
  const QVariantList nodes = written(Node);
  ASSERT_EQ(nodes.size(), 9);
  int number = 0;
  for (const double y : {100.0, 104.0, 108.0})
    for (const double x : {0.0, 10.0, 20.0}) {
      EXPECT_EQ(nodes[number].toList(), node(number, x, y)) << number;
      ++number;
    }
  EXPECT_EQ(written(Cell).last().toList(), (QVariantList{3, 4, 5, 8, 7}));
}

TEST_F(ResultGridTest, everyCellHasItsCentreInThreeDataSets) {
  grid().takeMesh(mesh(2, 1), {});
  EXPECT_EQ(written(SelectedSet), (QVariantList{0, 1, 2, 0, 1, 2, 1}));
  const QVariantList values = written(Value);
  ASSERT_EQ(values.size(), 6);
  EXPECT_EQ(values[0].toList(), (QVariantList{0, 5.0, 102.0, 100.0}));
  EXPECT_EQ(values[1].toList(), (QVariantList{0, 5.0, 102.0, 0.0}));
  EXPECT_EQ(values[2].toList(), (QVariantList{0, 5.0, 102.0, 0.0}));
  EXPECT_EQ(values[3].toList(), (QVariantList{1, 15.0, 102.0, 100.0}));
}

TEST_F(ResultGridTest, pointsAreTurnedAroundTheOrigin) {
  grid().takeMesh(mesh(1, 1), {{0, 100}, 180, true});
  const QVariantList nodes = written(Node);
  ASSERT_EQ(nodes.size(), 4);
  EXPECT_NEAR(nodes[1].toList()[1].toDouble(), 0, 1e-9);
  EXPECT_NEAR(nodes[1].toList()[2].toDouble(), 90, 1e-9) << "clockwise: x points down";
  EXPECT_NEAR(written(Value)[0].toList()[1].toDouble(), 2, 1e-9);
  EXPECT_NEAR(written(Value)[0].toList()[2].toDouble(), 95, 1e-9);
}

TEST_F(ResultGridTest, theGridEndsDressed) {
  existingGrid();
  grid().takeMesh(mesh(1, 1), {});
  EXPECT_EQ(written(ColourScaleEntry),
            QVariantList{QVariant(QVariantList{0, -1.0, QColor(Qt::blue)})});
  const std::vector<int> all = page.propertiesSetOn(items.results);
  EXPECT_EQ(std::vector<int>(all.end() - 8, all.end()),
            (std::vector<int>{ColourScaleEntry, SelectedSet, Title, InLegend, ShowsNodes, ShowsMesh,
                              MeshColour, ElementKind}));
  EXPECT_EQ(of(items.results, SelectedSet), QVariant(1));
  EXPECT_EQ(of(items.results, Title), QVariant(QString()));
  EXPECT_EQ(of(items.results, MeshColour).value<QColor>(), QColor(Qt::darkGray));
  EXPECT_EQ(of(items.results, ElementKind), QVariant("element"));
}

TEST_F(ResultGridTest, withoutAMapThereIsNoGrid) {
  items.mapView = 0;
  grid().takeMesh(mesh(1, 1), {});
  EXPECT_TRUE(page.calls.isEmpty());
  ResultGrid(noPage()).takeMesh(mesh(1, 1), {});
  EXPECT_EQ(items.results, 0);
}

TEST_F(ResultGridTest, aMapWithABadIdHasNoNewGrid) {
  items.mapView = -1;
  grid().takeMesh(mesh(1, 1), {});
  EXPECT_EQ(page.calls, QStringList{"setCurrentItem 0"});
}

TEST_F(ResultGridTest, theMeshWaitsForTheLock) {
  LockedElsewhere locked(mutex);
  std::thread later([&locked] { locked.release(); });
  grid().takeMesh(mesh(1, 1), {});
  later.join();
  EXPECT_GT(items.results, 0);
}

// Values

TEST_F(ResultGridTest, valuesOfAStepGoToTheirDataSet) {
  existingGrid();
  grid().showValues(Temperature, {1, -2});
  EXPECT_EQ(page.propertiesSetOn(items.results), (std::vector<int>{SelectedSet, Values}));
  EXPECT_EQ(of(items.results, SelectedSet), QVariant(2));
  EXPECT_EQ(of(items.results, Values).toList(), (QVariantList{1.0, -2.0}));
}

TEST_F(ResultGridTest, valuesOfAStepAreDroppedOnABusyPage) {
  existingGrid();
  const LockedElsewhere locked(mutex);
  grid().showValues(Drawdowns, {1});
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultGridTest, noValuesOrNoGridShowNothing) {
  grid().showValues(Drawdowns, {1});
  existingGrid();
  grid().showValues(Drawdowns, {});
  page.type = "TextWindow";
  grid().showValues(Drawdowns, {1});
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultGridTest, resultsAreFilledInTheirOrder) {
  existingGrid();
  grid().fill({1, 2}, {3, 4});
  const std::pair<int, QVariant> expected[] = {
      {SelectedSet, 1},
      {Values, QVariantList{1.0, 2.0}},
      {SetTitle, "Head"},
      {SetLevelsByRange, false},
      {SelectedSet, 2},
      {Values, QVariantList{3.0, 4.0}},
      {SetTitle, "Temperature"},
      {SelectedSet, 1},
      {Title, QString()},
      {InLegend, true},
      {ShowsNodes, false},
      {ShowsMesh, false},
      {MeshColour, QColor(Qt::darkGray)},
      {ElementKind, "element"},
  };
  ASSERT_EQ(page.sets.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(page.sets[i].property, expected[i].first) << i;
    EXPECT_EQ(page.sets[i].value, expected[i].second) << i;
  }
}

TEST_F(ResultGridTest, resultsWithoutAGridMakeOne) {
  grid().fill({1}, {2});
  EXPECT_GT(items.results, 0);
  EXPECT_EQ(page.parents[items.results], items.mapView);
  EXPECT_EQ(written(Name), QVariantList{"Simulation results"});
  EXPECT_EQ(written(InLegend), (QVariantList{false, true}));
}

TEST_F(ResultGridTest, resultsWithoutAMapGoNowhere) {
  items.mapView = 0;
  grid().fill({1}, {2});
  EXPECT_TRUE(page.sets.empty());
  EXPECT_EQ(items.results, 0);
}

TEST_F(ResultGridTest, isohypsesAreChosenAsTexts) {
  existingGrid();
  grid().chooseIsohypses({0, 0.044});
  EXPECT_EQ(page.propertiesSetOn(items.results), (std::vector<int>{SelectedSet, Levels}));
  EXPECT_EQ(of(items.results, SelectedSet), QVariant(1));
  EXPECT_EQ(of(items.results, Levels).toList(), (QVariantList{"0.01", "0.02", "0.03", "0.04"}));
}

TEST_F(ResultGridTest, drawdownsWithoutARangeSetNoLevels) {
  existingGrid();
  grid().chooseIsohypses({0, 0});
  grid().chooseIsohypses({0, 0.02});
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultGridTest, aPlumeIsWhereAQuarterOfTheLargestChangeIsReached) {
  const std::vector<QPointF> places{{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};
  EXPECT_EQ(placesOfChange({0, -0.1, 0.4, -0.2, 0.0999}, places),
            polygon({{2, 2}, {3, 3}, {4, 4}}));
  EXPECT_EQ(placesOfChange({0, 0.011, 0.009}, places), polygon({{2, 2}}));
}

TEST_F(ResultGridTest, theNoiseOfASolverIsNoPlume) {
  EXPECT_TRUE(placesOfChange({0, 1e-12, -0.01}, {{1, 1}, {2, 2}, {3, 3}}).isEmpty());
  EXPECT_TRUE(placesOfChange({}, {}).isEmpty());
}

TEST_F(ResultGridTest, itsValuesAreThoseOfTheSelectedDataSet) {
  EXPECT_TRUE(grid().values().empty());
  existingGrid();
  give(items.results, Values, QVariantList{1.5, -2.0});
  EXPECT_EQ(grid().values(), (std::vector<double>{1.5, -2.0}));
}
