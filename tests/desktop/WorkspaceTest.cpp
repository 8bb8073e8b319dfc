#include "desktop/MainWindowTest.h"

#include <QAccessible>
#include <QPointer>
#include <QTabBar>

namespace TVR::Desktop {
namespace {

class WorkspaceTest : public MainWindowTest {
protected:
  void clickCloseButton(int index) {
    QTabBar* const tabs = workspace().tabBar();
    QWidget* const button = tabs->tabButton(index, QTabBar::RightSide);
    QTest::mouseClick(button, Qt::LeftButton);
  }
};

TEST_F(WorkspaceTest, aWindowOfThePluginBecomesTheActiveTab) {
  start();
  FakeWindow* const first = addWindow("first");
  FakeWindow* const second = addWindow("second");
  EXPECT_EQ(workspace().tabText(0), "first");
  EXPECT_EQ(workspace().currentWidget(), second);
  EXPECT_EQ(plugin.host->currentWorkspaceWindow(), second);
  EXPECT_EQ(plugin.host->workspaceWindows(), (QList<QWidget*>{first, second}));
}

TEST_F(WorkspaceTest, aWindowThatIsThereIsActivatedAgain) {
  start();
  FakeWindow* const first = addWindow("first");
  addWindow("second");
  plugin.offer(first);
  EXPECT_EQ(workspace().count(), 2);
  EXPECT_EQ(workspace().currentWidget(), first);
}

TEST_F(WorkspaceTest, thePluginIsToldOfTheActiveWindow) {
  start();
  addWindow("first");
  EXPECT_EQ(plugin.calls, (QStringList{"activated first", "trigger first", "menu first"}));
  addWindow("second");
  plugin.calls.clear();
  workspace().setCurrentIndex(0);
  EXPECT_EQ(plugin.calls, (QStringList{"activated first", "trigger first", "menu first"}));
}

TEST_F(WorkspaceTest, thePluginIsToldThatNoWindowIsLeft) {
  start();
  addWindow("only");
  plugin.calls.clear();
  clickCloseButton(0);
  EXPECT_EQ(plugin.calls, (QStringList{"activated none", "trigger none", "menu none"}));
  EXPECT_FALSE(plugin.host->currentWorkspaceWindow());
}

TEST_F(WorkspaceTest, aClosedWindowIsDeleted) {
  start();
  const QPointer<FakeWindow> closed = addWindow("first");
  FakeWindow* const kept = addWindow("second");
  clickCloseButton(0);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(closed);
  EXPECT_EQ(plugin.host->workspaceWindows(), QList<QWidget*>{kept});
}

TEST_F(WorkspaceTest, theCloseKeyClosesTheActiveWindow) {
  start();
  addWindow("first");
  addWindow("second");
  QTest::keyClick(window.get(), Qt::Key_W, Qt::ControlModifier);
  ASSERT_EQ(workspace().count(), 1);
  EXPECT_EQ(workspace().tabText(0), "first");
}

TEST_F(WorkspaceTest, theNextWindowAfterTheLastIsTheFirst) {
  start();
  for (const char* title : {"a", "b", "c"})
    addWindow(title);
  action("next_window")->trigger();
  EXPECT_EQ(workspace().currentIndex(), 0);
  action("previous_window")->trigger();
  EXPECT_EQ(workspace().currentIndex(), 2);
}

TEST_F(WorkspaceTest, tabsCanBeMoved) {
  start();
  addWindow("a");
  addWindow("b");
  EXPECT_TRUE(workspace().isMovable());
  workspace().tabBar()->moveTab(0, 1);
  EXPECT_EQ(plugin.host->workspaceWindows()[1]->windowTitle(), "a");
}

TEST_F(WorkspaceTest, aTabShowsTheTitleOfItsWindowAsItChanges) {
  start();
  FakeWindow* const added = addWindow("before");
  added->setWindowTitle("Well & aquifer");
  EXPECT_EQ(workspace().tabText(0), "Well && aquifer");
}

TEST_F(WorkspaceTest, aPageWithUnsavedChangesIsClosedOnlyOnDemand) {
  startWithDocument();
  addPage();
  plugin.document->become("", "", true);
  messenger.yes = false;
  clickCloseButton(0);
  EXPECT_EQ(workspace().count(), 1);
  EXPECT_EQ(messenger.questions,
            QStringList{"Tevrane: The project's results are on this page. Close it?"});
  messenger.yes = true;
  clickCloseButton(0);
  EXPECT_EQ(workspace().count(), 0);
}

TEST_F(WorkspaceTest, aPageThatAProjectIsSavedWithIsNotClosedUnasked) {
  startWithDocument();
  addPage();
  plugin.document->become("", "/home/x/plan.tvr", false);
  messenger.yes = false;
  clickCloseButton(0);
  EXPECT_EQ(workspace().count(), 1);
  EXPECT_EQ(messenger.questions.size(), 1);
}

TEST_F(WorkspaceTest, aPageIsNotClosedUnaskedWhileARunFillsIt) {
  start();
  addPage();
  plugin.run->become(true);
  messenger.yes = false;
  clickCloseButton(0);
  EXPECT_EQ(workspace().count(), 1);
}

TEST_F(WorkspaceTest, whatCanBeMadeAgainIsClosedWithoutAQuestion) {
  startWithDocument();
  addPage();
  clickCloseButton(0);
  plugin.document->become("", "", true);
  addWindow("Welcome");
  clickCloseButton(0);
  EXPECT_EQ(workspace().count(), 0);
  EXPECT_TRUE(messenger.questions.isEmpty());
}

TEST_F(WorkspaceTest, aPageThatThePluginAsksForAgainIsShown) {
  start();
  Page::PageWindow* const page = addPage();
  addWindow("Welcome");
  EXPECT_EQ(addPage(), page);
  EXPECT_EQ(workspace().currentWidget(), page);
}

TEST_F(WorkspaceTest, itsFaceForAssistiveTechnologyGoesWithIt) {
  start();
  const QAccessible::Id face =
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&workspace()));
  ASSERT_TRUE(QAccessible::accessibleInterface(face));
  window.reset();
  // One that stayed would be taken for the face of whatever comes to stand at the same address.
  EXPECT_FALSE(QAccessible::accessibleInterface(face));
}

} // namespace
} // namespace TVR::Desktop
