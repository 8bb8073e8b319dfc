#include "gui/WelcomeWindow.h"

#include "files/RecentProjects.h"
#include "support/ContextTranslator.h"
#include "support/ProjectTest.h"
#include "support/SettingsOfTheTest.h"

#include <QIcon>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class WelcomeWindowTest : public ProjectTest {
protected:
  ~WelcomeWindowTest() override { store.setValue(GuiLanguage, "en"); }

  WelcomeWindow& window() {
    if (!window_)
      window_ = std::make_unique<WelcomeWindow>("TVR: Welcome");
    return *window_;
  }
  template <typename Child>
  Child& child(const char* name) {
    auto* const found = window().findChild<Child*>(name);
    EXPECT_TRUE(found) << name;
    return *found;
  }
  QListWidget& list() { return child<QListWidget>("listOfProjects"); }
  QString information() { return child<QTextBrowser>("textBrowser").toPlainText(); }
  QStringList entries() {
    QStringList texts;
    for (int row = 0; row < list().count(); ++row)
      texts << list().item(row)->text();
    return texts;
  }
  void changeLanguage(const QString& language) {
    store.setValue(GuiLanguage, language);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&window(), &change);
  }
  static void rememberProjects(int count) {
    for (int i = 1; i <= count; ++i)
      addRecentProject({QString("Title %1").arg(i), QString("/projects/%1.tvr").arg(i)});
  }

private:
  const SettingsOfTheTest settings_;
  std::unique_ptr<WelcomeWindow> window_;
};

} // namespace

TEST_F(WelcomeWindowTest, isAWindowOfTheWorkspace) {
  auto* const face = qobject_cast<BrenvikApp::WorkspaceWindow*>(&window());
  ASSERT_TRUE(face);
  EXPECT_EQ(face->widget(), &window());
  EXPECT_NE(face->windowType(), "GraphicsWindow");
  EXPECT_EQ(window().windowTitle(), "TVR: Welcome");
  EXPECT_TRUE(window().windowFilePath().isEmpty());
  EXPECT_FALSE(window().windowIcon().isNull());
}

TEST_F(WelcomeWindowTest, hasTheWidgetsOfItsForm) {
  EXPECT_EQ(child<QGroupBox>("version_info").title(), "Version Information");
  EXPECT_EQ(child<QGroupBox>("InformationGroup").title(), "Information");
  EXPECT_EQ(child<QPushButton>("startNew").text(), "Start a new project");
  EXPECT_EQ(child<QPushButton>("startNew").font().family(), "Verdana");
  EXPECT_FALSE(child<QLabel>("version_info_text").text().isEmpty());
}

TEST_F(WelcomeWindowTest, theButtonIsWrittenInWhite) {
  window().ensurePolished();
  auto& button = child<QPushButton>("startNew");
  button.ensurePolished();
  EXPECT_EQ(button.palette().color(QPalette::ButtonText), QColor(Qt::white));
}

TEST_F(WelcomeWindowTest, namesProgramAndVersion) {
  EXPECT_EQ(child<QLabel>("labelProgram").text(), "Tevrane Version: " TEVRANE_VERSION);
  const QString version = child<QLabel>("labelVersion").text();
  EXPECT_TRUE(
      version.startsWith("<span style=\"color:#ffffff;\">Version: " TEVRANE_VERSION " created on "))
      << version.toStdString();
  EXPECT_TRUE(version.endsWith("</span>"));
}

// The picture

TEST_F(WelcomeWindowTest, thePictureIsTheGroundAtAnySize) {
  for (const QSize& size : {QSize(700, 500), QSize(1200, 600), QSize(500, 900)}) {
    window().resize(size);
    window().show();
    const QBrush ground = window().palette().brush(window().backgroundRole());
    EXPECT_EQ(ground.style(), Qt::TexturePattern);
    EXPECT_EQ(ground.texture().size(), window().size());
  }
  EXPECT_TRUE(window().autoFillBackground());
}

// The information

TEST_F(WelcomeWindowTest, informsInTheLanguageOfTheProject) {
  store.setValue(GuiLanguage, "de");
  EXPECT_TRUE(information().contains("energetische Nutzung von Grundwasser"));
}

TEST_F(WelcomeWindowTest, threeShortParagraphsStandInEachLanguage) {
  for (const char* const language : {"de", "en", "fr"}) {
    changeLanguage(language);
    EXPECT_EQ(information().count('\n'), 2) << language;
    EXPECT_FALSE(information().contains("  ")) << language;
  }
}

TEST_F(WelcomeWindowTest, aLanguageSwitchReplacesTheInformation) {
  EXPECT_TRUE(information().contains("energetic use of groundwater"));
  changeLanguage("fr");
  EXPECT_TRUE(information().contains("eaux souterraines"));
}

TEST_F(WelcomeWindowTest, aLanguageWithoutATextLeavesTheInformation) {
  const QString before = information();
  changeLanguage("it");
  EXPECT_EQ(information(), before);
}

TEST_F(WelcomeWindowTest, aLanguageSwitchSetsAllTexts) {
  window();
  const ContextTranslator translator;
  changeLanguage("de");
  const QString context = "TVR::WelcomeWindow/";
  EXPECT_EQ(window().windowTitle(), "TVRPlugin/TVR: Welcome");
  EXPECT_EQ(child<QPushButton>("startNew").text(), context + "Start a new project");
  EXPECT_EQ(child<QGroupBox>("InformationGroup").title(), context + "Information");
  EXPECT_TRUE(child<QLabel>("labelProgram").text().startsWith(context + "Tevrane Version: "));
  EXPECT_TRUE(child<QLabel>("labelVersion").text().startsWith(context + "<span"));
}

// The projects

TEST_F(WelcomeWindowTest, withoutSettingsTheListIsEmpty) {
  EXPECT_EQ(entries(), QStringList());
  EXPECT_FALSE(child<QLabel>("noProjects").isHidden());
}

TEST_F(WelcomeWindowTest, listsTheProjectsOfTheSettingsInTheirOrder) {
  rememberProjects(2);
  EXPECT_EQ(entries(), (QStringList{"Title 1 (/projects/1.tvr)", "Title 2 (/projects/2.tvr)"}));
  EXPECT_EQ(list().item(1)->data(Qt::UserRole), QVariant("/projects/2.tvr"));
  EXPECT_FALSE(list().item(0)->icon().isNull());
  EXPECT_TRUE(child<QLabel>("noProjects").isHidden());
}

TEST_F(WelcomeWindowTest, aSixthProjectPushesTheFirstOneOut) {
  rememberProjects(6);
  ASSERT_EQ(entries().size(), 5);
  EXPECT_EQ(entries().first(), "Title 2 (/projects/2.tvr)");
  EXPECT_EQ(entries().last(), "Title 6 (/projects/6.tvr)");
}

TEST_F(WelcomeWindowTest, aProjectThatIsOpenedAgainKeepsItsPlace) {
  rememberProjects(3);
  addRecentProject({"Title 1", "/Projects/1.TVR"});
  EXPECT_EQ(entries(), (QStringList{"Title 1 (/projects/1.tvr)", "Title 2 (/projects/2.tvr)",
                                    "Title 3 (/projects/3.tvr)"}));
}

TEST_F(WelcomeWindowTest, aWindowThatIsShownAgainListsWhatWasOpenedSince) {
  window().show();
  window().hide();
  rememberProjects(1);
  window().show();
  EXPECT_EQ(entries().size(), 1);
}

TEST_F(WelcomeWindowTest, theButtonStartsANewProject) {
  const QSignalSpy started(&window(), &WelcomeWindow::newProject);
  window().show();
  QTest::mouseClick(&child<QPushButton>("startNew"), Qt::LeftButton);
  EXPECT_EQ(started.size(), 1);
  QTest::keyClick(&child<QPushButton>("startNew"), Qt::Key_Space);
  EXPECT_EQ(started.size(), 2);
}

TEST_F(WelcomeWindowTest, aDoubleClickOpensAProject) {
  rememberProjects(3);
  QSignalSpy opened(&window(), &WelcomeWindow::openProject);
  window().resize(900, 600);
  window().show();
  const QPoint second = list().visualItemRect(list().item(1)).center();
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(opened.size(), 0);
  QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, second);
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened.first().first(), QVariant("/projects/2.tvr"));
}

TEST_F(WelcomeWindowTest, theKeyboardOpensAProject) {
  rememberProjects(3);
  QSignalSpy opened(&window(), &WelcomeWindow::openProject);
  window().show();
  QApplication::setActiveWindow(&window());
  child<QPushButton>("startNew").setFocus();
  QTest::keyClick(&child<QPushButton>("startNew"), Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), &list());
  QTest::keyClick(&list(), Qt::Key_Down);
  QTest::keyClick(&list(), Qt::Key_Down);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    opened.clear();
    QTest::keyClick(&list(), key);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened.first().first(), QVariant(list().currentItem()->data(Qt::UserRole)));
  }
}

TEST_F(WelcomeWindowTest, theLabelOfTheListLeadsToIt) {
  EXPECT_EQ(child<QLabel>("recentHeading").buddy(), &list());
}
