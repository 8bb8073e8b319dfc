#include "gui/PageUser.h"
#include "gui/simulation/SimulationPages.h"
#include "results/DialogUser.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class ExtendedSimulationPageTest : public PageTest {
protected:
  QGroupBox& group(const char* name) { return *in<QGroupBox>(page, name); }
  QCheckBox& check(const char* name) { return *in<QCheckBox>(page, name); }

  QTemporaryDir folder;
  InputWizard wizard;
  QWizardPage& page = *extendedSimulationPages({store}, &wizard).at(0);
};

TEST_F(ExtendedSimulationPageTest, theGroupsAreUncheckedInTheForm) {
  for (const char* const name :
       {"gw_groupBox", "heat_groupBox", "writeTecplotOutput", "writeWellOutput"}) {
    EXPECT_TRUE(group(name).isCheckable()) << name;
    EXPECT_FALSE(group(name).isChecked()) << name;
  }
}

TEST_F(ExtendedSimulationPageTest, whatIsStoredIsShown) {
  store.setValue(ThermalDispersivity, 1.2345);
  store.setValue(ClosedLoop, true);
  store.setValue(WriteTecplotOutput, true);
  store.setValue(TecplotOutputFile, "folder");
  store.setValue(WriteWellOutput, true);
  store.setValue(WellOutputFile, "table.xml");
  store.setValue(UserDefinedGroundwaterTolerances, true);
  store.setValue(RelTolGroundwater, 1.24e-5);
  store.setValue(AbsTolGroundwater, 2e-6);
  store.setValue(UserDefinedHeatTolerances, true);
  store.setValue(RelTolHeat, 3e-7);
  store.setValue(AbsTolHeat, 4e-8);
  store.setValue(CellIncreaseFactor, 29.6);
  store.setValue(MinElementLength, 0.555);
  store.setValue(MaxElementLength, 50.0);
  page.initializePage();
  EXPECT_TRUE(check("heatDispersionUsed").isChecked());
  EXPECT_EQ(textIn(page, "Dispersion_value"), "1.23");
  EXPECT_TRUE(check("useClosedWellLoop").isChecked());
  EXPECT_TRUE(group("writeTecplotOutput").isChecked());
  EXPECT_EQ(textIn(page, "tecplotOutputFilename"), "folder");
  EXPECT_TRUE(group("writeWellOutput").isChecked());
  EXPECT_EQ(textIn(page, "wellOutputFilename"), "table.xml");
  EXPECT_TRUE(group("gw_groupBox").isChecked());
  EXPECT_EQ(textIn(page, "relativ_error_groundwater"), "1.2e-05");
  EXPECT_EQ(textIn(page, "abs_error_groundwater"), "2.0e-06");
  EXPECT_TRUE(group("heat_groupBox").isChecked());
  EXPECT_EQ(textIn(page, "relativ_error_heat"), "3.0e-07");
  EXPECT_EQ(textIn(page, "abs_error_heat"), "4.0e-08");
  EXPECT_EQ(textIn(page, "cellIncreaseFactor"), "30");
  EXPECT_EQ(textIn(page, "minCellWidth"), "0.56");
  EXPECT_EQ(textIn(page, "maxCellWidth"), "50.00");
}

TEST_F(ExtendedSimulationPageTest, whatCanBeTypedIsLimited) {
  page.initializePage();
  expectTypeable(page, {{"Dispersion_value", 0.1, 50, 2},
                        {"abs_error_groundwater", 1e-12, 0.1, 12},
                        {"relativ_error_groundwater", 1e-12, 0.1, 12},
                        {"abs_error_heat", 1e-12, 0.001, 12},
                        {"relativ_error_heat", 1e-12, 0.001, 12},
                        {"cellIncreaseFactor", 1, 100, 0},
                        {"minCellWidth", 0, 10, 2},
                        {"maxCellWidth", 0, 1000, 2}});
}

TEST_F(ExtendedSimulationPageTest, whatIsTypedIsStored) {
  store.setStored(SimulationUpToDate, true);
  store.setStored(SimulationWizardDone, false);
  store.setValue(ClosedLoop, false);
  page.initializePage();
  toggle(page, "useClosedWellLoop");
  toggle(page, "heatDispersionUsed");
  type(page, "Dispersion_value", "7.5");
  toggle(page, "gw_groupBox");
  type(page, "relativ_error_groundwater", "1e-6");
  type(page, "abs_error_groundwater", "2e-6");
  toggle(page, "heat_groupBox");
  type(page, "relativ_error_heat", "3e-8");
  type(page, "abs_error_heat", "4e-8");
  type(page, "cellIncreaseFactor", "20");
  type(page, "minCellWidth", "0.5");
  type(page, "maxCellWidth", "60");
  toggle(page, "writeTecplotOutput");
  type(page, "tecplotOutputFilename", "folder");
  toggle(page, "writeWellOutput");
  type(page, "wellOutputFilename", "table.xml");
  EXPECT_EQ(written(page),
            (QVector<int>{ThermalDispersivity, ClosedLoop, WriteTecplotOutput, TecplotOutputFile,
                          WriteWellOutput, WellOutputFile, UserDefinedGroundwaterTolerances,
                          RelTolGroundwater, AbsTolGroundwater, UserDefinedHeatTolerances,
                          RelTolHeat, AbsTolHeat, CellIncreaseFactor, MinElementLength,
                          MaxElementLength, SimulationWizardDone, SimulationUpToDate}));
  EXPECT_EQ(number(ThermalDispersivity), 7.5);
  EXPECT_TRUE(store.value(UserDefinedGroundwaterTolerances).toBool());
  EXPECT_EQ(number(RelTolGroundwater), 1e-6);
  EXPECT_EQ(number(AbsTolGroundwater), 2e-6);
  EXPECT_TRUE(store.value(UserDefinedHeatTolerances).toBool());
  EXPECT_EQ(number(RelTolHeat), 3e-8);
  EXPECT_EQ(number(AbsTolHeat), 4e-8);
  EXPECT_EQ(number(CellIncreaseFactor), 20);
  EXPECT_EQ(number(MinElementLength), 0.5);
  EXPECT_EQ(number(MaxElementLength), 60);
  EXPECT_TRUE(store.value(WriteTecplotOutput).toBool());
  EXPECT_EQ(store.value(TecplotOutputFile), "folder");
  EXPECT_TRUE(store.value(WriteWellOutput).toBool());
  EXPECT_EQ(store.value(WellOutputFile), "table.xml");
}

TEST_F(ExtendedSimulationPageTest, theClosedLoopIsTurnedOnAndOff) {
  for (const bool isClosed : {false, true}) {
    store.setValue(ClosedLoop, isClosed);
    page.initializePage();
    EXPECT_EQ(check("useClosedWellLoop").isChecked(), isClosed);
    toggle(page, "useClosedWellLoop");
    page.validatePage();
    EXPECT_EQ(store.value(ClosedLoop).toBool(), !isClosed);
  }
}

TEST_F(ExtendedSimulationPageTest, withoutDispersionZeroIsWrittenAndTheTextStays) {
  store.setValue(ThermalDispersivity, 5.0);
  page.initializePage();
  toggle(page, "heatDispersionUsed");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(store.value(ThermalDispersivity), 0.0);
  EXPECT_EQ(textIn(page, "Dispersion_value"), "5.00");
  page.initializePage();
  EXPECT_FALSE(check("heatDispersionUsed").isChecked());
}

TEST_F(ExtendedSimulationPageTest, theGroundwaterDecidesOnTheTolerancesOfTheHeat) {
  store.setValue(UserDefinedGroundwaterTolerances, true);
  store.setValue(UserDefinedHeatTolerances, true);
  page.initializePage();
  toggle(page, "gw_groupBox");
  ASSERT_TRUE(group("heat_groupBox").isChecked());
  type(page, "relativ_error_heat", "3e-5");
  type(page, "abs_error_heat", "4e-5");
  EXPECT_TRUE(page.validatePage());
  EXPECT_FALSE(store.value(UserDefinedGroundwaterTolerances).toBool());
  EXPECT_FALSE(store.value(UserDefinedHeatTolerances).toBool());
  EXPECT_EQ(number(RelTolHeat), 3e-5);
  EXPECT_EQ(number(AbsTolHeat), 4e-5);
}

TEST_F(ExtendedSimulationPageTest, tolerancesOfTheHeatCountWithoutTheirOwnCheckMark) {
  page.initializePage();
  toggle(page, "gw_groupBox");
  ASSERT_FALSE(group("heat_groupBox").isChecked());
  in<QLineEdit>(page, "abs_error_heat")->setText("4e-5");
  const double before = number(AbsTolHeat);
  EXPECT_TRUE(page.validatePage());
  EXPECT_TRUE(store.value(UserDefinedHeatTolerances).toBool());
  EXPECT_EQ(number(AbsTolHeat), before);
}

TEST_F(ExtendedSimulationPageTest, tolerancesThatAreNotUsedAreNotWritten) {
  page.initializePage();
  const double before = number(AbsTolGroundwater);
  in<QLineEdit>(page, "abs_error_groundwater")->setText("4e-3");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(AbsTolGroundwater), before);
}

TEST_F(ExtendedSimulationPageTest, itNeverRefuses) {
  page.initializePage();
  for (QLineEdit* const edit : page.findChildren<QLineEdit*>())
    edit->clear();
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(in<QLabel>(page, "feedback_page2")->text(), "");
}

TEST_F(ExtendedSimulationPageTest, leavingItCompletesTheDataAndOutdatesTheResults) {
  QSignalSpy started(&store, &Data::Manager::startSimulation);
  store.setValue(SimulationWizardDone, false);
  store.setStored(SimulationUpToDate, true);
  page.initializePage();
  EXPECT_TRUE(page.validatePage());
  EXPECT_TRUE(store.value(SimulationWizardDone).toBool());
  EXPECT_FALSE(store.value(SimulationUpToDate).toBool());
  EXPECT_EQ(started.size(), 1);
}

TEST_F(ExtendedSimulationPageTest, leavingItUntouchedChangesNoEntry) {
  store.setValue(RelTolHeat, 1.23456e-7);
  store.setValue(CellIncreaseFactor, 29.6);
  store.setValue(ThermalDispersivity, 1.23456);
  store.setValue(UserDefinedGroundwaterTolerances, true);
  store.setValue(UserDefinedHeatTolerances, true);
  page.initializePage();
  page.validatePage();
  const Project before = store.project();
  page.initializePage();
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(changedSince(before), QVector<int>{});
  EXPECT_EQ(number(RelTolHeat), 1.23456e-7);
  EXPECT_EQ(number(CellIncreaseFactor), 29.6);
  EXPECT_EQ(number(ThermalDispersivity), 1.23456);
}

TEST_F(ExtendedSimulationPageTest, withoutAChangeNoResetIsAskedFor) {
  page.initializePage();
  page.cleanupPage();
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(ExtendedSimulationPageTest, eachChangeIsAskedForAndPutBack) {
  const std::pair<int, QVariant> changes[] = {{ThermalDispersivity, 3.5},
                                              {ClosedLoop, !store.value(ClosedLoop).toBool()},
                                              {WriteTecplotOutput, true},
                                              {WriteWellOutput, true},
                                              {RelTolGroundwater, 2e-5},
                                              {AbsTolGroundwater, 2e-5},
                                              {RelTolHeat, 2e-5},
                                              {AbsTolHeat, 2e-5},
                                              {CellIncreaseFactor, 44.0},
                                              {MinElementLength, 0.25},
                                              {MaxElementLength, 99.0},
                                              {WellOutputFile, "other"},
                                              {TecplotOutputFile, "other"},
                                              {UserDefinedGroundwaterTolerances, true},
                                              {UserDefinedHeatTolerances, true}};
  for (const auto& [id, value] : changes) {
    page.initializePage();
    const QVariant before = store.value(id);
    ASSERT_NE(before, value) << id;
    store.setValue(id, value);
    answers.shown.clear();
    answers.yes = false;
    page.cleanupPage();
    EXPECT_EQ(answers.shown, QStringList{"Reset all changes on the extended simulation parameter?"})
        << id;
    EXPECT_EQ(store.value(id), value) << id;
    answers.yes = true;
    page.cleanupPage();
    EXPECT_EQ(store.value(id), before) << id;
  }
}

TEST_F(ExtendedSimulationPageTest, aFolderIsChosenForTheOutputOfAllCells) {
  page.initializePage();
  toggle(page, "writeTecplotOutput");
  in<QLineEdit>(page, "tecplotOutputFilename")->setText(folder.path());
  const DialogUser user([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Select output file name");
    EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontResolveSymlinks));
    EXPECT_EQ(dialog.directory().path(), folder.path());
    QDir(folder.path()).mkdir("out");
    choose(dialog, folder.filePath("out"));
  });
  toggle(page, "selectTecplotOutputFile");
  EXPECT_TRUE(user.sawDialog());
  EXPECT_EQ(textIn(page, "tecplotOutputFilename"), folder.filePath("out"));
}

TEST_F(ExtendedSimulationPageTest, aFileIsChosenForTheTableOfTheWells) {
  page.initializePage();
  toggle(page, "writeWellOutput");
  in<QLineEdit>(page, "wellOutputFilename")->setText(folder.filePath("old.xml"));
  const DialogUser user([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Select output file name");
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.selectedFiles(), QStringList{folder.filePath("old.xml")});
    auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->selectAll();
    QTest::keyClicks(name, "table.xml");
    QTest::keyClick(name, Qt::Key_Return);
  });
  toggle(page, "selectWellOutputFile");
  EXPECT_TRUE(user.sawDialog());
  EXPECT_EQ(textIn(page, "wellOutputFilename"), folder.filePath("table.xml"));
}

TEST_F(ExtendedSimulationPageTest, aDialogThatIsGivenUpChangesNothing) {
  page.initializePage();
  const std::pair<const char*, const char*> choices[] = {
      {"selectTecplotOutputFile", "tecplotOutputFilename"},
      {"selectWellOutputFile", "wellOutputFilename"}};
  toggle(page, "writeTecplotOutput");
  toggle(page, "writeWellOutput");
  for (const auto& [button, edit] : choices) {
    in<QLineEdit>(page, edit)->setText(folder.filePath("old"));
    const DialogUser user([](QFileDialog& dialog) { giveUp(dialog); });
    toggle(page, button);
    EXPECT_TRUE(user.sawDialog());
    EXPECT_EQ(textIn(page, edit), folder.filePath("old"));
  }
}

TEST_F(ExtendedSimulationPageTest, itFormsAWizardOfItsOwn) {
  for (QWizardPage* const each : extendedSimulationPages({store}, &wizard))
    wizard.addPage(each);
  ASSERT_EQ(wizard.pageIds().size(), 1);
  wizard.restart();
  EXPECT_EQ(wizard.buttonText(QWizard::FinishButton), "Simulate");
  wizard.accept();
  EXPECT_TRUE(store.value(SimulationWizardDone).toBool());
}

} // namespace
} // namespace TVR::GUI
