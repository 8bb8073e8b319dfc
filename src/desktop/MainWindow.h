#pragma once

#include "desktop/DesktopHost.h"
#include "desktop/FileTypes.h"
#include "desktop/HostActions.h"
#include "desktop/Plugin.h"

#include <QMainWindow>
#include <QStringList>
#include <QTimer>

namespace TVR::Desktop {

class GuideWindow;
class HostMenus;
class PageCommands;
class PageCoordinates;
class RunStatus;
class Workspace;

/// The window of the program: it introduces the plug-in to its menus, its workspace and its status
/// bar, and carries out the host's own commands.
class MainWindow final : public QMainWindow {
  Q_OBJECT

public:
  /// `plugin` implements TVRInterface and outlives the window.
  explicit MainWindow(QObject& plugin);
  ~MainWindow() override;

  /// Introduces the plug-in and puts the window as it was when the program ended. A `language`
  /// ("de", "en", "fr") is used from now on; an empty one leaves that of the settings.
  void start(const QString& language = {});

public slots:
  /// What the user sees first: the first of these files, or else the welcome window; at the very
  /// first start the copyright before it; and what an earlier program has left unsaved.
  void openFirst(const QStringList& files);
  void addWindowToWorkspace(BrenvikApp::WorkspaceWindow* window);

signals:
  /// All that the user sees first is open.
  void ready();
  /// The user has closed the window.
  void closed();

protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private slots:
  void open(const QString& file);
  void showDocument();
  void showSituation();

private:
  void connectCommands();
  void connectView();
  void windowActivated(QWidget* widget);
  void listWindows();
  void languageChanged();
  bool mayLoseWindow(QWidget& window);
  bool mayClose();
  QString projectName() const;
  QString proposedName() const;
  void showGuide();
  void showAbout();

  Plugin plugin_;
  FileTypes fileTypes_;
  HostActions& actions_; ///< a child of this window
  Workspace* const workspace_;
  RunStatus* const runStatus_;
  PageCoordinates* const coordinates_;
  HostMenus* const menus_;
  DesktopHost host_;
  PageCommands* const pageCommands_;
  QPointer<GuideWindow> guide_;
  QTimer languageChange_; ///< gathers what a change of language sets off
};

} // namespace TVR::Desktop
