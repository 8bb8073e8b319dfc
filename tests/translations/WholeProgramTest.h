#pragma once

#include "desktop/MainWindow.h"
#include "desktop/WindowMemory.h"
#include "messages/Messenger.h"
#include "page/window/PageWindow.h"
#include "plugin/TVRPlugin.h"
#include "simulation/Simulation.h"
#include "support/EventWait.h"
#include "support/ProjectTest.h"
#include "support/SettingsOfTheTest.h"

#include <QApplication>

#include <memory>

/// The program's window with the plug-in in it, in English, as it is after the start.
class WholeProgramTest : public ProjectTest {
protected:
  WholeProgramTest() {
    SettingsOfTheTest::chooseLanguage("en");
    TVR::Desktop::WindowMemory::isFirstStart(); // from here on it is not
    plugin = std::make_unique<TVR::TVRPlugin>();
    window = std::make_unique<TVR::Desktop::MainWindow>(*plugin);
    window->start();
    window->show();
    QApplication::setActiveWindow(window.get());
  }

  /// Runs a small project; its page is then the current window.
  void runToPage() {
    read(BatchProject::doublet());
    store.setValue(TVR::Parameter::MinElementLength, 8.0);
    store.setValue(TVR::Parameter::BatchOutputFile, "");
    plugin->startSimulation();
    ASSERT_TRUE(waitUntil([&] { return !plugin->simulationRun().simulation(); }));
    ASSERT_TRUE(page());
  }
  TVR::Page::PageWindow* page() const { return window->findChild<TVR::Page::PageWindow*>(); }

  /// Lets the program take in that the language has changed.
  static void takeIn() {
    for (int round = 0; round < 3; ++round) {
      QApplication::sendPostedEvents();
      QApplication::processEvents();
    }
  }
  void choose(const char* slot) {
    ASSERT_TRUE(QMetaObject::invokeMethod(plugin.get(), slot));
    takeIn();
  }

  const SettingsOfTheTest settings;
  std::unique_ptr<TVR::TVRPlugin> plugin;
  std::unique_ptr<TVR::Desktop::MainWindow> window;
};
