#include "page/painting/PageExport.h"
#include "plugin/WholePlugin.h"
#include "simulator/mesh/FVMesh.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QPointer>

#include <shapefil.h>

#include <cmath>
#include <functional>
#include <utility>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class WholePageTest : public WholePlugin {
protected:
  /// The points of all isotherms, one behind the other.
  QPolygonF isothermPoints() {
    QPolygonF points;
    for (const QVariant& id : isolines(Temperature))
      points += of(id.toInt(), Points).value<QPolygonF>();
    return points;
  }
  /// The points of all records of a shapefile in the test's directory.
  QPolygonF pointsOfShapefile(const QString& name) const {
    QPolygonF points;
    const SHPHandle shapes = SHPOpen(QFile::encodeName(path(name)), "rb");
    int count = 0;
    SHPGetInfo(shapes, &count, nullptr, nullptr, nullptr);
    for (int i = 0; i < count; ++i) {
      SHPObject* const shape = SHPReadObject(shapes, i);
      for (int k = 0; k < shape->nVertices; ++k)
        points << QPointF(shape->padfX[k], shape->padfY[k]);
      SHPDestroyObject(shape);
    }
    SHPClose(shapes);
    return points;
  }
};

/// Keeps what the page shows after each step.
class ShownIsotherms final : public RunObserver {
public:
  explicit ShownIsotherms(std::function<QPolygonF()> look) : look_(std::move(look)) {}
  void temperaturesReached(const RunStep&) override { points.push_back(look_()); }

  std::vector<QPolygonF> points;

private:
  const std::function<QPolygonF()> look_;
};

} // namespace

TEST_F(WholePageTest, theWellsBearNamesAndSigns) {
  prepareDoublet();
  run(*plugin);
  const QVariantList marks = of(items().wells, PointMarks).toList();
  ASSERT_EQ(marks.size(), 2);
  EXPECT_EQ(marks[0].toMap()["Text"], QVariant("Pump"));
  EXPECT_EQ(marks[0].toMap()["Symbol"], QVariant(static_cast<int>(WithdrawalWell)));
  EXPECT_EQ(marks[1].toMap()["Text"], QVariant("Return"));
  EXPECT_EQ(marks[1].toMap()["Symbol"], QVariant(static_cast<int>(InjectionWell)));
}

TEST_F(WholePageTest, aRunEndsOnThePage) {
  prepareDoublet();
  run(*plugin);
  ASSERT_TRUE(window());
  EXPECT_TRUE(plugin->resultGraphic().items().results > 0);
  EXPECT_GE(isolines(Drawdowns).size(), 5);
  ASSERT_GE(isolines(Temperature).size(), 2);
  const int line = isolines(Temperature).first().toInt();
  EXPECT_EQ(of(line, Name), QVariant("Isotherm (-1K change)"));
  EXPECT_GT(of(line, Points).value<QPolygonF>().size(), 10);
  EXPECT_EQ(of(items().wells, Points).value<QPolygonF>(), store.wellPositions());
  EXPECT_GT(number(MaximumExtent3K), 0) << store.value(MaximumExtent3K).toString().toStdString();
  EXPECT_NEAR(of(items().mapView, XMinimum).toDouble(), 680880, 1e-6);
  EXPECT_NEAR(of(items().mapView, YMinimum).toDouble(), 226880, 1e-6);
  EXPECT_EQ(window()->childItems(items().ratePlot).size(), 2);
  EXPECT_EQ(window()->childItems(items().temperaturePlot).size(), 1);
  EXPECT_TRUE(Page::exportPage(window()->canvas(), path("page.png")));
  if (qEnvironmentVariableIsSet("TEVRANE_KEEP_PAGE"))
    QFile::copy(path("page.png"), qEnvironmentVariable("TEVRANE_KEEP_PAGE"));
}

TEST_F(WholePageTest, aRunEndsOnItsPageBehindAnotherWindow) {
  prepareDoublet();
  plugin->startSimulation();
  BrenvikApp::WorkspaceWindow* const own = std::exchange(host.active, nullptr);
  EXPECT_TRUE(waitUntil([&] { return !plugin->simulationRun().simulation(); }));
  host.active = own;
  EXPECT_GE(isolines(Drawdowns).size(), 5);
  EXPECT_FALSE(isothermPoints().isEmpty());
}

TEST_F(WholePageTest, aWellOfAFileStandsAtTheOriginAfterARunToo) {
  prepare(BatchProject::doublet());
  run(*plugin);
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{0, 0}, {40, 0}}));
  EXPECT_EQ(of(items().wells, Points).value<QPolygonF>(), store.wellPositions());
}

TEST_F(WholePageTest, aWellWithoutCoordinatesStandsInTheMiddleOfTheMap) {
  prepareDoublet();
  store.setValue(NumberOfWells, 3);
  plugin->updateCurrentGraphicWindow();
  ASSERT_TRUE(window());
  const QPolygonF wells = store.wellPositions();
  EXPECT_EQ(wells.at(0), QPointF(681000, 227000));
  EXPECT_EQ(wells.at(2), store.value(DefaultWellPosition).toPointF());
  EXPECT_GT(wells.at(2).x(), 680880);
  EXPECT_EQ(of(items().wells, Points).value<QPolygonF>(), wells);
}

TEST_F(WholePageTest, wellsThatAreMovedLaterMoveOnThePage) {
  prepareDoublet();
  plugin->updateCurrentGraphicWindow();
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(1, WellModel::X), 681070.0);
  plugin->updateCurrentGraphicWindow();
  EXPECT_EQ(of(items().wells, Points).value<QPolygonF>().at(1), QPointF(681070, 226960));
}

TEST_F(WholePageTest, theThreeKelvinLineLiesAroundTheInjectionWell) {
  prepareDoublet();
  run(*plugin);
  bool isFound = false;
  for (const QVariant& id : isolines(Temperature))
    if (of(id.toInt(), Level).toDouble() == -3) {
      isFound = true;
      const QPolygonF points = of(id.toInt(), Points).value<QPolygonF>();
      EXPECT_TRUE(points.boundingRect().adjusted(-1, -1, 1, 1).contains(store.wellPositions()[1]));
    }
  EXPECT_TRUE(isFound);
}

TEST_F(WholePageTest, aPlumeTooWeakForAnIsothermIsInView) {
  prepareDoublet();
  store.setValue(UsedTemperatureChange, 0.0);
  store.setValue(AdditionalIsotherm, 0.0);
  setWell(0, -0.002, 0);
  setWell(1, 0.002, -0.6);
  run(*plugin);
  ResultGraphic& graphic = plugin->resultGraphic();
  graphic.fitView();
  const MapRange range = graphic.mapView().range();
  window()->setItemProperty(items().results, SelectedSet, Temperature);
  const QVariantList changes = of(items().results, Values).toList();
  int strong = 0;
  for (int cell = 0; cell < changes.size(); ++cell)
    if (std::abs(changes[cell].toDouble()) > 0.2) {
      ++strong;
      const FVMeshElement& element = plugin->simulationRun().mesh()->elements[cell];
      EXPECT_TRUE(range.contains(graphic.frame().onMap({element.x, element.y})));
    }
  EXPECT_GT(strong, 3);
}

TEST_F(WholePageTest, aBatchFileThatIsRunInAWindowShowsItsWellsAndItsPlume) {
  QMainWindow main;
  host.main = &main;
  BatchProject project;
  project.addWell("Pump", 681000, 227000, -0.002);
  project.addWell("Return", 681060, 226960, 0.002, -4);
  prepare(project);
  run(*plugin);
  ResultGraphic& graphic = plugin->resultGraphic();
  EXPECT_TRUE(graphic.showsAllWells());
  const MapRange range = graphic.mapView().range();
  const QPolygonF plume = isothermPoints();
  EXPECT_FALSE(plume.isEmpty());
  for (const QPointF& point : plume)
    EXPECT_TRUE(range.contains(point)) << point.x() << " " << point.y();
}

TEST_F(WholePageTest, aViewThatSomebodyChoseStaysInTheNextRun) {
  QMainWindow main;
  host.main = &main;
  prepareDoublet();
  run(*plugin);
  plugin->resultGraphic().setScale(100, true);
  plugin->resultGraphic().mapView().moveToOrigin(680995, 226995);
  const MapRange chosen = plugin->resultGraphic().mapView().range();
  ASSERT_FALSE(plugin->resultGraphic().showsAllWells());
  store.setValue(ViewScale, 100);
  store.setValue(ViewX, 680995.0);
  store.setValue(ViewY, 226995.0);
  run(*plugin);
  EXPECT_EQ(plugin->resultGraphic().mapView().range(), chosen);
}

TEST_F(WholePageTest, aRunBringsWellsIntoSightIfThereAreNone) {
  QMainWindow main;
  host.main = &main;
  prepareDoublet();
  run(*plugin);
  store.setValue(ViewX, 0.0);
  store.setValue(ViewY, 0.0);
  plugin->resultGraphic().updateMapView();
  ASSERT_TRUE(plugin->resultGraphic().showsNoWell());
  run(*plugin);
  EXPECT_TRUE(plugin->resultGraphic().showsAllWells());
}

TEST_F(WholePageTest, theShapefileOfAStepHoldsTheIsothermsOfTheStepBeforeAndNoIsohypses) {
  prepareDoublet();
  store.setValue(WriteTecplotOutput, true);
  store.setValue(TecplotOutputFile, directory.path());
  ShownIsotherms shown([this] { return isothermPoints(); });
  plugin->simulationRun().addObserver(&shown);
  run(*plugin);
  plugin->simulationRun().removeObserver(&shown);
  ASSERT_EQ(shown.points.size(), 2u);
  EXPECT_NE(shown.points[0], shown.points[1]);
  EXPECT_TRUE(pointsOfShapefile("12_month_isolines").isEmpty());
  EXPECT_FALSE(shown.points[0].isEmpty());
  EXPECT_EQ(pointsOfShapefile("24_month_isolines"), shown.points[0]);
}

TEST_F(WholePageTest, aRunThatIsUnderWayKeepsItsPageWhateverIsStarted) {
  startLongRun(*plugin);
  const int results = items().results;
  plugin->startSimulation();
  EXPECT_EQ(items().results, results);
  EXPECT_TRUE(plugin->running());
  plugin->simulationRun().stop();
  EXPECT_TRUE(waitUntil([&] { return !plugin->simulationRun().simulation(); }));
}

TEST_F(WholePageTest, aSecondRunHasItsPageAnew) {
  prepareDoublet();
  run(*plugin);
  run(*plugin);
  EXPECT_EQ(host.windows.size(), 1) << "the window stays";
  EXPECT_GT(items().results, 0);
  EXPECT_NE(items().wells, 0);
  EXPECT_GE(isolines(Drawdowns).size(), 5);
}

TEST_F(WholePageTest, aSavedProjectComesBackWithItsLines) {
  prepareDoublet();
  run(*plugin);
  const int lines = isolines(Temperature).size();
  plugin->save(path("p.tvr"));
  window()->clearContents();
  plugin->load(path("p.tvr"));
  EXPECT_EQ(isolines(Temperature).size(), lines);
  EXPECT_EQ(of(items().wells, Points).value<QPolygonF>(), store.wellPositions());
}

TEST_F(WholePageTest, aSavedProjectMeasuresItsLinesAlongTheFlowOfTheirRun) {
  prepareDoublet();
  run(*plugin);
  const double extension = number(MaximumExtent3K);
  ASSERT_GT(extension, 0);
  store.setValue(GroundwaterFlowDirection, 20.0);
  plugin->save(path("p.tvr"));
  plugin->load(path("p.tvr"));
  EXPECT_EQ(number(GroundwaterFlowDirection), 20);
  store.setValue(MaximumExtent3K, 0.0);
  plugin->updateIsotherms(secondsPerYear);
  EXPECT_EQ(number(MaximumExtent3K), extension);
}

TEST_F(WholePageTest, thePluginOutlivesThePageThatItObserves) {
  prepareDoublet();
  run(*plugin);
  const QPointer<TVRPlugin> alive = plugin.get();
  Page::PageWindow* const closed = window();
  host.active = nullptr;
  host.windows.clear();
  delete closed;
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(alive);
  EXPECT_EQ(plugin->resultGraphic().current(), nullptr);
}
