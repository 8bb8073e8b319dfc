#include "plugin/PluginTest.h"

#include <QDir>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

using BatchEntryTest = PluginTest;

} // namespace

TEST_F(BatchEntryTest, anInputThatIsNoBatchGoesToTheVirtualLoad) {
  LoadingPlugin plugin;
  store.setValue(ProjectName, "before");
  plugin.computeInput(path("does not exist.tbat"), false);
  EXPECT_EQ(plugin.loaded, QStringList{path("does not exist.tbat")});
  EXPECT_FALSE(plugin.isBatch());
  EXPECT_EQ(store.value(ProjectName), QVariant("before")) << "the batch reader would have reset it";
}

TEST_F(BatchEntryTest, theBatchArgumentIsFalseWhenLeftOut) {
  LoadingPlugin plugin;
  ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "computeInput", Q_ARG(QString, "a.tbat")));
  EXPECT_EQ(plugin.loaded, QStringList{"a.tbat"});
}

TEST_F(BatchEntryTest, aRefusedBatchFileLeavesTheBatchFlagAndRunsNothing) {
  LoadingPlugin plugin;
  ASSERT_TRUE(BatchProject::doublet().write(path("project.txt")));
  plugin.computeInput(path("project.txt"), true);
  EXPECT_TRUE(plugin.isBatch());
  EXPECT_TRUE(plugin.simulationRun().outputTimes().times.empty());
  EXPECT_TRUE(plugin.loaded.isEmpty());
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files), QStringList{"project.txt"});
}

TEST_F(BatchEntryTest, aBatchFileIsSimulatedOnTheCallersThread) {
  LoadingPlugin plugin;
  ASSERT_TRUE(BatchProject::doublet().set("main", "simulation_time", 1).write(path("p.tbat")));
  plugin.computeInput(path("p.tbat"), true);
  EXPECT_TRUE(plugin.loaded.isEmpty());
  EXPECT_TRUE(plugin.isBatch());
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(contentOf(path("p.out")).startsWith("Time [s]\tTime [a]\tPump\tReturn\t\n"));
}

TEST_F(BatchEntryTest, aLaterInputThatIsNoBatchLowersTheFlag) {
  LoadingPlugin plugin;
  plugin.computeInput(path("nothing.txt"), true);
  plugin.computeInput(path("nothing.txt"), false);
  EXPECT_FALSE(plugin.isBatch());
}

TEST_F(BatchEntryTest, aBatchTellsTheHostNothing) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  ASSERT_TRUE(BatchProject::doublet().set("main", "simulation_time", 1).write(path("p.tbat")));
  plugin.computeInput(path("p.tbat"), true);
  EXPECT_TRUE(host.status.isEmpty());
  EXPECT_TRUE(host.progress.isEmpty());
}
