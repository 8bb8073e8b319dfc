#include "project/ParameterTable.h"

#include "support/ContextTranslator.h"

#include <QMetaObject>
#include <QSet>

#include <gtest/gtest.h>

namespace TVR {
namespace {

const ParameterRow& row(int id) {
  return parameterTable().at(static_cast<std::size_t>(id));
}

void expectRow(int id, const char* key, const char* formerKey, const char* label) {
  EXPECT_EQ(row(id).id, id);
  EXPECT_STREQ(row(id).key, key);
  EXPECT_STREQ(row(id).formerKey, formerKey) << key;
  EXPECT_EQ(ParameterName::label(id), label) << key;
}

QSet<int> idsWith(bool (*isMember)(int)) {
  QSet<int> ids;
  for (int id = -5; id < Parameter::Count + 5; ++id)
    if (isMember(id))
      ids.insert(id);
  return ids;
}

TEST(ParameterTable, has173Rows) {
  EXPECT_EQ(parameterTable().size(), 173U);
}

TEST(ParameterTable, rowsStandAtTheirIds) {
  for (int id = 0; id < Parameter::Count; ++id)
    EXPECT_EQ(row(id).id, id);
}

TEST(ParameterTable, everyParameterButTwoHasAKeyOfItsOwn) {
  QSet<QString> keys;
  QSet<int> without;
  for (const ParameterRow& parameter : parameterTable())
    if (*parameter.key == '\0')
      without.insert(parameter.id);
    else
      keys.insert(parameter.key);
  EXPECT_EQ(without, (QSet<int>{33, 136}));
  EXPECT_EQ(keys.size(), 171);
}

TEST(ParameterTable, keepsUnusualSpellings) {
  expectRow(30, "__spezific_heat_capacity_stone", "capacity_stone",
            "Specific heat capacity of the rock");
  expectRow(32, "_3k_extention", "3Kextention", "Maximum extent of 3K temperature change");
  expectRow(47, "_duration_of_peak_load", "hurationofpeakload", "Duration of peak load");
  expectRow(56, "_heading_days", "ht12", "Heating days");
  expectRow(89, "aquifer_material_typ", "aquifer", "Aquifer material");
  expectRow(96, "background_image_horizontal_extention", "widthimport",
            "Horizontal extent of the background map");
  expectRow(145, "referenz_temperature", "reftemp", "Reference temperature");
  expectRow(150, "_tecplot_output_filename", "", "Tectplot output file name");
  expectRow(161, "_user_defined_groundwater_tollerances", "",
            "User defined tollerances of the groundwater model");
  expectRow(162, "_user_defined_heat_tollerances", "",
            "User defined tollerances of the heat model");
}

TEST(ParameterTable, keepsKeysWithBlanksUnderscoresAndCapitals) {
  expectRow(44, "_delta_W_pot", "delta_Wpot", "delta_W_pot");
  expectRow(75, "_s_v_", "sav", "Drawdown when using the mean flow rate");
  expectRow(77, "_v_", "v_", "Mean annual flow rate");
  expectRow(100, "beta_T", "", "Hydraulic dispersion");
  expectRow(113, "energy exchange with the caprock", "", "Energy exchange with the caprock");
  expectRow(114, "energy exchange with the bedrock", "", "Energy exchange with the bedrock");
}

TEST(ParameterTable, keepsTheTwoBlanksInALabel) {
  expectRow(23, "__heat_conductivity_surrounding", "heat_conductivity",
            "Heat conductivity of the  rock material surrounding the aquifer");
}

TEST(ParameterTable, keepsWizardsAndHeadings) {
  expectRow(0, "__tvr_version", "version", "Program version");
  expectRow(2, "__brunnen_wizard", "brunnenwizard", "Well and aquifer");
  expectRow(6, "__simulation_uptodate", "", "");
  expectRow(7, "__gui_item_heating_specification", "", "Heating specification");
  expectRow(13, "__gui_item_last_results", "", "Last results");
}

TEST(ParameterTable, keepsParametersThatDifferByAnUnderscore) {
  expectRow(34, "_aquifer_porosity", "porosity", "");
  expectRow(90, "aquifer_porosity", "porosity", "Porosity");
  expectRow(59, "_kf", "kf", "Hydraulic conductivity");
  expectRow(130, "kf", "kf", "Hydraulic conductivity");
  expectRow(46, "_distance_between_wells", "distancebetweenwells", "Distance between wells");
  expectRow(112, "distance_between_wells", "distancebetweenwells", "Distance between wells");
  expectRow(84, "_well_depth", "depth", "");
  expectRow(171, "well_depth", "depth", "Well depth");
}

TEST(ParameterTable, endsWithTheWellMaterial) {
  expectRow(172, "well_material_type", "wellmaterial", "Well material type");
}

TEST(ParameterTable, parametersOfResultsHaveNoKey) {
  expectRow(33, "", "", "Time of the maximum extent");
  expectRow(136, "", "", "");
}

TEST(ParameterTable, formerKeysAreShared) {
  for (const int id : {14, 15, 16})
    EXPECT_STREQ(row(id).formerKey, "density_stone");
  for (const int id : {21, 22, 23})
    EXPECT_STREQ(row(id).formerKey, "heat_conductivity");
  EXPECT_STREQ(row(89).formerKey, row(91).formerKey);
}

TEST(ParameterTable, labelOfAnUnknownIdIsEmpty) {
  EXPECT_TRUE(ParameterName::label(-1).isEmpty());
  EXPECT_TRUE(ParameterName::label(173).isEmpty());
  EXPECT_TRUE(ParameterName::label(100000).isEmpty());
}

TEST(ParameterTable, labelsAreTranslatedInTheContextOfTheParameterNames) {
  const ContextTranslator translator;
  EXPECT_EQ(ParameterName::label(50), "TVR::ParameterName/Energy demand");
  EXPECT_TRUE(ParameterName::label(51).isEmpty());
}

TEST(ParameterTable, unitsAreTranslatedInTheContextOfTheParameterNames) {
  const ContextTranslator translator;
  EXPECT_EQ(shownUnit(parameterRow(Parameter::GroundwaterTable)), "TVR::ParameterName/m bgl");
  EXPECT_EQ(shownUnit(parameterRow(Parameter::ProjectName)), "");
}

TEST(ParameterTable, parameterNamesAreAnObjectOfTheirContext) {
  EXPECT_STREQ(ParameterName::staticMetaObject.className(), "TVR::ParameterName");
}

TEST(ParameterTable, flagsOnReadingTheDefaults) {
  EXPECT_EQ(idsWith(isFlagInDefaults),
            (QSet<int>{1,  2,  3,  4,   5,   7,   8,   9,   10,  11,  12,  13,  51,
                       52, 91, 94, 103, 104, 106, 111, 113, 114, 158, 164, 165, 168}));
}

TEST(ParameterTable, flagsOnAWrite) {
  EXPECT_EQ(idsWith(isFlagOnWrite), (QSet<int>{91, 94, 104, 106, 111, 157, 158}));
}

TEST(ParameterTable, flagsInAProjectFile) {
  EXPECT_EQ(idsWith(isFlagInProjectFile), (QSet<int>{91, 94, 104, 106, 157, 158}));
}

TEST(ParameterTable, flagsInTheSettings) {
  EXPECT_EQ(idsWith(isFlagInSettings),
            (QSet<int>{51, 52, 91, 94, 104, 106, 111, 157, 158, 161, 162}));
}

TEST(ParameterTable, flagsThatAreWordsInABatchFile) {
  EXPECT_EQ(idsWith(isWordInBatchFile), (QSet<int>{113, 114, 164}));
}

TEST(ParameterTable, textsThatCanBeCleared) {
  EXPECT_EQ(idsWith(isClearableText),
            (QSet<int>{137, 138, 139, 140, 141, 142, 143, 151, 152, 153, 154, 155}));
}

} // namespace
} // namespace TVR
