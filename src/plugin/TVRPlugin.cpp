#include "plugin/TVRPlugin.h"

#include "boxes/MessageBoxes.h"
#include "design/ParameterId.h"
#include "gui/CopyrightDialog.h"
#include "host/GraphicsInterface.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "plugin/AboutTexts.h"
#include "plugin/AppInterface.h"
#include "plugin/InteractiveRun.h"
#include "plugin/Languages.h"
#include "plugin/ProjectDocument.h"
#include "plugin/ProjectHistory.h"
#include "plugin/RunQuestions.h"
#include "plugin/RunView.h"
#include "plugin/RunWatch.h"
#include "plugin/StoredSettings.h"
#include "results/StepFiles.h"
#include "simulation/Simulation.h"
#include "store/Manager.h"

#include <QDir>
#include <QMainWindow>
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
      live_(store(), run_, graphic_), runWatch_(new RunWatch(run_, this)),
      document_(std::make_unique<ProjectDocument>(
          store(), run_,
          DocumentCommands{[this](const QString& file) { save(file); },
                           [this](const QString& proposal) { projects_.saveAs(proposal); },
                           [this](const QString& file, const QString& belongsTo) {
                             return projects_.read(file, belongsTo);
                           },
                           [this](const QString& file) { return writeProject(file); }},
          this)),
      parts_(this, store(), graphic_.controls(), progress_),
      wizards_(store(), run_, graphic_, progress_),
      history_(
          new ProjectHistory(store(), *runWatch_, *document_, graphic_, parts_, wizards_, this)),
      projects_(store(), run_, graphic_, *document_, wizards_, parts_),
      outdated_(store(), run_, *document_), outdatedSign_(outdated_, parts_, graphic_),
      results_(store(), graphic_, *document_), languages_(store(), parts_) {
  qRegisterMetaType<QPolygonF>("QPolygonF");
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  AppInterface::setPlugin(this);
  static MessageBoxes boxes;
  if (MessageBoxes::haveScreen())
    setMessenger(&boxes);
  run_.addObserver(runWatch_); // first: the view may hold an end up with a message
  run_.addObserver(runView_.get());
  setLanguage(preferredLanguage(), true);
  connect(&graphic_, &ResultGraphic::modified, document_.get(), &ProjectDocument::pageModified);
  connect(&wizards_, &WizardCommands::finished, &parts_, &MainWindowParts::refreshPanel);
  connect(&parts_, &MainWindowParts::newProject, this, &TVRPlugin::newOpen);
  connect(&parts_, &MainWindowParts::openProject, this,
          QOverload<const QString&>::of(&TVRPlugin::load));
  connect(&parts_, &MainWindowParts::scaleEntered, this, &TVRPlugin::setMapScale);
  connect(&parts_, &MainWindowParts::runCancelled, this, &TVRPlugin::cancelSimulation);
  connect(&parts_, &MainWindowParts::wizardRequested, &wizards_, &WizardCommands::show);
  connect(&store(), &Data::Manager::graphicsWindowContents, this, &TVRPlugin::setGraphicContents);
  connect(&store(), &Data::Manager::startSimulation, this, &TVRPlugin::startSimulation,
          Qt::UniqueConnection);
}

TVRPlugin::~TVRPlugin() {
  document_->watch(false); // while there is all that it works with
  outdated_.watch(false);
  delete history_;
  run_.removeObserver(runView_.get());
  run_.removeObserver(runWatch_);
  if (AppInterface::plugin() == this)
    AppInterface::setPlugin(nullptr);
}

void TVRPlugin::setAppInterface(BrenvikApp::ApplicationInterface* host) {
  const bool isEdited = host && host->mainWindow();
  document_->watch(isEdited); // the end of it may need the former host
  history_->watch(isEdited);
  outdated_.watch(isEdited);
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
  return languages_.language();
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
  if (watched && running() && cancelKeys_.areMeant(*event))
    cancelSimulation();
  return false;
}

void TVRPlugin::setLanguage(const QString& locale, bool force) {
  languages_.set(locale, force);
}

void TVRPlugin::setGerman() {
  languages_.choose("de");
}
void TVRPlugin::setFrench() {
  languages_.choose("fr");
}
void TVRPlugin::setEnglish() {
  languages_.choose("en");
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

bool TVRPlugin::readProject(const QString& file) {
  return projects_.read(file, file);
}

void TVRPlugin::showProject(const StoredPage& page) {
  graphic_.show(batch_ ? QByteArray() : page.document, page.itemIds);
}

void TVRPlugin::newOpen() {
  projects_.newProject();
}

void TVRPlugin::load() {
  if (const QString file = projects_.askForFile(); !file.isEmpty())
    load(file);
}

void TVRPlugin::load(const QString& name) {
  projects_.open(name);
}

void TVRPlugin::save() {
  projects_.save();
}

void TVRPlugin::save(const QString& file) {
  projects_.save(file);
}

bool TVRPlugin::writeProject(const QString& file) {
  return projects_.write(file);
}

void TVRPlugin::startSimulation() {
  runOnPage({});
}

void TVRPlugin::runOnPage(const RunRequest& request) {
  batch_ = false;
  InteractiveRun(store(), run_, graphic_, wizards_, progress_).start(request);
}

void TVRPlugin::cancelSimulation() {
  cancelRun(run_);
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

void TVRPlugin::addMenus(BrenvikApp::MainWindowMenuProvider* provider) {
  parts_.addMenus(provider);
}

void TVRPlugin::addFileTypes(BrenvikApp::FileTypeProvider* provider) {
  provider->addFileType("*.tvr", PluginText::tr("TVR project"), this, SLOT(load(const QString&)),
                        0);
}

QList<QToolBar*> TVRPlugin::addToolBars(QMainWindow* parent) {
  return {parts_.addToolBar(parent)};
}

QList<QDockWidget*> TVRPlugin::addDockingWindows(QMainWindow* parent) {
  const bool restoresProject = !parts_.panel();
  QDockWidget* const dock = parts_.addDock(parent);
  if (restoresProject) {
    document_->opened({});
    live_.follow(*parts_.panel());
  }
  return {dock};
}

void TVRPlugin::toggleDockingWindow() {
  parts_.toggleDock();
}

void TVRPlugin::updateLanguage(const QString&) {
  if (!parts_.actions())
    return;
  parts_.retranslate();
  wizards_.closeWizard();
  graphic_.retranslate();
  outdatedSign_.update();
}

void TVRPlugin::clearRegistry() {
  clearStoredSettings();
}

void TVRPlugin::updatePlugin() {
  if (!AppInterface::graphics())
    findGraphicsLibrary();
  const QString language = preferredLanguage();
  parts_.createActions(); // a host may ask for menus later
  parts_.checkLanguage(language);
  if (AppInterface::instance())
    AppInterface::instance()->setHostLanguage(language);
  if (!AppInterface::graphics())
    tellUser(
        Severity::Warning, programTitle,
        PluginText::tr(
            "No graphics library! The result plots cannot be displayed. To solve this problem, "
            "please re-install the program."));
  setLanguage(language, true);
  if (AppInterface::instance() && AppInterface::instance()->mainWindow())
    AppInterface::instance()->mainWindow()->installEventFilter(this);
}

void TVRPlugin::readyToClose(bool& ok) {
  Q_UNUSED(ok) // nothing holds the host back
  if (wizards_.wizard())
    wizards_.wizard()->reject();
  if (userSaves(PluginText::tr("Save settings? -- Tevrane"), PluginText::tr("Save all settings?")))
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
    connect(widget, SIGNAL(modified()), &graphic_, SLOT(noteModified()), Qt::UniqueConnection);
}

void TVRPlugin::update(DATA::DataObject* object) {
  Q_UNUSED(object) // the window tells what has changed
  if (graphic_.follow())
    wizards_.showMovedWells();
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

void TVRPlugin::currentGraphicCoordinates(double x, double y, QEvent::Type type, Qt::MouseButton) {
  graphic_.showCoordinates(x, y);
  if (type == QEvent::MouseButtonPress)
    graphic_.pressed();
  if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease)
    history_->endAction();
}

void TVRPlugin::setMapScale() {
  if (graphic_.setScaleFromBox())
    document_->pageModified();
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
  results_.exportShapefile();
}

void TVRPlugin::writeShapefile(const QString& file, bool isohypsen, bool isotherms) {
  results_.writeShapefile(file, isohypsen, isotherms);
}

void TVRPlugin::writeIsolineToShapeFile(int id, int& ishape, SHPHandle hSHP, DBFHandle hDBF,
                                        const QString& parameter, const QString& unit) {
  results_.writeIsoline(id, ishape, hSHP, hDBF, parameter, unit);
}

void TVRPlugin::shpExport(double t) {
  steps_.writeIsolines(t);
}

void TVRPlugin::dxfFileExport() {
  results_.exportDxf();
}

void TVRPlugin::dxfDrawingExport() {
  results_.exportDrawing();
}

void TVRPlugin::importTVRResult() {
  results_.importResults();
}

void TVRPlugin::openWelcomeWindow() {
  parts_.showWelcome();
}

void TVRPlugin::firstApplicationStart() {
  auto* const dialog = new GUI::CopyrightDialog;
  dialog->setLabel(copyright());
  dialog->exec();
  dialog->deleteLater();
}

QString TVRPlugin::copyright() {
  return copyrightNotices();
}

QString TVRPlugin::created(int depth) {
  return buildRows(depth);
}

void TVRPlugin::showGeneralWizard() {
  wizards_.showGeneral();
}

void TVRPlugin::showEnergieWizard() {
  wizards_.showEnergy();
}

void TVRPlugin::showWellWizard() {
  wizards_.showWells();
}

void TVRPlugin::showGraphicWizard() {
  wizards_.showMapping();
}

void TVRPlugin::showSimulationWizard() {
  wizards_.showSimulation();
}

void TVRPlugin::showExtendedSimulationWizard() {
  wizards_.showExtendedSimulation();
}

void TVRPlugin::acceptedSimulationWizard() {
  wizards_.accepted();
}

void TVRPlugin::closeSimulationWizard() {
  wizards_.closed();
}

} // namespace TVR
