#include "plugin/PagePluginTest.h"
#include "results/PointTable.h"

#include <algorithm>
#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// What a run has put on the page stays where it is, whatever is edited after it.
class RunFrameTest : public PagePluginTest {
protected:
  /// Runs a doublet around a place on the national grid, in a flow to the south-east.
  void runDoublet(double gradient = 0.2) {
    BatchProject project;
    project.set("hydraulic", "groundwater_flow_direction", 135);
    project.set("hydraulic", "groundwater_gradient", gradient);
    project.addWell("Pump", 681000, 227000, -0.001);
    project.addWell("Return", 681040, 226960, 0.001, -4);
    prepare(project);
    store.setValue(TecplotOutputFile, directory.path());
    run(plugin);
  }
  void editFlow() {
    store.setValue(GroundwaterFlowDirection, 20.0);
    store.setValue(GroundwaterGradient, 0.0);
  }

  QVariantList nodesAfterTakingTheMesh() {
    forget();
    graphic().takeMesh();
    return page.valuesOf(items().results, Node);
  }
  double extensionOfALine(const QPolygonF& points) {
    const int line = page.addItem({}, items().results);
    give(line, Level, -3.0);
    give(line, Points, points);
    give(items().results, IsolineIds, QVariantList{line});
    store.setValue(MaximumExtent3K, 0.0);
    plugin.updateIsotherms(secondsPerYear);
    return number(MaximumExtent3K);
  }
  QByteArray tableOfCells() {
    EXPECT_TRUE(QMetaObject::invokeMethod(&plugin, "XYZ_export", Q_ARG(int, 1), Q_ARG(double, 0)));
    return contentOf(path(PointTable::temperatureFile));
  }
};

} // namespace

TEST_F(RunFrameTest, theMeshOfARunStaysWhenTheFlowIsEdited) {
  runDoublet();
  const QVariantList before = nodesAfterTakingTheMesh();
  ASSERT_GT(before.size(), 100);
  editFlow();
  EXPECT_EQ(nodesAfterTakingTheMesh(), before);
}

TEST_F(RunFrameTest, theExtensionIsMeasuredAlongTheFlowOfTheRun) {
  runDoublet();
  const QPolygonF line = QVector<QPointF>{{681010, 226990}, {681100, 226900}};
  const double before = extensionOfALine(line);
  EXPECT_NEAR(before, std::hypot(60, 60), 10);
  editFlow();
  EXPECT_EQ(extensionOfALine(line), before);
}

// Required oddity: the direction turns the table also where no groundwater flows.
TEST_F(RunFrameTest, theTableOfCellsIsTurnedByTheDirectionOfAFlowThatIsNotThere) {
  runDoublet(0);
  // The injection well, 28.28 m to the south-east of the middle, comes to lie south of it.
  const QPointF expected(681020, 226980 - std::hypot(20, 20));
  double nearest = 1000;
  for (const QByteArray& line : tableOfCells().split('\n'))
    if (const QList<QByteArray> fields = line.split(','); fields.size() == 3)
      nearest = std::min(nearest, std::hypot(fields[1].toDouble() - expected.x(),
                                             fields[2].toDouble() - expected.y()));
  EXPECT_LT(nearest, std::hypot(1, 1)) << "coordinates are cut to metres";
}

TEST_F(RunFrameTest, timesAreToldAsTheRunCountsThem) {
  plugin.simulationRun().setCycleLength(24);
  runDoublet();
  plugin.simulationRun().setCycleLength(12);
  EXPECT_FALSE(graphic().frame().countsYears());
}

TEST_F(RunFrameTest, theTableOfCellsStaysWhenTheFlowIsEdited) {
  runDoublet();
  const QByteArray before = tableOfCells();
  ASSERT_GT(before.count('\n'), 100);
  editFlow();
  EXPECT_EQ(tableOfCells(), before);
}
