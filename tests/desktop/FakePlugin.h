#pragma once

#include "host/ProjectDocument.h"
#include "host/RunState.h"
#include "host/TVRInterface.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QToolBar>

/// A project that a test opens, changes and gives up.
class FakeDocument final : public QObject, public BrenvikApp::ProjectDocument {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::ProjectDocument)

public:
  FakeDocument(QStringList& calls, QObject* parent) : QObject(parent), calls_(calls) {}

  QString title() const override { return name; }
  QString fileName() const override { return file; }
  bool isModified() const override { return modified; }
  bool saveChanges() override {
    calls_ << "saveChanges";
    return true;
  }
  bool mayBeLeft() override {
    calls_ << "mayBeLeft";
    return mayGo;
  }
  void offerRecovery() override { calls_ << "offerRecovery"; }

  void become(const QString& newName, const QString& newFile, bool isChanged) {
    name = newName;
    file = newFile;
    modified = isChanged;
    emit changed();
  }

  QString name;
  QString file;
  bool modified = false;
  bool mayGo = true;

signals:
  void changed();

private:
  QStringList& calls_;
};

/// A run that a test begins and ends.
class FakeRun final : public QObject, public BrenvikApp::RunState {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::RunState)

public:
  FakeRun(QStringList& calls, QObject* parent) : QObject(parent), calls_(calls) {}

  bool isRunning() const override { return running; }
  void stop() override {
    calls_ << "stop";
    if (stopsAtOnce)
      become(false);
    else
      QTimer::singleShot(0, this, [this] { become(false); });
  }
  void become(bool isRunning) {
    running = isRunning;
    emit changed();
  }
  bool running = false;
  bool stopsAtOnce = true;

signals:
  void changed();

private:
  QStringList& calls_;
};

/// A window of a plug-in's own, such as a welcome window.
class FakeWindow final : public QWidget, public BrenvikApp::WorkspaceWindow {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::WorkspaceWindow)

public:
  explicit FakeWindow(const QString& title) { setWindowTitle(title); }
  QWidget* widget() override { return this; }
  QString windowType() const override { return "WelcomeWindow"; }
};

/// A plug-in that notes what its host calls, and puts into its menus and bars what the host is to
/// find there.
class FakePlugin final : public QObject, public TVRInterface {
  Q_OBJECT
  Q_INTERFACES(TVRInterface : BrenvikApp::MainWindowPluginInterface)

public:
  void addMenus(BrenvikApp::MainWindowMenuProvider* provider) override {
    calls << "addMenus";
    provider->pluginMenu->addAction(&welcome);
    provider->settingsMenu->addAction(&clearRegistry);
    provider->newMenu->addAction(&newProject);
    QMenu* const file = provider->fileMenu;
    const QList<QAction*> before = file->actions();
    file->insertAction(before.value(before.indexOf(provider->fileActions.value(2)) + 1),
                       &shapefile);
    const QList<QAction*> now = file->actions();
    QAction* const front = now.value(now.indexOf(provider->fileActions.value(3)) - 1);
    file->insertSeparator(front);
    file->insertActions(front, {&open, &save, &import});
  }
  void addFileTypes(BrenvikApp::FileTypeProvider* provider) override {
    calls << "addFileTypes";
    provider->addFileType("*.tvr", "TVR project", this, SLOT(load(const QString&)), 0);
  }
  QList<QToolBar*> addToolBars(QMainWindow* parent) override {
    calls << "addToolBars";
    bar = new QToolBar("Tevrane");
    bar->setObjectName("tvr_toolbar");
    parent->addToolBar(bar);
    return {bar};
  }
  QList<QDockWidget*> addDockingWindows(QMainWindow* parent) override {
    calls << "addDockingWindows";
    dock = new QDockWidget("Tevrane");
    dock->setObjectName("tvr_dock");
    parent->addDockWidget(Qt::LeftDockWidgetArea, dock);
    return {dock};
  }
  void connectPlugin(QWidget* widget) override {
    calls << "connectPlugin";
    connect(this, SIGNAL(addWindowToWorkspace(BrenvikApp::WorkspaceWindow*)), widget,
            SLOT(addWindowToWorkspace(BrenvikApp::WorkspaceWindow*)));
  }
  QString pluginType() override { return "TVR"; }
  QList<QAction*> pluginActions() override { return {}; }
  void readyToClose(bool& ok) override {
    calls << "readyToClose";
    ok = ok && letsClose;
  }
  void workspaceWindowActivated(QWidget* widget) override { note("activated", widget); }
  void triggerChangesOfWindow(QWidget* widget) override { note("trigger", widget); }
  void updateMenuForCurrentWindow(QWidget* widget) override { note("menu", widget); }
  void setAppInterface(BrenvikApp::ApplicationInterface* newHost) override {
    host = newHost;
    calls << (host ? "setAppInterface" : "setAppInterface null");
  }
  void setPluginDataAndLibPath(const QString&) override {}
  void updateLanguage(const QString& language) override { calls << "updateLanguage " + language; }
  void updatePlugin() override { calls << "updatePlugin"; }
  QString created(int) override { return "<tr><td>built</td><td>today</td></tr>"; }
  void openWelcomeWindow() override { calls << "openWelcomeWindow"; }
  QString language() override { return "en"; }
  void computeInput(const QString&, bool) override {}
  QString copyright() override { return "<p>the notice</p>"; }
  void cancelSimulation() override { calls << "cancelSimulation"; }

  void offer(BrenvikApp::WorkspaceWindow* window) { emit addWindowToWorkspace(window); }

  QStringList calls;
  bool letsClose = true;
  BrenvikApp::ApplicationInterface* host = nullptr;
  QToolBar* bar = nullptr;
  QDockWidget* dock = nullptr;
  FakeDocument* document = nullptr; ///< a child, once a test makes it
  FakeRun* run = new FakeRun(calls, this);

  QAction welcome{"welcome"}, clearRegistry{"clear"}, newProject{"new"}, open{"open &Project"},
      save{"save"}, import{"import"}, shapefile{"to &Shapefile"};

signals:
  void addWindowToWorkspace(BrenvikApp::WorkspaceWindow* window);

public slots:
  void load(const QString& file) { calls << "load " + file; }
  void startSimulation() { calls << "startSimulation"; }
  void dxfFileExport() { calls << "dxfFileExport"; }
  void dxfDrawingExport() { calls << "dxfDrawingExport"; }

protected slots:
  void setLanguage(const QString& language, bool) { calls << "setLanguage " + language; }

private slots:
  void firstApplicationStart() { calls << "firstApplicationStart"; }

private:
  void note(const QString& call, const QWidget* widget) {
    calls << call + ' ' + (widget ? widget->windowTitle() : "none");
  }
};
