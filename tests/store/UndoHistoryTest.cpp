#include "project/ProjectSize.h"
#include "store/UndoTest.h"
#include "tables/DemandModel.h"
#include "tables/WellModel.h"

namespace TVR::Data {
namespace {

using namespace Parameter;

using UndoHistoryTest = UndoTest;

// Steps and their names

TEST_F(UndoHistoryTest, aValueComesBackWithAllThatFollowedFromIt) {
  store.setValue(HydraulicConductivity, 0.001);
  history.clear();
  const Project before = store.project();
  ASSERT_GT(writesAfter(HydraulicConductivity, 0.02), 1);
  const Project after = store.project();
  EXPECT_EQ(history.size(), 1U);
  EXPECT_EQ(history.undoName(), "Change hydraulic conductivity");
  history.undo();
  EXPECT_TRUE(store.project() == before);
  EXPECT_FALSE(history.canUndo());
  EXPECT_EQ(history.redoName(), "Change hydraulic conductivity");
  history.redo();
  EXPECT_TRUE(store.project() == after);
  EXPECT_FALSE(history.canRedo());
}

TEST_F(UndoHistoryTest, withoutStepsNothingIsUndone) {
  const Project before = store.project();
  EXPECT_EQ(history.undoName(), "");
  EXPECT_EQ(history.redoName(), "");
  history.undo();
  history.redo();
  EXPECT_TRUE(store.project() == before);
}

TEST_F(UndoHistoryTest, aLabelStandsInANameAsInASentence) {
  store.setValue(HydraulicConductivity, 0.02);
  store.setValue(GuiLanguage, "de"); // without its translations
  EXPECT_EQ(history.undoName(), "Change Hydraulic conductivity");
  store.setValue(GuiLanguage, "en");
  store.setValue(ProjectName, "Riverside");
  EXPECT_EQ(history.undoName(), "Change project name");
  store.setValue(RelTolHeat, 1e-3);
  EXPECT_EQ(history.undoName(), "Change relative error tolerance (heat transport model)");
  store.setValue(EffectivePorosity, 0.3); // it has no label
  EXPECT_EQ(history.undoName(), "Change project");
}

TEST_F(UndoHistoryTest, tablesNameTheirSteps) {
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(0, WellModel::X), 12);
  EXPECT_EQ(history.undoName(), "Move wells");
  wells.setData(wells.index(0, WellModel::Name), "Ost");
  EXPECT_EQ(history.undoName(), "Change wells");
  DemandModel& periods = *store.demandModel();
  periods.setData(periods.index(0, 0), 5e6);
  EXPECT_EQ(history.undoName(), "Change demand periods");
  EXPECT_EQ(history.size(), 3U);
}

TEST_F(UndoHistoryTest, changesWithinAScopeAreOneStepWithItsName) {
  const Project before = store.project();
  {
    const UserStep step(store, "Take over the design");
    store.setValue(HydraulicConductivity, 0.02);
    store.setValue(NumberOfWells, 6);
  }
  EXPECT_EQ(history.size(), 1U);
  EXPECT_EQ(history.undoName(), "Take over the design");
  history.undo();
  EXPECT_TRUE(store.project() == before);
}

TEST_F(UndoHistoryTest, aNameForSeveralValuesGivesWayToASingleOne) {
  const auto change = [this](double conductivity, int wells) {
    const UserStep step(store, StepName{.text = "Change 2 values", .isForSeveral = true});
    store.setValue(HydraulicConductivity, conductivity);
    store.setValue(NumberOfWells, wells);
    store.setValue(WellWizardDone, conductivity > 0.02);
  };
  change(0.02, 6);
  EXPECT_EQ(history.undoName(), "Change 2 values");
  change(0.03, 6);
  EXPECT_EQ(history.undoName(), "Change hydraulic conductivity");
}

TEST_F(UndoHistoryTest, whatOnlyFollowsFromAValueGivesNoName) {
  store.setValue(HydraulicConductivity, 0.001);
  store.setStored(GroundwaterVelocity, 5.0); // the rule has not run
  history.clear();
  const double conductivity = number(HydraulicConductivity);
  {
    const UserStep step(store, StepName{.text = "Change 2 values", .isForSeveral = true});
    store.setValue(HydraulicConductivity, conductivity);
    ASSERT_NE(number(GroundwaterVelocity), 5.0);
    store.setValue(ReferenceTemperature, 3.5);
  }
  EXPECT_EQ(history.undoName(), "Change reference temperature");
  history.undo();
  EXPECT_EQ(number(GroundwaterVelocity), 5.0);
  store.setStored(GroundwaterVelocity, 5.0);
  {
    const UserStep step(store, StepName{.text = "Change 2 values", .isForSeveral = true});
    store.setValue(HydraulicConductivity, conductivity);
  }
  EXPECT_EQ(history.undoName(), "Change 2 values");
}

TEST_F(UndoHistoryTest, aStepThatLeavesTheProjectAsItWasIsNone) {
  const double gravity = number(Gravity);
  {
    const UserStep step(store, "There and back");
    store.setValue(Gravity, 5.0);
    store.setValue(Gravity, gravity);
  }
  store.setValue(Gravity, gravity);
  EXPECT_FALSE(history.canUndo());
}

TEST_F(UndoHistoryTest, aNewStepForgetsWhatWasUndone) {
  store.setValue(Gravity, 5.0);
  store.setValue(Gravity, 6.0);
  history.undo();
  store.setValue(Gravity, 7.0);
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(history.size(), 2U);
  history.undo();
  EXPECT_EQ(number(Gravity), 5.0);
}

TEST_F(UndoHistoryTest, changesAreTold) {
  const QSignalSpy told(&history, &UndoHistory::changed);
  store.setValue(Gravity, 5.0);
  EXPECT_EQ(told.size(), 1);
  history.undo();
  EXPECT_EQ(told.size(), 2);
  history.redo();
  EXPECT_EQ(told.size(), 3);
  store.reset();
  EXPECT_EQ(told.size(), 4);
}

// An action that goes on

class Drag {
public:
  explicit Drag(Manager& store) : store_(store) {}
  void moveTo(double x) {
    const UserStep step(store_, StepName{.text = "Drag wells", .goesOn = true});
    store_.setCells(ProjectTable::Well, {{0, WellColumns::X, x}});
  }

private:
  Manager& store_;
};

TEST_F(UndoHistoryTest, aDragIsOneStep) {
  store.wellModel();
  history.clear();
  const Project before = store.project();
  Drag drag(store);
  for (const double x : {3.0, 8.0, 15.0})
    drag.moveTo(x);
  EXPECT_EQ(history.size(), 1U);
  history.endAction();
  drag.moveTo(20.0);
  EXPECT_EQ(history.size(), 2U);
  history.undo();
  EXPECT_EQ(store.wellPositions()[0].x(), 15.0);
  history.undo();
  EXPECT_TRUE(store.project() == before);
  history.redo();
  EXPECT_EQ(store.wellPositions()[0].x(), 15.0);
}

TEST_F(UndoHistoryTest, aDragGoesOnOnlyWithItself) {
  Drag drag(store);
  drag.moveTo(3.0);
  store.setValue(Gravity, 5.0);
  drag.moveTo(8.0);
  EXPECT_EQ(history.size(), 3U);
  history.undo();
  history.redo();
  drag.moveTo(9.0);
  EXPECT_EQ(history.size(), 4U);
}

TEST_F(UndoHistoryTest, aDragThatIsPutBackIsNoStep) {
  Drag drag(store);
  drag.moveTo(3.0);
  history.endAction();
  drag.moveTo(8.0);
  drag.moveTo(3.0);
  EXPECT_EQ(history.size(), 1U);
  drag.moveTo(9.0);
  EXPECT_EQ(history.size(), 2U);
}

// What is not seen

TEST_F(UndoHistoryTest, whatIsNotSeenGoesWithTheStepBefore) {
  store.setValue(Gravity, "5.0");
  const Project first = store.project();
  history.clear();
  store.setValue(HydraulicConductivity, 0.02);
  store.setValue(Gravity, 5.0); // the same as a number
  store.setValue(WellWizardDone, true);
  const Project last = store.project();
  EXPECT_EQ(history.size(), 1U);
  history.undo();
  EXPECT_TRUE(store.project() == first);
  history.redo();
  EXPECT_TRUE(store.project() == last);
}

TEST_F(UndoHistoryTest, whatIsNotSeenBeforeTheFirstStepGoesWithIt) {
  store.setValue(Gravity, "5.0");
  const Project first = store.project();
  history.clear();
  store.setValue(Gravity, 5.0);
  EXPECT_FALSE(history.canUndo());
  store.setValue(WellWizardDone, true);
  store.setValue(HydraulicConductivity, 0.02);
  history.undo();
  EXPECT_TRUE(store.project() == first);
}

TEST_F(UndoHistoryTest, whatIsNotSeenKeepsWhatWasUndone) {
  store.setValue(HydraulicConductivity, 0.001);
  history.clear();
  const Project first = store.project();
  store.setValue(HydraulicConductivity, 0.02);
  history.undo();
  store.setValue(WellWizardDone, !store.flag(WellWizardDone));
  ASSERT_TRUE(history.canRedo());
  history.redo();
  EXPECT_EQ(number(HydraulicConductivity), 0.02);
  history.undo();
  EXPECT_TRUE(store.project() == first);
}

TEST_F(UndoHistoryTest, theLanguageStays) {
  store.setValue(HydraulicConductivity, 0.02);
  store.setValue(GuiLanguage, "fr");
  EXPECT_EQ(history.size(), 1U);
  history.undo();
  EXPECT_EQ(store.text(GuiLanguage), "fr");
  history.redo();
  EXPECT_EQ(store.text(GuiLanguage), "fr");
}

// Tables

TEST_F(UndoHistoryTest, periodsThatAStepHasMadeAreGoneAgain) {
  const QStringList before = write("before.tbat");
  history.clear();
  store.setValue(NumberOfDemandsPerYear, 3);
  ASSERT_TRUE(store.hasDemandModel());
  history.undo();
  EXPECT_FALSE(store.hasDemandModel());
  EXPECT_FALSE(store.hasWellDemandModel());
  EXPECT_EQ(write("after.tbat"), before);
  EXPECT_EQ(store.demandModel()->rowCount(), 1);
  EXPECT_EQ(store.wellDemandModel()->rowCount(), store.wellModel()->rowCount());
  history.redo();
  EXPECT_EQ(store.demandModel()->rowCount(), 3);
}

TEST_F(UndoHistoryTest, aTableThatIsShownFollows) {
  store.setValue(NumberOfWells, 2);
  WellModel& wells = *store.wellModel();
  history.clear();
  store.setCells(ProjectTable::Well, {{1, WellColumns::X, 40}, {1, WellColumns::Name, "Ost"}});
  const QSignalSpy resets(&wells, &QAbstractItemModel::modelReset);
  history.undo();
  EXPECT_EQ(resets.size(), 1);
  EXPECT_EQ(wells.index(1, WellModel::X).data(), 0.0);
  EXPECT_NE(wells.index(1, WellModel::Name).data(), "Ost");
}

TEST_F(UndoHistoryTest, aTableThatIsMadeIsNoStepAndGoesWithTheOneBefore) {
  store.wellModel();
  EXPECT_FALSE(history.canUndo());
  store.setValue(Gravity, 5.0);
  store.demandModel();
  {
    const UserStep step(store, "Look at the periods");
    store.wellDemandModel();
  }
  EXPECT_EQ(history.size(), 1U);
  history.undo();
  EXPECT_FALSE(store.hasWellModel() || store.hasDemandModel() || store.hasWellDemandModel());
}

// The program's own work

TEST_F(UndoHistoryTest, whatTheProgramWritesIsNoStepAndStays) {
  store.setValue(HydraulicConductivity, 0.02);
  {
    const ProgramWork work(store);
    store.setValue(MaximumExtent3K, 120.0);
    store.setValue(ThermalDispersivity, 7.0);
  }
  EXPECT_EQ(history.size(), 1U);
  EXPECT_EQ(history.undoName(), "Change hydraulic conductivity");
  history.undo();
  EXPECT_NE(number(HydraulicConductivity), 0.02);
  EXPECT_EQ(number(MaximumExtent3K), 120.0);
  EXPECT_EQ(number(ThermalDispersivity), 7.0);
  history.redo();
  EXPECT_EQ(number(HydraulicConductivity), 0.02);
  EXPECT_EQ(number(ThermalDispersivity), 7.0);
}

TEST_F(UndoHistoryTest, whatTheProgramWritesOverAStepComesBackWithIt) {
  store.setValue(DMin, 30.0);
  history.clear();
  store.setValue(DMin, 40.0);
  {
    const ProgramWork work(store);
    store.setValue(DMin, 41.5);
  }
  history.undo();
  EXPECT_EQ(number(DMin), 30.0);
  history.redo();
  EXPECT_EQ(number(DMin), 41.5);
}

TEST_F(UndoHistoryTest, whatTheProgramWritesWithinAStepStays) {
  {
    const UserStep step(store, "Finish");
    store.setValue(Gravity, 5.0);
    const ProgramWork work(store);
    store.setValue(ThermalDispersivity, 7.0);
  }
  history.undo();
  EXPECT_NE(number(Gravity), 5.0);
  EXPECT_EQ(number(ThermalDispersivity), 7.0);
}

TEST_F(UndoHistoryTest, aStepOfTheProgramsWorkAloneIsNone) {
  {
    const UserStep step(store, "Finish");
    const ProgramWork work(store);
    store.setValue(ThermalDispersivity, 7.0);
  }
  EXPECT_FALSE(history.canUndo());
}

TEST_F(UndoHistoryTest, wellsWithoutAPlaceStayOnTheDefaultThatThePageHasSettled) {
  store.wellModel();
  history.clear();
  store.setValue(NumberOfWells, 4);
  {
    const ProgramWork work(store);
    store.setValue(DefaultWellPosition, QPointF(30, 40));
  }
  history.undo();
  EXPECT_EQ(store.wellPositions(), QVector<QPointF>(2, {30, 40}));
  history.redo();
  EXPECT_EQ(store.wellPositions(), QVector<QPointF>(4, {30, 40}));
}

// Results

TEST_F(UndoHistoryTest, resultsAreUpToDateOnlyWithTheProjectThatTheyComeFrom) {
  const auto isUpToDate = [this] { return store.flag(SimulationUpToDate); };
  store.setValue(Gravity, 5.0);
  {
    const ProgramWork work(store);
    store.setValue(SimulationUpToDate, 1);
  }
  history.resultsMade();
  {
    const ProgramWork work(store);
    store.setValue(ViewScale, 2500); // so that the plume is seen
  }
  const Project run = store.project();
  history.undo();
  EXPECT_FALSE(isUpToDate());
  history.redo();
  EXPECT_TRUE(isUpToDate());
  EXPECT_TRUE(store.project() == run);
  store.setValue(Gravity, 6.0);
  history.undo();
  EXPECT_TRUE(isUpToDate());
  history.redo();
  EXPECT_FALSE(isUpToDate());
}

TEST_F(UndoHistoryTest, resultsOfAnOpenedProjectAreUpToDateWithIt) {
  store.setStored(SimulationUpToDate, "1");
  history.clear();
  const Project opened = store.project();
  store.setValue(Gravity, 5.0);
  store.setValue(Gravity, 6.0);
  history.undo();
  EXPECT_FALSE(store.flag(SimulationUpToDate));
  history.undo();
  EXPECT_TRUE(store.project() == opened);
}

TEST_F(UndoHistoryTest, undoingStartsNoSimulation) {
  store.setStored(SimulationUpToDate, true);
  store.setValue(Gravity, 5.0);
  const QSignalSpy starts(&store, &Manager::startSimulation);
  history.undo();
  EXPECT_FALSE(store.flag(SimulationUpToDate));
  EXPECT_TRUE(starts.isEmpty());
}

// Projects

TEST_F(UndoHistoryTest, anotherProjectHasNoSteps) {
  store.setValue(Gravity, 5.0);
  read("[hydraulic]\nkf=0.03\n");
  EXPECT_FALSE(history.canUndo());
  store.setValue(Gravity, 6.0);
  EXPECT_EQ(history.size(), 1U);
  store.reset();
  EXPECT_FALSE(history.canUndo());
}

TEST_F(UndoHistoryTest, aProjectThatAStepPutsInIsPartOfIt) {
  const Project before = store.project();
  Project project = before;
  project.wells.names[0] = "Ost";
  {
    const UserStep step(store, "Put in");
    store.setProject(project);
  }
  EXPECT_EQ(history.undoName(), "Put in");
  history.undo();
  EXPECT_TRUE(store.project() == before);
}

// Memory

TEST_F(UndoHistoryTest, theOldestStepsGoWhenThereIsNoRoom) {
  store.setValue(Gravity, 0.5);
  history.clear();
  constexpr qint64 room = 200'000;
  UndoHistory small(store, room);
  for (int step = 1; step <= 100; ++step)
    store.setValue(Gravity, step);
  EXPECT_EQ(history.size(), 100U);
  EXPECT_LT(small.size(), 100U);
  EXPECT_GT(small.size(), 3U);
  EXPECT_LE(small.bytes(), room);
  const int left = static_cast<int>(small.size());
  while (small.canUndo())
    small.undo();
  EXPECT_EQ(number(Gravity), 100 - left);
}

TEST_F(UndoHistoryTest, theLastStepIsKeptHoweverLarge) {
  UndoHistory tiny(store, 1);
  store.setValue(Gravity, 5.0);
  store.setValue(Gravity, 6.0);
  EXPECT_EQ(tiny.size(), 1U);
  tiny.undo();
  EXPECT_EQ(number(Gravity), 5.0);
}

TEST_F(UndoHistoryTest, neighbouringStepsShareTheirProject) {
  store.setValue(Gravity, 5.0);
  const qint64 one = history.bytes();
  store.setValue(Gravity, 6.0);
  const qint64 two = history.bytes();
  const qint64 whole = bytesBeside(store.project(), Project());
  EXPECT_GE(one, 2 * (whole - 1000));
  EXPECT_LT(two - one, whole + 1000);
}

} // namespace
} // namespace TVR::Data
