#pragma once

#include "plugin/AppInterface.h"
#include "plugin/TVRPlugin.h"
#include "plugin/TestHost.h"
#include "simulation/Simulation.h"
#include "support/EventWait.h"
#include "support/MessageLog.h"
#include "support/ProjectTest.h"

/// Notes what it is asked to load instead of loading it.
class LoadingPlugin final : public TVR::TVRPlugin {
public:
  using TVR::TVRPlugin::load;
  void load(const QString& name) override { loaded << name; }
  QStringList loaded;
};

/// A test of the plug-in object; leaves no host behind.
class PluginTest : public ProjectTest {
protected:
  ~PluginTest() override {
    TVR::AppInterface::setApplicationInterface(nullptr);
    TVR::AppInterface::setGraphicsInterface(nullptr);
  }

  /// A project of wide cells in the store.
  void prepare(BatchProject project = BatchProject::doublet()) {
    read(project);
    store.setValue(TVR::Parameter::MinElementLength, 8.0);
    store.setValue(TVR::Parameter::BatchOutputFile, "");
  }

  /// A project file that is there but can't be read.
  QString damagedProject() const {
    QFile file(path("damaged.tvr"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)); // and is empty
    return file.fileName();
  }

  void startLongRun(TVR::TVRPlugin& plugin) {
    prepare(BatchProject::doublet().set("main", "simulation_time", 900));
    plugin.startSimulation();
    ASSERT_TRUE(plugin.running());
  }

  /// Starts the simulation and waits until it is over and released.
  void run(TVR::TVRPlugin& plugin) {
    plugin.startSimulation();
    EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
  }
};
