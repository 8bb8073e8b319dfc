#include "plugin/TVRPlugin.h"

#include "data/Manager.h"
#include "data/UserMessages.h"
#include "host/GraphicsInterface.h"
#include "plugin/AppInterface.h"
#include "plugin/Languages.h"
#include "plugin/RunView.h"
#include "results/PointTable.h"
#include "simulation/Simulation.h"
#include "simulation/SimulationThread.h"

#include <QDir>
#include <QKeyEvent>
#include <QPolygonF>
#include <QTextCodec>
#include <QWidget>

namespace TVR {

using namespace Parameter;

namespace {

Data::Manager& store() {
  return *Data::Manager::instance();
}

} // namespace

TVRPlugin::TVRPlugin()
    : run_(store(), [this] { return workingDirectory(); }), runView_(new RunView(*this)) {
  qRegisterMetaType<QPolygonF>("QPolygonF");
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  AppInterface::setPlugin(this);
  run_.addObserver(runView_.get());
  setLanguage(preferredLanguage(), true);
  connect(&store(), &Data::Manager::graphicsWindowContents, this, &TVRPlugin::setGraphicContents);
  connect(&store(), &Data::Manager::startSimulation, this, &TVRPlugin::startSimulation,
          Qt::UniqueConnection);
}

TVRPlugin::~TVRPlugin() {
  run_.removeObserver(runView_.get());
  removeTranslators(translators_);
  if (AppInterface::plugin() == this)
    AppInterface::setPlugin(nullptr);
}

void TVRPlugin::setAppInterface(BrenvikApp::ApplicationInterface* host) {
  AppInterface::setApplicationInterface(host);
  AppInterface::setPlugin(this);
  findGraphicsLibrary();
}

void TVRPlugin::findGraphicsLibrary() {
  if (!AppInterface::instance())
    return;
  if (QObject* library = AppInterface::instance()->pluginByName("Sketra_lib"))
    AppInterface::setGraphicsInterface(qobject_cast<Sketra_lib::GraphicsInterface*>(library));
}

void TVRPlugin::setPluginDataAndLibPath(const QString& path) {
  Q_UNUSED(path)
}

QString TVRPlugin::pluginType() {
  return QStringLiteral("TVR");
}

QList<QAction*> TVRPlugin::pluginActions() {
  return {};
}

QString TVRPlugin::language() {
  return store().value(GuiLanguage).toString();
}

void TVRPlugin::connectPlugin(QWidget* widget) {
  connect(this, SIGNAL(addWindowToWorkspace(BrenvikApp::WorkspaceWindow*)), widget,
          SLOT(addWindowToWorkspace(BrenvikApp::WorkspaceWindow*)));
}

void TVRPlugin::updateMenuForCurrentWindow(QWidget* widget) {
  if (widget)
    widget->installEventFilter(this);
}

bool TVRPlugin::eventFilter(QObject* watched, QEvent* event) {
  if (watched && event->type() == QEvent::KeyPress && running()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape || key == Qt::Key_End)
      cancelSimulation();
  }
  return false;
}

void TVRPlugin::setLanguage(const QString& locale, bool force) {
  if (!force && locale == language())
    return;
  removeTranslators(translators_);
  translators_ = installTranslators(locale);
  const QString used = locale == "de" || locale == "fr" ? locale : QStringLiteral("en");
  store().setValue(GuiLanguage, used);
  if (AppInterface::instance())
    AppInterface::instance()->setHostLanguage(used);
}

void TVRPlugin::setGerman() {
  setLanguage("de", true);
}
void TVRPlugin::setFrench() {
  setLanguage("fr", true);
}
void TVRPlugin::setEnglish() {
  setLanguage("en", true);
}

QString TVRPlugin::workingDirectory() const {
  return AppInterface::instance() ? AppInterface::instance()->workingPath() : QDir::currentPath();
}

void TVRPlugin::computeInput(const QString& name, bool batch) {
  run_.setBatch(batch);
  if (!batch) {
    load(name);
    return;
  }
  QMap<QString, int> fieldIds;
  if (store().read(name, fieldIds))
    run_.runSimulation(true);
}

bool TVRPlugin::refusesDuringRun() const {
  if (!running())
    return false;
  const QString title =
      AppInterface::instance() ? AppInterface::instance()->applicationName() : programTitle;
  tellUser(Severity::Information, title, tr("Operation abort because simulation is running."));
  return true;
}

void TVRPlugin::load(const QString& name) {
  if (refusesDuringRun())
    return;
  QMap<QString, int> fieldIds;
  store().read(name, fieldIds);
}

void TVRPlugin::save(const QString& file) {
  store().write(file, nullptr, {});
}

void TVRPlugin::startSimulation() {
  try {
    if (run_.runSimulation(false))
      store().setValue(SimulationUpToDate, 1);
  } catch (const std::exception& error) {
    tellUser(Severity::Critical, programTitle, QString::fromStdString(error.what()));
  } catch (const char* meshError) {
    tellUser(Severity::Critical, programTitle, meshError);
  }
}

void TVRPlugin::cancelSimulation() {
  if (!running() || !run_.simulation())
    return;
  // A run of lower priority keeps the dialog responsive.
  auto* thread = qobject_cast<SimulationThread*>(run_.simulation()->parent());
  QThread::Priority priority = thread ? thread->priority() : QThread::InheritPriority;
  if (priority == QThread::InheritPriority)
    priority = QThread::NormalPriority; // an inherited one can't be given back
  if (thread)
    thread->setPriority(QThread::IdlePriority);
  const bool cancels = userAgrees(programTitle, tr("Simulation will be stopped at next step!"));
  if (cancels)
    run_.stop();
  if (run_.simulation() && thread && thread->isRunning())
    thread->setPriority(priority);
}

void TVRPlugin::simulationStepFinished(int step, int type, bool error, bool last) {
  run_.simulationStepFinished(step, type, error, last);
}

void TVRPlugin::simulationFinishedSuccessful() {
  run_.simulationFinishedSuccessful();
}

void TVRPlugin::XYZ_export(int func, double t) {
  QString directory = QStringLiteral(".");
  if (store().value(BatchOutputFile).toString().isEmpty()) {
    directory = store().value(TecplotOutputFile).toString();
    if (directory.isEmpty())
      directory = workingDirectory();
  }
  const QString temperatures = directory + '/' + PointTable::temperatureFile;
  const QString drawdowns = directory + '/' + PointTable::drawdownFile;

  if (func == 1 && run_.mesh()) {
    const double angle = store().value(GroundwaterFlowDirection).toDouble() - 90;
    const auto positions = PointTable::cellPositions(*run_.mesh(), angle, run_.origin());
    PointTable::writePositions(temperatures, positions);
    PointTable::writePositions(drawdowns, positions);
  } else if (func == 2 && run_.simulation()) {
    std::vector<double> values(run_.mesh()->elements.size());
    run_.simulation()->getTemperatures(values);
    PointTable::addColumn(temperatures, t, values);
    run_.simulation()->getDrawdowns(values);
    PointTable::addColumn(drawdowns, t, values);
  }
}

void TVRPlugin::graphicOperationFinished() {
  graphicsMutex_.unlock();
}

// What follows acts on the page, on a host's window or on a wizard. Without them there is nothing
// to do.

void TVRPlugin::addMenus(BrenvikApp::MainWindowMenuProvider*) {}
void TVRPlugin::addFileTypes(BrenvikApp::FileTypeProvider*) {}
QList<QToolBar*> TVRPlugin::addToolBars(QMainWindow*) {
  return {};
}
QList<QDockWidget*> TVRPlugin::addDockingWindows(QMainWindow*) {
  return {};
}
void TVRPlugin::readyToClose(bool&) {}
void TVRPlugin::workspaceWindowActivated(QWidget*) {}
void TVRPlugin::triggerChangesOfWindow(QWidget*) {}
void TVRPlugin::updateLanguage(const QString&) {}
void TVRPlugin::updatePlugin() {
  findGraphicsLibrary();
}
QString TVRPlugin::created(int) {
  return {};
}
QString TVRPlugin::copyright() {
  return {};
}
void TVRPlugin::update(DATA::DataObject*) {}

void TVRPlugin::openWelcomeWindow() {}
void TVRPlugin::newOpen() {}
void TVRPlugin::load() {}
void TVRPlugin::importTVRResult() {}
void TVRPlugin::setGraphicContents(const QByteArray&) {}
void TVRPlugin::save() {}
void TVRPlugin::dxfFileExport() {}
void TVRPlugin::shapefileExport() {}
void TVRPlugin::writeShapefile(const QString&, bool, bool) {}
void TVRPlugin::writeIsolineToShapeFile(int, int&, SHPHandle, DBFHandle, const QString&,
                                        const QString&) {}
void TVRPlugin::toggleDockingWindow() {}
void TVRPlugin::showGeneralWizard() {}
void TVRPlugin::showEnergieWizard() {}
void TVRPlugin::showWellWizard() {}
void TVRPlugin::showGraphicWizard() {}
void TVRPlugin::showSimulationWizard() {}
void TVRPlugin::showExtendedSimulationWizard() {}
void TVRPlugin::updateCurrentGraphicWindow() {}
void TVRPlugin::updateIsotherms(double, int) {}
void TVRPlugin::updateIsobars() {}
void TVRPlugin::showMap() {}
void TVRPlugin::setMapExtention(double) {}
void TVRPlugin::currentGraphicCoordinates(double, double, QEvent::Type, Qt::MouseButton) {}
void TVRPlugin::setMapScale() {}
void TVRPlugin::setScale(int, bool) {}
void TVRPlugin::showWells() {}
void TVRPlugin::setDefaultWellPositions() {}
void TVRPlugin::showMap(const QString&, const QPointF&, const QSizeF&) {}
void TVRPlugin::acceptedSimulationWizard() {}
void TVRPlugin::closeSimulationWizard() {}
void TVRPlugin::currentGraphicClosed() {}
void TVRPlugin::clearRegistry() {}
void TVRPlugin::setupDemandPlot() {}
void TVRPlugin::shpExport(double) {}
void TVRPlugin::firstApplicationStart() {}
void TVRPlugin::calculateIsotherms(double) {}

} // namespace TVR
