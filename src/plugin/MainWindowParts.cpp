#include "plugin/MainWindowParts.h"

#include "design/ParameterId.h"
#include "host/MainWindowPluginInterface.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "plugin/PluginMenus.h"
#include "store/Manager.h"
#include "store/ValueOrigins.h"

#include <QAbstractButton>
#include <QMainWindow>

namespace TVR {

namespace {

constexpr int leftArea = 1; ///< of the host's docks

QString toolBarTitle() {
  return PluginText::tr("&%1").arg(programTitle);
}

/// The library names the buttons of a dock when it makes them, and not in another language later.
void nameButtons(const QDockWidget& dock) {
  struct Texts {
    const char* button;
    const char* name;
    const char* description;
  };
  for (const Texts& texts :
       {Texts{"qt_dockwidget_floatbutton", "Float", "Undocks and re-attaches the dock widget"},
        Texts{"qt_dockwidget_closebutton", "Close", "Closes the dock widget"}}) {
    auto* const button = dock.findChild<QAbstractButton*>(texts.button);
    if (!button)
      continue;
    button->setAccessibleName(QDockWidget::tr(texts.name));
    button->setAccessibleDescription(QDockWidget::tr(texts.description));
    button->setToolTip(button->accessibleName());
  }
}

} // namespace

MainWindowParts::MainWindowParts(QObject* plugin, Data::Manager& store, PageControls& controls,
                                 ProgressPanel& progress)
    : plugin_(plugin), store_(store), controls_(controls), progress_(progress) {}

void MainWindowParts::createActions() {
  if (actions_)
    return;
  actions_ = std::make_unique<PluginActions>(plugin_);
  controls_.exportShapefile = (*actions_)[Command::ExportShapefile];
  controls_.importResults = (*actions_)[Command::ImportResults];
}

void MainWindowParts::addMenus(const BrenvikApp::MainWindowMenuProvider* provider) {
  createActions();
  if (provider)
    addToMenus(*provider, *actions_);
}

void MainWindowParts::makeToolBar() {
  toolBar_ = new QToolBar(toolBarTitle());
  toolBar_->setObjectName("tvr_toolbar");
  createActions();
  const auto add = [this](std::initializer_list<Command> commands) {
    for (const Command command : commands)
      toolBar_->addAction((*actions_)[command]);
  };
  add({Command::New, Command::Open, Command::Save});
  controls_.coordinates = makeCoordinateBox();
  toolBar_->addWidget(controls_.coordinates);
  add({Command::General, Command::Energy, Command::Wells, Command::Mapping, Command::Simulation});
  controls_.scale = makeScaleBox(store_.count(Parameter::ViewScale));
  connect(controls_.scale, &QSpinBox::editingFinished, this, &MainWindowParts::scaleEntered);
  toolBar_->addWidget(controls_.scale);
  controls_.retranslate();
}

QToolBar* MainWindowParts::addToolBar(QMainWindow* parent) {
  if (toolBar_)
    return toolBar_;
  makeToolBar();
  if (!parent && AppInterface::instance())
    parent = AppInterface::instance()->mainWindow();
  if (parent)
    parent->addToolBar(toolBar_);
  return toolBar_;
}

QDockWidget* MainWindowParts::addDock(QMainWindow* parent) {
  if (dock_)
    return dock_;
  dock_ = new QDockWidget(programTitle);
  dock_->setObjectName("tvr_dock");
  nameButtons(*dock_);
  if (parent)
    parent->addDockWidget(Qt::LeftDockWidgetArea, dock_);
  else if (AppInterface::instance())
    AppInterface::instance()->addDockWindow(leftArea, dock_);
  dock_->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
  const auto origins = std::make_shared<Data::ValueOrigins>(store_); // hears of what is restored
  store_.restoreLastParameterSet();
  Data::Manager::openDatabase();
  panel_ = new GUI::DesignPropertyEditor(store_, dock_);
  panel_->setOrigins(origins);
  connect(panel_, &GUI::DesignPropertyEditor::processCanceled, this,
          &MainWindowParts::runCancelled);
  connect(panel_, &GUI::DesignPropertyEditor::wizardRequested, this,
          &MainWindowParts::wizardRequested);
  progress_ = {panel_->message_label, panel_->progressBar_step, panel_->progressBar_total,
               panel_->stop_button};
  dock_->setWidget(panel_);
  return dock_;
}

void MainWindowParts::toggleDock() {
  if (dock_)
    dock_->setVisible(!dock_->isVisible());
}

void MainWindowParts::refreshPanel() {
  if (panel_)
    panel_->updatePropertyView();
}

void MainWindowParts::showFile(const QString& fileName) {
  if (panel_)
    panel_->showFile(fileName);
}

void MainWindowParts::showResultState(const QString& state, const QStringList& reasons) {
  if (panel_)
    panel_->showResultState(state, reasons);
}

void MainWindowParts::showWelcome() {
  BrenvikApp::ApplicationInterface* const host = AppInterface::instance();
  if (!host || !host->mainWindow())
    return;
  if (!welcome_) {
    welcome_ = new WelcomeWindow(WelcomeWindow::translatedTitle(), host->mainWindow());
    connect(welcome_, &WelcomeWindow::newProject, this, &MainWindowParts::newProject);
    connect(welcome_, &WelcomeWindow::openProject, this, &MainWindowParts::openProject);
  }
  host->addWorkspaceWindow(welcome_);
}

void MainWindowParts::retranslate() {
  if (toolBar_)
    toolBar_->setWindowTitle(toolBarTitle());
  if (dock_)
    nameButtons(*dock_);
  actions_->retranslate();
  controls_.retranslate();
  if (panel_)
    panel_->retranslate();
}

void MainWindowParts::checkLanguage(const QString& language) {
  if (actions_)
    actions_->checkLanguage(language);
}

} // namespace TVR
