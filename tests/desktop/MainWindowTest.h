#pragma once

#include "desktop/FakePlugin.h"
#include "desktop/HostActions.h"
#include "desktop/MainWindow.h"
#include "desktop/WindowMemory.h"
#include "desktop/Workspace.h"
#include "messages/Messenger.h"
#include "page/window/PageWindow.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestDirectory.h"
#include "support/TestMessenger.h"

#include <QApplication>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

namespace TVR::Desktop {

/// The main window with a plug-in that notes its calls, as the user has it after a start.
class MainWindowTest : public testing::Test, protected TestDirectory {
protected:
  MainWindowTest() {
    setMessenger(&messenger);
    WindowMemory::isFirstStart(); // from here on it is not
    window = std::make_unique<MainWindow>(plugin);
  }
  ~MainWindowTest() override { setMessenger(nullptr); }

  void start() {
    window->start();
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
    plugin.calls.clear();
  }
  void startWithDocument() {
    plugin.document = new FakeDocument(plugin.calls, &plugin);
    start();
  }

  QAction* action(const char* name) const { return window->findChild<QAction*>(name); }
  Workspace& workspace() const { return *window->findChild<Workspace*>(); }
  FakeWindow* addWindow(const QString& title) {
    auto* added = new FakeWindow(title);
    plugin.offer(added);
    return added;
  }
  /// A page of the graphics library, as the plug-in gets it.
  Page::PageWindow* addPage() {
    auto* library =
        qobject_cast<Sketra_lib::GraphicsInterface*>(plugin.host->pluginByName("Sketra_lib"));
    return dynamic_cast<Page::PageWindow*>(library->graphicsWindow("", true));
  }

  const SettingsOfTheTest settings;
  TestMessenger messenger;
  FakePlugin plugin;
  std::unique_ptr<MainWindow> window;
};

} // namespace TVR::Desktop
