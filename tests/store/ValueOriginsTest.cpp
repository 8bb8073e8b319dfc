#include "store/ValueOrigins.h"

#include "design/RuleTarget.h"
#include "files/BatchFiles.h"
#include "store/UndoHistory.h"
#include "store/UserStep.h"
#include "support/SettingsOfTheTest.h"

namespace TVR::Data {
namespace {

using namespace Parameter;

struct ValueOriginsTest : BatchFileTest {
  void saveAndRead(const QString& name) {
    ASSERT_TRUE(store.write(path(name), nullptr, {}));
    store.reset();
    QMap<QString, int> fieldIds;
    ASSERT_TRUE(store.read(path(name), fieldIds));
  }

  ValueOrigins origins{store};
};

TEST_F(ValueOriginsTest, defaultsComeFromTheReferenceDatabase) {
  for (int id = 0; id < Count; ++id)
    EXPECT_EQ(origins.of(id), ValueOrigin::ReferenceDatabase) << id;
  store.setValue(AquiferThickness, 12);
  store.reset();
  EXPECT_EQ(origins.of(AquiferThickness), ValueOrigin::ReferenceDatabase);
}

TEST_F(ValueOriginsTest, aDefaultThatWasTypedComesFromTheDatabaseAgainAfterAReset) {
  store.setValue(AquiferThickness, stored(AquiferThickness));
  store.reset();
  EXPECT_EQ(origins.of(AquiferThickness), ValueOrigin::ReferenceDatabase);
}

TEST_F(ValueOriginsTest, aTypedValueAndWhatFollowsFromItAreToldApart) {
  store.setValue(HydraulicConductivity, 0.02);
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::Typed);
  EXPECT_EQ(origins.of(HydraulicConductivityUsed), ValueOrigin::Rule);
  EXPECT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::Rule);
  EXPECT_EQ(origins.of(SimulationTime), ValueOrigin::ReferenceDatabase);
}

TEST_F(ValueOriginsTest, aMirroredValueIsOfTheRule) {
  store.setValue(AquiferPorosity, 0.31);
  EXPECT_EQ(origins.of(AquiferPorosity), ValueOrigin::Typed);
  EXPECT_EQ(origins.of(EffectivePorosity), ValueOrigin::Rule);
}

TEST_F(ValueOriginsTest, typingTheValueThatIsThereMakesItTyped) {
  store.setValue(AquiferThickness, store.value(AquiferThickness, Manager::StoredValue));
  EXPECT_EQ(origins.of(AquiferThickness), ValueOrigin::Typed);
}

TEST_F(ValueOriginsTest, aTypedValueIsOfTheRuleAfterItHasComputedItAnew) {
  store.setValue(GroundwaterVelocity, 1e-6);
  EXPECT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::Typed);
  store.setValue(GroundwaterGradient, 0.4);
  EXPECT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::Rule);
}

TEST_F(ValueOriginsTest, lookedUpValuesAreOfTheReferenceDatabase) {
  store.setValue(AquiferMaterial, 3);
  EXPECT_EQ(origins.of(AquiferMaterial), ValueOrigin::Typed);
  EXPECT_EQ(origins.of(HydraulicConductivityMin), ValueOrigin::ReferenceDatabase);
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::Rule); // the mean of two of them
  store.setValue(ClosestLocation, 2);
  store.setValue(HeatingDegreeDays, 3000);
  EXPECT_EQ(origins.of(HeatingDegreeDays), ValueOrigin::Typed);
  store.setValue(ClosestLocation, 3);
  EXPECT_EQ(origins.of(HeatingDegreeDays), ValueOrigin::ReferenceDatabase);
}

TEST_F(ValueOriginsTest, whatABatchFileSaysIsOfTheFileAndWhatFollowsOfTheRules) {
  read("[hydraulic]\nkf=0.02\n");
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::File);
  EXPECT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::Rule);
  EXPECT_EQ(origins.of(HeatConductivitySurrounding), ValueOrigin::Rule);
  EXPECT_EQ(origins.of(ProjectStreet), ValueOrigin::ReferenceDatabase);
}

TEST_F(ValueOriginsTest, whatAProjectFileHoldsIsOfTheFile) {
  store.setValue(HydraulicConductivity, 0.02);
  saveAndRead("site.tvr");
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::File);
  EXPECT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::File); // nothing is computed anew
}

TEST_F(ValueOriginsTest, aFileThatHoldsTheDefaultsIsTheOriginOfItsValues) {
  saveAndRead("site.tvr");
  EXPECT_EQ(origins.of(AquiferThickness), ValueOrigin::File);
}

TEST_F(ValueOriginsTest, whatIsTypedAfterReadingIsTyped) {
  read("[hydraulic]\nkf=0.02\n");
  store.setValue(HydraulicConductivity, 0.03);
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::Typed);
}

TEST_F(ValueOriginsTest, theLastParameterSetIsOfTheSettings) {
  const SettingsOfTheTest settings;
  store.setValue(HydraulicConductivity, 0.02);
  store.saveLastParameterSet();
  store.restoreLastParameterSet();
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::Settings);
}

TEST_F(ValueOriginsTest, withoutALastParameterSetTheDefaultsStay) {
  const SettingsOfTheTest settings;
  store.setValue(HydraulicConductivity, 0.02);
  store.restoreLastParameterSet();
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::ReferenceDatabase);
}

TEST_F(ValueOriginsTest, theProgramsOwnWorkIsToldApart) {
  const ProgramWork work(store);
  store.setValue(MaximumExtent3K, 250.0);
  EXPECT_EQ(origins.of(MaximumExtent3K), ValueOrigin::Program);
}

TEST_F(ValueOriginsTest, workWithinAChangeLeavesTheRestOfItTyped) {
  QObject context;
  QObject::connect(&store, &Manager::startSimulation, &context, [this] {
    const ProgramWork work(store);
    store.setValue(MaximumExtent3K, 250.0);
  });
  store.setValue(SimulationUpToDate, false);
  EXPECT_EQ(origins.of(MaximumExtent3K), ValueOrigin::Program);
  EXPECT_EQ(origins.of(SimulationUpToDate), ValueOrigin::Typed);
  store.setValue(AquiferThickness, 12);
  EXPECT_EQ(origins.of(AquiferThickness), ValueOrigin::Typed);
}

TEST_F(ValueOriginsTest, undoneValuesHaveTheOriginThatTheyHad) {
  UndoHistory history(store);
  store.setValue(GroundwaterVelocity, 1e-6);
  store.setValue(HydraulicConductivity, 0.02);
  ASSERT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::Rule);
  history.undo();
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::ReferenceDatabase);
  EXPECT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::Typed);
  history.redo();
  EXPECT_EQ(origins.of(HydraulicConductivity), ValueOrigin::Typed);
  EXPECT_EQ(origins.of(GroundwaterVelocity), ValueOrigin::Rule);
}

TEST_F(ValueOriginsTest, rulesSeeTheStoreThroughItsReader) {
  EXPECT_EQ(store.ruleReader().number(AquiferThickness), store.value(AquiferThickness).toDouble());
}

} // namespace
} // namespace TVR::Data
