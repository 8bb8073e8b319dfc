#include "desktop/RunStatus.h"

#include "desktop/MainWindowTest.h"
#include "desktop/PageCoordinates.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

namespace TVR::Desktop {
namespace {

class RunStatusTest : public MainWindowTest {
protected:
  RunStatusTest() { start(); }
  template <typename Widget>
  Widget& part(const char* name) {
    return *window->statusBar()->findChild<Widget*>(name);
  }
  bool isShown() { return part<QProgressBar>("run_progress").isVisible(); }
};

TEST_F(RunStatusTest, isSeenWhileARunIsOn) {
  EXPECT_FALSE(isShown());
  plugin.run->become(true);
  EXPECT_TRUE(isShown());
  plugin.run->become(false);
  EXPECT_FALSE(isShown());
}

TEST_F(RunStatusTest, isBusyUntilTheFirstStepIsDone) {
  plugin.run->become(true);
  EXPECT_EQ(part<QProgressBar>("run_progress").maximum(), 0);
  plugin.host->setProgress(3, 12);
  EXPECT_EQ(part<QProgressBar>("run_progress").maximum(), 12);
  EXPECT_EQ(part<QProgressBar>("run_progress").value(), 3);
}

TEST_F(RunStatusTest, progressThatIsNoPartOfAWholeChangesNothing) {
  plugin.run->become(true);
  plugin.host->setProgress(3, 12);
  plugin.host->setProgress(31, 30);
  plugin.host->setProgress(-1, 20);
  EXPECT_EQ(part<QProgressBar>("run_progress").maximum(), 12);
  EXPECT_EQ(part<QProgressBar>("run_progress").value(), 3);
}

TEST_F(RunStatusTest, progressWithoutARunShowsNothing) {
  plugin.host->setProgress(3, 12);
  EXPECT_FALSE(isShown());
}

TEST_F(RunStatusTest, theRestTakesAsLongForEachStepAsThoseThatAreDone) {
  EXPECT_EQ(RunStatus::remainingSeconds(3, 12, 6000), 18);
  EXPECT_EQ(RunStatus::remainingSeconds(12, 12, 6000), 0);
  EXPECT_EQ(RunStatus::remainingSeconds(0, 12, 6000), -1);
}

TEST_F(RunStatusTest, theTimeLeftIsToldInSecondsAndThenInMinutes) {
  EXPECT_EQ(RunStatus::remainingText(-1), "");
  EXPECT_EQ(RunStatus::remainingText(0), "0 s left");
  EXPECT_EQ(RunStatus::remainingText(59), "59 s left");
  EXPECT_EQ(RunStatus::remainingText(60), "1 min left");
  EXPECT_EQ(RunStatus::remainingText(150), "3 min left");
}

TEST_F(RunStatusTest, aStepTellsTheTimeThatIsLeft) {
  plugin.run->become(true);
  plugin.host->setProgress(12, 12);
  EXPECT_EQ(part<QLabel>("run_remaining").text(), "0 s left");
}

TEST_F(RunStatusTest, theButtonCancelsTheRun) {
  plugin.run->become(true);
  QTest::mouseClick(&part<QToolButton>("run_cancel"), Qt::LeftButton);
  EXPECT_EQ(plugin.calls, QStringList{"cancelSimulation"});
}

TEST_F(RunStatusTest, messagesOfThePluginStandInTheStatusBar) {
  plugin.host->showStatusMessage("Using 10 nodes ...", 1000);
  EXPECT_EQ(window->statusBar()->currentMessage(), "Using 10 nodes ...");
}

TEST_F(RunStatusTest, thePlaceOfTheMouseOnTheMapStandsInTheStatusBar) {
  auto* const coordinates = window->statusBar()->findChild<PageCoordinates*>();
  Page::PageWindow* const page = addPage();
  emit page->currentCoordinates(2600123.456, 1200045, QEvent::MouseMove, Qt::NoButton);
  EXPECT_EQ(coordinates->text(), "X 2600123.46   Y 1200045.00");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(page, &leave);
  EXPECT_EQ(coordinates->text(), "");
}

TEST_F(RunStatusTest, theCoordinatesGoWithTheirPage) {
  auto* const coordinates = window->statusBar()->findChild<PageCoordinates*>();
  Page::PageWindow* const page = addPage();
  emit page->currentCoordinates(1, 2, QEvent::MouseMove, Qt::NoButton);
  addWindow("Welcome");
  EXPECT_EQ(coordinates->text(), "");
  emit page->currentCoordinates(1, 2, QEvent::MouseMove, Qt::NoButton);
  EXPECT_EQ(coordinates->text(), "");
}

} // namespace
} // namespace TVR::Desktop
