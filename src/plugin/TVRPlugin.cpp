#include "plugin/TVRPlugin.h"

#include "boxes/MessageBoxes.h"
#include "design/ParameterId.h"
#include "files/RecentProjects.h"
#include "host/GraphicsInterface.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "plugin/Languages.h"
#include "plugin/PluginActions.h"
#include "plugin/ProjectDocument.h"
#include "plugin/RunView.h"
#include "plugin/RunWatch.h"
#include "results/DrawingExport.h"
#include "results/DxfExport.h"
#include "results/ResultImport.h"
#include "results/ShapefileExport.h"
#include "results/StepFiles.h"
#include "simulation/Simulation.h"
#include "simulation/SimulationThread.h"
#include "simulation/SiteCheck.h"
#include "simulation/SiteWriteBack.h"
#include "store/Manager.h"

#include <QDir>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPointer>
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
    : run_(store(), [this] { return workingDirectory(); }), graphic_(store(), run_, *this),
      steps_(graphic_,
             [this] {
               return StepFiles::directory(store(), run_.request().tableFile, workingDirectory());
             }),
      runView_(std::make_unique<RunView>(graphic_, progress_, steps_)),
      runWatch_(new RunWatch(this)),
      document_(std::make_unique<ProjectDocument>(
          store(), run_,
          DocumentCommands{[this](const QString& file) { save(file); }, [this] { save(); }},
          this)) {
  qRegisterMetaType<QPolygonF>("QPolygonF");
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  AppInterface::setPlugin(this);
  static MessageBoxes boxes;
  if (MessageBoxes::haveScreen())
    setMessenger(&boxes);
  run_.addObserver(runWatch_); // first: the view may hold an end up with a message
  run_.addObserver(runView_.get());
  setLanguage(preferredLanguage(), true);
  connect(&store(), &Data::Manager::graphicsWindowContents, this, &TVRPlugin::setGraphicContents);
  connect(&store(), &Data::Manager::startSimulation, this, &TVRPlugin::startSimulation,
          Qt::UniqueConnection);
}

TVRPlugin::~TVRPlugin() {
  run_.removeObserver(runView_.get());
  run_.removeObserver(runWatch_);
  removeTranslators(translators_);
  if (AppInterface::plugin() == this)
    AppInterface::setPlugin(nullptr);
}

void TVRPlugin::setAppInterface(BrenvikApp::ApplicationInterface* host) {
  AppInterface::setApplicationInterface(host);
  AppInterface::setPlugin(this);
  findGraphicsLibrary();
  document_->watch(host && host->mainWindow());
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
  batch_ = batch;
  if (!batch) {
    load(name);
    return;
  }
  QMap<QString, int> fieldIds;
  if (store().read(name, fieldIds))
    runWithoutPage({});
}

void TVRPlugin::runWithoutPage(RunRequest request) {
  batch_ = true;
  request.isInteractive = false;
  run_.run(request);
}

bool TVRPlugin::refusesDuringRun() const {
  if (!running())
    return false;
  const QString title =
      AppInterface::instance() ? AppInterface::instance()->applicationName() : programTitle;
  tellUser(Severity::Information, title, tr("Operation abort because simulation is running."));
  return true;
}

bool TVRPlugin::readProject(const QString& file) {
  if (refusesDuringRun())
    return false;
  graphic_.clear();
  QMap<QString, int> fieldIds;
  if (!store().read(file, fieldIds)) {
    document_->opened({});
    tellUser(Severity::Critical, programTitle, tr("Unable to open:%1").arg(file));
    return false;
  }
  graphic_.takeOver(fieldIds);
  document_->opened(file);
  return true;
}

void TVRPlugin::showProject(const StoredPage& page) {
  graphic_.clear();
  if (!page.document.isEmpty())
    setGraphicContents(page.document);
  graphic_.takeOver(page.itemIds);
}

void TVRPlugin::load(const QString& name) {
  if (!readProject(name))
    return;
  const QString title = store().value(ProjectName).toString();
  addRecentProject({title, name});
  tellUserDone(programTitle,
               tr("<b>TVR project &laquo;%1&raquo; ready to use.</b>").arg(title.toHtmlEscaped()),
               tr("read from file: %1").arg(name), ":/TVR/images/smiley_done.png");
}

void TVRPlugin::save(const QString& file) {
  if (writeProject(file))
    document_->saved(file);
  else
    tellUser(Severity::Critical, programTitle, tr("Unable to create:%1").arg(file));
}

bool TVRPlugin::writeProject(const QString& file) {
  return store().write(file, graphic_.windowToSave(), graphic_.items().fieldIds());
}

void TVRPlugin::startSimulation() {
  runOnPage({});
}

void TVRPlugin::runOnPage(const RunRequest& request) {
  graphic_.startup(graphic_.access().window);
  const auto refuse = [this](const QString& reason) {
    progress_.setVisible(false);
    tellUser(Severity::Critical, programTitle, reason);
  };
  makeTables(store());
  // The map has just settled where wells stand that nobody gave a place.
  if (const QString reason = wellsAtOnePlace(store()); !reason.isEmpty())
    return refuse(reason);
  batch_ = false;
  try {
    if (run_.run(request))
      store().setValue(SimulationUpToDate, 1);
  } catch (const std::exception& error) {
    refuse(QString::fromStdString(error.what()));
  } catch (const char* meshError) {
    refuse(meshError);
  }
}

void TVRPlugin::cancelSimulation() {
  if (!running() || !run_.simulation())
    return;
  // A run of lower priority keeps the dialog responsive. It may end while the dialog is open.
  const QPointer<Simulation> simulation = run_.simulation();
  const QPointer<SimulationThread> thread = qobject_cast<SimulationThread*>(simulation->parent());
  QThread::Priority priority = thread ? thread->priority() : QThread::InheritPriority;
  if (priority == QThread::InheritPriority)
    priority = QThread::NormalPriority; // an inherited one can't be given back
  if (thread)
    thread->setPriority(QThread::IdlePriority);
  const bool cancels = userAgrees(programTitle, tr("Simulation will be stopped at next step!"));
  if (!simulation || simulation != run_.simulation())
    return;
  if (cancels)
    run_.stop();
  if (thread && thread->isRunning())
    thread->setPriority(priority);
}

void TVRPlugin::simulationStepFinished(int step, int type, bool error, bool last) {
  run_.simulationStepFinished(step, type, error, last);
}

void TVRPlugin::simulationFinishedSuccessful() {
  run_.simulationFinishedSuccessful();
}

void TVRPlugin::XYZ_export(int func, double t) {
  if (func == 1 && run_.mesh())
    steps_.beginTables(*run_.mesh());
  else if (func == 2 && run_.simulation())
    steps_.continueTables(*run_.simulation(), t);
}

void TVRPlugin::graphicOperationFinished() {
  graphic_.mutex().unlock();
}

void TVRPlugin::ensureActions() {
  PageControls& controls = graphic_.controls();
  if (controls.exportShapefile)
    return;
  createActions(this);
  controls.exportShapefile = findChild<QAction*>(ActionName::exportShapefile);
  controls.importResults = findChild<QAction*>(ActionName::importResults);
}

void TVRPlugin::addMenus(BrenvikApp::MainWindowMenuProvider*) {
  ensureActions();
}

QList<QToolBar*> TVRPlugin::addToolBars(QMainWindow* parent) {
  if (toolBar_)
    return {toolBar_};
  toolBar_ = new QToolBar(tr("&%1").arg(programTitle));
  toolBar_->setObjectName("tvr_toolbar");
  ensureActions();
  PageControls& controls = graphic_.controls();
  controls.coordinates = makeCoordinateBox();
  controls.scale = makeScaleBox(store().count(ViewScale));
  connect(controls.scale, &QSpinBox::editingFinished, this, &TVRPlugin::setMapScale);
  toolBar_->addWidget(controls.coordinates);
  toolBar_->addWidget(controls.scale);
  if (!parent && AppInterface::instance())
    parent = AppInterface::instance()->mainWindow();
  if (parent)
    parent->addToolBar(toolBar_);
  return {toolBar_};
}

void TVRPlugin::updatePlugin() {
  if (!AppInterface::graphics())
    findGraphicsLibrary();
  const QString language = preferredLanguage();
  ensureActions(); // a host may ask for menus later
  checkLanguageAction(this, language);
  if (AppInterface::instance())
    AppInterface::instance()->setHostLanguage(language);
  if (!AppInterface::graphics())
    tellUser(Severity::Warning, programTitle,
             tr("No graphics library! The result plots cannot be displayed. To solve this problem, "
                "please re-install the program."));
  setLanguage(language, true);
  if (AppInterface::instance() && AppInterface::instance()->mainWindow())
    AppInterface::instance()->mainWindow()->installEventFilter(this);
}

void TVRPlugin::readyToClose(bool& ok) {
  Q_UNUSED(ok) // nothing holds the host back
  if (userSaves(tr("Save settings? -- Tevrane"), tr("Save all settings?")))
    store().saveLastParameterSet();
}

void TVRPlugin::workspaceWindowActivated(QWidget* widget) {
  graphic_.windowActivated(dynamic_cast<BrenvikApp::WorkspaceWindow*>(widget));
}

void TVRPlugin::triggerChangesOfWindow(QWidget* widget) {
  auto* const window = dynamic_cast<BrenvikApp::WorkspaceWindow*>(widget);
  const bool isGraphic = window && window->windowType() == pageWindowType;
  PageControls::setEnabled(graphic_.controls().importResults, isGraphic);
  if (!isGraphic)
    return;
  const char* const coordinates = "currentCoordinates(double,double,QEvent::Type,Qt::MouseButton)";
  if (widget->metaObject()->indexOfSignal(coordinates) >= 0)
    connect(widget, SIGNAL(currentCoordinates(double, double, QEvent::Type, Qt::MouseButton)), this,
            SLOT(currentGraphicCoordinates(double, double, QEvent::Type, Qt::MouseButton)),
            Qt::UniqueConnection);
  if (widget->metaObject()->indexOfSignal("modified()") >= 0)
    connect(widget, SIGNAL(modified()), document_.get(), SLOT(pageModified()),
            Qt::UniqueConnection);
}

void TVRPlugin::update(DATA::DataObject* object) {
  Q_UNUSED(object) // the window tells what has changed
  graphic_.follow();
}

void TVRPlugin::setGraphicContents(const QByteArray& contents) {
  if (!batch_)
    graphic_.setContents(contents);
}

void TVRPlugin::updateCurrentGraphicWindow() {
  graphic_.update();
}

void TVRPlugin::currentGraphicClosed() {
  graphic_.forgetCurrent();
}

void TVRPlugin::updateIsotherms(double time, int timeout) {
  graphic_.updateIsotherms(time, timeout);
}

void TVRPlugin::updateIsobars() {
  graphic_.updateIsohypses();
}

void TVRPlugin::calculateIsotherms(double time) {
  graphic_.calculateIsotherms(time);
}

void TVRPlugin::showMap() {
  graphic_.mapView().showMap();
}

void TVRPlugin::showMap(const QString& file, const QPointF& origin, const QSizeF& size) {
  graphic_.mapView().showMap(file, origin, size);
}

void TVRPlugin::setMapExtention(double extention) {
  graphic_.setMapExtension(extention);
}

void TVRPlugin::currentGraphicCoordinates(double x, double y, QEvent::Type, Qt::MouseButton) {
  graphic_.showCoordinates(x, y);
}

void TVRPlugin::setMapScale() {
  graphic_.setScaleFromBox();
}

void TVRPlugin::setScale(int x, bool holdOrigin) {
  graphic_.setScale(x, holdOrigin);
}

void TVRPlugin::showWells() {
  graphic_.mapView().showWells();
}

void TVRPlugin::setDefaultWellPositions() {
  graphic_.mapView().setDefaultWellPositions();
}

void TVRPlugin::setupDemandPlot() {
  graphic_.setupDemandPlot();
}

void TVRPlugin::shapefileExport() {
  ShapefileExport(graphic_.access()).ask(AppInterface::instance());
}

void TVRPlugin::writeShapefile(const QString& file, bool isohypsen, bool isotherms) {
  ShapefileExport(graphic_.access()).write(file, isohypsen, isotherms);
}

void TVRPlugin::writeIsolineToShapeFile(int id, int& ishape, SHPHandle hSHP, DBFHandle hDBF,
                                        const QString& parameter, const QString& unit) {
  ShapefileExport(graphic_.access()).writeIsoline(id, ishape, hSHP, hDBF, parameter, unit);
}

void TVRPlugin::shpExport(double t) {
  steps_.writeIsolines(t);
}

void TVRPlugin::dxfFileExport() {
  DxfExport(graphic_.access()).ask(AppInterface::instance());
}

void TVRPlugin::dxfDrawingExport() {
  DrawingExport(graphic_.access()).ask(AppInterface::instance());
}

void TVRPlugin::importTVRResult() {
  ResultImport(graphic_.access(), AppInterface::instance()).ask();
}

// What follows acts on the page, on a host's window or on a wizard. Without them there is nothing
// to do.

void TVRPlugin::addFileTypes(BrenvikApp::FileTypeProvider*) {}
QList<QDockWidget*> TVRPlugin::addDockingWindows(QMainWindow*) {
  return {};
}
void TVRPlugin::updateLanguage(const QString&) {}
QString TVRPlugin::created(int) {
  return {};
}
QString TVRPlugin::copyright() {
  return {};
}

void TVRPlugin::openWelcomeWindow() {}
void TVRPlugin::newOpen() {}
void TVRPlugin::load() {}
void TVRPlugin::save() {}
void TVRPlugin::toggleDockingWindow() {}
void TVRPlugin::showGeneralWizard() {}
void TVRPlugin::showEnergieWizard() {}
void TVRPlugin::showWellWizard() {}
void TVRPlugin::showGraphicWizard() {}
void TVRPlugin::showSimulationWizard() {}
void TVRPlugin::showExtendedSimulationWizard() {}
void TVRPlugin::acceptedSimulationWizard() {}
void TVRPlugin::closeSimulationWizard() {}
void TVRPlugin::clearRegistry() {}
void TVRPlugin::firstApplicationStart() {}

} // namespace TVR
