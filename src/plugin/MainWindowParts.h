#pragma once

#include "gui/DesignPropertyEditor.h"
#include "gui/WelcomeWindow.h"
#include "plugin/PageControls.h"
#include "plugin/PluginActions.h"
#include "plugin/ProgressPanel.h"

#include <QDockWidget>
#include <QObject>
#include <QPointer>
#include <QToolBar>

#include <memory>

class QMainWindow;

namespace BrenvikApp {
struct MainWindowMenuProvider;
}

namespace TVR {

namespace Data {
class Manager;
}

/// What the plug-in adds to the main window of its host: actions in the menus, a tool bar, and a
/// dock with the panel of the project. Each is made once, and anew if the host has destroyed it.
class MainWindowParts : public QObject {
  Q_OBJECT

public:
  /// The actions call slots of `plugin`. Everything that is given outlives this object.
  MainWindowParts(QObject* plugin, Data::Manager& store, PageControls& controls,
                  ProgressPanel& progress);

  /// Makes the actions, once.
  void createActions();
  /// The actions; null before they are made.
  const PluginActions* actions() const { return actions_.get(); }
  void addMenus(const BrenvikApp::MainWindowMenuProvider* provider);
  /// Adds the tool bar to `parent`, or else to the host's main window if there is one.
  QToolBar* addToolBar(QMainWindow* parent);
  /// Adds the dock to `parent`, or else to the host if there is one. This is where the store takes
  /// the last parameter set and the reference database is opened.
  QDockWidget* addDock(QMainWindow* parent);
  void toggleDock();
  /// The panel of the project; null before there is a dock.
  GUI::DesignPropertyEditor* panel() const { return panel_; }
  /// Shows in the panel what the store holds now.
  void refreshPanel();
  /// Names the file of the project in the panel; an empty name for none.
  void showFile(const QString& fileName);
  /// Says in the panel what is to be known of the results; see DesignPropertyEditor.
  void showResultState(const QString& state, const QStringList& reasons);

  /// Opens the welcome window, or brings it to the front, if there is a host with a main window.
  void showWelcome();

  /// Sets all texts in the language of the moment.
  void retranslate();
  void checkLanguage(const QString& language);

signals:
  /// What the user chooses in the welcome window.
  void newProject();
  void openProject(const QString& file);
  /// The user has entered a scale in its box.
  void scaleEntered();
  /// The user wants the run to end.
  void runCancelled();
  /// The user wants to see the wizard that owns a value.
  void wizardRequested(TVR::GUI::Wizard wizard);

private:
  void makeToolBar();

  QObject* const plugin_;
  Data::Manager& store_;
  PageControls& controls_;
  ProgressPanel& progress_;
  std::unique_ptr<PluginActions> actions_;
  QPointer<QToolBar> toolBar_; ///< the host's once it is handed over, as are the two that follow
  QPointer<QDockWidget> dock_;
  QPointer<GUI::DesignPropertyEditor> panel_;
  QPointer<WelcomeWindow> welcome_;
};

} // namespace TVR
