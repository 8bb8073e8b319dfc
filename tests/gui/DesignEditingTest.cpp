#include "gui/DesignEditorTest.h"
#include "project/Units.h"
#include "store/Journal.h"
#include "support/EventWait.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;
using Wizards = std::vector<Wizard>;

class DesignEditingTest : public DesignEditorTest {};

/// The steps of the user, and what was written in each and outside of them.
class Steps final : public Data::Journal {
public:
  explicit Steps(Data::Manager& store) : store_(store) { store_.addJournal(this); }
  ~Steps() override { store_.removeJournal(this); }

  void beginStep(const Data::StepName& /*name*/) override { ++count; }
  void record(const Data::JournalEntry& entry) override { written.push_back(entry.what); }

  int count = 0;
  std::vector<int> written;

private:
  Data::Manager& store_;
};

} // namespace

TEST_F(DesignEditingTest, valuesAreReadOnlyUntilTheButtonIsPressed) {
  const auto anyEnabled = [this] {
    return std::ranges::any_of(editor.tree().propertyOfId(), [](const auto& entry) {
      return !entry.second->isGroup() && entry.second->isEnabled();
    });
  };
  EXPECT_FALSE(anyEnabled());
  edit();
  for (const auto& [id, row] : editor.tree().propertyOfId())
    EXPECT_EQ(row->isEnabled(), id != MaximumExtent3K) << id;
  EXPECT_EQ(editor.editButton->text(), "Stop editing");
  edit();
  EXPECT_FALSE(anyEnabled());
  EXPECT_EQ(editor.editButton->text(), "Edit");
}

TEST_F(DesignEditingTest, resultsAreNeverTyped) {
  edit();
  browser().setCurrentItem(&item(MaximumExtent3K));
  QTest::keyClick(&view(), Qt::Key_F2);
  doubleClick(MaximumExtent3K);
  EXPECT_TRUE(view().findChildren<QAbstractSpinBox*>().isEmpty());
  EXPECT_EQ(wizards, Wizards{});
}

TEST_F(DesignEditingTest, whoStopsGetsTheValuesOfTheProjectBack) {
  const Project before = store.project();
  const QString shown = text(HydraulicConductivity);
  edit();
  type(HydraulicConductivity, "0.007");
  EXPECT_EQ(text(HydraulicConductivity), "0.007 m/s");
  EXPECT_TRUE(mayApply());
  edit();
  EXPECT_EQ(text(HydraulicConductivity), shown);
  EXPECT_FALSE(property(HydraulicConductivity).isModified());
  EXPECT_FALSE(mayApply());
  EXPECT_EQ(store.project(), before);
}

TEST_F(DesignEditingTest, whatIsTypedStaysWhileTheProjectChangesElsewhere) {
  edit();
  type(HydraulicConductivity, "0.007");
  set(ProjectName, "Elsewhere");
  QCoreApplication::processEvents();
  EXPECT_EQ(text(ProjectName), "Elsewhere");
  EXPECT_EQ(text(HydraulicConductivity), "0.007 m/s");
  editor.updatePropertyView(); // as after a wizard
  EXPECT_NE(text(HydraulicConductivity), "0.007 m/s");
}

TEST_F(DesignEditingTest, aDoubleClickAsksForTheWizardThatOwnsTheValue) {
  set(EnergyDemandType, 2);
  for (const bool unconfined : {false, true}) {
    set(AquiferUnconfined, unconfined);
    editor.updatePropertyView();
    const std::vector<std::pair<Wizard, std::vector<int>>> owners{
        {Wizard::ExtendedSimulation, {26, 92, 93, 100, 111, 133, 134, 146, 147}},
        {Wizard::Wells, {34, 59, 87, 88, 91, 120, 121}},
        {Wizard::Energy, {107, 108, 109, 110, 125, 126, 127, 128, 149}},
        {Wizard::Simulation, {63, 113, 114, 119, 160}},
        {Wizard::Mapping, {94, 169, 170}},
        {Wizard::General, {141}}};
    for (const auto& [wizard, ids] : owners)
      for (const int id : ids) {
        if (!isShown(id))
          continue;
        wizards.clear();
        doubleClick(id);
        EXPECT_EQ(wizards, Wizards{wizard}) << id;
      }
  }
}

TEST_F(DesignEditingTest, aDoubleClickOnAHeatDemandAloneAsksForTheEnergyWizard) {
  doubleClick(Power);
  doubleClick(UsedTemperatureChange);
  EXPECT_EQ(wizards, (Wizards{Wizard::Energy, Wizard::Energy}));
}

TEST_F(DesignEditingTest, groupsAndWhatBearsTheirNameHaveNoWizard) {
  for (const int id : {1, 2, 3, 7, 4, 83, 5, 10, 11, 12, 13})
    doubleClick(id);
  EXPECT_EQ(property(EnergyDemand).propertyName(), property(EnergyWizardDone).propertyName());
  doubleClick(EnergyDemand);
  EXPECT_EQ(wizards, Wizards{});
}

TEST_F(DesignEditingTest, timePeriodsAndResultsHaveNoWizard) {
  for (const int id : {SimulationTime, NumberOfDemandsPerYear, MaximumExtent3K})
    doubleClick(id);
  EXPECT_EQ(wizards, Wizards{});
}

TEST_F(DesignEditingTest, aDoubleClickOnAValueThatIsEditedAsksForNoWizard) {
  edit();
  for (const int id : {HydraulicConductivity, ExchangeCaprock, ProjectName})
    doubleClick(id);
  EXPECT_EQ(wizards, Wizards{});
}

TEST_F(DesignEditingTest, aGroupWhoseWizardIsCompleteStaysExpanded) {
  const auto isExpandedAfterCollapse = [this](int id) {
    browser().setExpanded(&item(id), true);
    browser().setCurrentItem(&item(id));
    view().setCurrentIndex(view().currentIndex().siblingAtColumn(0));
    QTest::keyClick(&view(), Qt::Key_Minus);
    return browser().isExpanded(&item(id));
  };
  for (const int id : {1, 2, 3, 4, 5}) {
    set(id, false);
    EXPECT_FALSE(isExpandedAfterCollapse(id)) << id;
    set(id, true);
    EXPECT_TRUE(isExpandedAfterCollapse(id)) << id;
  }
  EXPECT_TRUE(isExpandedAfterCollapse(HeadingHeatingSpecification));
  EXPECT_TRUE(isExpandedAfterCollapse(HeadingHeatModel));
}

TEST_F(DesignEditingTest, countsOfWellsAndPeriodsAreWrittenAtOnceAndTheirWizardIsAskedFor) {
  edit();
  for (const int id : {NumberOfWells, NumberOfDemandsPerYear}) {
    wizards.clear();
    type(id, "4");
    EXPECT_EQ(store.count(id), 4) << id;
    EXPECT_EQ(wizards, Wizards{Wizard::Simulation}) << id;
  }
}

TEST_F(DesignEditingTest, theDepthsOfAnUnconfinedAquiferGiveItsThickness) {
  set(AquiferUnconfined, true);
  edit();
  type(AquiferBasis, "15");
  type(GroundwaterTable, "4");
  EXPECT_EQ(property(AquiferThickness).value(), QVariant(11.0));
  EXPECT_TRUE(property(AquiferThickness).isModified());
  type(GroundwaterTable, "40");
  EXPECT_EQ(property(AquiferThickness).value(), QVariant(25.0));
}

TEST_F(DesignEditingTest, theThicknessOfAConfinedAquiferStays) {
  edit();
  const QVariant before = property(AquiferThickness).value();
  property(AquiferBasis).setValue(500.0); // hidden as it is
  EXPECT_EQ(property(AquiferThickness).value(), before);
}

TEST_F(DesignEditingTest, anUnconfinedAquiferShowsItsDepthsAtOnce) {
  set(GroundwaterTable, 3.0);
  set(AquiferBasis, 21.0);
  edit();
  EXPECT_TRUE(isShown(AquiferThickness));
  EXPECT_FALSE(isShown(AquiferBasis));
  toggle(AquiferUnconfined);
  EXPECT_TRUE(store.flag(AquiferUnconfined));
  EXPECT_FALSE(isShown(AquiferThickness));
  EXPECT_TRUE(isShown(AquiferBasis));
  EXPECT_TRUE(isShown(GroundwaterTable));
  EXPECT_EQ(property(AquiferThickness).value(), QVariant(18.0));
  toggle(AquiferUnconfined);
  EXPECT_FALSE(store.flag(AquiferUnconfined));
  EXPECT_TRUE(isShown(AquiferThickness));
}

TEST_F(DesignEditingTest, aBackgroundMapWithoutAFileIsAskedForAtOnce) {
  set(BackgroundImageFile, "");
  edit();
  toggle(BackgroundImage);
  EXPECT_TRUE(store.flag(BackgroundImage));
  EXPECT_EQ(wizards, Wizards{Wizard::Mapping});
  toggle(BackgroundImage);
  EXPECT_EQ(wizards.size(), 1U);
  EXPECT_TRUE(store.flag(BackgroundImage)); // until it is applied
}

TEST_F(DesignEditingTest, aBackgroundMapWithAFileWaitsUntilItIsApplied) {
  set(BackgroundImageFile, "map.png");
  edit();
  toggle(BackgroundImage);
  EXPECT_FALSE(store.flag(BackgroundImage));
  EXPECT_EQ(wizards, Wizards{});
}

TEST_F(DesignEditingTest, aNumberOfElementsIsTheMostThatTheNextRunMayUse) {
  edit();
  type(UsedNumberOfElements, "4321");
  EXPECT_EQ(store.count(MaxNumberOfElements), 4321);
  EXPECT_NE(store.count(UsedNumberOfElements), 4321); // until it is applied
}

TEST_F(DesignEditingTest, twoWellsAtOnePlaceAreSaidAndCannotBeApplied) {
  put(1, 0, 0);
  edit();
  type(HydraulicConductivity, "0.007");
  EXPECT_FALSE(mayApply());
  EXPECT_EQ(user.told,
            QStringList{"Tevrane: <b>More then one well at one position not supported started "
                        "with version 1.2!<br>Redefine the wells in use!</b><br>"});
}

TEST_F(DesignEditingTest, wellsAtOnePlaceAreSaidOnceForEachTypedValue) {
  put(1, 0, 0);
  set(AquiferUnconfined, true);
  edit();
  type(AquiferBasis, "77"); // and the thickness with it
  EXPECT_EQ(user.told.size(), 1);
}

TEST_F(DesignEditingTest, withoutRatesNothingCanBeAppliedAndNothingIsSaid) {
  setWell(0, 0, 0);
  setWell(1, 0, 0);
  edit();
  type(HydraulicConductivity, "0.007");
  EXPECT_FALSE(mayApply());
  EXPECT_EQ(user.told, QStringList());
}

TEST_F(DesignEditingTest, anImpossibleDesignCannotBeApplied) {
  edit();
  EXPECT_FALSE(mayApply()); // nothing was typed
  type(EffectivePorosity, "30");
  EXPECT_TRUE(mayApply());
  type(EffectivePorosity, "0");
  EXPECT_FALSE(mayApply());
  EXPECT_EQ(user.told, QStringList());
}

TEST_F(DesignEditingTest, anImpossibleValueIsMarkedInItsRowWithTheReasonAndNoBox) {
  const auto remark = [this](int id) { return property(id).decoration().remark.toStdString(); };
  edit();
  EXPECT_EQ(remark(EffectivePorosity), "");
  type(EffectivePorosity, "0");
  EXPECT_EQ(remark(EffectivePorosity), "Impossible: expected 0.1 to 100 %");
  EXPECT_EQ(user.told, QStringList());
  type(EffectivePorosity, "20");
  EXPECT_EQ(remark(EffectivePorosity), "");
  type(HydraulicConductivity, "0.5");
  EXPECT_EQ(remark(HydraulicConductivity), "Unusual: usual is 1e-05 to 0.1 m/s");
  edit();
  EXPECT_EQ(remark(HydraulicConductivity), "");
}

TEST_F(DesignEditingTest, whatFollowsFromATypedValueFlashesWithItsOldAndNewValue) {
  set(PeakLoadDuration, 2000);
  set(EnergyDemand, 30000);
  const Project before = store.project();
  edit();
  type(EnergyDemand, "50000");
  const QtProperty& power = property(Power);
  EXPECT_EQ(text(Power), "15 kW");
  EXPECT_EQ(power.decoration().note, "→ 25 kW");
  EXPECT_EQ(power.decoration().noteText, "becomes 25 kW");
  EXPECT_TRUE(power.decoration().background.isValid());
  EXPECT_FALSE(property(EnergyDemand).decoration().background.isValid()) << "which was typed";
  EXPECT_FALSE(property(HydraulicConductivity).decoration().background.isValid());
  EXPECT_EQ(store.project(), before);
  apply();
  EXPECT_EQ(text(Power), "25 kW");
  EXPECT_EQ(power.decoration().note, "was 15 kW");
  EXPECT_TRUE(waitUntil([&] { return !power.decoration().background.isValid(); }));
  EXPECT_EQ(power.decoration().note, "was 15 kW");
  edit();
  edit();
  EXPECT_EQ(power.decoration().note, "");
}

TEST_F(DesignEditingTest, whatAValueBecomesFitsBesideItAndIsSaidInFull) {
  set(PeakLoadDuration, 2000);
  set(EnergyDemand, 30000);
  editor.resize(editor.sizeHint().width(), 1400);
  edit();
  type(EnergyDemand, "50000");
  const QRect value = cell(Power, 1);
  const QtProperty& power = property(Power);
  const QString shown = power.valueText() + "   " + power.decoration().note;
  EXPECT_LE(view().fontMetrics().horizontalAdvance(shown), value.width());
  const QModelIndex index = view().currentIndex().siblingAtColumn(1);
  EXPECT_TRUE(index.data(Qt::ToolTipRole).toString().startsWith("becomes 25 kW"));
  EXPECT_TRUE(index.data(Qt::AccessibleDescriptionRole).toString().contains("becomes 25 kW"));
}

TEST_F(DesignEditingTest, aWellThatComesNearAnotherIsRemarkedAtTheNumberOfWells) {
  put(0, 100, 100);
  put(1, 100.6, 100);
  QCoreApplication::processEvents();
  EXPECT_EQ(property(NumberOfWells).decoration().remark.toStdString(),
            R"(Unusual: "Pump" and "Return" stand only 0.6 m apart)");
  put(1, 160, 100);
  QCoreApplication::processEvents();
  EXPECT_EQ(property(NumberOfWells).decoration().remark, "");
}

TEST_F(DesignEditingTest, appliedValuesReachTheProjectInItsUnits) {
  edit();
  type(EffectivePorosity, "30");
  type(SimulationTime, "7.5");
  type(GroundwaterGradient, "0.125");
  type(ProjectName, "Applied");
  apply();
  EXPECT_EQ(number(EffectivePorosity), 0.3);
  EXPECT_EQ(number(SimulationTime), 7.5 * secondsPerYear);
  EXPECT_EQ(number(GroundwaterGradient), 0.125);
  EXPECT_EQ(store.text(ProjectName), "Applied");
}

TEST_F(DesignEditingTest, onlyTypedValuesAreWritten) {
  set(ThermalDispersivity, 0.75); // which the tree only knows as on
  set(CalculateWellConstruction, true);
  edit();
  type(GroundwaterGradient, "0.125");
  apply();
  EXPECT_EQ(number(ThermalDispersivity), 0.75);
  EXPECT_FALSE(store.flag(CalculateWellConstruction));
}

TEST_F(DesignEditingTest, dispersionIsOfFiveMetresWhateverAWizardSet) {
  set(ThermalDispersivity, 0.75);
  edit();
  toggle(ThermalDispersivity);
  apply();
  EXPECT_EQ(number(ThermalDispersivity), 0.0);
  edit();
  toggle(ThermalDispersivity);
  apply();
  EXPECT_EQ(number(ThermalDispersivity), 5.0);
}

TEST_F(DesignEditingTest, applyingEndsTheEditingAndStartsARun) {
  store.setStored(SimulationUpToDate, true);
  double gradientOfRun = 0;
  bool isEditingInRun = true;
  const auto connection = QObject::connect(&store, &Data::Manager::startSimulation, &editor, [&] {
    gradientOfRun = number(GroundwaterGradient);
    isEditingInRun = editor.isEditing();
  });
  edit();
  type(GroundwaterGradient, "0.125");
  apply();
  QObject::disconnect(connection);
  EXPECT_EQ(gradientOfRun, 0.125);
  EXPECT_FALSE(isEditingInRun);
  EXPECT_EQ(editor.editButton->text(), "Edit");
  EXPECT_FALSE(mayApply());
  EXPECT_FALSE(store.flag(SimulationUpToDate));
}

TEST_F(DesignEditingTest, whatIsAppliedIsOneStep) {
  edit();
  type(GroundwaterGradient, "0.125");
  type(SimulationTime, "7.5");
  type(AquiferThickness, "17");
  Steps steps(store);
  apply();
  EXPECT_EQ(steps.count, 1);
  EXPECT_GE(steps.written.size(), 3U);
}

TEST_F(DesignEditingTest, anEditorThatIsStillOpenIsApplied) {
  edit();
  type(SimulationTime, "7.5");
  browser().setCurrentItem(&item(GroundwaterGradient));
  QTest::keyClick(&view(), Qt::Key_F2);
  hit(Qt::Key_A, Qt::ControlModifier);
  keys("0.125");
  editor.applyAndRunButton->setFocus(); // as a press does
  apply();
  EXPECT_EQ(number(GroundwaterGradient), 0.125);
}

TEST_F(DesignEditingTest, liveTellsOfEachTypedValueThatMayBeApplied) {
  std::vector<PropertyEdits> told;
  int ends = 0;
  QObject::connect(&editor, &DesignPropertyEditor::liveEdited,
                   [&](const PropertyEdits& edits) { told.push_back(edits); });
  QObject::connect(&editor, &DesignPropertyEditor::liveEnded, [&] { ++ends; });
  EXPECT_FALSE(editor.liveButton->isChecked());
  edit();
  type(GroundwaterGradient, "0.125");
  EXPECT_TRUE(told.empty());
  QTest::mouseClick(editor.liveButton, Qt::LeftButton);
  const PropertyEdits first{{GroundwaterGradient, 0.125}};
  EXPECT_EQ(told, std::vector<PropertyEdits>{first});
  type(EffectivePorosity, "0");
  EXPECT_EQ(told.size(), 1U);
  type(EffectivePorosity, "30");
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told.back(), (PropertyEdits{{EffectivePorosity, 0.3}, {GroundwaterGradient, 0.125}}));
  EXPECT_EQ(ends, 0);
  QTest::mouseClick(editor.liveButton, Qt::LeftButton);
  EXPECT_EQ(ends, 1);
}

TEST_F(DesignEditingTest, liveEndsWhenTheEditingDoes) {
  QStringList events;
  QObject::connect(&editor, &DesignPropertyEditor::liveEnded, [&] { events << "end"; });
  const auto connection =
      QObject::connect(&store, &Data::Manager::startSimulation, &editor, [&] { events << "run"; });
  QTest::mouseClick(editor.liveButton, Qt::LeftButton);
  edit();
  edit();
  EXPECT_EQ(events, QStringList{"end"});
  edit();
  type(GroundwaterGradient, "0.125");
  apply();
  QObject::disconnect(connection);
  EXPECT_EQ(events, (QStringList{"end", "end", "run"}));
}

} // namespace TVR::GUI
