#include "plugin/PluginTest.h"
#include "results/DialogHost.h"
#include "results/DialogUser.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QFileDialog>
#include <QLabel>
#include <QMainWindow>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// What a file dialog was like when the user saw it.
struct SeenDialog {
  QString title;
  QStringList filters;
  QString directory;
  QString name; ///< in the field of the file name
};

class ProjectDialogsTest : public PluginTest {
protected:
  ProjectDialogsTest() {
    setMessenger(&user);
    host.path = path("work");
    QDir().mkpath(host.path);
    plugin.setAppInterface(&host);
  }
  ~ProjectDialogsTest() override { setMessenger(nullptr); }

  /// Calls a slot without arguments; the user looks at the dialog, and chooses a file or gives up.
  void call(const char* slot, const QString& chosen) {
    seen = {};
    const DialogUser dialogUser([&](QFileDialog& dialog) {
      seen = {dialog.windowTitle(), dialog.nameFilters(), dialog.directory().path(),
              dialog.findChild<QLineEdit*>("fileNameEdit")->text()};
      if (chosen.isEmpty())
        giveUp(dialog);
      else
        choose(dialog, chosen);
    });
    ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, slot));
    sawDialog = dialogUser.sawDialog();
  }
  QString project(const QString& name) {
    EXPECT_TRUE(BatchProject::doublet().write(path("p.tbat")));
    plugin.TVRPlugin::load(path("p.tbat"));
    plugin.save(path(name));
    return path(name);
  }

  const SettingsOfTheTest settings;
  TestMessenger user;
  DialogHost host;
  LoadingPlugin plugin;
  SeenDialog seen;
  bool sawDialog = false;
};

} // namespace

// Opening

TEST_F(ProjectDialogsTest, aProjectToOpenIsAskedForInTheWorkingPath) {
  call("load", {});
  EXPECT_EQ(seen.title, "Open TVR project file");
  EXPECT_EQ(seen.filters, QStringList{"TVR project files (*.tvr)"});
  EXPECT_EQ(seen.directory, host.path);
}

TEST_F(ProjectDialogsTest, withoutAHostTheWorkingPathIsThatOfTheSettings) {
  plugin.setAppInterface(nullptr);
  QDir().mkpath(path("settings"));
  SettingsOfTheTest::current().setValue("working_path", path("settings"));
  call("load", {});
  EXPECT_EQ(seen.directory, path("settings"));
  call("save", {});
  EXPECT_EQ(seen.directory, path("settings"));
}

TEST_F(ProjectDialogsTest, theChosenProjectIsOpenedAndItsPathKept) {
  const QString file = project("chosen.tvr");
  host.told.clear();
  call("load", file);
  EXPECT_EQ(plugin.loaded, QStringList{file});
  EXPECT_EQ(host.told, QStringList{path("")});
}

TEST_F(ProjectDialogsTest, aHostThatKeepsNoPathIsToldNone) {
  const QString file = project("chosen.tvr");
  host.keeps = false;
  host.told.clear();
  call("load", file);
  call("save", path("saved.tvr"));
  EXPECT_EQ(host.told, QStringList());
}

TEST_F(ProjectDialogsTest, aUserWhoGivesUpOpensNothing) {
  call("load", {});
  EXPECT_TRUE(sawDialog);
  EXPECT_EQ(plugin.loaded, QStringList());
  EXPECT_EQ(host.told, QStringList());
  EXPECT_EQ(user.told, QStringList());
}

TEST_F(ProjectDialogsTest, duringARunNoProjectIsAskedFor) {
  startLongRun(plugin);
  user.told.clear();
  call("load", {});
  EXPECT_FALSE(sawDialog);
  EXPECT_EQ(user.told, QStringList{"Host: Operation abort because simulation is running."});
  plugin.cancelSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
}

// Saving

TEST_F(ProjectDialogsTest, aFileToSaveIsAskedForInTheWorkingPath) {
  call("save", {});
  EXPECT_EQ(seen.title, "Save TVR project file");
  EXPECT_EQ(seen.filters, (QStringList{"TVR project file (*.tvr)", "TVR batch file (*.tbat)"}));
  EXPECT_EQ(seen.directory, host.path);
  EXPECT_EQ(seen.name, "");
}

TEST_F(ProjectDialogsTest, aNameWithoutEndingGetsThatOfProjects) {
  call("save", path("named"));
  EXPECT_TRUE(contentOf(path("named.tvr")).startsWith("<?xml"));
  EXPECT_EQ(host.told, QStringList{path("")});
}

TEST_F(ProjectDialogsTest, theEndingOfABatchFileStays) {
  read(BatchProject::doublet());
  call("save", path("named.tbat"));
  EXPECT_TRUE(contentOf(path("named.tbat")).contains("[main]"));
  EXPECT_FALSE(QFile::exists(path("named.tbat.tvr")));
}

TEST_F(ProjectDialogsTest, anyOtherEndingIsPartOfTheName) {
  call("save", path("named.xml"));
  EXPECT_TRUE(QFile::exists(path("named.xml.tvr")));
  EXPECT_FALSE(QFile::exists(path("named.xml")));
}

TEST_F(ProjectDialogsTest, aUserWhoGivesUpSavesNothing) {
  call("save", {});
  EXPECT_TRUE(sawDialog);
  EXPECT_EQ(host.told, QStringList());
  EXPECT_EQ(QDir(path("")).entryList({"*.tvr"}), QStringList());
}

TEST_F(ProjectDialogsTest, aFileThatTheDialogDidNotAskAboutIsNotReplacedUnasked) {
  const QString file = project("there.tvr");
  const QByteArray before = contentOf(file);
  store.setValue(ProjectName, "Other");
  user.yes = false;
  user.questions.clear();
  call("save", path("there"));
  EXPECT_EQ(user.questions.size(), 1);
  EXPECT_EQ(contentOf(file), before);
  user.yes = true;
  call("save", path("there"));
  EXPECT_NE(contentOf(file), before);
}

TEST_F(ProjectDialogsTest, theFileThatThePanelNamesIsProposed) {
  QMainWindow main;
  plugin.addDockingWindows(&main);
  auto& label = *main.findChild<QLabel*>("file_label");
  project("named.tvr");
  EXPECT_EQ(label.text(), path("named.tvr"));
  call("save", {});
  EXPECT_EQ(seen.name, "named.tvr");
  EXPECT_EQ(seen.directory, QFileInfo(path("named.tvr")).path());
  label.setText(" not saved  " + path("typed.tvr") + "  ");
  call("save", {});
  EXPECT_EQ(seen.name, "typed.tvr") << "without the word and without blanks around it";
  label.setText("not saved");
  call("save", {});
  EXPECT_EQ(seen.name, "");
  EXPECT_EQ(seen.directory, host.path);
}

// What follows

TEST_F(ProjectDialogsTest, thePanelFollowsTheProject) {
  QMainWindow main;
  plugin.addDockingWindows(&main);
  auto& label = *main.findChild<QLabel*>("file_label");
  const QString file = project("p.tvr");
  store.reset();
  plugin.TVRPlugin::load(file);
  EXPECT_EQ(label.text(), file);
  plugin.TVRPlugin::load(damagedProject());
  EXPECT_EQ(label.text(), "not saved");
}

TEST_F(ProjectDialogsTest, whatANewProjectOffersToSaveIsTheProjectAfterTheReset) {
  read(BatchProject::doublet());
  store.setValue(ProjectName, "Before");
  plugin.wizards().setPages(
      {{GUI::PageGroup::WellPositions, [] { return QList<QWizardPage*>{new QWizardPage}; }}});
  plugin.showSimulationWizard();
  call("newOpen", path("late.tvr"));
  EXPECT_TRUE(sawDialog);
  EXPECT_TRUE(QFile::exists(path("late.tvr")));
  EXPECT_FALSE(contentOf(path("late.tvr")).contains("Before"));
}
