#include "plugin/AutosavePluginTest.h"
#include "project/ProjectLimits.h"
#include "support/SmallDisk.h"

#include <QDir>

using namespace TVR;
using namespace TVR::Parameter;

using ProjectAutosaveTest = AutosavePluginTest;

TEST_F(ProjectAutosaveTest, aChangedProjectIsSavedAutomaticallyBesideItsFile) {
  const QString file = savedProject();
  const QByteArray before = contentOf(file);
  document().autosave().setInterval(std::chrono::milliseconds(1));
  store.setValue(GroundwaterGradient, 0.75);
  EXPECT_TRUE(waitUntil([&] { return QDir(AutosaveFolder::usualPlace()).exists(); }));
  EXPECT_EQ(contentOf(file), before);
  endWithoutNotice();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0]->note()->file, file);
  EXPECT_EQ(found[0]->note()->title, "Riverside");
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75"));
}

TEST_F(ProjectAutosaveTest, aProjectThatWasNeverSavedIsSavedAutomatically) {
  store.setValue(ProjectName, "Hill");
  EXPECT_TRUE(document().autosave().keepNow());
  endWithoutNotice();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0]->note()->file, QString());
  EXPECT_EQ(found[0]->note()->title, "Hill");
}

TEST_F(ProjectAutosaveTest, theAutosaveHasThePage) {
  savedProject();
  page.page = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\"/>";
  document().pageModified();
  EXPECT_TRUE(document().autosave().keepNow());
  endWithoutNotice();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("CanvasEx"));
}

TEST_F(ProjectAutosaveTest, aChangedProjectIsSavedAutomaticallyBeforeEachRun) {
  prepare();
  plugin.save(path("p.tvr"));
  store.setValue(GroundwaterGradient, 0.75);
  plugin.startSimulation();
  ASSERT_TRUE(plugin.running());
  EXPECT_EQ(QDir(AutosaveFolder::usualPlace()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(),
            1);
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
}

TEST_F(ProjectAutosaveTest, anUnchangedProjectIsNot) {
  savedProject();
  plugin.updateCurrentGraphicWindow();
  document().autosave().keepNow();
  EXPECT_FALSE(QDir(AutosaveFolder::usualPlace()).exists());
}

TEST_F(ProjectAutosaveTest, withoutAMainWindowNothingIsSavedAutomatically) {
  host.main = nullptr;
  plugin.setAppInterface(&host);
  prepare();
  document().autosave().setInterval(std::chrono::milliseconds(0));
  store.setValue(GroundwaterGradient, 0.75);
  run(plugin);
  plugin.runWithoutPage({});
  EXPECT_FALSE(QDir(AutosaveFolder::usualPlace()).exists());
}

TEST_F(ProjectAutosaveTest, aSavedProjectLeavesNoAutosave) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  document().autosave().keepNow();
  plugin.save(path("riverside.tvr"));
  endWithoutNotice();
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, aProjectThatIsPutBackLeavesNoAutosave) {
  savedProject();
  const QVariant before = store.value(ProjectName);
  store.setValue(ProjectName, "Hill");
  document().autosave().keepNow();
  store.setValue(ProjectName, before);
  endWithoutNotice();
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, aProjectThatIsLeftLeavesNoAutosave) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  document().autosave().keepNow();
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  endWithoutNotice();
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, discardedChangesAreAskedForOnceUntilThereAreOthers) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions.size(), 1);
  store.setValue(GroundwaterGradient, 0.5);
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions.size(), 2);
}

TEST_F(ProjectAutosaveTest, resultsThatAreDiscardedBeforeTheRunEndsLeaveNothing) {
  startLongRun(plugin);
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  plugin.simulationRun().stop();
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions.size(), 1);
  plugin.setAppInterface(nullptr);
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, theNextRunIsNoPartOfWhatWasDiscarded) {
  prepare();
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  run(plugin);
  plugin.setAppInterface(nullptr);
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectAutosaveTest, thePageThatABatchFileHasNoRoomForStaysKept) {
  read(BatchProject::doublet());
  document().pageModified();
  document().autosave().keepNow();
  plugin.save(path("p.tbat"));
  endWithoutNotice();
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectAutosaveTest, aProgramThatEndsInOrderLeavesNothing) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  document().autosave().keepNow();
  user.unsaved = Unsaved::Discard;
  document().mayBeLeft();
  plugin.setAppInterface(nullptr);
  EXPECT_EQ(QDir(AutosaveFolder::usualPlace()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
            QStringList());
}

TEST_F(ProjectAutosaveTest, aProgramThatEndsWithoutAQuestionLeavesTheLastState) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  page.page = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\"/>";
  plugin.setAppInterface(nullptr);
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75"));
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("CanvasEx"));
}

TEST_F(ProjectAutosaveTest, aFullDiskIsToldInTheStatusLineAndInNoBox) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  const SmallDisk disk(data_.path());
  if (!disk.isMounted)
    GTEST_SKIP() << "only the administrator can mount a file system";
  ASSERT_TRUE(document().autosave().keepNow());
  disk.fillBut(0);
  store.setValue(GroundwaterGradient, 0.5);
  host.status.clear();
  user.told.clear();
  EXPECT_FALSE(document().autosave().keepNow());
  EXPECT_EQ(host.status, QStringList(QStringLiteral("The project cannot be saved automatically in "
                                                    "%1. [10000]")
                                         .arg(AutosaveFolder::usualPlace())));
  EXPECT_EQ(user.told, QStringList());
  document().autosave().letGo();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75")) << "the older one is whole";
}

TEST_F(ProjectAutosaveTest, moreThanAFileHoldsIsToldInTheStatusLineAndInNoBox) {
  store.setStored(NumberOfWells, ProjectLimits::maxWells + 1);
  host.status.clear();
  user.told.clear();
  EXPECT_FALSE(document().autosave().keepNow());
  EXPECT_EQ(host.status.size(), 1);
  EXPECT_EQ(user.told, QStringList());
  store.reset();
}
