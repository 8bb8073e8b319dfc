#include "gui/RecoveryDialog.h"
#include "plugin/AutosavePluginTest.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// What the next program asks about the project that one before it has left.
class ProjectRecoveryTest : public AutosavePluginTest {
protected:
  GUI::RecoveryDialog* dialog() { return main.findChild<GUI::RecoveryDialog*>(); }
  void press(const char* button) {
    QTest::mouseClick(dialog()->findChild<QPushButton*>(button), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QTreeWidget& list(const char* name) { return *dialog()->findChild<QTreeWidget*>(name); }
  bool saysThatOthersFollow() { return dialog()->findChild<QLabel*>("others")->isVisible(); }
  static QStringList texts(const QTreeWidgetItem& item) {
    QStringList texts;
    for (int column = 0; column < item.columnCount(); ++column)
      texts << item.text(column);
    return texts;
  }
  QString remark() { return dialog()->findChild<QLabel*>("remark")->text(); }
};

} // namespace

TEST_F(ProjectRecoveryTest, whereNothingWasLeftNobodyIsAsked) {
  document().offerRecovery();
  EXPECT_FALSE(dialog());
}

TEST_F(ProjectRecoveryTest, theDialogNamesTheProjectItsFileAndTheTimes) {
  const QString file = leaveChanged();
  document().offerRecovery();
  ASSERT_TRUE(dialog());
  QTreeWidget& projects = list("projects");
  ASSERT_EQ(projects.topLevelItemCount(), 1);
  const QStringList row = texts(*projects.topLevelItem(0));
  EXPECT_EQ(row[0], "Riverside");
  EXPECT_EQ(row[2], file);
  const auto shown = [](const QDateTime& time) {
    return QLocale().toString(time, QLocale::ShortFormat);
  };
  EXPECT_EQ(row[3], shown(QFileInfo(file).lastModified()));
  EXPECT_FALSE(row[1].isEmpty());
  EXPECT_EQ(projects.currentItem(), projects.topLevelItem(0));
}

TEST_F(ProjectRecoveryTest, theDialogShowsWhatDiffersSideBySide) {
  leaveChanged();
  document().offerRecovery();
  QStringList lines;
  for (int row = 0; row < list("differences").topLevelItemCount(); ++row)
    lines << texts(*list("differences").topLevelItem(row)).join('|');
  EXPECT_TRUE(lines.contains("Hydraulic gradient|0.2 m/100m|0.75 m/100m"))
      << lines.join('\n').toStdString();
}

TEST_F(ProjectRecoveryTest, aRecoveredProjectIsAChangedOneOfItsFile) {
  const QString file = leaveChanged();
  const QByteArray before = contentOf(file);
  document().offerRecovery();
  press("recover");
  EXPECT_FALSE(dialog());
  EXPECT_EQ(number(GroundwaterGradient), 0.75);
  EXPECT_EQ(document().fileName(), file);
  EXPECT_EQ(store.fileName(), file);
  EXPECT_TRUE(document().isModified());
  EXPECT_EQ(contentOf(file), before);
  EXPECT_TRUE(document().saveChanges());
  EXPECT_TRUE(contentOf(file).contains("0.75"));
  EXPECT_FALSE(document().isModified());
}

TEST_F(ProjectRecoveryTest, aRecoveredProjectIsKeptByItsNewProgram) {
  leaveChanged();
  document().offerRecovery();
  press("recover");
  document().autosave().letGo();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U) << "the one that it came from is gone";
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75"));
}

TEST_F(ProjectRecoveryTest, aRecoveredProjectComesWithItsPage) {
  savedProject();
  page.page = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\" NextItemId=\"77\"/>";
  document().pageModified();
  document().autosave().keepNow();
  endWithoutNotice();
  page.page.clear();
  document().offerRecovery();
  press("recover");
  EXPECT_TRUE(page.page.contains("77")) << page.page.toStdString();
}

TEST_F(ProjectRecoveryTest, aRecoveredProjectStaysChangedWhateverIsPutBack) {
  leaveChanged();
  document().offerRecovery();
  press("recover");
  store.setValue(GroundwaterGradient, 0.2);
  EXPECT_TRUE(document().isModified());
}

TEST_F(ProjectRecoveryTest, aDiscardedLeftoverIsGone) {
  const QString file = leaveChanged();
  document().offerRecovery();
  press("discard");
  EXPECT_FALSE(dialog()) << "it was the last one";
  EXPECT_TRUE(leftovers().empty());
  EXPECT_TRUE(QFileInfo::exists(file));
  EXPECT_EQ(document().fileName(), QString());
}

TEST_F(ProjectRecoveryTest, aLeftoverIsDiscardedOnlyIfTheUserIsSure) {
  leaveChanged();
  document().offerRecovery();
  user.yes = false;
  press("discard");
  ASSERT_TRUE(dialog());
  press("later");
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectRecoveryTest, whatIsDecidedLaterIsOfferedAgain) {
  leaveChanged();
  document().offerRecovery();
  press("later");
  EXPECT_FALSE(dialog());
  document().offerRecovery();
  EXPECT_TRUE(dialog());
}

TEST_F(ProjectRecoveryTest, escapeMeansToDecideLater) {
  leaveChanged();
  document().offerRecovery();
  QTest::keyClick(dialog(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(dialog());
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectRecoveryTest, ofSeveralLeftoversEachCanBeHandled) {
  for (const char* const name : {"One", "Two", "Three"}) {
    savedProject();
    store.setValue(ProjectName, name);
    document().autosave().keepNow();
    endWithoutNotice();
  }
  document().offerRecovery();
  QTreeWidget& projects = list("projects");
  ASSERT_EQ(projects.topLevelItemCount(), 3);
  const auto choose = [&](const QString& name) {
    projects.setCurrentItem(projects.findItems(name, Qt::MatchExactly).value(0));
  };
  EXPECT_TRUE(saysThatOthersFollow());
  choose("Two");
  press("discard");
  EXPECT_EQ(projects.topLevelItemCount(), 2);
  choose("One");
  press("recover");
  EXPECT_EQ(document().title(), "One");
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0]->note()->title, "Three");
}

TEST_F(ProjectRecoveryTest, aDamagedAutosaveCanOnlyBeDiscarded) {
  leaveChanged();
  {
    const auto found = leftovers();
    QFile file(found.at(0)->projectFile());
    ASSERT_TRUE(file.resize(file.size() / 2));
  }
  document().offerRecovery();
  ASSERT_TRUE(dialog());
  EXPECT_TRUE(remark().contains("damaged"));
  EXPECT_FALSE(saysThatOthersFollow());
  EXPECT_FALSE(dialog()->findChild<QPushButton*>("recover")->isEnabled());
  EXPECT_EQ(list("differences").topLevelItemCount(), 0);
  press("discard");
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectRecoveryTest, aProjectThatWasNeverSavedStandsBesideAnEmptyOne) {
  store.setValue(ProjectName, "Hill");
  document().autosave().keepNow();
  endWithoutNotice();
  document().offerRecovery();
  EXPECT_EQ(texts(*list("projects").topLevelItem(0))[2], "Never saved");
  QStringList lines;
  for (int row = 0; row < list("differences").topLevelItemCount(); ++row)
    lines << texts(*list("differences").topLevelItem(row)).join('|');
  EXPECT_EQ(lines, QStringList("Project name||Hill"));
}

TEST_F(ProjectRecoveryTest, aProjectWhoseFileIsGoneIsRecoveredAllTheSame) {
  const QString file = leaveChanged();
  ASSERT_TRUE(QFile::remove(file));
  document().offerRecovery();
  EXPECT_TRUE(remark().contains("not there any more"));
  press("recover");
  EXPECT_EQ(document().fileName(), file);
  EXPECT_EQ(number(GroundwaterGradient), 0.75);
  EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(ProjectRecoveryTest, aBatchFileIsThereButNotCompared) {
  savedProject();
  plugin.save(path("riverside.tbat"));
  store.setValue(GroundwaterGradient, 0.75);
  document().autosave().keepNow();
  endWithoutNotice();
  document().offerRecovery();
  EXPECT_TRUE(remark().contains("is a batch file"));
  EXPECT_FALSE(texts(*list("projects").topLevelItem(0))[3].isEmpty());
  EXPECT_EQ(list("differences").topLevelItemCount(), 0);
  press("later");
  ASSERT_TRUE(QFile::remove(path("riverside.tbat")));
  document().offerRecovery();
  EXPECT_TRUE(remark().contains("not there any more"));
}

TEST_F(ProjectRecoveryTest, changesOfTheOpenProjectAreAskedForBeforeAnotherIsRecovered) {
  leaveChanged();
  store.setValue(ProjectName, "Hill");
  document().offerRecovery();
  user.unsaved = Unsaved::Keep;
  press("recover");
  EXPECT_EQ(document().title(), "Hill");
  ASSERT_TRUE(dialog());
  press("later");
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectRecoveryTest, theDialogCanBeUsedByKeyboardAndReadAloud) {
  leaveChanged();
  document().offerRecovery();
  int named = 0;
  for (const QLabel* const label : dialog()->findChildren<QLabel*>())
    named += label->text().contains('&') && label->buddy() ? 1 : 0;
  EXPECT_EQ(named, 2) << "each of the lists has a label that leads to it";
  EXPECT_FALSE(list("projects").accessibleName().isEmpty());
  EXPECT_FALSE(list("differences").accessibleName().isEmpty());
  EXPECT_TRUE(dialog()->findChild<QPushButton*>("recover")->isDefault());
  list("projects").setFocus();
  QTest::keyClick(&list("projects"), Qt::Key_Return);
  EXPECT_EQ(number(GroundwaterGradient), 0.75) << "Enter recovers";
}
