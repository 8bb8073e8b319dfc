#include "store/Journal.h"

#include "files/BatchFiles.h"
#include "store/StoreTest.h"
#include "store/UserStep.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <vector>

namespace TVR::Data {
namespace {

using namespace Parameter;

class KeptJournal final : public Journal {
public:
  void record(const JournalEntry& entry) override { entries.push_back(entry); }
  void beginStep(const StepName& name) override { told << name.text; }
  void endStep() override { told << QString::number(entries.size()); }

  std::vector<JournalEntry> entries;
  QStringList told; ///< the name of each step, and how many entries there were at its end
};

class JournalTest : public BatchFileTest {
protected:
  JournalTest() { store.addJournal(&journal); }
  ~JournalTest() override { store.removeJournal(&journal); }

  KeptJournal journal;
};

TEST_F(JournalTest, aWriteWithAllThatFollowsFromItIsOneEntry) {
  const Project before = store.project();
  ASSERT_GT(writesAfter(HydraulicConductivity, 0.02), 1);
  ASSERT_EQ(journal.entries.size(), 1U);
  const JournalEntry& entry = journal.entries.front();
  EXPECT_EQ(entry.what, HydraulicConductivity);
  EXPECT_TRUE(entry.before == before);
  EXPECT_TRUE(entry.after == store.project());
  EXPECT_EQ(entry.after.values[HydraulicConductivity], 0.02);
}

TEST_F(JournalTest, aWriteThatChangesNothingIsNoEntry) {
  store.setValue(HydraulicConductivity, 0.02);
  journal.entries.clear();
  store.setValue(HydraulicConductivity, 0.02);
  store.setValue(HydraulicConductivity, QVariant());
  EXPECT_TRUE(journal.entries.empty());
}

TEST_F(JournalTest, cellsOfTheTablesAreEntriesOfTheirOwn) {
  store.setValue(NumberOfWells, 2);
  store.setValue(NumberOfDemandsPerYear, 1);
  WellModel& wells = *store.wellModel();
  journal.entries.clear();
  wells.setData(wells.index(1, WellModel::X), 40);
  DemandModel& demand = *store.demandModel();
  demand.setData(demand.index(0, 0), 5e6);
  WellDemandModel& rates = *store.wellDemandModel();
  rates.setData(rates.index(1, WellDemandModel::Rate), 0.004);
  ASSERT_EQ(journal.entries.size(), 3U);
  EXPECT_EQ(journal.entries[0].what, ChangedWells);
  EXPECT_EQ(journal.entries[0].before.wells.positions[1].x(), 0);
  EXPECT_EQ(journal.entries[0].after.wells.positions[1].x(), 40);
  EXPECT_EQ(journal.entries[1].what, ChangedPeriods);
  EXPECT_EQ(journal.entries[1].after.durations[0], 5e6);
  EXPECT_EQ(journal.entries[2].what, ChangedWells);
  EXPECT_EQ(journal.entries[2].after.wells.periodRates[1][0], 0.004);
}

TEST_F(JournalTest, manyCellsAtOnceAreOneEntry) {
  store.setValue(NumberOfWells, 2);
  store.wellModel();
  journal.entries.clear();
  store.setCells(
      ProjectTable::Well,
      {{0, WellColumns::X, 7}, {1, WellColumns::Rate, 0.004}, {1, WellColumns::Name, "Süd"}});
  ASSERT_EQ(journal.entries.size(), 1U);
  EXPECT_EQ(journal.entries[0].what, ChangedWells);
}

TEST_F(JournalTest, aFileThatIsReadIsOneEntry) {
  read("[hydraulic]\nkf=0.03\n[installation]\nnumber_of_wells=4\n");
  ASSERT_EQ(journal.entries.size(), 1U);
  EXPECT_EQ(journal.entries[0].what, ChangedProject);
}

TEST_F(JournalTest, theProjectBeforeAnEntryCanBePutBack) {
  store.setValue(NumberOfWells, 4);
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(3, WellModel::Name), "Ost");
  journal.entries.clear();
  store.setValue(NumberOfWells, 2);
  ASSERT_EQ(wells.rowCount(), 2);
  const QSignalSpy resets(&wells, &QAbstractItemModel::modelReset);
  const QSignalSpy changes(&store, &Manager::dataChanged);
  store.setProject(journal.entries.at(0).before);
  EXPECT_TRUE(store.project() == journal.entries.at(0).before);
  EXPECT_EQ(wells.rowCount(), 4);
  EXPECT_EQ(wells.index(3, WellModel::Name).data(), "Ost");
  EXPECT_EQ(resets.size(), 1);
  EXPECT_EQ(changes.size(), 1);
}

TEST_F(JournalTest, thePeriodsFollowAProjectThatIsPutBack) {
  store.setValue(NumberOfDemandsPerYear, 3);
  const Project three = store.project();
  store.setValue(NumberOfDemandsPerYear, 1);
  store.setProject(three);
  EXPECT_EQ(store.demandModel()->rowCount(), 3);
  EXPECT_EQ(store.wellDemandModel()->rowCount(), 3 * store.wellModel()->rowCount());
}

TEST_F(JournalTest, whatTheStoreMakesForItselfIsNoEntry) {
  store.setValue(NumberOfWells, 3);
  placeWells({});
  journal.entries.clear();
  store.wellModel();
  store.demandModel();
  store.wellDemandModel();
  EXPECT_EQ(store.wellPositions().size(), 3);
  write("saved.tbat");
  EXPECT_TRUE(journal.entries.empty());
}

TEST_F(JournalTest, aJournalThatIsSetWithinAChangeHearsOfTheNext) {
  store.removeJournal(&journal);
  const auto connection = QObject::connect(&store, &Manager::dataChanged, &store,
                                           [this] { store.addJournal(&journal); });
  store.setValue(Gravity, 9.0);
  QObject::disconnect(connection);
  EXPECT_TRUE(journal.entries.empty());
  store.setValue(Gravity, 9.5);
  EXPECT_EQ(journal.entries.size(), 1U);
}

TEST_F(JournalTest, everyJournalHearsOfAChangeUntilItIsRemoved) {
  KeptJournal other;
  store.addJournal(&other);
  store.setValue(Gravity, 9.0);
  store.removeJournal(&journal);
  store.setValue(Gravity, 9.5);
  store.removeJournal(&other);
  store.setValue(Gravity, 9.7);
  EXPECT_EQ(journal.entries.size(), 1U);
  EXPECT_EQ(other.entries.size(), 2U);
  EXPECT_TRUE(other.entries[0].after == other.entries[1].before);
}

TEST_F(JournalTest, aJournalThatIsAddedWithinAChangeBesideAnotherHearsOfTheNext) {
  KeptJournal other;
  const auto connection = QObject::connect(&store, &Manager::dataChanged, &store,
                                           [this, &other] { store.addJournal(&other); });
  store.setValue(Gravity, 9.0);
  QObject::disconnect(connection);
  EXPECT_TRUE(other.entries.empty());
  store.setValue(Gravity, 9.5);
  store.removeJournal(&other);
  EXPECT_EQ(other.entries.size(), 1U);
  EXPECT_EQ(journal.entries.size(), 2U);
}

TEST_F(JournalTest, aJournalThatIsRemovedWithinAChangeLeavesTheOthersTheirs) {
  KeptJournal other;
  store.addJournal(&other);
  const auto connection = QObject::connect(&store, &Manager::dataChanged, &store,
                                           [this] { store.removeJournal(&journal); });
  store.setValue(Gravity, 9.0);
  QObject::disconnect(connection);
  store.removeJournal(&other);
  EXPECT_TRUE(journal.entries.empty());
  EXPECT_EQ(other.entries.size(), 1U);
}

TEST_F(JournalTest, aStepIsToldWithItsNameAroundItsChanges) {
  {
    const UserStep step(store, "Change both");
    store.setValue(Gravity, 9.0);
    store.setValue(HydraulicConductivity, 0.02);
  }
  EXPECT_EQ(journal.told, QStringList({"Change both", "2"}));
}

TEST_F(JournalTest, aStepWithinAnotherIsPartOfIt) {
  {
    const UserStep outer(store, "Place wells");
    const UserStep inner(store, "Move wells");
  }
  EXPECT_EQ(journal.told, QStringList({"Place wells", "0"}));
}

TEST_F(JournalTest, aStepWithinAChangeIsPartOfIt) {
  const auto connection = QObject::connect(&store, &Manager::dataChanged, &store,
                                           [this] { const UserStep step(store, "Inner"); });
  store.setValue(Gravity, 9.0);
  QObject::disconnect(connection);
  EXPECT_TRUE(journal.told.isEmpty());
}

TEST_F(JournalTest, whatTheProgramWritesForItselfIsMarkedWhereverItIsWritten) {
  {
    const ProgramWork work(store);
    const UserStep step(store, "Not the user's");
    store.setValue(MaximumExtent3K, 12.0);
  }
  store.setValue(Gravity, 9.0);
  ASSERT_EQ(journal.entries.size(), 2U);
  EXPECT_TRUE(journal.entries[0].isOfProgram);
  EXPECT_FALSE(journal.entries[1].isOfProgram);
  EXPECT_TRUE(journal.told.isEmpty());
}

TEST_F(JournalTest, aChangeThatTheProgramWorksWithinIsRecordedWithoutThatWork) {
  const auto connection = QObject::connect(&store, &Manager::startSimulation, &store, [this] {
    const ProgramWork work(store);
    store.setValue(UsedNumberOfElements, 700);
  });
  store.setValue(SimulationUpToDate, true);
  journal.entries.clear();
  store.setValue(SimulationUpToDate, false);
  QObject::disconnect(connection);
  ASSERT_EQ(journal.entries.size(), 2U);
  const JournalEntry& user = journal.entries[0];
  EXPECT_FALSE(user.isOfProgram);
  EXPECT_EQ(user.after.values[SimulationUpToDate], false);
  EXPECT_EQ(user.after.values[UsedNumberOfElements], user.before.values[UsedNumberOfElements]);
  EXPECT_TRUE(journal.entries[1].isOfProgram);
  EXPECT_EQ(journal.entries[1].after.values[UsedNumberOfElements], 700);
}

TEST_F(JournalTest, periodsThatAreShownAreOneAtLeast) {
  store.demandModel();
  Project none = store.project();
  none.durations.clear();
  store.setProject(none);
  EXPECT_EQ(store.demandModel()->rowCount(), 1);
}

TEST_F(JournalTest, aResetForgetsAProjectThatWasPutIn) {
  Project project = store.project();
  project.wells.names = {{0, "Ost"}};
  project.durations = {{0, 5.0}, {1, 6.0}};
  store.setProject(project);
  store.reset();
  EXPECT_FALSE(store.project().wells.hasEntries());
  EXPECT_TRUE(store.project().durations.isEmpty());
}

TEST_F(JournalTest, aRateThatIsNoNumberMakesNoEntryOfItself) {
  store.setValue(NumberOfWells, 2);
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(0, WellModel::Rate), "nan");
  journal.entries.clear();
  wells.setData(wells.index(0, WellModel::Rate), "nan");
  EXPECT_TRUE(journal.entries.empty());
}

} // namespace
} // namespace TVR::Data
