#include "desktop/MainWindowTest.h"

#include <QCloseEvent>

namespace TVR::Desktop {
namespace {

class ProjectTitleTest : public MainWindowTest {
protected:
  bool closes() { return window->close(); }
};

TEST_F(ProjectTitleTest, aProgramWithoutAProjectSaysSo) {
  start();
  EXPECT_EQ(window->windowTitle(), "Untitled[*] - Tevrane");
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(ProjectTitleTest, namesTheFileOrElseTheProject) {
  startWithDocument();
  plugin.document->become("School", "", false);
  EXPECT_EQ(window->windowTitle(), "School[*] - Tevrane");
  plugin.document->become("School", "/home/x/plan.tvr", false);
  EXPECT_EQ(window->windowTitle(), "plan.tvr[*] - Tevrane");
}

TEST_F(ProjectTitleTest, marksChanges) {
  startWithDocument();
  plugin.document->become("School", "", true);
  EXPECT_TRUE(window->isWindowModified());
  plugin.document->become("School", "", false);
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(ProjectTitleTest, aMarkInAProjectsNameStaysAsItIs) {
  startWithDocument();
  plugin.document->become("a[*]b", "", false);
  EXPECT_EQ(window->windowTitle(), "a[*][*]b[*] - Tevrane");
}

TEST_F(ProjectTitleTest, closingAsksAboutTheProjectAndThenAboutTheSettings) {
  startWithDocument();
  EXPECT_TRUE(closes());
  EXPECT_EQ(plugin.calls, (QStringList{"mayBeLeft", "readyToClose"}));
}

TEST_F(ProjectTitleTest, aProjectThatIsToStayKeepsTheWindowOpen) {
  startWithDocument();
  plugin.document->mayGo = false;
  EXPECT_FALSE(closes());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(plugin.calls, QStringList{"mayBeLeft"});
}

TEST_F(ProjectTitleTest, aPluginThatIsNotReadyKeepsTheWindowOpen) {
  start();
  plugin.letsClose = false;
  EXPECT_FALSE(closes());
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ProjectTitleTest, aRunIsNotEndedByClosingWithoutAQuestion) {
  startWithDocument();
  plugin.run->become(true);
  messenger.yes = false;
  EXPECT_FALSE(closes());
  EXPECT_EQ(messenger.questions,
            QStringList{"Tevrane: A simulation is running. Cancel it and close the program?"});
  EXPECT_TRUE(plugin.calls.isEmpty());
  messenger.yes = true;
  EXPECT_TRUE(closes());
}

TEST_F(ProjectTitleTest, aRunIsEndedBeforeItsResultsAreAskedAbout) {
  startWithDocument();
  for (const bool stopsAtOnce : {true, false}) {
    plugin.calls.clear();
    plugin.document->mayGo = false;
    plugin.run->stopsAtOnce = stopsAtOnce;
    plugin.run->become(true);
    EXPECT_FALSE(closes());
    EXPECT_EQ(plugin.calls, (QStringList{"stop", "mayBeLeft"}));
    EXPECT_FALSE(plugin.run->isRunning()) << "its last results are awaited";
  }
}

} // namespace
} // namespace TVR::Desktop
