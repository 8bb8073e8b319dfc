#include "desktop/MainWindowTest.h"

#include <QGuiApplication>
#include <QScreen>

namespace TVR::Desktop {
namespace {

class WindowMemoryTest : public MainWindowTest {
protected:
  /// Ends the program and starts it again.
  void startAgain() {
    window->close();
    window.reset();
    window = std::make_unique<MainWindow>(plugin);
    start();
  }
};

TEST_F(WindowMemoryTest, theFirstWindowFitsTheScreen) {
  start();
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  EXPECT_LE(window->width(), screen.width());
  EXPECT_LE(window->height(), screen.height());
}

TEST_F(WindowMemoryTest, theWindowComesBackWhereItWas) {
  start();
  window->setGeometry(60, 70, 640, 480);
  QApplication::processEvents();
  startAgain();
  EXPECT_EQ(window->geometry(), QRect(60, 70, 640, 480));
}

TEST_F(WindowMemoryTest, toolBarsAndDocksComeBackAsTheyWere) {
  start();
  plugin.bar->hide();
  window->addDockWidget(Qt::RightDockWidgetArea, plugin.dock);
  startAgain();
  EXPECT_TRUE(plugin.bar->isHidden());
  EXPECT_FALSE(action("tool_bar")->isChecked());
  EXPECT_EQ(window->dockWidgetArea(plugin.dock), Qt::RightDockWidgetArea);
}

TEST_F(WindowMemoryTest, theZoomOfAPageComesBack) {
  start();
  addPage();
  action("page_width")->trigger();
  startAgain();
  EXPECT_EQ(addPage()->fit(), Page::PageWindow::Fit::Width);
}

TEST_F(WindowMemoryTest, aScaleOfAPageComesBack) {
  start();
  addPage()->showScale(3.5);
  startAgain();
  EXPECT_EQ(addPage()->view().scale, 3.5);
}

TEST_F(WindowMemoryTest, aPageThatIsOpenedAgainIsShownAsTheOneThatWasClosed) {
  start();
  addPage();
  action("page_width")->trigger();
  action("close_window")->trigger();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(addPage()->fit(), Page::PageWindow::Fit::Width);
}

TEST_F(WindowMemoryTest, anUnreadableMemoryLeavesTheWholePage) {
  SettingsOfTheTest::current().setValue("window/zoom", "nonsense");
  SettingsOfTheTest::current().setValue("window/geometry", "nonsense");
  start();
  EXPECT_EQ(addPage()->fit(), Page::PageWindow::Fit::Sheet);
  EXPECT_GT(window->width(), 300);
}

} // namespace
} // namespace TVR::Desktop
