#include "plugin/AboutTexts.h"
#include "plugin/PluginTest.h"
#include "support/ContextTranslator.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QDialog>
#include <QLabel>
#include <QTextDocument>
#include <QTimer>

using namespace TVR;

// What the program is made of

TEST(AboutTexts, nameTheProgramAndItsPartsInOrder) {
  const QString html = TVRPlugin().copyright();
  EXPECT_TRUE(html.startsWith("<h3>Copyright information</h3><p>This program based on:</p>"));
  EXPECT_TRUE(html.endsWith(
      "<p>More information you will find on the program installation directory.</p>"));
  int last = html.indexOf("<center>");
  EXPECT_GT(last, 0);
  for (const char* const part :
       {"<b>Tevrane Version 1</b>", "<b>Qt Toolkit</b><br>Version 5.9.1<br>",
        "<b>CVODE part of SUNDIALS</b>", "<b>Shapefile C Library</b>", "</center>"}) {
    const int place = html.indexOf(part);
    EXPECT_GT(place, last) << part;
    last = place;
  }
}

TEST(AboutTexts, eachPartCarriesTheNoticeOfItsPublisher) {
  QTextDocument document;
  document.setHtml(copyrightNotices());
  EXPECT_EQ(document.toPlainText().count("Copyright ©"), 4);
}

TEST(AboutTexts, areTranslated) {
  const ContextTranslator translator;
  const QString html = copyrightNotices();
  EXPECT_TRUE(html.startsWith("<h3>TVRPlugin/Copyright information</h3>"));
  EXPECT_TRUE(html.contains("TVRPlugin/Version 5.9.1") || html.contains("TVRPlugin/Version %1"));
}

TEST(BuildRows, nameThePluginAndOneStepDeeperItsLibraries) {
  const QString indent = "&nbsp;&nbsp;&nbsp;&nbsp;";
  const QStringList rows = TVRPlugin().created(2).split("</tr>", Qt::SkipEmptyParts);
  ASSERT_GE(rows.size(), 3);
  EXPECT_TRUE(rows[0].startsWith("<tr><td>" + indent + indent +
                                 "<b> TVR plugin:</b></td><td>" TEVRANE_VERSION "</td>"))
      << rows[0].toStdString();
  EXPECT_TRUE(rows[1].startsWith("<tr><td>" + indent + indent + indent +
                                 "<b> Static simulator library:</b></td><td>"));
  EXPECT_TRUE(rows[2].startsWith("<tr><td>" + indent + indent + indent +
                                 "<b> Static sundials library:</b></td><td>"));
  for (const QString& row : rows)
    EXPECT_TRUE(QRegularExpression("</td><td> SVN Rev\\.\\S+ \\(.+\\)</td>$").match(row).hasMatch())
        << row.toStdString();
}

TEST(BuildRows, beginAtTheEdgeWithoutADepth) {
  EXPECT_TRUE(buildRows(0).startsWith("<tr><td><b> TVR plugin:</b>"));
}

// The first start

TEST(FirstStart, showsTheCopyrightNotice) {
  TVRPlugin plugin;
  QString shown;
  QString title;
  QTimer::singleShot(0, [&] {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    title = dialog->windowTitle();
    shown = dialog->findChild<QLabel*>()->text();
    dialog->reject();
  });
  ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "firstApplicationStart"));
  EXPECT_EQ(title, "Copyright information");
  EXPECT_EQ(shown, plugin.copyright());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// The stored settings

namespace {

class ClearRegistryTest : public PluginTest {
protected:
  ClearRegistryTest() {
    setMessenger(&user);
    SettingsOfTheTest::current().setValue("key", 1);
  }
  ~ClearRegistryTest() override { setMessenger(nullptr); }

  QStringList keysAfterClearing() {
    EXPECT_TRUE(QMetaObject::invokeMethod(&plugin, "clearRegistry"));
    return SettingsOfTheTest::current().allKeys() + SettingsOfTheTest::former().allKeys();
  }

  const SettingsOfTheTest settings;
  TestMessenger user;
  TVRPlugin plugin;
};

} // namespace

TEST_F(ClearRegistryTest, theUserMayKeepTheSettings) {
  SettingsOfTheTest::former().setValue("former", 1);
  user.yes = false;
  EXPECT_EQ(keysAfterClearing(), (QStringList{"key", "former"}));
  EXPECT_EQ(user.questions.size(), 2) << "each of them is asked about";
}

TEST_F(ClearRegistryTest, settingsAreClearedAndFormerOnesNotMissed) {
  EXPECT_EQ(keysAfterClearing(), QStringList());
  EXPECT_EQ(user.questions.size(), 1);
}

TEST_F(ClearRegistryTest, formerSettingsAreAskedAboutOnTheirOwn) {
  SettingsOfTheTest::former().setValue("former", 1);
  EXPECT_EQ(keysAfterClearing(), QStringList());
  ASSERT_EQ(user.questions.size(), 2);
  EXPECT_NE(user.questions[0], user.questions[1]);
}
