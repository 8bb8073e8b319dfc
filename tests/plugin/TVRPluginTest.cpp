#include "plugin/TVRPlugin.h"

#include "data/MessageLog.h"
#include "host/ApplicationInterface.h"
#include "host/GraphicsInterface.h"
#include "plugin/AppInterface.h"
#include "results/PointTable.h"
#include "simulation/Simulation.h"
#include "support/EventWait.h"
#include "support/ProjectTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QTextCodec>

#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// Notes what it is asked to load instead of loading it.
class LoadingPlugin final : public TVRPlugin {
public:
  using TVRPlugin::load;
  void load(const QString& name) override { loaded << name; }
  QStringList loaded;
};

/// A graphics library that is there and does nothing.
class Library final : public QObject, public Sketra_lib::GraphicsInterface {
  Q_OBJECT
  Q_INTERFACES(Sketra_lib::GraphicsInterface)

public:
  BrenvikApp::WorkspaceWindow* graphicsWindow(const QString&, bool) override { return nullptr; }
  void refreshViews() override {}
};

/// A host without windows that notes what it is told.
class Host final : public BrenvikApp::ApplicationInterface {
public:
  virtual ~Host() = default;
  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override { return nullptr; }
  void addWorkspaceWindow(BrenvikApp::WorkspaceWindow*) override {}
  QList<QWidget*> workspaceWindows() override { return {}; }
  QObject* pluginByName(const QString& name) override {
    asked << name;
    return library;
  }
  void setHostLanguage(const QString& used) override { language = used; }
  QString applicationName() const override { return "Host"; }
  void addDockWindow(int, QDockWidget*) override {}
  void showStatusMessage(const QString& text, int milliseconds) override {
    status << QStringLiteral("%1 [%2]").arg(text).arg(milliseconds);
  }
  void setProgress(int value, int maximum) override { progress.append({value, maximum}); }
  QMainWindow* mainWindow() override { return nullptr; }
  QString workingPath() const override { return path; }
  void setWorkingPath(const QString&) override {}
  bool keepsWorkingPath() const override { return true; }

  QObject* library = nullptr;
  QString path;
  QString language;
  QStringList asked;
  QStringList status;
  QList<QPair<int, int>> progress;
};

class TVRPluginTest : public ProjectTest {
protected:
  ~TVRPluginTest() override {
    AppInterface::setApplicationInterface(nullptr);
    AppInterface::setGraphicsInterface(nullptr);
  }

  /// A project of wide cells in the store.
  void prepare(BatchProject project = BatchProject::doublet()) {
    read(project);
    store.setValue(MinElementLength, 8.0);
    store.setValue(BatchOutputFile, "");
  }

  void startLongRun(TVRPlugin& plugin) {
    prepare(BatchProject::doublet().set("main", "simulation_time", 900));
    plugin.startSimulation();
    ASSERT_TRUE(plugin.running());
  }

  static bool press(TVRPlugin& plugin, QObject* watched, int key,
                    QEvent::Type type = QEvent::KeyPress) {
    QKeyEvent event(type, key, Qt::NoModifier);
    return plugin.eventFilter(watched, &event);
  }

  static void exportCells(TVRPlugin& plugin, int function, double time) {
    EXPECT_TRUE(QMetaObject::invokeMethod(&plugin, "XYZ_export", Q_ARG(int, function),
                                          Q_ARG(double, time)));
  }
};

QStringList methodsOf(const QMetaObject& meta) {
  QStringList methods;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
    const QMetaMethod method = meta.method(i);
    if (method.attributes() & QMetaMethod::Cloned)
      continue; // the same method with its default arguments left out
    const char* kind = method.methodType() == QMetaMethod::Signal  ? "signal "
                       : method.access() == QMetaMethod::Public    ? "public "
                       : method.access() == QMetaMethod::Protected ? "protected "
                                                                   : "private ";
    methods << kind + QString::fromLatin1(method.methodSignature());
  }
  return methods;
}

} // namespace

// The face of the object

TEST_F(TVRPluginTest, hasOneSignalAndItsSlotsInTheirOrder) {
  EXPECT_EQ(methodsOf(TVRPlugin::staticMetaObject),
            (QStringList{
                "signal addWindowToWorkspace(BrenvikApp::WorkspaceWindow*)",
                "public openWelcomeWindow()",
                "public newOpen()",
                "public load()",
                "public load(QString)",
                "public importTVRResult()",
                "public setGraphicContents(QByteArray)",
                "public computeInput(QString,bool)",
                "public save()",
                "public save(QString)",
                "public dxfFileExport()",
                "public shapefileExport()",
                "public writeShapefile(QString,bool,bool)",
                "public writeIsolineToShapeFile(int,int&,SHPHandle,DBFHandle,QString,QString)",
                "public toggleDockingWindow()",
                "public showGeneralWizard()",
                "public showEnergieWizard()",
                "public showWellWizard()",
                "public showGraphicWizard()",
                "public showSimulationWizard()",
                "public showExtendedSimulationWizard()",
                "public updateCurrentGraphicWindow()",
                "public startSimulation()",
                "public cancelSimulation()",
                "public updateIsotherms(double,int)",
                "public updateIsobars()",
                "public showMap()",
                "protected setMapExtention(double)",
                "protected currentGraphicCoordinates(double,double,QEvent::Type,Qt::MouseButton)",
                "protected setMapScale()",
                "protected setScale(int,bool)",
                "protected showWells()",
                "protected setDefaultWellPositions()",
                "protected showMap(QString,QPointF,QSizeF)",
                "protected acceptedSimulationWizard()",
                "protected closeSimulationWizard()",
                "protected currentGraphicClosed()",
                "protected setLanguage(QString,bool)",
                "protected simulationStepFinished(int,int,bool,bool)",
                "protected simulationFinishedSuccessful()",
                "protected setGerman()",
                "protected setFrench()",
                "protected setEnglish()",
                "protected clearRegistry()",
                "protected setupDemandPlot()",
                "protected shpExport(double)",
                "protected XYZ_export(int,double)",
                "private firstApplicationStart()",
                "private graphicOperationFinished()",
                "private calculateIsotherms(double)",
            }));
}

TEST_F(TVRPluginTest, argumentsWithDefaultsMayBeLeftOut) {
  const QMetaObject& meta = TVRPlugin::staticMetaObject;
  for (const char* signature :
       {"computeInput(QString)", "writeShapefile(QString,bool)", "writeShapefile(QString)",
        "updateIsotherms(double)", "setScale(int)", "setScale()", "setLanguage(QString)"})
    EXPECT_GE(meta.indexOfSlot(signature), 0) << signature;
}

TEST_F(TVRPluginTest, answersToItsNamesAndIdentifiers) {
  TVRPlugin plugin;
  TVRInterface* const face = &plugin;
  DATA::DataObserver* const observer = &plugin;
  EXPECT_EQ(plugin.qt_metacast("TVR::TVRPlugin"), &plugin);
  EXPECT_EQ(plugin.qt_metacast("TVRInterface"), face);
  EXPECT_EQ(plugin.qt_metacast("DATA::DataObserver"), observer);
  EXPECT_EQ(plugin.qt_metacast("venlor.BrenvikApplication.TVRPlugin/1.0"), face);
  EXPECT_EQ(plugin.qt_metacast("venlor.BrenvikApplication.MainWindowPluginInterface/1.0"), face);
  EXPECT_EQ(plugin.qt_metacast("venlor.BrenvikApplication.WorkspaceWindow/1.0"), nullptr);
}

TEST_F(TVRPluginTest, tellsItsTypeAndHasNoActionsOfItsOwn) {
  TVRPlugin plugin;
  EXPECT_EQ(plugin.pluginType(), "TVR");
  EXPECT_TRUE(plugin.pluginActions().isEmpty());
}

TEST_F(TVRPluginTest, beginsIdleAndNotInABatch) {
  TVRPlugin plugin;
  EXPECT_FALSE(plugin.running());
  EXPECT_FALSE(plugin.simulationRun().isBatch());
  EXPECT_EQ(plugin.simulationRun().simulation(), nullptr);
  EXPECT_EQ(plugin.simulationRun().cycleLength(), 12);
}

TEST_F(TVRPluginTest, makesUtf8TheCodecOfTheLocale) {
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
  TVRPlugin plugin;
  EXPECT_EQ(QTextCodec::codecForLocale()->name(), "UTF-8");
}

// Ways to the host

TEST_F(TVRPluginTest, isKnownAsThePluginWhileItLives) {
  {
    TVRPlugin plugin;
    EXPECT_EQ(AppInterface::plugin(), static_cast<TVRInterface*>(&plugin));
  }
  EXPECT_EQ(AppInterface::plugin(), nullptr);
}

TEST_F(TVRPluginTest, worksWithoutAHost) {
  TVRPlugin plugin;
  plugin.setAppInterface(nullptr);
  EXPECT_EQ(AppInterface::instance(), nullptr);
  EXPECT_EQ(AppInterface::graphics(), nullptr);
  EXPECT_EQ(AppInterface::plugin(), static_cast<TVRInterface*>(&plugin));
}

TEST_F(TVRPluginTest, looksUpTheGraphicsLibraryOfItsHost) {
  TVRPlugin plugin;
  Host host;
  Library library;
  host.library = &library;
  plugin.setAppInterface(&host);
  EXPECT_EQ(AppInterface::instance(), &host);
  EXPECT_EQ(AppInterface::graphics(), &library);
  EXPECT_EQ(host.asked, QStringList{"Sketra_lib"});
}

TEST_F(TVRPluginTest, aHostWithoutTheGraphicsLibraryLeavesItNull) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  EXPECT_EQ(AppInterface::instance(), &host);
  EXPECT_EQ(AppInterface::graphics(), nullptr);
}

TEST_F(TVRPluginTest, aPluginThatIsNoGraphicsLibraryIsNotTaken) {
  TVRPlugin plugin;
  Host host;
  QObject other;
  host.library = &other;
  plugin.setAppInterface(&host);
  EXPECT_EQ(AppInterface::graphics(), nullptr);
}

TEST_F(TVRPluginTest, theLanguageIsTheParameter) {
  TVRPlugin plugin;
  for (const char* language : {"fr", "de", "en"}) {
    store.setValue(GuiLanguage, language);
    EXPECT_EQ(plugin.language(), language);
  }
}

TEST_F(TVRPluginTest, choosingALanguageTellsStoreAndHost) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  for (const auto& [slot, language] : {std::pair{"setGerman", "de"}, std::pair{"setFrench", "fr"},
                                       std::pair{"setEnglish", "en"}}) {
    ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, slot));
    EXPECT_EQ(plugin.language(), language);
    EXPECT_EQ(host.language, language);
  }
}

// The batch entry

TEST_F(TVRPluginTest, anInputThatIsNoBatchGoesToTheVirtualLoad) {
  LoadingPlugin plugin;
  store.setValue(ProjectName, "before");
  plugin.computeInput(path("does not exist.tbat"), false);
  EXPECT_EQ(plugin.loaded, QStringList{path("does not exist.tbat")});
  EXPECT_FALSE(plugin.simulationRun().isBatch());
  EXPECT_EQ(store.value(ProjectName), QVariant("before")) << "the batch reader would have reset it";
}

TEST_F(TVRPluginTest, theBatchArgumentIsFalseWhenLeftOut) {
  LoadingPlugin plugin;
  ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "computeInput", Q_ARG(QString, "a.tbat")));
  EXPECT_EQ(plugin.loaded, QStringList{"a.tbat"});
}

TEST_F(TVRPluginTest, aRefusedBatchFileLeavesTheBatchFlagAndRunsNothing) {
  LoadingPlugin plugin;
  ASSERT_TRUE(BatchProject::doublet().write(path("project.txt")));
  plugin.computeInput(path("project.txt"), true);
  EXPECT_TRUE(plugin.simulationRun().isBatch());
  EXPECT_TRUE(plugin.simulationRun().outputTimes().times.empty());
  EXPECT_TRUE(plugin.loaded.isEmpty());
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files), QStringList{"project.txt"});
}

TEST_F(TVRPluginTest, aBatchFileIsSimulatedOnTheCallersThread) {
  LoadingPlugin plugin;
  ASSERT_TRUE(BatchProject::doublet().set("main", "simulation_time", 1).write(path("p.tbat")));
  plugin.computeInput(path("p.tbat"), true);
  EXPECT_TRUE(plugin.loaded.isEmpty());
  EXPECT_TRUE(plugin.simulationRun().isBatch());
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(contentOf(path("p.out")).startsWith("Time [s]\tTime [a]\tPump\tReturn\t\n"));
}

TEST_F(TVRPluginTest, aLaterInputThatIsNoBatchLowersTheFlag) {
  LoadingPlugin plugin;
  plugin.computeInput(path("nothing.txt"), true);
  plugin.computeInput(path("nothing.txt"), false);
  EXPECT_FALSE(plugin.simulationRun().isBatch());
}

TEST_F(TVRPluginTest, aBatchTellsTheHostNothing) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  ASSERT_TRUE(BatchProject::doublet().set("main", "simulation_time", 1).write(path("p.tbat")));
  plugin.computeInput(path("p.tbat"), true);
  EXPECT_TRUE(host.status.isEmpty());
  EXPECT_TRUE(host.progress.isEmpty());
}

// Interactive runs

TEST_F(TVRPluginTest, aProjectThatIsNotUpToDateIsSimulated) {
  TVRPlugin plugin;
  prepare();
  store.setValue(SimulationUpToDate, false);
  EXPECT_TRUE(plugin.running());
  EXPECT_EQ(store.value(SimulationUpToDate), QVariant(true));
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
}

TEST_F(TVRPluginTest, aProjectThatCanNotBeSimulatedIsToldToTheUser) {
  TVRPlugin plugin;
  prepare(BatchProject().set("installation", "number_of_wells", 0));
  store.setValue(SimulationUpToDate, true);
  const MessageLog log;
  plugin.startSimulation();
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(log.lines().contains("Tevrane: No well has a rate."));
}

TEST_F(TVRPluginTest, theHostSeesHowARunGoesOn) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  prepare();
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  EXPECT_EQ(host.status.value(0),
            QStringLiteral("Using %1 nodes ... [10000]").arg(store.count(UsedNumberOfElements)));
  EXPECT_EQ(host.progress, (QList<QPair<int, int>>{{1, 2}, {2, 2}}));
}

TEST_F(TVRPluginTest, anErrorOfARunIsToldToTheUser) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  prepare(BatchProject::doublet().set("main", "reltol_groundwater", -1));
  const MessageLog log;
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  EXPECT_TRUE(host.status.contains("Error at t = 1.00 a [10000]"));
  EXPECT_TRUE(log.lines().contains(
      "Tevrane: <b>An error occured during the simulation:</b><br>One of the function inputs is "
      "illegal.<br>\n\nPlease change the model size and/or the numerical parameter of the "
      "<b>groundwater model</b>."));
}

TEST_F(TVRPluginTest, aProjectIsNotLoadedDuringARun) {
  TVRPlugin plugin;
  startLongRun(plugin);
  ASSERT_TRUE(BatchProject().write(path("other.tbat")));
  const MessageLog log;
  plugin.load(path("other.tbat"));
  EXPECT_TRUE(log.lines().contains("Tevrane: Operation abort because simulation is running."));
  EXPECT_EQ(number(SimulationTime), 900 * secondsPerYear);
}

TEST_F(TVRPluginTest, theRefusalDuringARunBearsTheNameOfTheHost) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  startLongRun(plugin);
  const MessageLog log;
  plugin.load(path("other.tbat"));
  EXPECT_TRUE(log.lines().contains("Host: Operation abort because simulation is running."));
}

TEST_F(TVRPluginTest, aCancelledRunEndsWithItsResults) {
  TVRPlugin plugin;
  startLongRun(plugin);
  plugin.cancelSimulation();
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
}

TEST_F(TVRPluginTest, thereIsNothingToCancelWithoutARun) {
  TVRPlugin plugin;
  const MessageLog log;
  plugin.cancelSimulation();
  EXPECT_TRUE(log.lines().isEmpty());
}

// Keys

TEST_F(TVRPluginTest, escapeAndEndCancelARunAndPassOn) {
  for (const int key : {Qt::Key_Escape, Qt::Key_End}) {
    TVRPlugin plugin;
    QObject window;
    startLongRun(plugin);
    EXPECT_FALSE(press(plugin, &window, key));
    EXPECT_FALSE(plugin.running());
  }
}

TEST_F(TVRPluginTest, otherKeysAndEventsDoNotCancelARun) {
  TVRPlugin plugin;
  QObject window;
  startLongRun(plugin);
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Return));
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Home));
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Escape, QEvent::KeyRelease));
  EXPECT_FALSE(press(plugin, nullptr, Qt::Key_Escape));
  QEvent update(QEvent::UpdateRequest);
  EXPECT_FALSE(plugin.eventFilter(&window, &update));
  EXPECT_TRUE(plugin.running());
}

TEST_F(TVRPluginTest, escapeAndEndPassWithoutARun) {
  TVRPlugin plugin;
  QObject window;
  const MessageLog log;
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Escape));
  EXPECT_FALSE(press(plugin, &window, Qt::Key_End));
  EXPECT_TRUE(log.lines().isEmpty());
}

// Tables of all cells

TEST_F(TVRPluginTest, aRunKeepsTheTablesOfAllCells) {
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

TEST_F(TVRPluginTest, cellsAreListedAtTheirPlaceOnTheMap) {
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

TEST_F(TVRPluginTest, aBatchWritesPositionsOfItsCellsIntoTheCurrentDirectory) {
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

TEST_F(TVRPluginTest, theTablesGoToTheHostsDirectoryIfNoneIsNamed) {
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

TEST_F(TVRPluginTest, anyOtherFunctionOfTheExportWritesNothing) {
  TVRPlugin plugin;
  prepare();
  store.setValue(TecplotOutputFile, directory.path());
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  for (const int function : {0, 3, -1})
    exportCells(plugin, function, 0);
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files), QStringList{"project.tbat"});
}

#include "TVRPluginTest.moc"
