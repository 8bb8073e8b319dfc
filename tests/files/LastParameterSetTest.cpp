#include "files/ProjectFiles.h"
#include "tables/DemandModel.h"
#include "tables/WellModel.h"

#include <QSettings>

namespace TVR::Data {
namespace {

using namespace Parameter;

/// Settings in a directory of the test's own: nothing of the user's is read or written.
class LastParameterSetTest : public ProjectFileTest {
protected:
  LastParameterSetTest() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path("settings"));
    store.setValue(NumberOfDemandsPerYear, 1);
    store.setValue(NumberOfWells, 2);
  }

  void setSetting(const QString& key, const QVariant& value) {
    QSettings("Norvalt", "Tevrane").setValue("last_parameter_set/" + key, value);
  }
  QVariant setting(const QString& key) {
    return QSettings("Norvalt", "Tevrane").value("last_parameter_set/" + key);
  }
  /// The settings file, as the next run of the program finds it.
  QString fileText() {
    QSettings("Norvalt", "Tevrane").sync();
    return QString::fromUtf8(bytesOf(path("settings/Norvalt/Tevrane.conf")));
  }
};

TEST_F(LastParameterSetTest, withoutSettingsTheDefaultsHold) {
  const QVariant thickness = stored(AquiferThickness);
  store.setValue(AquiferThickness, 99);
  store.restoreLastParameterSet();
  EXPECT_EQ(stored(AquiferThickness), thickness);
}

TEST_F(LastParameterSetTest, allValuesComeBack) {
  store.setValue(AquiferThickness, 17.5);
  store.setValue(ProjectName, QStringLiteral("Zürich; \"ñ\", 100%"));
  store.setStored(DefaultWellPosition, QPointF(3, 4));
  store.setStored(ExchangeBedrock, true);
  const QMap<int, QVariant> before = store.values();
  store.saveLastParameterSet();
  store.reset();
  store.restoreLastParameterSet();
  for (auto value = before.begin(); value != before.end(); ++value)
    if (value.key() != ProgramVersion && !store.key(value.key()).isEmpty()) {
      EXPECT_EQ(stored(value.key()).toString(), value->toString()) << value.key();
    }
  EXPECT_EQ(store.value(DefaultWellPosition).toPointF(), QPointF(3, 4));
}

TEST_F(LastParameterSetTest, keysStandInTheGroupUnderTheirNames) {
  store.setValue(AquiferThickness, 17.5);
  store.saveLastParameterSet();
  const QString text = fileText();
  EXPECT_TRUE(text.contains("[last_parameter_set]"));
  EXPECT_TRUE(text.contains("\naquifer_h=17.5\n"));
  EXPECT_TRUE(text.contains("\n__tvr_version="));
  EXPECT_TRUE(text.contains("\nwell_model\\size=2\n"));
  EXPECT_TRUE(text.contains("\nwell_model\\1\\0=Well 1\n"));
}

TEST_F(LastParameterSetTest, aParameterWithoutKeyIsNotKept) {
  store.setStored(BatchOutputFile, "result.out");
  store.saveLastParameterSet();
  EXPECT_FALSE(fileText().contains("result.out"));
}

TEST_F(LastParameterSetTest, sixWellsComeBack) {
  store.setValue(NumberOfWells, 6);
  WellModel& wells = *store.wellModel();
  for (int row = 0; row < 6; ++row) {
    wells.setData(wells.index(row, WellModel::Name), QString("W%1").arg(row));
    wells.setData(wells.index(row, WellModel::X), row * 1.5);
    wells.setData(wells.index(row, WellModel::Rate), row - 2.5);
  }
  store.saveLastParameterSet();
  store.setValue(NumberOfWells, 2);
  store.restoreLastParameterSet();
  EXPECT_EQ(store.wellModel()->rowCount(), 6);
  EXPECT_EQ(store.wellPositions().at(5).x(), 7.5);
  EXPECT_EQ(wells.index(4, WellModel::Name).data(Qt::EditRole), QVariant("W4"));
  EXPECT_EQ(wells.index(1, WellModel::Rate).data(Qt::EditRole).toDouble(), -1.5);
}

TEST_F(LastParameterSetTest, theDemandPeriodsAreNotKept) {
  store.setValue(NumberOfDemandsPerYear, 4);
  store.saveLastParameterSet();
  EXPECT_FALSE(fileText().contains("demand_model"));
  store.restoreLastParameterSet();
  EXPECT_EQ(store.demandModel()->rowCount(), 0);
}

TEST_F(LastParameterSetTest, onlyTwoWordsAreFalse) {
  setSetting("__tvr_version", "2.0.7");
  setSetting("aquifer_unconfined", "False");
  setSetting("background_image", "false");
  setSetting("cooling_only", "0");
  setSetting("wells_used_closed_loop", "");
  setSetting("_user_defined_heat_tollerances", "FALSE");
  store.restoreLastParameterSet();
  EXPECT_EQ(stored(AquiferUnconfined), QVariant(false));
  EXPECT_EQ(stored(BackgroundImage), QVariant(false));
  EXPECT_EQ(stored(CoolingOnly), QVariant(true));
  EXPECT_EQ(stored(ClosedLoop), QVariant(true));
  EXPECT_EQ(stored(UserDefinedHeatTolerances), QVariant(true));
}

TEST_F(LastParameterSetTest, elevenParametersComeBackAsFlags) {
  const QList<int> flags{51, 52, 91, 94, 104, 106, 111, 157, 158, 161, 162};
  {
    QSettings settings("Norvalt", "Tevrane");
    settings.beginGroup("last_parameter_set");
    for (int id = 0; id < Count; ++id)
      if (!store.key(id).isEmpty() && id != NumberOfWells)
        settings.setValue(store.key(id), "7");
  }
  store.restoreLastParameterSet();
  for (int id = 1; id < Count; ++id)
    if (!store.key(id).isEmpty() && id != NumberOfWells) {
      EXPECT_EQ(storedType(id) == QMetaType::Bool, flags.contains(id)) << id;
    }
}

TEST_F(LastParameterSetTest, aProjectThatNobodyChangedComesBackUnchanged) {
  const auto texts = [this] {
    QMap<QString, QString> result;
    for (auto value = store.values().begin(); value != store.values().end(); ++value)
      result[store.key(value.key())] = value->toString();
    result.remove(store.key(ProgramVersion)); // cells of the table overwrite it
    return result;
  };
  store.reset();
  const QMap<QString, QString> before = texts();
  store.saveLastParameterSet();
  store.restoreLastParameterSet();
  EXPECT_EQ(texts(), before);
}

TEST_F(LastParameterSetTest, theLanguageOfTheSettingsWins) {
  store.setValue(GuiLanguage, "de");
  store.saveLastParameterSet();
  store.setValue(GuiLanguage, "fr");
  store.restoreLastParameterSet();
  EXPECT_EQ(store.value(GuiLanguage), QVariant("de"));
}

TEST_F(LastParameterSetTest, noRuleRuns) {
  setSetting("__tvr_version", "2.0.7");
  setSetting("groundwater_gradient", "77");
  store.reset();
  const QVariant before = stored(GroundwaterVelocity);
  store.restoreLastParameterSet();
  EXPECT_EQ(stored(GroundwaterVelocity), before);
}

TEST_F(LastParameterSetTest, savingTwiceOverwrites) {
  store.setValue(AquiferThickness, 17.5);
  store.saveLastParameterSet();
  store.setValue(AquiferThickness, 18.5);
  store.saveLastParameterSet();
  EXPECT_EQ(setting("aquifer_h").toDouble(), 18.5);
}

TEST_F(LastParameterSetTest, aKeyThatIsGoneStaysBehind) {
  setSetting("no_such_key", "left");
  store.saveLastParameterSet();
  EXPECT_EQ(setting("no_such_key"), QVariant("left"));
}

TEST_F(LastParameterSetTest, cellsOfTheTableOverwriteTheVersion) {
  store.setStored(ProgramVersion, "2.0.7");
  store.saveLastParameterSet();
  store.restoreLastParameterSet();
  EXPECT_EQ(stored(ProgramVersion).toString(), "2"); // the last unknown key is the size
}

TEST_F(LastParameterSetTest, withoutAVersionThereIsNoSet) {
  setSetting("aquifer_h", "99");
  store.restoreLastParameterSet();
  EXPECT_NE(number(AquiferThickness), 99);
}

TEST_F(LastParameterSetTest, settingsOfThePreviousGenerationAreReadInstead) {
  QSettings("Norvaltwerk", "TevraneDesign").setValue("current/porosity", "25");
  store.restoreLastParameterSet();
  EXPECT_EQ(number(EffectivePorosity), 0.25);
  EXPECT_FALSE(QSettings("Norvaltwerk", "TevraneDesign").allKeys().isEmpty());
}

TEST_F(LastParameterSetTest, dataChangedIsEmitted) {
  const QSignalSpy changes(&store, &Manager::dataChanged);
  store.restoreLastParameterSet();
  EXPECT_GE(changes.size(), 2); // after the reset, and at the end
}

TEST_F(LastParameterSetTest, damagedCountsAreCut) {
  setSetting("__tvr_version", "2.0.7");
  setSetting("_number_of_wells", "2000000000");
  setSetting("well_model/size", "2000000000");
  store.restoreLastParameterSet();
  EXPECT_EQ(store.wellPositions().size(), 20'000);
  store.setValue(NumberOfWells, 2);
}

} // namespace
} // namespace TVR::Data
