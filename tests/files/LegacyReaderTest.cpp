#include "files/ProjectFiles.h"
#include "tables/WellModel.h"

#include <QSettings>

namespace TVR::Data {
namespace {

using namespace Parameter;

class LegacyReaderTest : public ProjectFileTest {
protected:
  static QByteArray entry(const QByteArray& key, const QByteArray& value) {
    return "<entry><k>" + key + "</k><v>" + value + "</v></entry>";
  }
  bool readOld(const QByteArray& entries) { return readText("<project>" + entries + "</project>"); }

  /// What becomes of a value once it is stored and migrated.
  QVariant migrated(int id, const QVariant& value, int target) {
    store.setStored(id, value);
    store.migrateValue(id);
    return stored(target);
  }
  QVariant migrated(int id, const QVariant& value) { return migrated(id, value, id); }

  QVariant wellCell(int row, int column) {
    const WellModel& model = *store.wellModel();
    return model.index(row, column).data(Qt::EditRole);
  }

  /// Reads a group "current" with these values.
  void readSettings(const QMap<QString, QVariant>& values) {
    QSettings settings(path("former.ini"), QSettings::IniFormat);
    settings.clear();
    for (auto value = values.begin(); value != values.end(); ++value)
      settings.setValue("current/" + value.key(), *value);
    store.readCurrentGroup(settings);
  }
};

TEST_F(LegacyReaderTest, percentBecomesAFraction) {
  EXPECT_EQ(migrated(EffectivePorosity, "25").toDouble(), 0.25);
  EXPECT_EQ(migrated(AquiferPorosity, "30").toDouble(), 0.30);
}

TEST_F(LegacyReaderTest, conductivitiesAreCopiedBothWays) {
  EXPECT_EQ(migrated(HydraulicConductivity, "0.002", HydraulicConductivityUsed), QVariant("0.002"));
  EXPECT_EQ(migrated(HydraulicConductivityUsed, "0.003", HydraulicConductivity), QVariant("0.003"));
}

TEST_F(LegacyReaderTest, depthsAreCopiedBothWays) {
  EXPECT_EQ(migrated(DerivedWellDepth, "12", WellDepth), QVariant("12"));
  EXPECT_EQ(migrated(WellDepth, "13", DerivedWellDepth), QVariant("13"));
}

TEST_F(LegacyReaderTest, theDiameterGivesTheRadius) {
  EXPECT_EQ(migrated(WellDiameter, "0.3", WellRadius).toDouble(), 0.15);
  EXPECT_EQ(stored(WellDiameter), QVariant("0.3"));
}

TEST_F(LegacyReaderTest, rowsOfListsCountFromOne) {
  EXPECT_EQ(migrated(AquiferMaterial, "3"), QVariant(4));
  EXPECT_EQ(migrated(BuildingType, "0"), QVariant(1));
}

TEST_F(LegacyReaderTest, onlyTheFirstLocationMoves) {
  EXPECT_EQ(migrated(ClosestLocation, "0"), QVariant(1));
  EXPECT_EQ(migrated(ClosestLocation, "5"), QVariant("5"));
}

TEST_F(LegacyReaderTest, unconfinedIsAFlag) {
  EXPECT_EQ(migrated(AquiferUnconfined, "1"), QVariant(true));
  EXPECT_EQ(migrated(AquiferUnconfined, "2"), QVariant(true));
  EXPECT_EQ(migrated(AquiferUnconfined, "0"), QVariant(false));
}

TEST_F(LegacyReaderTest, theCalculationOfWellsTurnsRound) {
  EXPECT_EQ(migrated(CalculateWellConstruction, "1"), QVariant(false));
  EXPECT_EQ(migrated(CalculateWellConstruction, "0"), QVariant(true));
  EXPECT_EQ(migrated(CalculateWellConstruction, "false"), QVariant(true));
}

TEST_F(LegacyReaderTest, aClosedLoopIsOneOrZero) {
  EXPECT_EQ(migrated(ClosedLoop, "0.5"), QVariant(1));
  EXPECT_EQ(migrated(ClosedLoop, "-1"), QVariant(0));
  EXPECT_EQ(stored(ClosedLoop).userType(), QMetaType::Int);
}

TEST_F(LegacyReaderTest, theFlowDirectionTurnsByNinetyDegrees) {
  EXPECT_EQ(migrated(GroundwaterFlowDirection, "45.7"), QVariant(135));
}

TEST_F(LegacyReaderTest, heatingPowerIsThePower) {
  EXPECT_EQ(migrated(HeatingPower, "20", Power), QVariant("20"));
}

TEST_F(LegacyReaderTest, addressesHaveOneKindOfLineBreak) {
  EXPECT_EQ(migrated(ProjectAddress, "a<br />b<br>c"), QVariant("a<br>b<br>c"));
  EXPECT_EQ(migrated(UserAddress, "a<br />b"), QVariant("a<br>b"));
}

TEST_F(LegacyReaderTest, extentAndScaleChooseTheKindOfView) {
  EXPECT_EQ(migrated(ViewHorizontalExtension, "100", ViewUseExtension), QVariant(true));
  EXPECT_EQ(migrated(ViewScale, "1000", ViewUseExtension), QVariant(false));
}

TEST_F(LegacyReaderTest, allOtherValuesStay) {
  const QList<int> migrating{34,  59,  84,  85,  89,  90,  91,  101, 103, 105,
                             111, 119, 127, 130, 137, 151, 166, 167, 171};
  for (int id = 0; id < Count; ++id) {
    if (migrating.contains(id))
      continue;
    const QMap<int, QVariant> before = store.values();
    store.migrateValue(id);
    EXPECT_EQ(store.values(), before) << id;
  }
}

TEST_F(LegacyReaderTest, numbersThatNoIntHoldsAreHarmless) {
  for (const char* const text : {"2147483647", "-2147483648", "1e300", "nan", "inf", "text"})
    for (const int id : {AquiferMaterial, BuildingType, GroundwaterFlowDirection, ClosestLocation,
                         AquiferUnconfined, ClosedLoop})
      EXPECT_TRUE(migrated(id, text).isValid()) << text;
}

TEST_F(LegacyReaderTest, porosityOfAnOldFileIsAFraction) {
  const QVariant usual = stored(AquiferPorosity);
  EXPECT_TRUE(readOld(entry("porosity", "25")));
  EXPECT_EQ(number(EffectivePorosity), 0.25);
  EXPECT_EQ(stored(AquiferPorosity), usual);
}

TEST_F(LegacyReaderTest, theRockOfAnOldFileGoesOnToAquiferAndSurroundings) {
  EXPECT_TRUE(readOld(entry("density_stone", "2650") + entry("heat_conductivity", "3")));
  for (const int id : {DensityStone, DensityAquifer, DensitySurrounding})
    EXPECT_EQ(stored(id), QVariant("2650")) << id;
  for (const int id : {HeatConductivityStone, HeatConductivityAquifer, HeatConductivitySurrounding})
    EXPECT_EQ(stored(id), QVariant("3")) << id;
}

TEST_F(LegacyReaderTest, aSharedKeyLandsOnTheLowestParameter) {
  readOld(entry("aquifer", "2") + entry("depth", "30"));
  EXPECT_EQ(stored(AquiferMaterial), QVariant(3));
  EXPECT_EQ(stored(DerivedWellDepth), QVariant("30"));
  EXPECT_EQ(stored(WellDepth), QVariant("30"));
}

TEST_F(LegacyReaderTest, anUnknownKeyLandsOnTheVersion) {
  readOld(entry("no_such_key", "4711"));
  EXPECT_EQ(stored(ProgramVersion), QVariant("4711"));
}

TEST_F(LegacyReaderTest, textsOfSomeKeysAreDecoded) {
  readOld(entry("projectname", "Z&amp;uuml;rich") + entry("username", "M&amp;uuml;ller"));
  EXPECT_EQ(stored(ProjectName), QVariant(QStringLiteral("Zürich")));
  EXPECT_EQ(stored(UserName), QVariant("M&uuml;ller"));
}

TEST_F(LegacyReaderTest, nineKeysHoldEntities) {
  const std::vector<std::pair<const char*, int>> keys{{"projectname", ProjectName},
                                                      {"street", ProjectStreet},
                                                      {"location", ProjectLocation},
                                                      {"description", ProjectDescription},
                                                      {"address", ProjectAddress},
                                                      {"aquifermaterial_string", ProgramVersion},
                                                      {"closestlocation_string", ProgramVersion},
                                                      {"buildingtype_string", ProgramVersion},
                                                      {"wellmaterial_string", ProgramVersion}};
  for (const auto& [key, id] : keys) {
    readOld(entry(key, "Z&amp;uuml;rich"));
    EXPECT_EQ(stored(id), QVariant(QStringLiteral("Zürich"))) << key;
  }
}

TEST_F(LegacyReaderTest, theCaseOfAKeyCountsForItsEntities) {
  readOld(entry("Street", "Z&amp;uuml;rich"));
  EXPECT_EQ(stored(ProgramVersion), QVariant("Z&uuml;rich"));
}

TEST_F(LegacyReaderTest, theLanguageInUseWins) {
  store.setValue(GuiLanguage, "de");
  readOld(entry("gui_language", "fr"));
  EXPECT_EQ(store.value(GuiLanguage), QVariant("de"));
}

TEST_F(LegacyReaderTest, pairsOfWellsBecomeWells) {
  readOld(entry("nrofwells", "3"));
  EXPECT_EQ(store.count(NumberOfWells), 6);
  EXPECT_EQ(store.wellPositions().size(), 6);
}

TEST_F(LegacyReaderTest, positionsAreThoseOfPumpsAndInjections) {
  readOld(entry("nrofwells", "2") + entry("pump_x_1", "11") + entry("pump_y_2", "22") +
          entry("injektion_x_1", "33") + entry("injektion_y_2", "44"));
  EXPECT_EQ(store.wellPositions().at(0).x(), 11);
  EXPECT_EQ(store.wellPositions().at(1).y(), 22);
  EXPECT_EQ(store.wellPositions().at(2).x(), 33);
  EXPECT_EQ(store.wellPositions().at(3).y(), 44);
}

TEST_F(LegacyReaderTest, positionsMayStandBeforeTheNumberOfWells) {
  readOld(entry("pump_x_2", "11") + entry("injektion_x_2", "33") + entry("nrofwells", "2"));
  EXPECT_EQ(store.wellPositions().at(1).x(), 11);
  EXPECT_EQ(store.wellPositions().at(3).x(), 33);
}

TEST_F(LegacyReaderTest, theFirstInjectionOfAnOddNumberStandsInTheMiddleRow) {
  readSettings({{"nrofwells", "5"}, {"injektion_x_1", "33"}, {"injektion_x_3", "55"}});
  EXPECT_EQ(store.wellPositions().at(2).x(), 33);
  EXPECT_EQ(store.wellPositions().at(4).x(), 55);
}

TEST_F(LegacyReaderTest, aCoordinateThatIsNotXIsY) {
  const double x = store.value(DefaultWellPosition).toPointF().x();
  readOld(entry("nrofwells", "1") + entry("pump_z_1", "7") + entry("injektion_X_1", "8"));
  EXPECT_EQ(store.wellPositions().at(0), QPointF(x, 7));
  EXPECT_EQ(store.wellPositions().at(1), QPointF(x, 8));
}

TEST_F(LegacyReaderTest, malformedPositionsAreSkipped) {
  EXPECT_TRUE(readOld(entry("nrofwells", "1") + entry("pump_x_", "1") + entry("pump_", "1") +
                      entry("pump_x_2147483648", "1") + entry("pump_x_-5", "1") +
                      entry("pump_x_2147483647", "1") + entry("injektion_x_2147483647", "1")));
  EXPECT_EQ(store.wellPositions().at(0), store.value(DefaultWellPosition).toPointF());
}

TEST_F(LegacyReaderTest, anEntryIsTwoElementsWhateverTheirNames) {
  readText("<p><a><b>projectname</b>text<c>Site</c><d>ignored</d></a></p>");
  EXPECT_EQ(stored(ProjectName), QVariant("Site"));
}

TEST_F(LegacyReaderTest, anEntryWithoutValueIsEmpty) {
  readText("<p><a><b>projectname</b></a></p>");
  EXPECT_EQ(stored(ProjectName), QVariant(""));
}

TEST_F(LegacyReaderTest, anOldFileHasOneDemandPeriod) {
  readOld(entry("nrofwells", "1"));
  EXPECT_EQ(store.count(NumberOfDemandsPerYear), 1);
}

TEST_F(LegacyReaderTest, manyPositionsAreReadTogether) {
  QByteArray entries = entry("nrofwells", "1000");
  for (int well = 1; well <= 1000; ++well)
    entries += entry("pump_x_" + QByteArray::number(well), QByteArray::number(well)) +
               entry("injektion_y_" + QByteArray::number(well), QByteArray::number(well));
  const QSignalSpy changes(&store, &Manager::dataChanged);
  EXPECT_TRUE(readOld(entries));
  EXPECT_EQ(store.wellPositions().at(999).x(), 1000);
  EXPECT_EQ(store.wellPositions().at(1999).y(), 1000);
  EXPECT_LT(changes.size(), 100); // each look for the largest distance writes it
  store.setValue(NumberOfWells, 2);
}

TEST_F(LegacyReaderTest, settingsAreMigrated) {
  readSettings({{"porosity", "25"}, {"projectname", "Site"}, {"aquifer", 2}});
  EXPECT_EQ(number(EffectivePorosity), 0.25);
  EXPECT_EQ(stored(ProjectName), QVariant("Site"));
  EXPECT_EQ(stored(AquiferMaterial), QVariant(3));
}

TEST_F(LegacyReaderTest, unknownSettingsLandOnTheVersion) {
  readSettings({{"no_such_key", "4711"}});
  EXPECT_EQ(stored(ProgramVersion), QVariant("4711"));
}

TEST_F(LegacyReaderTest, settingsNeitherDoubleWellsNorMirrorTheRock) {
  const QVariant density = stored(DensityAquifer);
  readSettings({{"nrofwells", "4"}, {"density_stone", "2650"}});
  EXPECT_EQ(store.count(NumberOfWells), 4);
  EXPECT_EQ(stored(DensityStone), QVariant("2650"));
  EXPECT_EQ(stored(DensityAquifer), density);
}

TEST_F(LegacyReaderTest, settingsSetPositionsAndClearTheRest) {
  store.wellModel()->setData(store.wellModel()->index(0, WellModel::Name), "old name");
  readSettings({{"nrofwells", "4"}, {"pump_x_1", "11"}, {"injektion_y_2", "44"}});
  EXPECT_EQ(store.wellPositions().at(0).x(), 11);
  EXPECT_EQ(store.wellPositions().at(3).y(), 44);
  EXPECT_EQ(wellCell(0, WellModel::Name), QVariant("Well 1"));
}

TEST_F(LegacyReaderTest, settingsWithoutTheGroupChangeNothing) {
  const QMap<int, QVariant> before = store.values();
  store.wellModel();
  readSettings({});
  EXPECT_EQ(store.values(), before);
}

TEST_F(LegacyReaderTest, settingsWithoutTheGroupLeaveTheWellsTheirNames) {
  store.wellModel()->setData(store.wellModel()->index(0, WellModel::Name), "kept name");
  readSettings({});
  EXPECT_EQ(wellCell(0, WellModel::Name), QVariant("kept name"));
}

} // namespace
} // namespace TVR::Data
