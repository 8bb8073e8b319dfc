#include "desktop/MainWindow.h"

#include "desktop/AboutDialog.h"
#include "desktop/GuideWindow.h"
#include "desktop/HostMenus.h"
#include "desktop/PageCommands.h"
#include "desktop/PageCoordinates.h"
#include "desktop/ProblemReport.h"
#include "desktop/RecentMenu.h"
#include "desktop/RunStatus.h"
#include "desktop/WindowMemory.h"
#include "desktop/Workspace.h"
#include "messages/UserMessages.h"
#include "page/window/PageWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>

namespace TVR::Desktop {

namespace {

constexpr int statusDuration = 10000; // [ms]

/// Makes an action of the host's own stand for one that a tool bar or a dock has.
void standFor(QAction& theirs, QAction& own) {
  own.setChecked(theirs.isChecked());
  QObject::connect(&theirs, &QAction::toggled, &own, &QAction::setChecked);
  QObject::connect(&own, &QAction::triggered, &theirs, &QAction::trigger);
}

} // namespace

MainWindow::MainWindow(QObject& plugin)
    : plugin_(plugin), actions_(*new HostActions(this)), workspace_(new Workspace),
      runStatus_(new RunStatus), coordinates_(new PageCoordinates),
      menus_(new HostMenus(*menuBar(), actions_)), host_(*this, *workspace_, *runStatus_),
      pageCommands_(new PageCommands(
          *this,
          {[this] { return workspace_->currentPage(); }, [this] { return proposedName(); },
           [this](const QString& file) { host_.setWorkingPath(QFileInfo(file).absolutePath()); },
           [this](const QString& text) { statusBar()->showMessage(text, statusDuration); }})) {
  setObjectName("main_window");
  setAcceptDrops(true);
  setCentralWidget(workspace_);
  statusBar()->addPermanentWidget(runStatus_);
  statusBar()->addPermanentWidget(coordinates_);
  workspace_->setGuard([this](QWidget& window) { return mayLoseWindow(window); });
  connect(workspace_, &Workspace::activated, this, &MainWindow::windowActivated);
  connect(workspace_, &Workspace::windowsChanged, this, &MainWindow::listWindows);
  connect(workspace_, &Workspace::adding, this, [](QWidget* widget) {
    if (auto* const page = qobject_cast<Page::PageWindow*>(widget))
      WindowMemory::restoreZoom(*page);
  });
  connect(workspace_, &Workspace::closing, this, [](QWidget* widget) {
    if (const auto* const page = qobject_cast<Page::PageWindow*>(widget))
      WindowMemory::keepZoom(*page);
  });
  connect(menus_, &HostMenus::windowChosen, workspace_, &QTabWidget::setCurrentIndex);
  // A project may bear any ending.
  connect(&menus_->recentProjects(), &RecentMenu::chosen, this,
          [this](const QString& file) { plugin_.call("load", file); });
  connect(runStatus_, &RunStatus::cancelled, this, [this] { plugin_->cancelSimulation(); });
  languageChange_.setSingleShot(true);
  connect(&languageChange_, &QTimer::timeout, this, &MainWindow::languageChanged);
  connect(&host_, &DesktopHost::languageTold, this, [this] { languageChange_.start(0); });
  connectCommands();
  connectView();
}

MainWindow::~MainWindow() {
  plugin_->setAppInterface(nullptr);
  // Windows of the workspace and their observers go while all of this is still there.
  delete workspace_;
}

void MainWindow::connectCommands() {
  const auto on = [this](Command command, auto action) {
    connect(actions_[command], &QAction::triggered, this, action);
  };
  const auto calls = [&on, this](Command command, const char* slot) {
    on(command, [this, slot] { plugin_.call(slot); });
  };
  on(Command::Save, [this] {
    if (auto* document = plugin_.document())
      document->saveChanges();
  });
  on(Command::Undo, [this] {
    if (auto* history = plugin_.history())
      history->undo();
  });
  on(Command::Redo, [this] {
    if (auto* history = plugin_.history())
      history->redo();
  });
  on(Command::ExportPdf, [this] { pageCommands_->exportAs("pdf"); });
  on(Command::ExportPng, [this] { pageCommands_->exportAs("png"); });
  on(Command::ExportSvg, [this] { pageCommands_->exportAs("svg"); });
  calls(Command::ExportIsolines, "dxfFileExport");
  calls(Command::ExportDrawing, "dxfDrawingExport");
  on(Command::PageSetup, [this] { pageCommands_->setUpPage(); });
  on(Command::PrintPreview, [this] { pageCommands_->preview(); });
  on(Command::Print, [this] { pageCommands_->print(); });
  on(Command::CopyPage, [this] { pageCommands_->copyAsPicture(); });
  on(Command::CloseWindow, [this] { workspace_->closeCurrent(); });
  on(Command::Quit, [this] { close(); });
  calls(Command::Run, "startSimulation");
  on(Command::CancelRun, [this] { plugin_->cancelSimulation(); });
  on(Command::NextWindow, [this] { workspace_->goOn(1); });
  on(Command::PreviousWindow, [this] { workspace_->goOn(-1); });
  on(Command::Guide, [this] { showGuide(); });
  on(Command::ReportProblem, [this] { ProblemReport(this).exec(); });
  on(Command::About, [this] { showAbout(); });
  on(Command::AboutQt, [] { QApplication::aboutQt(); });
}

void MainWindow::connectView() {
  const auto onPage = [this](Command command, void (Page::PageWindow::*view)()) {
    connect(actions_[command], &QAction::triggered, this, [this, view] {
      if (Page::PageWindow* const page = workspace_->currentPage())
        (page->*view)();
    });
  };
  onPage(Command::ZoomIn, &Page::PageWindow::zoomIn);
  onPage(Command::ZoomOut, &Page::PageWindow::zoomOut);
  onPage(Command::WholePage, &Page::PageWindow::fitSheet);
  onPage(Command::PageWidth, &Page::PageWindow::fitWidth);
  onPage(Command::ActualSize, &Page::PageWindow::showActualSize);
  connect(actions_[Command::FullScreen], &QAction::triggered, this, [this](bool fills) {
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, fills));
  });
}

void MainWindow::start(const QString& language) {
  plugin_->setAppInterface(&host_);
  plugin_->addFileTypes(&fileTypes_);
  fileTypes_.addFileType("*.tbat", tr("TVR batch file"), &plugin_.object(),
                         SLOT(load(const QString&)), 0);
  BrenvikApp::MainWindowMenuProvider provider = menus_->provider();
  plugin_->addMenus(&provider);
  menus_->completePluginMenu();
  for (const QToolBar* bar : plugin_->addToolBars(this))
    standFor(*bar->toggleViewAction(), *actions_[Command::ToolBar]);
  for (const QDockWidget* dock : plugin_->addDockingWindows(this))
    standFor(*dock->toggleViewAction(), *actions_[Command::Dock]);
  plugin_->connectPlugin(this);
  plugin_->updatePlugin();
  if (!language.isEmpty())
    plugin_.setLanguage(language);
  plugin_.watch(*this, SLOT(showDocument()), SLOT(showSituation()));
  WindowMemory::restore(*this);
  showDocument();
}

void MainWindow::openFirst(const QStringList& files) {
  if (WindowMemory::isFirstStart())
    plugin_.call("firstApplicationStart");
  if (files.isEmpty())
    plugin_->openWelcomeWindow();
  else
    plugin_.call("load", QDir::current().absoluteFilePath(files.first()));
  if (files.size() > 1)
    statusBar()->showMessage(tr("Only the first file is opened: there is one project at a time."),
                             statusDuration);
  if (auto* document = plugin_.document())
    document->offerRecovery();
  emit ready();
}

void MainWindow::addWindowToWorkspace(BrenvikApp::WorkspaceWindow* window) {
  workspace_->add(window);
}

void MainWindow::windowActivated(QWidget* widget) {
  auto* const page = qobject_cast<Page::PageWindow*>(widget);
  coordinates_->follow(page);
  plugin_->workspaceWindowActivated(widget);
  plugin_->triggerChangesOfWindow(widget);
  plugin_->updateMenuForCurrentWindow(widget);
  listWindows();
}

void MainWindow::listWindows() {
  QStringList titles;
  for (const QWidget* widget : workspace_->widgets())
    titles.append(widget->windowTitle());
  menus_->listWindows(titles, workspace_->currentIndex());
  showSituation();
}

void MainWindow::showSituation() {
  const bool isRunning = plugin_.isRunning();
  const auto* history = plugin_.history();
  actions_.enableFor({.hasPage = workspace_->currentPage() != nullptr,
                      .windows = workspace_->count(),
                      .hasDocument = plugin_.document() != nullptr,
                      .isRunning = isRunning,
                      .undoName = history ? history->undoName() : QString(),
                      .redoName = history ? history->redoName() : QString()});
  runStatus_->setRunning(isRunning);
}

QString MainWindow::projectName() const {
  const auto* document = plugin_.document();
  if (document && !document->fileName().isEmpty())
    return QFileInfo(document->fileName()).fileName();
  if (document && !document->title().simplified().isEmpty())
    return document->title().simplified();
  return tr("Untitled");
}

void MainWindow::showDocument() {
  const auto* document = plugin_.document();
  setWindowTitle(
      QStringLiteral("%1[*] - %2").arg(projectName().replace("[*]", "[*][*]"), programTitle));
  setWindowModified(document && document->isModified());
  showSituation();
}

QString MainWindow::proposedName() const {
  QString name = projectName();
  if (const auto* document = plugin_.document(); document && !document->fileName().isEmpty())
    name = QFileInfo(document->fileName()).completeBaseName();
  return QDir(host_.workingPath()).filePath(name.replace('/', '-'));
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    languageChange_.start(0);
  if (event->type() == QEvent::WindowStateChange)
    actions_[Command::FullScreen]->setChecked(isFullScreen());
  QMainWindow::changeEvent(event);
}

/// The plug-in tells a language before its translations are in place, and each of them sends an
/// event of its own: all of it leads here once.
void MainWindow::languageChanged() {
  actions_.retranslate();
  menus_->retranslate();
  plugin_->updateLanguage(host_.language());
  if (guide_)
    guide_->retranslate(GuideWindow::usualDirectory(host_.language()));
  showDocument();
  listWindows();
}

/// Whoever opens the file asks what is to become of the project that is open.
void MainWindow::open(const QString& file) {
  if (!QApplication::activeModalWidget())
    fileTypes_.open(file);
}

/// A dialog works on the project that is open.
void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!QApplication::activeModalWidget() && !fileTypes_.openable(*event->mimeData()).isEmpty())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QStringList files = fileTypes_.openable(*event->mimeData());
  if (files.isEmpty())
    return;
  event->acceptProposedAction();
  // The program that the file comes from waits until the drop is over.
  QMetaObject::invokeMethod(this, "open", Qt::QueuedConnection, Q_ARG(QString, files.first()));
}

/// The results of a run live on its page, and a project is saved with the pages that are open.
bool MainWindow::mayLoseWindow(QWidget& window) {
  const auto* page = qobject_cast<Page::PageWindow*>(&window);
  if (!page)
    return true;
  const auto* document = plugin_.document();
  const bool isOfProject = document && (document->isModified() || !document->fileName().isEmpty());
  const bool isNeeded = plugin_.isRunning() || isOfProject;
  return !isNeeded || userSaysYes(Severity::Warning, programTitle,
                                  tr("The project's results are on this page. Close it?"));
}

bool MainWindow::mayClose() {
  if (plugin_.isRunning() &&
      !userSaysYes(Severity::Warning, programTitle,
                   tr("A simulation is running. Cancel it and close the program?")))
    return false;
  plugin_.stopRun();
  auto* const document = plugin_.document();
  if (document && !document->mayBeLeft())
    return false;
  bool isReady = true;
  plugin_->readyToClose(isReady);
  return isReady;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!mayClose()) {
    event->ignore();
    return;
  }
  if (const Page::PageWindow* const page = workspace_->currentPage())
    WindowMemory::keepZoom(*page);
  WindowMemory::keep(*this);
  event->accept();
  emit closed();
}

void MainWindow::showGuide() {
  if (!guide_) {
    guide_ = new GuideWindow(GuideWindow::usualDirectory(host_.language()), this);
    guide_->setAttribute(Qt::WA_DeleteOnClose);
  }
  guide_->show();
  guide_->raise();
  guide_->activateWindow();
}

void MainWindow::showAbout() {
  AboutDialog(plugin_->copyright(), plugin_->created(0), this).exec();
}

} // namespace TVR::Desktop
