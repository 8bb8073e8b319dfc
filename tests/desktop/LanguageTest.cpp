#include "desktop/GuideWindow.h"
#include "desktop/MainWindowTest.h"
#include "support/EventWait.h"

#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>

namespace TVR::Desktop {
namespace {

/// Puts brackets around every text.
class Brackets final : public QTranslator {
public:
  QString translate(const char*, const char* source, const char*, int) const override {
    return '[' + QString(source) + ']';
  }
  bool isEmpty() const override { return false; }
};

class LanguageTest : public MainWindowTest {
protected:
  ~LanguageTest() override { QCoreApplication::removeTranslator(&brackets); }
  void speakBrackets() {
    QCoreApplication::installTranslator(&brackets);
    plugin.host->setHostLanguage("de");
    waitUntil([this] { return !plugin.calls.isEmpty(); });
  }
  Brackets brackets;
};

TEST_F(LanguageTest, thePluginRetranslatesItselfOnceTheLanguageIsInPlace) {
  start();
  plugin.host->setHostLanguage("de");
  EXPECT_TRUE(plugin.calls.isEmpty()) << "its translations are not loaded yet";
  plugin.host->setHostLanguage("de");
  speakBrackets();
  QApplication::processEvents();
  EXPECT_EQ(plugin.calls, QStringList{"updateLanguage de"});
}

TEST_F(LanguageTest, theHostsOwnTextsFollow) {
  start();
  plugin.run->become(true);
  speakBrackets();
  EXPECT_EQ(window->menuBar()->actions().first()->text(), "[&File]");
  EXPECT_EQ(action("print")->text(), "[Pr&int...]");
  EXPECT_EQ(action("print")->statusTip(), "[Prints the page]");
  EXPECT_EQ(window->windowTitle(), "[Untitled][*] - Tevrane");
  EXPECT_EQ(window->findChild<QToolButton*>("run_cancel")->toolTip(), "[Cancel the simulation]");
}

TEST_F(LanguageTest, theOpenGuideFollows) {
  start();
  action("guide")->trigger();
  speakBrackets();
  auto* const guide = window->findChild<GuideWindow*>();
  EXPECT_EQ(guide->windowTitle(), "[User Guide]");
  for (const QAction* step : guide->findChild<QToolBar*>()->actions())
    EXPECT_TRUE(step->text().startsWith('[')) << step->text().toStdString();
}

TEST_F(LanguageTest, noEnglishIsLeftInAnyMenu) {
  start();
  addPage();
  speakBrackets();
  for (const QAction* own : window->findChildren<QAction*>()) {
    if (own->objectName().isEmpty() || own->objectName().startsWith("qt_"))
      continue;
    EXPECT_TRUE(own->text().startsWith('[')) << own->text().toStdString();
  }
  for (const QAction* title : window->menuBar()->actions())
    EXPECT_TRUE(title->text().startsWith('[')) << title->text().toStdString();
}

} // namespace
} // namespace TVR::Desktop
