#pragma once

#include "host/ApplicationInterface.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;
class QToolBar;
class QWidget;

namespace BrenvikApp {

/// Takes the kinds of files that a plug-in opens.
class FileTypeProvider {
public:
  /// `slot` of `receiver` (a SLOT() text that takes a file name) opens files that match `pattern`.
  virtual void addFileType(const QString& pattern, const QString& description, QObject* receiver,
                           const char* slot, int flag) = 0;

protected:
  ~FileTypeProvider() = default;
};

/// The host's menus, filled by the host; an entry that it does not have is null.
struct MainWindowMenuProvider {
  QMenu* fileMenu = nullptr;
  QMenu* newMenu = nullptr;
  /// The File menu's own actions by small numbers.
  QMap<int, QAction*> fileActions;
  QMenu* settingsMenu = nullptr;
  QMenu* helpMenu = nullptr;
  QMenu* pluginMenu = nullptr;
};

/// What the host calls on a plug-in.
class MainWindowPluginInterface {
public:
  virtual ~MainWindowPluginInterface() = default;
  virtual void addMenus(MainWindowMenuProvider* provider) = 0;
  virtual void addFileTypes(FileTypeProvider* provider) = 0;
  virtual QList<QToolBar*> addToolBars(QMainWindow* parent) = 0;
  virtual QList<QDockWidget*> addDockingWindows(QMainWindow* parent) = 0;
  virtual void connectPlugin(QWidget* widget) = 0;
  virtual QString pluginType() = 0;
  virtual QList<QAction*> pluginActions() = 0;
  virtual void readyToClose(bool& ok) = 0;
  virtual void workspaceWindowActivated(QWidget* widget) = 0;
  virtual void triggerChangesOfWindow(QWidget* widget) = 0;
  virtual void updateMenuForCurrentWindow(QWidget* widget) = 0;
  virtual void setAppInterface(ApplicationInterface* host) = 0;
  virtual void setPluginDataAndLibPath(const QString& path) = 0;
  virtual void updateLanguage(const QString& language) = 0;
  virtual void updatePlugin() = 0;
  /// HTML rows with build data.
  virtual QString created(int depth) = 0;
};

} // namespace BrenvikApp

#define BRENVIK_PLUGIN_IID "venlor.BrenvikApplication.MainWindowPluginInterface/1.0"
Q_DECLARE_INTERFACE(BrenvikApp::MainWindowPluginInterface, BRENVIK_PLUGIN_IID)
