#include "desktop/AboutDialog.h"
#include "desktop/GuideWindow.h"
#include "desktop/LogKeeper.h"
#include "desktop/MainWindowTest.h"
#include "desktop/ProblemReport.h"
#include "support/MessageLog.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBrowser>

namespace TVR::Desktop {
namespace {

class HelpTest : public MainWindowTest {
protected:
  void write(const QString& name, const QByteArray& text) {
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
};

TEST_F(HelpTest, aReportOfAProblemHoldsVersionsSystemAndLog) {
  const MessageLog terminal;
  const LogKeeper keeper;
  qWarning("something odd");
  const QString report = ProblemReport::text();
  EXPECT_TRUE(report.startsWith("Tevrane " TEVRANE_VERSION "\nQt " QT_VERSION_STR));
  EXPECT_TRUE(report.contains("System: " + QSysInfo::prettyProductName()));
  EXPECT_TRUE(report.contains("something odd"));
}

TEST_F(HelpTest, theReportCanBeCopied) {
  ProblemReport dialog;
  QTest::mouseClick(dialog.findChild<QPushButton*>("copy_report"), Qt::LeftButton);
  EXPECT_EQ(QApplication::clipboard()->text(),
            dialog.findChild<QPlainTextEdit*>("report")->toPlainText());
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Tevrane"));
}

TEST_F(HelpTest, aboutShowsVersionNoticeAndBuild) {
  const AboutDialog dialog("<p>the notice</p>", "<tr><td>built</td><td>today</td></tr>");
  const QString text = dialog.findChild<QTextBrowser*>("about")->toPlainText();
  EXPECT_TRUE(text.startsWith("Tevrane " TEVRANE_VERSION));
  EXPECT_TRUE(text.contains("the notice"));
  EXPECT_TRUE(text.contains("built"));
}

TEST_F(HelpTest, theAboutCommandAsksThePluginForItsNotice) {
  start();
  QString text;
  QTimer::singleShot(0, window.get(), [&] {
    QWidget* const dialog = QApplication::activeModalWidget();
    ASSERT_TRUE(dialog);
    text = dialog->findChild<QTextBrowser*>("about")->toPlainText();
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  action("about")->trigger();
  EXPECT_TRUE(text.contains("the notice"));
  EXPECT_TRUE(text.contains("today"));
}

TEST_F(HelpTest, theGuideShowsItsFirstPageAndFollowsLinks) {
  write("index.md", "# Guide\n\n[Wells](wells.md)\n");
  write("wells.md", "# About wells\n");
  GuideWindow guide(directory.path());
  auto* const browser = guide.findChild<QTextBrowser*>("guide");
  EXPECT_EQ(browser->toPlainText().section('\n', 0, 0), "Guide");
  browser->setSource(QUrl("wells.md"));
  EXPECT_EQ(browser->toPlainText(), "About wells");
  browser->backward();
  EXPECT_EQ(browser->toPlainText().section('\n', 0, 0), "Guide");
}

TEST_F(HelpTest, theGuideStaysOnItsPageInAnotherLanguage) {
  write("en/index.md", "# Guide\n");
  write("en/wells.md", "# About wells\n");
  write("en/more.md", "# More\n");
  write("de/index.md", "# Anleitung\n");
  write("de/wells.md", "# Von Brunnen\n");
  GuideWindow guide(path("en"));
  auto* const browser = guide.findChild<QTextBrowser*>("guide");
  browser->setSource(QUrl("wells.md"));
  guide.retranslate(path("de"));
  EXPECT_EQ(browser->toPlainText(), "Von Brunnen");
  browser->backward();
  EXPECT_EQ(browser->toPlainText(), "Anleitung");
  EXPECT_FALSE(browser->isBackwardAvailable());
  guide.retranslate(path("en"));
  browser->setSource(QUrl("more.md"));
  guide.retranslate(path("de"));
  EXPECT_EQ(browser->toPlainText(), "Anleitung") << "there is no such page";
}

TEST_F(HelpTest, aMissingGuideIsTold) {
  const GuideWindow guide(path("guide"));
  EXPECT_TRUE(guide.findChild<QTextBrowser*>("guide")->toPlainText().startsWith(
      "The user guide is missing: there is no " + path("guide/index.md")));
}

TEST_F(HelpTest, theGuideKeyOpensOneWindowOfIt) {
  start();
  QTest::keyClick(window.get(), Qt::Key_F1);
  action("guide")->trigger();
  EXPECT_EQ(window->findChildren<GuideWindow*>().size(), 1);
  EXPECT_TRUE(window->findChild<GuideWindow*>()->isVisible());
}

} // namespace
} // namespace TVR::Desktop
