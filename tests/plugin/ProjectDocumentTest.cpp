#include "host/ProjectDocument.h"

#include "plugin/PagePluginTest.h"
#include "plugin/ProjectDocument.h"
#include "results/DialogUser.h"
#include "store/Journal.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"
#include "tables/DemandModel.h"

#include <QApplication>
#include <QFileDialog>
#include <QMainWindow>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// A page whose user can change it.
class EditedPage final : public RecordingPage {
  Q_OBJECT

signals:
  void modified();
};

/// The project of the plug-in as a host with a main window finds it, and a user who answers.
class ProjectDocumentTest : public PagePluginTest {
protected:
  ProjectDocumentTest() {
    host.main = &main;
    plugin.setAppInterface(&host);
    setMessenger(&user);
  }
  ~ProjectDocumentTest() override { setMessenger(nullptr); }

  BrenvikApp::ProjectDocument& document() {
    for (QObject* child : plugin.children())
      if (auto* const found = qobject_cast<BrenvikApp::ProjectDocument*>(child))
        return *found;
    throw std::runtime_error("the plug-in has no document");
  }
  bool isModified() { return document().isModified(); }

  /// A project file that is open, with its file name.
  QString open(const BatchProject& project = BatchProject::doublet()) {
    read(project);
    plugin.save(path("p.tvr"));
    plugin.load(path("p.tvr"));
    EXPECT_FALSE(isModified());
    return path("p.tvr");
  }
  void openBatchFile() {
    read(BatchProject::doublet(), "p.tbat");
    plugin.document().opened({}); // what was read behind it is nothing to ask about
    plugin.load(path("p.tbat"));
    EXPECT_EQ(document().fileName(), path("p.tbat"));
  }

  const SettingsOfTheTest settings_;
  QMainWindow main;
  TestMessenger user;
};

} // namespace

// The mark of changes

TEST_F(ProjectDocumentTest, aNewValueModifiesTheProject) {
  open();
  store.setValue(GroundwaterGradient, 0.7);
  EXPECT_TRUE(isModified());
}

TEST_F(ProjectDocumentTest, aValueThatIsPutBackIsNoChange) {
  const QString file = open();
  store.setValue(GroundwaterGradient, 0.2);
  plugin.save(file); // with what follows from the value
  plugin.load(file);
  ASSERT_EQ(store.value(GroundwaterGradient), QVariant("0.2")) << "a text, as the file holds it";
  store.setValue(GroundwaterGradient, 0.7);
  EXPECT_TRUE(isModified());
  store.setValue(GroundwaterGradient, 0.2);
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, aWellThatIsMovedModifiesTheProjectUntilItIsBack) {
  open();
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(1, WellModel::X), 41);
  EXPECT_TRUE(isModified());
  wells.setData(wells.index(1, WellModel::X), 40);
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, aPeriodOfTheDemandModifiesTheProject) {
  open(BatchProject::seasons());
  DemandModel& demand = *store.demandModel();
  demand.setData(demand.index(0, 0), 5e6);
  EXPECT_TRUE(isModified());
}

TEST_F(ProjectDocumentTest, refreshesOfThePageAreNoChanges) {
  open();
  graphic().startup(nullptr);
  plugin.updateCurrentGraphicWindow();
  plugin.workspaceWindowActivated(&page);
  plugin.updateIsobars();
  plugin.updateIsotherms(1.0);
  plugin.showMap();
  invoke("showWells");
  invoke("setDefaultWellPositions");
  invoke("setupDemandPlot");
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, tablesThatAreAskedForAreNoChange) {
  store.reset();
  plugin.document().opened({});
  store.wellModel();
  store.demandModel();
  store.wellDemandModel();
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, anotherLanguageIsNoChange) {
  open();
  invoke("setFrench");
  invoke("setEnglish");
  invoke("setGerman");
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, aFinishedRunModifiesTheProjectUntilItIsSaved) {
  prepare();
  plugin.save(path("p.tvr"));
  run(plugin);
  EXPECT_TRUE(isModified());
  plugin.save(path("p.tvr"));
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, aPageThatItsUserChangedModifiesTheProject) {
  open();
  EditedPage edited;
  plugin.triggerChangesOfWindow(&edited);
  plugin.triggerChangesOfWindow(&edited);
  emit edited.modified();
  EXPECT_TRUE(isModified());
  plugin.save(path("p.tvr"));
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, anotherProjectIsUnmodified) {
  const QString file = open();
  store.setValue(GroundwaterGradient, 0.7);
  plugin.document().pageModified();
  user.unsaved = Unsaved::Discard;
  plugin.load(file);
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, aProjectThatCanNotBeReadLeavesAnEmptyOne) {
  open();
  plugin.load(damagedProject());
  EXPECT_FALSE(isModified());
  EXPECT_EQ(document().fileName(), QString());
}

TEST_F(ProjectDocumentTest, aFileThatIsNotThereLeavesTheOpenProjectAsItIs) {
  open();
  store.setValue(ProjectName, "Riverside");
  page.calls.clear();
  for (const char* const name : {"missing.tvr", "missing.tbat", "."}) {
    user.told.clear();
    plugin.load(path(name));
    EXPECT_EQ(user.told, QStringList("Tevrane: Unable to open:" + path(name)));
  }
  EXPECT_EQ(user.questions, QStringList()) << "nothing is to be given up";
  EXPECT_EQ(document().title(), "Riverside");
  EXPECT_EQ(document().fileName(), path("p.tvr"));
  EXPECT_FALSE(page.calls.contains("clearContents"));
}

TEST_F(ProjectDocumentTest, aProjectThatCanNotBeSavedStaysModified) {
  open();
  store.setValue(GroundwaterGradient, 0.7);
  plugin.save(path("missing/p.tvr"));
  EXPECT_TRUE(isModified());
  EXPECT_EQ(document().fileName(), path("p.tvr"));
}

// What a host is told

TEST_F(ProjectDocumentTest, itBearsTheNameOfTheProjectAndOfItsFile) {
  open();
  store.setValue(ProjectName, "Riverside");
  EXPECT_EQ(document().title(), "Riverside");
  EXPECT_EQ(document().fileName(), path("p.tvr"));
  plugin.save(path("other.tvr"));
  EXPECT_EQ(document().fileName(), path("other.tvr"));
}

TEST_F(ProjectDocumentTest, aHostHearsOfWhatItShowsAndOfNothingElse) {
  open();
  const QSignalSpy changed(dynamic_cast<QObject*>(&document()), SIGNAL(changed()));
  store.setValue(GroundwaterGradient, 0.7);
  EXPECT_EQ(changed.size(), 1);
  store.setValue(GroundwaterGradient, 0.8);
  EXPECT_EQ(changed.size(), 1) << "it was modified before";
  store.setValue(ProjectName, "Riverside");
  EXPECT_EQ(changed.size(), 2);
  plugin.save(path("p.tvr"));
  EXPECT_EQ(changed.size(), 3);
}

TEST_F(ProjectDocumentTest, withoutAMainWindowNothingIsWatched) {
  open();
  host.main = nullptr;
  plugin.setAppInterface(&host);
  store.setValue(GroundwaterGradient, 0.7);
  run(plugin);
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, aRunWithoutAHostLeavesTheJournalToOthers) {
  class Counter final : public Data::Journal {
  public:
    void record(const Data::JournalEntry&) override { ++entries; }
    int entries = 0;
  } counter;
  plugin.setAppInterface(nullptr);
  store.addJournal(&counter);
  read(BatchProject::doublet());
  plugin.setAppInterface(nullptr);
  plugin.runWithoutPage({});
  store.removeJournal(&counter);
  EXPECT_GT(counter.entries, 1);
}

// The question about unsaved changes

TEST_F(ProjectDocumentTest, withoutChangesNobodyIsAsked) {
  open();
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions, QStringList());
}

TEST_F(ProjectDocumentTest, changesThatAreKeptKeepTheProject) {
  open();
  store.setValue(ProjectName, "Riverside");
  user.unsaved = Unsaved::Keep;
  EXPECT_FALSE(document().mayBeLeft());
  EXPECT_EQ(user.questions,
            QStringList("Tevrane: The project \"Riverside\" has changes that are not saved. Do you "
                        "want to save them?"));
  EXPECT_TRUE(isModified());
}

TEST_F(ProjectDocumentTest, discardedChangesLetTheProjectGo) {
  open();
  store.setValue(ProjectName, "");
  store.setValue(GroundwaterGradient, 0.7);
  const QByteArray before = contentOf(path("p.tvr"));
  user.unsaved = Unsaved::Discard;
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_EQ(user.questions, QStringList("Tevrane: The project has changes that are not saved. Do "
                                        "you want to save them?"));
  EXPECT_EQ(contentOf(path("p.tvr")), before);
}

TEST_F(ProjectDocumentTest, savedChangesAreInTheFileOfTheProject) {
  open();
  store.setValue(ProjectName, "Riverside");
  user.unsaved = Unsaved::Save;
  EXPECT_TRUE(document().mayBeLeft());
  EXPECT_FALSE(isModified());
  EXPECT_TRUE(contentOf(path("p.tvr")).contains("Riverside"));
}

TEST_F(ProjectDocumentTest, changesThatCanNotBeSavedKeepTheProject) {
  open();
  plugin.document().opened(path("missing/p.tvr"));
  store.setValue(ProjectName, "Riverside");
  user.unsaved = Unsaved::Save;
  EXPECT_FALSE(document().mayBeLeft());
  EXPECT_TRUE(user.told.last().contains("Unable to create:" + path("missing/p.tvr")));
}

TEST_F(ProjectDocumentTest, changesAreAskedForBeforeAnotherProjectIsOpened) {
  const QString file = open();
  store.setValue(ProjectName, "Riverside");
  user.unsaved = Unsaved::Keep;
  plugin.load(file);
  EXPECT_EQ(document().title(), "Riverside");
  user.unsaved = Unsaved::Discard;
  plugin.load(file);
  EXPECT_NE(document().title(), "Riverside");
  EXPECT_EQ(user.questions.size(), 2);
}

TEST_F(ProjectDocumentTest, changesAreAskedForBeforeANewProjectIsStarted) {
  open();
  store.setValue(ProjectName, "Riverside");
  user.unsaved = Unsaved::Keep;
  plugin.newOpen();
  EXPECT_EQ(document().title(), "Riverside");
  EXPECT_EQ(user.questions.size(), 1) << "the questions of a new project do not follow";
}

TEST_F(ProjectDocumentTest, theProjectThatTheSettingsKeepIsNoChange) {
  store.setValue(ProjectName, "Riverside");
  store.saveLastParameterSet();
  store.reset();
  plugin.addDockingWindows(&main);
  EXPECT_EQ(document().title(), "Riverside");
  EXPECT_FALSE(isModified());
  store.setValue(ProjectName, "Hill");
  plugin.addDockingWindows(&main);
  EXPECT_TRUE(isModified()) << "a dock that stands restores nothing";
}

TEST_F(ProjectDocumentTest, aBatchFileIsNoPlaceToSaveChangesIn) {
  openBatchFile();
  const QByteArray before = contentOf(path("p.tbat"));
  store.setValue(ProjectName, "Riverside");
  QTimer::singleShot(0, qApp, [] { // whoever is asked for another name gives up
    for (QWidget* const window : QApplication::topLevelWidgets())
      if (auto* const dialog = qobject_cast<QFileDialog*>(window))
        dialog->reject();
  });
  EXPECT_FALSE(document().saveChanges());
  EXPECT_EQ(contentOf(path("p.tbat")), before);
  EXPECT_TRUE(isModified());
}

TEST_F(ProjectDocumentTest, aPageThatABatchFileHasNoRoomForStaysUnsaved) {
  open();
  store.setValue(ProjectName, "Riverside");
  plugin.document().pageModified();
  plugin.save(path("p.tbat"));
  EXPECT_EQ(document().fileName(), path("p.tbat"));
  EXPECT_TRUE(isModified());
  plugin.save(path("p.tvr"));
  EXPECT_FALSE(isModified());
  plugin.save(path("p.tbat"));
  EXPECT_FALSE(isModified()) << "the page is as it was read";
}

TEST_F(ProjectDocumentTest, changesOfABatchFileAreProposedToGoIntoAProjectFile) {
  openBatchFile();
  plugin.document().pageModified();
  QString proposed;
  const DialogUser dialogUser([&](QFileDialog& dialog) {
    proposed = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_TRUE(document().saveChanges());
  EXPECT_EQ(proposed, "p.tvr");
  EXPECT_EQ(document().fileName(), path("p.tvr"));
  EXPECT_FALSE(isModified());
}

TEST_F(ProjectDocumentTest, aPageThatIsSavedWithoutIsAskedAboutAgain) {
  openBatchFile();
  plugin.document().pageModified();
  user.unsaved = Unsaved::Save;
  const DialogUser dialogUser([&](QFileDialog& dialog) {
    user.unsaved = Unsaved::Keep;
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path("other.tbat"));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_FALSE(document().mayBeLeft());
  EXPECT_EQ(user.questions.size(), 2);
}

TEST_F(ProjectDocumentTest, aFileWhoseEndingIsInCapitalsIsSavedAsItIs) {
  ASSERT_TRUE(QFile::rename(open(), path("P.TVR")));
  plugin.load(path("P.TVR"));
  store.setValue(ProjectName, "Riverside");
  EXPECT_TRUE(document().saveChanges());
  EXPECT_TRUE(contentOf(path("P.TVR")).contains("Riverside"));
  EXPECT_EQ(QDir(path("")).entryList({"*.tvr.*"}, QDir::Files), QStringList());
}

TEST_F(ProjectDocumentTest, theScaleThatTheUserEntersChangesThePage) {
  open();
  graphic().startup(nullptr);
  plugin.addToolBars(&main);
  auto* const box = main.findChild<QSpinBox*>("tvr_scale");
  ASSERT_TRUE(box);
  plugin.workspaceWindowActivated(&page);
  emit box->editingFinished(); // the focus leaves it as it was
  EXPECT_FALSE(isModified());
  box->setValue(box->value() + 500);
  emit box->editingFinished();
  EXPECT_TRUE(isModified());
}

#include "ProjectDocumentTest.moc"
