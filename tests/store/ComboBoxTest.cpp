#include "store/OwnStoreTest.h"

#include <QComboBox>

namespace TVR::Data {
namespace {

using namespace Parameter;

class ComboBoxTest : public OwnStoreTest {
protected:
  /// The texts of the box with the data of each item.
  QStringList items() const {
    QStringList result;
    for (int i = 0; i < box.count(); ++i)
      result << QString("%1=%2").arg(box.itemText(i), box.itemData(i).toString());
    return result;
  }

  QComboBox box;
};

TEST_F(ComboBoxTest, materialsStandInTheOrderOfTheirNumbers) {
  store.fillComboBox(AquiferMaterial, &box);
  EXPECT_EQ(items(), (QStringList{"sand=1", "Gravel=2"}));
}

TEST_F(ComboBoxTest, buildingTypesStandInTheOrderOfTheirNumbers) {
  store.fillComboBox(BuildingType, &box);
  EXPECT_EQ(items(), (QStringList{"School=1", "House=2"}));
}

TEST_F(ComboBoxTest, locationsStandInTheOrderOfTheirNames) {
  store.fillComboBox(ClosestLocation, &box);
  EXPECT_EQ(items(), (QStringList{"Bern=2", "Zug=1"}));
}

TEST_F(ComboBoxTest, itemsHaveNoIcon) {
  store.fillComboBox(BuildingType, &box);
  EXPECT_TRUE(box.itemIcon(0).isNull());
}

TEST_F(ComboBoxTest, otherParametersFillNothing) {
  for (int id = 0; id < Count; ++id)
    if (id != AquiferMaterial && id != BuildingType && id != ClosestLocation)
      store.fillComboBox(id, &box);
  EXPECT_EQ(box.count(), 0);
}

TEST_F(ComboBoxTest, fillingTwiceGivesEveryChoiceTwice) {
  box.addItem("none", 0);
  store.fillComboBox(BuildingType, &box);
  store.fillComboBox(BuildingType, &box);
  EXPECT_EQ(items(), (QStringList{"none=0", "School=1", "House=2", "School=1", "House=2"}));
}

TEST_F(ComboBoxTest, choicesAreNamedInTheLanguageOfTheMoment) {
  store.setValue(GuiLanguage, "de");
  store.fillComboBox(BuildingType, &box);
  store.fillComboBox(AquiferMaterial, &box);
  EXPECT_EQ(items(), (QStringList{"Schule=1", "Haus=2", "Sand=1", "Kies=2"}));
}

TEST_F(ComboBoxTest, noLanguageIsEnglish) {
  store.setValue(GuiLanguage, "");
  store.fillComboBox(BuildingType, &box);
  EXPECT_EQ(items(), (QStringList{"School=1", "House=2"}));
}

TEST_F(ComboBoxTest, unknownLanguageLeavesTheBoxEmptyWithoutAMessage) {
  store.setValue(GuiLanguage, "it");
  const MessageLog log;
  store.fillComboBox(BuildingType, &box);
  store.fillComboBox(AquiferMaterial, &box);
  EXPECT_EQ(box.count(), 0);
  EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(ComboBoxTest, failedQueryIsReported) {
  execute("ALTER TABLE Standort RENAME TO Away");
  const MessageLog log;
  store.fillComboBox(ClosestLocation, &box);
  execute("ALTER TABLE Away RENAME TO Standort");
  EXPECT_EQ(
      log.lines(),
      QStringList{"Tevrane: <b>A database error has occurred :</b>\n"
                  "Query:\tSELECT closest_location,id FROM Standort order by closest_location\n"
                  "Error:\tno such table: Standort\n"
                  "Driver:\tUnable to execute statement"});
}

} // namespace
} // namespace TVR::Data
