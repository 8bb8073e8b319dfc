#include "project/ParameterTable.h"
#include "store/StoreTest.h"
#include "support/ContextTranslator.h"
#include "tables/DemandModel.h"
#include "tables/PropertyModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QLocale>
#include <QMetaMethod>
#include <QTextCodec>

#include <cmath>
#include <memory>

namespace TVR::Data {
namespace {

using namespace Parameter;

using ManagerTest = StoreTest;

// The object

TEST_F(ManagerTest, isOneObject) {
  EXPECT_EQ(Manager::instance(), Manager::instance());
}

TEST_F(ManagerTest, declaresItsSignalsInOrder) {
  QStringList signatures;
  const QMetaObject& meta = Manager::staticMetaObject;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
    if (meta.method(i).methodType() == QMetaMethod::Signal)
      signatures << meta.method(i).methodSignature();
  EXPECT_EQ(signatures, (QStringList{"dataChanged()", "startSimulation()", "updateCurrentGraphic()",
                                     "graphicsWindowContents(QByteArray)"}));
}

TEST_F(ManagerTest, makesUtf8TheCodecOfTheLocale) {
  EXPECT_EQ(QTextCodec::codecForLocale()->name(), "UTF-8");
}

// Keys and labels

TEST_F(ManagerTest, givesKeysAndFormerKeys) {
  EXPECT_EQ(store.key(47), "_duration_of_peak_load");
  EXPECT_EQ(store.keys().formerKey(47), "hurationofpeakload");
  EXPECT_TRUE(store.keys().formerKey(48).isEmpty());
}

TEST_F(ManagerTest, findsTheIdOfEveryKey) {
  for (const ParameterRow& row : parameterTable()) {
    if (*row.key != '\0') {
      EXPECT_EQ(store.keys().idOfKey(row.key), row.id);
    }
  }
}

TEST_F(ManagerTest, anUnknownKeyCountsAsTheFirstParameter) {
  EXPECT_EQ(store.keys().idOfKey("no_such_key"), 0);
}

TEST_F(ManagerTest, askingForAKeyThatIsMissingMakesTheEmptyKeyKnown) {
  EXPECT_TRUE(store.key(136).isEmpty());
  EXPECT_TRUE(store.key(33).isEmpty());
  EXPECT_EQ(store.keys().idOfKey(""), 33);
}

TEST_F(ManagerTest, labelIsATextInTheFirstRoleOnly) {
  EXPECT_EQ(store.label(EnergyDemand), QVariant("Energy demand"));
  EXPECT_EQ(store.label(EffectivePorosity), QVariant(""));
  EXPECT_TRUE(store.label(EffectivePorosity).isValid());
  EXPECT_FALSE(store.label(EnergyDemand, 1).isValid());
  EXPECT_FALSE(store.label(EnergyDemand, 2).isValid());
}

TEST_F(ManagerTest, labelIsTranslated) {
  const ContextTranslator translator;
  EXPECT_EQ(store.label(EnergyDemand), QVariant("TVR::ParameterName/Energy demand"));
}

// Effective values

TEST_F(ManagerTest, originOfTheBackgroundTakesXTwice) {
  store.setValue(BackgroundImageX, 10);
  store.setValue(BackgroundImageY, 20);
  EXPECT_EQ(store.value(37), QVariant("[10 10]"));
}

TEST_F(ManagerTest, originOfTheViewTakesXAndY) {
  store.setValue(ViewX, 10);
  store.setValue(ViewY, 20);
  EXPECT_EQ(store.value(83), QVariant("[10 20]"));
}

TEST_F(ManagerTest, originsTakeTextsAsTheyAre) {
  store.setValue(BackgroundImageX, "%1.50");
  store.setValue(ViewX, "%2");
  store.setValue(ViewY, "7");
  EXPECT_EQ(store.value(37), QVariant("[%1.50 %1.50]"));
  EXPECT_EQ(store.value(83), QVariant("[%2 7]"));
}

TEST_F(ManagerTest, isothermsAreTwoFixedOnesAndTheStoredThird) {
  store.setValue(AdditionalIsotherm, "2.5");
  const QVariantList isotherms = store.value(58).toList();
  ASSERT_EQ(isotherms.size(), 3);
  EXPECT_EQ(isotherms[0].userType(), QMetaType::Int);
  EXPECT_EQ(isotherms[0], QVariant(1));
  EXPECT_EQ(isotherms[1].userType(), QMetaType::Int);
  EXPECT_EQ(isotherms[1], QVariant(3));
  EXPECT_EQ(isotherms[2].userType(), QMetaType::QString);
  EXPECT_EQ(isotherms[2], QVariant("2.5"));
}

TEST_F(ManagerTest, specificHeatDemandIsReadInKilowattHours) {
  store.setValue(SpecificHeatDemand, "360");
  EXPECT_EQ(store.value(68), QVariant(100.0));
  EXPECT_EQ(store.value(68, 2), QVariant("360"));
}

TEST_F(ManagerTest, buildingTypeIsReadAsItsName) {
  store.setValue(BuildingType, 2);
  EXPECT_EQ(store.value(101), QVariant("One-family house, old"));
  EXPECT_EQ(store.value(101, 2), QVariant(2));
}

TEST_F(ManagerTest, closestLocationIsReadAsItsName) {
  store.setValue(ClosestLocation, "3");
  EXPECT_EQ(store.value(105), QVariant("Basel"));
  EXPECT_EQ(store.value(105, 2), QVariant("3"));
}

TEST_F(ManagerTest, largestElementIsAHundredSmallestOnesUnlessItIsUsable) {
  store.setValue(MinElementLength, 5);
  store.setValue(MaxElementLength, 0);
  EXPECT_EQ(store.value(134), QVariant(500.0));
  store.setValue(MaxElementLength, 2000);
  EXPECT_EQ(store.value(134), QVariant(500.0));
  store.setValue(MaxElementLength, 1000.5);
  EXPECT_EQ(store.value(134), QVariant(500.0));
}

TEST_F(ManagerTest, largestElementIsReadAsStoredWhereItIsUsable) {
  store.setValue(MinElementLength, 5);
  store.setValue(MaxElementLength, 1000);
  EXPECT_EQ(store.value(134), QVariant(1000));
  store.setValue(MaxElementLength, "12.5");
  EXPECT_EQ(store.value(134), QVariant("12.5"));
}

TEST_F(ManagerTest, storedRoleGivesWhatIsStored) {
  store.setValue(MaxElementLength, 2000);
  store.setValue(SimulationTime, 30);
  EXPECT_EQ(store.value(134, 2), QVariant(2000));
  EXPECT_EQ(store.value(148, 2), QVariant(30));
  EXPECT_FALSE(store.value(37, 2).isValid());
  EXPECT_FALSE(store.value(58, 2).isValid());
  EXPECT_FALSE(store.value(83, 2).isValid());
}

TEST_F(ManagerTest, otherRolesGiveNothing) {
  for (const int role : {-1, 1, 3, 32}) {
    EXPECT_FALSE(store.value(EnergyDemand, role).isValid());
    EXPECT_FALSE(store.value(EffectivePorosity, role).isValid());
    EXPECT_FALSE(store.value(BackgroundImageOrigin, role).isValid());
  }
}

TEST_F(ManagerTest, unknownIdHasNoValue) {
  EXPECT_FALSE(store.value(173).isValid());
  EXPECT_FALSE(store.value(-1).isValid());
}

TEST_F(ManagerTest, countCutsTowardsZero) {
  store.setValue(MaxNumberOfElements, "4.0");
  EXPECT_EQ(store.count(MaxNumberOfElements), 4);
  store.setValue(MaxNumberOfElements, 4.9);
  EXPECT_EQ(store.count(MaxNumberOfElements), 4);
  store.setValue(MaxNumberOfElements, -4.9);
  EXPECT_EQ(store.count(MaxNumberOfElements), -4);
}

TEST_F(ManagerTest, countOfWhatIsNoWholeNumberIsZero) {
  store.setValue(MaxNumberOfElements, "many");
  EXPECT_EQ(store.count(MaxNumberOfElements), 0);
  store.setValue(MaxNumberOfElements, 1e300);
  EXPECT_EQ(store.count(MaxNumberOfElements), 0);
  EXPECT_EQ(store.count(TimeOfMaximumExtent3K), 0);
}

// Writes

TEST_F(ManagerTest, refusesAnInvalidValueForEveryParameter) {
  const QMap<int, QVariant> before = store.values();
  const QSignalSpy changes(&store, &Manager::dataChanged);
  for (int id = 0; id < Parameter::Count; ++id)
    EXPECT_FALSE(store.setValue(id, QVariant())) << id;
  EXPECT_TRUE(changes.isEmpty());
  EXPECT_EQ(store.values(), before);
}

TEST_F(ManagerTest, storesBeforeTheRuleAndSignalsAfterIt) {
  QStringList order;
  const auto onRule = QObject::connect(&store, &Manager::startSimulation, [&] {
    order << QString("rule sees %1").arg(stored(SimulationUpToDate).toString());
  });
  const auto onChange =
      QObject::connect(&store, &Manager::dataChanged, [&] { order << "dataChanged"; });
  EXPECT_TRUE(store.setValue(SimulationUpToDate, 0));
  QObject::disconnect(onRule);
  QObject::disconnect(onChange);
  EXPECT_EQ(order, (QStringList{"rule sees 0", "dataChanged"}));
}

TEST_F(ManagerTest, upToDateResultsUpdateTheGraphicAndOthersStartASimulation) {
  const QSignalSpy starts(&store, &Manager::startSimulation);
  const QSignalSpy updates(&store, &Manager::updateCurrentGraphic);
  store.setValue(SimulationUpToDate, true);
  EXPECT_EQ(starts.size(), 0);
  EXPECT_EQ(updates.size(), 1);
  store.setValue(SimulationUpToDate, false);
  EXPECT_EQ(starts.size(), 1);
  EXPECT_EQ(updates.size(), 1);
}

TEST_F(ManagerTest, textStaysATextUntilItIsRewritten) {
  store.setValue(HydraulicConductivity, "0.0025");
  EXPECT_EQ(storedType(HydraulicConductivity), QMetaType::QString);
  EXPECT_EQ(storedType(HydraulicConductivityUsed), QMetaType::Double);
  EXPECT_EQ(number(HydraulicConductivityUsed), 0.0025);
  store.setValue(HydraulicConductivity, 0.003);
  EXPECT_EQ(storedType(HydraulicConductivity), QMetaType::Double);
}

TEST_F(ManagerTest, numbersHaveAPointInEveryLocale) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  store.setValue(HydraulicConductivity, "0.0025");
  store.setValue(GroundwaterGradient, "0,5");
  const QString origin = (store.setValue(ViewX, 1.5), store.value(ViewOrigin).toString());
  QLocale::setDefault(before);
  EXPECT_EQ(number(HydraulicConductivityUsed), 0.0025);
  EXPECT_EQ(number(GroundwaterVelocity), 0.0);
  EXPECT_EQ(origin, "[1.5 0]");
}

TEST_F(ManagerTest, writingTheSameValueRunsTheRulesAgain) {
  const int first = writesAfter(HydraulicConductivity, 0.002);
  EXPECT_GT(first, 1);
  EXPECT_EQ(writesAfter(HydraulicConductivity, 0.002), first);
}

TEST_F(ManagerTest, flagsBecomeTruthValuesFromOneOn) {
  for (const int id : {91, 94, 104, 106, 111, 157, 158}) {
    const auto after = [&](const QVariant& value) {
      store.setValue(id, value);
      EXPECT_EQ(storedType(id), QMetaType::Bool) << id;
      return stored(id).toBool();
    };
    EXPECT_TRUE(after(true)) << id;
    EXPECT_FALSE(after(0.9)) << id;
    EXPECT_TRUE(after(1)) << id;
    EXPECT_FALSE(after(false)) << id;
    EXPECT_TRUE(after("2.7")) << id;
    EXPECT_FALSE(after("true")) << id;
    EXPECT_FALSE(after(-1)) << id;
  }
}

TEST_F(ManagerTest, otherFlagsAreStoredAsWritten) {
  for (const int id : {1, 7, 51, 103, 113, 114, 164, 165, 168}) {
    store.setValue(id, 0.9);
    EXPECT_EQ(storedType(id), QMetaType::Double) << id;
  }
}

const int clearableTexts[] = {137, 138, 139, 140, 141, 142, 143, 151, 152, 153, 154, 155};

TEST_F(ManagerTest, textOfZeroClearsTexts) {
  for (const int id : clearableTexts) {
    store.setValue(id, "x");
    const int writes = writesAfter(id, "0.0");
    EXPECT_EQ(writes, 1) << id;
    EXPECT_TRUE(store.values().contains(id)) << id;
    EXPECT_FALSE(stored(id).isValid()) << id;
  }
}

TEST_F(ManagerTest, numberZeroClearsTexts) {
  for (const int id : clearableTexts) {
    store.setValue(id, "x");
    EXPECT_TRUE(store.setValue(id, 0.0));
    EXPECT_FALSE(stored(id).isValid()) << id;
  }
}

TEST_F(ManagerTest, wholeZeroAndItsTextAreTextsLikeOthers) {
  for (const int id : clearableTexts) {
    store.setValue(id, 0);
    EXPECT_EQ(stored(id), QVariant(0)) << id;
    store.setValue(id, "0");
    EXPECT_EQ(stored(id), QVariant("0")) << id;
  }
}

TEST_F(ManagerTest, clearingATextRunsNoRule) {
  store.setValue(ProjectName, "Brunnen");
  const QVariant address = stored(ProjectAddress);
  ASSERT_TRUE(address.toString().contains("Brunnen"));
  store.setValue(ProjectName, "0.0");
  EXPECT_EQ(stored(ProjectAddress), address);
}

TEST_F(ManagerTest, otherParametersKeepAZero) {
  store.setValue(BackgroundImageFile, "0.0");
  EXPECT_EQ(stored(BackgroundImageFile), QVariant("0.0"));
  store.setValue(TecplotOutputFile, 0.0);
  EXPECT_EQ(stored(TecplotOutputFile), QVariant(0.0));
}

// The default well position

TEST_F(ManagerTest, wellsOnTheDefaultPositionFollowIt) {
  store.setValue(DefaultWellPosition, QPointF(1, 2));
  placeWells({{1, 2}, {1, 3}, {0, 2}, {1, 2}});
  store.setValue(DefaultWellPosition, QPointF(7, 8));
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{7, 8}, {1, 3}, {0, 2}, {7, 8}}));
}

TEST_F(ManagerTest, wellsNextToTheDefaultPositionStay) {
  const double close = std::nextafter(1000.0, 2000.0);
  store.setValue(DefaultWellPosition, QPointF(1000, 0));
  placeWells({{close, 0}, {1000, 1e-300}});
  store.setValue(DefaultWellPosition, QPointF(5, 5));
  EXPECT_EQ(store.wellPositions()[0].x(), close);
  EXPECT_EQ(store.wellPositions()[1].x(), 1000);
}

TEST_F(ManagerTest, aWellThatWasGivenThePlaceOfTheDefaultStays) {
  store.setValue(NumberOfWells, 3);
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(0, WellModel::X), 0.0);
  wells.setData(wells.index(2, WellModel::Y), "0");
  store.setValue(DefaultWellPosition, QPointF(5, 5)); // was never set before: reads as (0, 0)
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{0, 0}, {5, 5}, {0, 0}}));
}

TEST_F(ManagerTest, aGivenPlaceIsKeptWhenRatesAreForgotten) {
  store.setValue(NumberOfWells, 1);
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(0, WellModel::X), 0.0);
  store.setValue(MeanFlowRate, 0.001);
  store.setValue(DefaultWellPosition, QPointF(5, 5));
  EXPECT_EQ(store.wellPositions().at(0), QPointF(0, 0));
}

TEST_F(ManagerTest, aWellThatReplacesOneWithAGivenPlaceFollowsTheDefault) {
  store.setValue(NumberOfWells, 2);
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(1, WellModel::X), 0.0);
  store.setValue(NumberOfWells, 1);
  store.setValue(NumberOfWells, 2);
  store.setValue(DefaultWellPosition, QPointF(5, 5));
  EXPECT_EQ(store.wellPositions().at(1), QPointF(5, 5));
}

TEST_F(ManagerTest, noPlaceIsGivenAfterAReset) {
  store.setValue(NumberOfWells, 1);
  WellModel& wells = *store.wellModel();
  wells.setData(wells.index(0, WellModel::X), 0.0);
  store.reset();
  store.wellModel();
  store.setValue(DefaultWellPosition, QPointF(5, 5));
  EXPECT_EQ(store.wellPositions().at(0), QPointF(5, 5));
}

TEST_F(ManagerTest, movingTheDefaultPositionIsOneChange) {
  EXPECT_EQ(writesAfter(DefaultWellPosition, QPointF(3, 4)), 1);
  EXPECT_EQ(store.value(41).toPointF(), QPointF(3, 4));
}

// The tables

TEST_F(ManagerTest, wellTableFollowsTheNumberOfWells) {
  store.setValue(DefaultWellPosition, QPointF(5, 6));
  store.setValue(NumberOfWells, 3);
  placeWells({{1, 1}});
  const WellModel* const model = store.wellModel();
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{1, 1}, {5, 6}, {5, 6}}));
  EXPECT_EQ(model->rowCount(), 3);
  placeWells({{1, 1}, {5, 6}, {5, 6}, {9, 9}});
  EXPECT_EQ(store.wellModel(), model);
  EXPECT_EQ(store.wellPositions().size(), 3);
}

TEST_F(ManagerTest, negativeNumberOfWellsLeavesNoPosition) {
  placeWells({{9, 9}});
  store.setValue(NumberOfWells, -2);
  EXPECT_TRUE(store.wellPositions().isEmpty());
}

TEST_F(ManagerTest, wellTableEditsTheStoresPositions) {
  store.setValue(NumberOfWells, 2);
  WellModel* const model = store.wellModel();
  model->setData(model->index(1, WellModel::X), 12.5);
  EXPECT_EQ(store.wellPositions()[1].x(), 12.5);
}

TEST_F(ManagerTest, tablesBelongToTheStore) {
  EXPECT_EQ(store.wellModel()->parent(), &store);
  EXPECT_EQ(store.demandModel()->parent(), &store);
  EXPECT_EQ(store.wellDemandModel()->parent(), &store);
}

TEST_F(ManagerTest, tableOfWellsByPeriodJoinsTheOtherTwo) {
  store.setValue(NumberOfDemandsPerYear, 3);
  store.setValue(NumberOfWells, 2);
  EXPECT_EQ(store.wellDemandModel()->rowCount(), 6);
}

TEST_F(ManagerTest, projectAddressTableHasThreeRows) {
  store.setValue(ProjectStreet, "Quellweg 3");
  store.setValue(ProjectZip, "8000");
  store.setValue(ProjectLocation, "Zürich");
  const std::unique_ptr<PropertyModel> model(store.addressModel(false));
  ASSERT_EQ(model->rowCount(), 3);
  EXPECT_EQ(model->index(0, 1).data(), QVariant("Quellweg 3"));
  EXPECT_EQ(model->index(1, 1).data(), QVariant("8000"));
  EXPECT_EQ(model->index(2, 1).data(), QVariant("Zürich"));
  EXPECT_EQ(model->index(1, 0).data(), QVariant("Postal code"));
}

TEST_F(ManagerTest, userAddressTableBeginsWithTheName) {
  store.setValue(UserName, "A. Rohr");
  store.setValue(UserStreet, "Feldweg 1");
  store.setValue(UserZip, "3000");
  store.setValue(UserLocation, "Bern");
  const std::unique_ptr<PropertyModel> model(store.addressModel(true));
  ASSERT_EQ(model->rowCount(), 4);
  EXPECT_EQ(model->index(0, 1).data(), QVariant("A. Rohr"));
  EXPECT_EQ(model->index(1, 1).data(), QVariant("Feldweg 1"));
  EXPECT_EQ(model->index(2, 1).data(), QVariant("3000"));
  EXPECT_EQ(model->index(3, 1).data(), QVariant("Bern"));
}

TEST_F(ManagerTest, addressTableIsNewEditableAndOwnedByTheStore) {
  const std::unique_ptr<PropertyModel> first(store.addressModel(false));
  const std::unique_ptr<PropertyModel> second(store.addressModel(false));
  EXPECT_NE(first, second);
  EXPECT_EQ(first->parent(), &store);
  EXPECT_TRUE(first->setData(first->index(0, 1), "Seestrasse 7"));
  EXPECT_EQ(store.value(ProjectStreet), QVariant("Seestrasse 7"));
  EXPECT_EQ(second->index(0, 1).data(), QVariant("Seestrasse 7"));
}

// Reset

TEST_F(ManagerTest, resetKeepsTheLanguageAlone) {
  const QMap<int, QVariant> defaults = store.values();
  store.setValue(GuiLanguage, "fr");
  store.setValue(HeatingDemand, 12345.0);
  store.setValue(ProjectName, "Brunnen");
  store.setValue(BatchOutputFile, "a.out");
  store.setValue(DefaultWellPosition, QPointF(1, 2));
  ASSERT_NE(store.values(), defaults);
  store.reset();
  EXPECT_EQ(stored(GuiLanguage), QVariant("fr"));
  QMap<int, QVariant> expected = defaults;
  expected[GuiLanguage] = "fr";
  EXPECT_EQ(store.values(), expected);
}

TEST_F(ManagerTest, resetRunsNoRuleAndSignalsOnce) {
  store.wellModel();
  const QSignalSpy changes(&store, &Manager::dataChanged);
  const QSignalSpy starts(&store, &Manager::startSimulation);
  store.reset();
  EXPECT_EQ(changes.size(), 1);
  EXPECT_TRUE(starts.isEmpty());
}

TEST_F(ManagerTest, resetForgetsWellsAndPeriods) {
  store.setValue(NumberOfWells, 4);
  WellModel* const wells = store.wellModel();
  wells->setData(wells->index(0, WellModel::Rate), -0.5);
  store.setValue(NumberOfDemandsPerYear, 2);
  ASSERT_EQ(store.demandModel()->rowCount(), 2);
  store.reset();
  EXPECT_TRUE(store.wellPositions().isEmpty());
  EXPECT_TRUE(wells->wellRates().isEmpty());
  EXPECT_EQ(store.demandModel()->rowCount(), 0);
}

} // namespace
} // namespace TVR::Data
