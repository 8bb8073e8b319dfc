#include "desktop/MainWindowTest.h"

#include <QSet>

namespace TVR::Desktop {
namespace {

using HostActionsTest = MainWindowTest;

TEST_F(HostActionsTest, eachHasATextATipAndAKeyOfItsOwn) {
  const HostActions actions;
  QSet<QString> texts, keys;
  for (int i = 0; i < static_cast<int>(Command::Count); ++i) {
    const QAction* const action = actions[static_cast<Command>(i)];
    const QString name = action->objectName();
    EXPECT_FALSE(name.isEmpty()) << i;
    EXPECT_FALSE(action->statusTip().isEmpty()) << name.toStdString();
    EXPECT_FALSE(texts.contains(action->text())) << name.toStdString();
    texts.insert(action->text());
    const QString key = action->shortcut().toString();
    EXPECT_TRUE(key.isEmpty() || !keys.contains(key)) << name.toStdString();
    keys.insert(key);
  }
}

TEST_F(HostActionsTest, haveTheKeysThatUsersKnow) {
  const HostActions actions;
  const auto key = [&](Command command) { return actions[command]->shortcut().toString(); };
  EXPECT_EQ(key(Command::Save), "Ctrl+S");
  EXPECT_EQ(key(Command::Print), "Ctrl+P");
  EXPECT_EQ(key(Command::CloseWindow), "Ctrl+W");
  EXPECT_EQ(key(Command::Quit), "Ctrl+Q");
  EXPECT_EQ(key(Command::ZoomIn), "Ctrl++");
  EXPECT_EQ(key(Command::ZoomOut), "Ctrl+-");
  EXPECT_EQ(key(Command::FullScreen), "F11");
  EXPECT_EQ(key(Command::Run), "Ctrl+R");
  EXPECT_EQ(key(Command::Guide), "F1");
}

TEST_F(HostActionsTest, whatNeedsAPageWaitsForOne) {
  start();
  const char* const ofPages[] = {"export_pdf",     "export_png", "export_svg",    "export_isolines",
                                 "export_drawing", "page_setup", "print_preview", "print",
                                 "copy_page",      "zoom_in",    "zoom_out",      "whole_page",
                                 "page_width",     "actual_size"};
  addWindow("Welcome");
  for (const char* name : ofPages)
    EXPECT_FALSE(action(name)->isEnabled()) << name;
  addPage();
  for (const char* name : ofPages)
    EXPECT_TRUE(action(name)->isEnabled()) << name;
}

TEST_F(HostActionsTest, whatNeedsWindowsWaitsForThem) {
  start();
  EXPECT_FALSE(action("close_window")->isEnabled());
  addWindow("one");
  EXPECT_TRUE(action("close_window")->isEnabled());
  EXPECT_FALSE(action("next_window")->isEnabled());
  addWindow("two");
  EXPECT_TRUE(action("next_window")->isEnabled());
  EXPECT_TRUE(action("previous_window")->isEnabled());
}

TEST_F(HostActionsTest, thereIsNothingToSaveWithoutAProject) {
  start();
  EXPECT_FALSE(action("save")->isEnabled());
}

TEST_F(HostActionsTest, theSaveKeySavesTheProject) {
  startWithDocument();
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(plugin.calls, QStringList{"saveChanges"});
}

TEST_F(HostActionsTest, theRunKeyStartsASimulationUnlessOneRuns) {
  start();
  QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(plugin.calls, QStringList{"startSimulation"});
  EXPECT_FALSE(action("cancel_run")->isEnabled());
  plugin.run->become(true);
  EXPECT_FALSE(action("run")->isEnabled());
  EXPECT_TRUE(action("cancel_run")->isEnabled());
}

TEST_F(HostActionsTest, aRunCanBeCancelledFromTheMenu) {
  start();
  plugin.run->become(true);
  action("cancel_run")->trigger();
  EXPECT_EQ(plugin.calls, QStringList{"cancelSimulation"});
}

TEST_F(HostActionsTest, theDrawingsAreLeftToThePlugin) {
  start();
  addPage();
  plugin.calls.clear();
  action("export_isolines")->trigger();
  action("export_drawing")->trigger();
  EXPECT_EQ(plugin.calls, (QStringList{"dxfFileExport", "dxfDrawingExport"}));
}

TEST_F(HostActionsTest, theToolBarIsSwitchedOffAndOn) {
  start();
  EXPECT_TRUE(action("tool_bar")->isChecked());
  action("tool_bar")->trigger();
  EXPECT_TRUE(plugin.bar->isHidden());
  EXPECT_FALSE(action("tool_bar")->isChecked());
  action("tool_bar")->trigger();
  EXPECT_FALSE(plugin.bar->isHidden());
}

TEST_F(HostActionsTest, aDockThatTheUserClosesIsSwitchedOffInTheMenu) {
  start();
  plugin.dock->close();
  EXPECT_FALSE(action("dock")->isChecked());
  action("dock")->trigger();
  EXPECT_FALSE(plugin.dock->isHidden());
}

TEST_F(HostActionsTest, theWindowFillsTheScreenAndComesBack) {
  start();
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_TRUE(window->isFullScreen());
  EXPECT_TRUE(action("full_screen")->isChecked());
  QTest::keyClick(window.get(), Qt::Key_F11);
  EXPECT_FALSE(window->isFullScreen());
}

TEST_F(HostActionsTest, theDesktopFillsTheScreenToo) {
  start();
  window->showFullScreen();
  QApplication::processEvents();
  EXPECT_TRUE(action("full_screen")->isChecked());
}

TEST_F(HostActionsTest, quitClosesTheWindow) {
  start();
  QSignalSpy closed(window.get(), &MainWindow::closed);
  QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(closed.count(), 1);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(HostActionsTest, escapeClosesNothing) {
  start();
  Page::PageWindow* const page = addPage();
  for (QWidget* target : {static_cast<QWidget*>(window.get()), static_cast<QWidget*>(page),
                          static_cast<QWidget*>(plugin.dock)})
    QTest::keyClick(target, Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(plugin.dock->isVisible());
  EXPECT_EQ(workspace().count(), 1);
}

} // namespace
} // namespace TVR::Desktop
