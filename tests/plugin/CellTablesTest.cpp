#include "plugin/PluginTest.h"
#include "results/PointTable.h"
#include "simulator/mesh/FVMesh.h"

#include <QDir>

#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// Numbers as the tables hold them.
QList<QByteArray> asTexts(const std::vector<double>& values) {
  QList<QByteArray> texts;
  for (const double value : values)
    texts << QByteArray::number(static_cast<float>(value), 'g', 3);
  return texts;
}

/// Notes what the simulation holds at the first output time of a run.
class ValuesOfTheFirstStep final : public RunObserver {
public:
  void stepReached(const RunStep& step) override {
    if (!temperatures.isEmpty())
      return;
    std::vector<double> values(step.simulation.mesh().elements.size());
    step.simulation.getTemperatures(values);
    temperatures = asTexts(values);
    step.simulation.getDrawdowns(values);
    drawdowns = asTexts(values);
  }
  QList<QByteArray> temperatures;
  QList<QByteArray> drawdowns;
};

class CellTablesTest : public PluginTest {
protected:
  /// A column of a table, below its heading.
  QList<QByteArray> columnOf(const QString& name, int column) {
    QList<QByteArray> cells;
    QList<QByteArray> lines = contentOf(path(name)).split('\n');
    for (const QByteArray& line : lines.mid(1))
      if (!line.isEmpty())
        cells << line.split(',').value(column);
    return cells;
  }
  static void exportCells(TVRPlugin& plugin, int function, double time) {
    EXPECT_TRUE(QMetaObject::invokeMethod(&plugin, "XYZ_export", Q_ARG(int, function),
                                          Q_ARG(double, time)));
  }
};

} // namespace

TEST_F(CellTablesTest, aRunKeepsTheTablesOfAllCells) {
  TVRPlugin plugin;
  prepare();
  store.setValue(WriteTecplotOutput, true);
  store.setValue(TecplotOutputFile, directory.path());
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  for (const char* name : {PointTable::temperatureFile, PointTable::drawdownFile}) {
    const QList<QByteArray> lines = contentOf(path(name)).split('\n');
    EXPECT_EQ(lines.first(), "Element,X,Y,T=12_month,T=24_month") << name;
    EXPECT_EQ(lines.size(), 1 + store.count(UsedNumberOfElements) + 1) << name;
    EXPECT_EQ(lines.value(1).count(','), 4) << name;
  }
  EXPECT_NE(contentOf(path(PointTable::temperatureFile)),
            contentOf(path(PointTable::drawdownFile)));
}

TEST_F(CellTablesTest, eachTableHoldsTheValuesOfItsName) {
  TVRPlugin plugin;
  prepare();
  store.setValue(WriteTecplotOutput, true);
  store.setValue(TecplotOutputFile, directory.path());
  ValuesOfTheFirstStep values;
  plugin.simulationRun().addObserver(&values);
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  plugin.simulationRun().removeObserver(&values);
  EXPECT_NE(values.temperatures, values.drawdowns);
  EXPECT_EQ(columnOf(PointTable::temperatureFile, 3), values.temperatures);
  EXPECT_EQ(columnOf(PointTable::drawdownFile, 3), values.drawdowns);
}

TEST_F(CellTablesTest, cellsAreListedAtTheirPlaceOnTheMap) {
  TVRPlugin plugin;
  BatchProject project;
  project.set("hydraulic", "groundwater_flow_direction", 120);
  project.addWell("Pump", 500, 700, -0.001);
  project.addWell("Return", 540, 700, 0.001, -3);
  prepare(project);
  store.setValue(MinElementLength, 4.0);
  store.setValue(TecplotOutputFile, directory.path());
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  exportCells(plugin, 1, 0);
  // A well stands in the centre of its cell.
  double nearest = 1000;
  for (const QByteArray& line : contentOf(path(PointTable::temperatureFile)).split('\n')) {
    const QList<QByteArray> fields = line.split(',');
    if (fields.size() == 3)
      nearest =
          std::min(nearest, std::hypot(fields[1].toDouble() - 540, fields[2].toDouble() - 700));
  }
  EXPECT_LT(nearest, 0.01);
}

TEST_F(CellTablesTest, aBatchWritesPositionsOfItsCellsIntoTheCurrentDirectory) {
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(directory.path()));
  TVRPlugin plugin;
  BatchProject project = BatchProject::doublet();
  project.set("main", "simulation_time", 1).set("main", "write_tecplot_output", "true");
  ASSERT_TRUE(project.write(path("p.tbat")));
  plugin.computeInput(path("p.tbat"), true);
  QDir::setCurrent(before);
  for (const char* name : {PointTable::temperatureFile, PointTable::drawdownFile})
    EXPECT_TRUE(contentOf(path(name)).startsWith("Element,X,Y\n0,")) << name;
}

TEST_F(CellTablesTest, theTablesGoToTheHostsDirectoryIfNoneIsNamed) {
  TVRPlugin plugin;
  Host host;
  host.path = directory.path();
  plugin.setAppInterface(&host);
  prepare();
  store.setValue(TecplotOutputFile, "");
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  exportCells(plugin, 1, 0);
  EXPECT_TRUE(QFile::exists(path(PointTable::temperatureFile)));
  EXPECT_TRUE(QFile::exists(path(PointTable::drawdownFile)));
}

TEST_F(CellTablesTest, anyOtherFunctionOfTheExportWritesNothing) {
  TVRPlugin plugin;
  prepare();
  store.setValue(TecplotOutputFile, directory.path());
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  for (const int function : {0, 3, -1})
    exportCells(plugin, function, 0);
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files), QStringList{"project.tbat"});
}
