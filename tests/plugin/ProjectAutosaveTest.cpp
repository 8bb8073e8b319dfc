#include "gui/RecoveryDialog.h"
#include "plugin/PagePluginTest.h"
#include "plugin/ProjectDocument.h"
#include "project/ProjectLimits.h"
#include "support/DataOfTheTest.h"
#include "support/SettingsOfTheTest.h"
#include "support/SmallDisk.h"
#include "support/TestMessenger.h"

#include <QDir>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// A program that edits and ends without notice, and the next one. `plugin` is the next one.
class ProjectAutosaveTest : public PagePluginTest {
protected:
  ProjectAutosaveTest() {
    watch();
    setMessenger(&user);
  }
  ~ProjectAutosaveTest() override {
    setMessenger(nullptr);
    plugin.setAppInterface(nullptr); // before the directory of its autosaves goes
  }

  void watch() {
    host.main = &main;
    plugin.setAppInterface(&host);
  }
  /// The program ends as one that is killed does, but for its memory; the next one has started.
  void endWithoutNotice() {
    plugin.document().autosave().letGo();
    plugin.document().opened({});
    store.reset();
    plugin.document().opened({});
  }
  ProjectDocument& document() { return plugin.document(); }
  QString savedProject() {
    read(BatchProject::doublet());
    store.setValue(ProjectName, "Riverside");
    plugin.save(path("riverside.tvr"));
    return path("riverside.tvr");
  }
  /// A project that was changed, saved automatically and left.
  QString leaveChanged() {
    const QString file = savedProject();
    store.setValue(GroundwaterGradient, 0.75);
    EXPECT_TRUE(document().autosave().keepNow());
    endWithoutNotice();
    return file;
  }
  std::vector<std::unique_ptr<AutosaveFolder>> leftovers() const {
    return AutosaveFolder::leftovers(AutosaveFolder::usualPlace());
  }

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

  const SettingsOfTheTest settings_;
  const DataOfTheTest data_;
  QMainWindow main;
  TestMessenger user;
};

} // namespace

// When a project is saved automatically

TEST_F(ProjectAutosaveTest, aChangedProjectIsSavedAutomaticallyBesideItsFile) {
  const QString file = savedProject();
  const QByteArray before = contentOf(file);
  document().autosave().setInterval(std::chrono::milliseconds(1));
  store.setValue(GroundwaterGradient, 0.75);
  EXPECT_TRUE(waitUntil([&] { return QDir(AutosaveFolder::usualPlace()).exists(); }));
  EXPECT_EQ(contentOf(file), before);
  endWithoutNotice();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0]->note()->file, file);
  EXPECT_EQ(found[0]->note()->title, "Riverside");
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75"));
}

TEST_F(ProjectAutosaveTest, aProjectThatWasNeverSavedIsSavedAutomatically) {
  store.setValue(ProjectName, "Hill");
  EXPECT_TRUE(document().autosave().keepNow());
  endWithoutNotice();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0]->note()->file, QString());
  EXPECT_EQ(found[0]->note()->title, "Hill");
}

TEST_F(ProjectAutosaveTest, theAutosaveHasThePage) {
  savedProject();
  page.page = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\"/>";
  document().pageModified();
  EXPECT_TRUE(document().autosave().keepNow());
  endWithoutNotice();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("CanvasEx"));
}

TEST_F(ProjectAutosaveTest, aChangedProjectIsSavedAutomaticallyBeforeEachRun) {
  prepare();
  plugin.save(path("p.tvr"));
  store.setValue(GroundwaterGradient, 0.75);
  plugin.startSimulation();
  ASSERT_TRUE(plugin.running());
  EXPECT_EQ(QDir(AutosaveFolder::usualPlace()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(),
            1);
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
}

TEST_F(ProjectAutosaveTest, anUnchangedProjectIsNot) {
  savedProject();
  plugin.updateCurrentGraphicWindow();
  document().autosave().keepNow();
  EXPECT_FALSE(QDir(AutosaveFolder::usualPlace()).exists());
}

TEST_F(ProjectAutosaveTest, withoutAMainWindowNothingIsSavedAutomatically) {
  host.main = nullptr;
  plugin.setAppInterface(&host);
  prepare();
  document().autosave().setInterval(std::chrono::milliseconds(0));
  store.setValue(GroundwaterGradient, 0.75);
  run(plugin);
  plugin.runWithoutPage({});
  EXPECT_FALSE(QDir(AutosaveFolder::usualPlace()).exists());
}

TEST_F(ProjectAutosaveTest, aSavedProjectLeavesNoAutosave) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  document().autosave().keepNow();
  plugin.save(path("riverside.tvr"));
  endWithoutNotice();
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, aProjectThatIsPutBackLeavesNoAutosave) {
  savedProject();
  const QVariant before = store.value(ProjectName);
  store.setValue(ProjectName, "Hill");
  document().autosave().keepNow();
  store.setValue(ProjectName, before);
  endWithoutNotice();
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, aProjectThatIsLeftLeavesNoAutosave) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  document().autosave().keepNow();
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  endWithoutNotice();
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, discardedChangesAreAskedForOnceUntilThereAreOthers) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions.size(), 1);
  store.setValue(GroundwaterGradient, 0.5);
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions.size(), 2);
}

TEST_F(ProjectAutosaveTest, resultsThatAreDiscardedBeforeTheRunEndsLeaveNothing) {
  startLongRun(plugin);
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  plugin.simulationRun().stop();
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions.size(), 1);
  plugin.setAppInterface(nullptr);
  EXPECT_TRUE(leftovers().empty());
}

TEST_F(ProjectAutosaveTest, theNextRunIsNoPartOfWhatWasDiscarded) {
  prepare();
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  run(plugin);
  plugin.setAppInterface(nullptr);
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectAutosaveTest, thePageThatABatchFileHasNoRoomForStaysKept) {
  read(BatchProject::doublet());
  document().pageModified();
  document().autosave().keepNow();
  plugin.save(path("p.tbat"));
  endWithoutNotice();
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectAutosaveTest, aProgramThatEndsInOrderLeavesNothing) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  document().autosave().keepNow();
  user.unsaved = Unsaved::Discard;
  document().mayBeLeft();
  plugin.setAppInterface(nullptr);
  EXPECT_EQ(QDir(AutosaveFolder::usualPlace()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
            QStringList());
}

TEST_F(ProjectAutosaveTest, aProgramThatEndsWithoutAQuestionLeavesTheLastState) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  page.page = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\"/>";
  plugin.setAppInterface(nullptr);
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75"));
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("CanvasEx"));
}

TEST_F(ProjectAutosaveTest, aFullDiskIsToldInTheStatusLineAndInNoBox) {
  savedProject();
  store.setValue(GroundwaterGradient, 0.75);
  const SmallDisk disk(data_.path());
  if (!disk.isMounted)
    GTEST_SKIP() << "only the administrator can mount a file system";
  ASSERT_TRUE(document().autosave().keepNow());
  disk.fillBut(0);
  store.setValue(GroundwaterGradient, 0.5);
  host.status.clear();
  user.told.clear();
  EXPECT_FALSE(document().autosave().keepNow());
  EXPECT_EQ(host.status, QStringList(QStringLiteral("The project cannot be saved automatically in "
                                                    "%1. [10000]")
                                         .arg(AutosaveFolder::usualPlace())));
  EXPECT_EQ(user.told, QStringList());
  document().autosave().letGo();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75")) << "the older one is whole";
}

TEST_F(ProjectAutosaveTest, moreThanAFileHoldsIsToldInTheStatusLineAndInNoBox) {
  store.setStored(NumberOfWells, ProjectLimits::maxWells + 1);
  host.status.clear();
  user.told.clear();
  EXPECT_FALSE(document().autosave().keepNow());
  EXPECT_EQ(host.status.size(), 1);
  EXPECT_EQ(user.told, QStringList());
  store.reset();
}

// What the next program offers

TEST_F(ProjectAutosaveTest, whereNothingWasLeftNobodyIsAsked) {
  document().offerRecovery();
  EXPECT_FALSE(dialog());
}

TEST_F(ProjectAutosaveTest, theDialogNamesTheProjectItsFileAndTheTimes) {
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

TEST_F(ProjectAutosaveTest, theDialogShowsWhatDiffersSideBySide) {
  leaveChanged();
  document().offerRecovery();
  QStringList lines;
  for (int row = 0; row < list("differences").topLevelItemCount(); ++row)
    lines << texts(*list("differences").topLevelItem(row)).join('|');
  EXPECT_TRUE(lines.contains("Hydraulic gradient|0.2 m/100m|0.75 m/100m"))
      << lines.join('\n').toStdString();
}

TEST_F(ProjectAutosaveTest, aRecoveredProjectIsAChangedOneOfItsFile) {
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

TEST_F(ProjectAutosaveTest, aRecoveredProjectIsKeptByItsNewProgram) {
  leaveChanged();
  document().offerRecovery();
  press("recover");
  document().autosave().letGo();
  const auto found = leftovers();
  ASSERT_EQ(found.size(), 1U) << "the one that it came from is gone";
  EXPECT_TRUE(contentOf(found[0]->projectFile()).contains("0.75"));
}

TEST_F(ProjectAutosaveTest, aRecoveredProjectComesWithItsPage) {
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

TEST_F(ProjectAutosaveTest, aRecoveredProjectStaysChangedWhateverIsPutBack) {
  leaveChanged();
  document().offerRecovery();
  press("recover");
  store.setValue(GroundwaterGradient, 0.2);
  EXPECT_TRUE(document().isModified());
}

TEST_F(ProjectAutosaveTest, aDiscardedLeftoverIsGone) {
  const QString file = leaveChanged();
  document().offerRecovery();
  press("discard");
  EXPECT_FALSE(dialog()) << "it was the last one";
  EXPECT_TRUE(leftovers().empty());
  EXPECT_TRUE(QFileInfo::exists(file));
  EXPECT_EQ(document().fileName(), QString());
}

TEST_F(ProjectAutosaveTest, aLeftoverIsDiscardedOnlyIfTheUserIsSure) {
  leaveChanged();
  document().offerRecovery();
  user.yes = false;
  press("discard");
  ASSERT_TRUE(dialog());
  press("later");
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectAutosaveTest, whatIsDecidedLaterIsOfferedAgain) {
  leaveChanged();
  document().offerRecovery();
  press("later");
  EXPECT_FALSE(dialog());
  document().offerRecovery();
  EXPECT_TRUE(dialog());
}

TEST_F(ProjectAutosaveTest, escapeMeansToDecideLater) {
  leaveChanged();
  document().offerRecovery();
  QTest::keyClick(dialog(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(dialog());
  EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ProjectAutosaveTest, ofSeveralLeftoversEachCanBeHandled) {
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

TEST_F(ProjectAutosaveTest, aDamagedAutosaveCanOnlyBeDiscarded) {
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

TEST_F(ProjectAutosaveTest, aProjectThatWasNeverSavedStandsBesideAnEmptyOne) {
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

TEST_F(ProjectAutosaveTest, aProjectWhoseFileIsGoneIsRecoveredAllTheSame) {
  const QString file = leaveChanged();
  ASSERT_TRUE(QFile::remove(file));
  document().offerRecovery();
  EXPECT_TRUE(remark().contains("not there any more"));
  press("recover");
  EXPECT_EQ(document().fileName(), file);
  EXPECT_EQ(number(GroundwaterGradient), 0.75);
  EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(ProjectAutosaveTest, aBatchFileIsThereButNotCompared) {
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

TEST_F(ProjectAutosaveTest, changesOfTheOpenProjectAreAskedForBeforeAnotherIsRecovered) {
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

TEST_F(ProjectAutosaveTest, theDialogCanBeUsedByKeyboardAndReadAloud) {
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
