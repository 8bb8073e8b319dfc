#include "files/ProjectFiles.h"

#include <QDir>

namespace TVR::Data {
namespace {

using namespace Parameter;

class ProjectFileReadTest : public ProjectFileTest {};

TEST_F(ProjectFileReadTest, aValueIsStoredAsItsText) {
  EXPECT_TRUE(readParameters(parameter("aquifer_h", "12.50")));
  EXPECT_EQ(stored(AquiferThickness), QVariant("12.50"));
  EXPECT_EQ(storedType(AquiferThickness), QMetaType::QString);
  EXPECT_EQ(number(AquiferThickness), 12.5);
}

TEST_F(ProjectFileReadTest, noRuleRuns) {
  store.reset();
  const QVariant before = stored(GroundwaterVelocity);
  readParameters(parameter("groundwater_gradient", "77") + parameter("_power", "123"));
  EXPECT_EQ(stored(GroundwaterVelocity), before);
  EXPECT_EQ(stored(Power), QVariant("123"));
}

TEST_F(ProjectFileReadTest, everythingElseComesFromTheDefaults) {
  const QVariant thickness = stored(AquiferThickness);
  store.setValue(AquiferThickness, 99);
  EXPECT_TRUE(readParameters(parameter("_power", "1")));
  EXPECT_EQ(stored(AquiferThickness), thickness);
}

TEST_F(ProjectFileReadTest, defaultsOfTheSurroundingsMirrorTheAquifer) {
  EXPECT_TRUE(readParameters(""));
  EXPECT_EQ(stored(HeatConductivitySurrounding), stored(HeatConductivityAquifer));
  EXPECT_EQ(stored(DensitySurrounding), stored(DensityAquifer));
}

TEST_F(ProjectFileReadTest, flagsAreTrueIfTheTextContainsTrue) {
  readParameters(parameter("aquifer_unconfined", "true") + parameter("background_image", "untrue") +
                 parameter("check_well_construction", "True") + parameter("cooling_only", "1") +
                 parameter("use_of_provided_aquifer_properties", "false"));
  EXPECT_EQ(stored(AquiferUnconfined), QVariant(true));
  EXPECT_EQ(stored(BackgroundImage), QVariant(true));
  EXPECT_EQ(stored(CheckWellConstruction), QVariant(false));
  EXPECT_EQ(stored(CoolingOnly), QVariant(false));
  EXPECT_EQ(stored(UseProvidedAquiferProperties), QVariant(false));
}

TEST_F(ProjectFileReadTest, sixParametersAreFlags) {
  const QList<int> flags{91, 94, 104, 106, 157, 158};
  QByteArray all;
  for (int id = 1; id < Count; ++id)
    if (const QString key = store.key(id); !key.isEmpty() && id != NumberOfWells)
      all += parameter(key.toUtf8(), "true");
  EXPECT_TRUE(readParameters(all));
  for (int id = 1; id < Count; ++id)
    if (!store.key(id).isEmpty() && id != NumberOfWells) {
      EXPECT_EQ(storedType(id) == QMetaType::Bool, flags.contains(id)) << id;
    }
}

TEST_F(ProjectFileReadTest, aFlagOfAnotherSetStaysText) {
  readParameters(parameter("wells_used_closed_loop", "true"));
  EXPECT_EQ(stored(ClosedLoop), QVariant("true"));
  EXPECT_EQ(storedType(ClosedLoop), QMetaType::QString);
}

TEST_F(ProjectFileReadTest, anUnknownKeyLandsOnTheVersion) {
  readParameters(parameter("no_such_key", "something"));
  EXPECT_EQ(stored(ProgramVersion), QVariant("something"));
}

TEST_F(ProjectFileReadTest, anElementWithoutNameLandsOnTheVersionOrOnTheKeylessParameter) {
  const bool emptyKeyIsKnown = store.keys().idOfKey("") != 0;
  readParameters("<parameter><value>nameless</value></parameter>");
  if (!emptyKeyIsKnown) {
    EXPECT_EQ(stored(ProgramVersion), QVariant("nameless"));
  }
  EXPECT_EQ(store.key(TimeOfMaximumExtent3K), ""); // from now on the empty key is known
  readParameters("<parameter><value>nameless again</value></parameter>");
  EXPECT_EQ(stored(TimeOfMaximumExtent3K), QVariant("nameless again"));
}

TEST_F(ProjectFileReadTest, theTagOfAParameterIsNotLookedAt) {
  readParameters("<whatever><name>_power</name><value>7</value></whatever>");
  EXPECT_EQ(stored(Power), QVariant("7"));
}

TEST_F(ProjectFileReadTest, anUnknownTableIsIgnored) {
  const QVariant before = stored(ProgramVersion);
  readParameters(parameter("pipe_model", "9"));
  EXPECT_EQ(stored(ProgramVersion), before);
}

TEST_F(ProjectFileReadTest, theLanguageInUseWins) {
  store.setValue(GuiLanguage, "de");
  readParameters(parameter("gui_language", "fr"));
  EXPECT_EQ(store.value(GuiLanguage), QVariant("de"));
}

TEST_F(ProjectFileReadTest, textsAreDecoded) {
  readParameters(parameter("project_name", "Z&amp;uuml;rich &amp;amp; Basel"));
  EXPECT_EQ(stored(ProjectName), QVariant(QStringLiteral("Zürich &amp; Basel")));
}

TEST_F(ProjectFileReadTest, zeroAsAProjectNameStays) {
  readParameters(parameter("project_name", "0.0"));
  EXPECT_EQ(stored(ProjectName), QVariant("0.0"));
}

TEST_F(ProjectFileReadTest, theRockGoesOnToAquiferAndSurroundings) {
  readParameters(parameter("__heat_conductivity_stone", "3.5") +
                 parameter("__density_stone", "2650"));
  EXPECT_EQ(stored(HeatConductivityAquifer), QVariant("3.5"));
  EXPECT_EQ(stored(HeatConductivitySurrounding), QVariant("3.5"));
  EXPECT_EQ(stored(DensityAquifer), QVariant("2650"));
  EXPECT_EQ(stored(DensitySurrounding), QVariant("2650"));
}

TEST_F(ProjectFileReadTest, ownValuesOfTheAquiferComeAfterTheRock) {
  readParameters(parameter("__density_stone", "2650") + parameter("__density_aquifer", "2100"));
  EXPECT_EQ(stored(DensityAquifer), QVariant("2100"));
  EXPECT_EQ(stored(DensitySurrounding), QVariant("2650"));
}

TEST_F(ProjectFileReadTest, theNumberOfWellsSizesThePositions) {
  readParameters(parameter("_number_of_wells", "6"));
  EXPECT_EQ(store.wellPositions().size(), 6);
  EXPECT_EQ(stored(NumberOfWells), QVariant("6"));
}

TEST_F(ProjectFileReadTest, idsOfPageItemsComeBack) {
  ids["plot_field_id"] = 99;
  ids["legend_field_id"] = 5;
  readParameters("<graphic_ids><plot_field_id>3</plot_field_id>"
                 "<data_field_id>x</data_field_id></graphic_ids>");
  EXPECT_EQ(ids, (Ids{{"plot_field_id", 3}, {"legend_field_id", 5}, {"data_field_id", 0}}));
}

TEST_F(ProjectFileReadTest, dataChangedEndsTheRead) {
  const QSignalSpy changes(&store, &Manager::dataChanged);
  readParameters(parameter("_power", "1"));
  const int all = changes.size();
  readText("no xml");
  EXPECT_EQ(changes.size() - all, all - 1);
}

TEST_F(ProjectFileReadTest, aMissingFileIsFalseAndLeavesTheDefaults) {
  const QVariant thickness = stored(AquiferThickness);
  store.setValue(AquiferThickness, 99);
  EXPECT_FALSE(store.read(path("missing.tvr"), ids));
  EXPECT_EQ(stored(AquiferThickness), thickness);
}

TEST_F(ProjectFileReadTest, aDirectoryIsFalse) {
  EXPECT_FALSE(store.read(QDir(path(".")).absolutePath(), ids));
}

TEST_F(ProjectFileReadTest, whatIsNotWellFormedIsFalse) {
  for (const char* const text : {"", "text", "<TVR>", "<TVR></TRV>", "<a/><b/>"})
    EXPECT_FALSE(readText(text)) << text;
}

TEST_F(ProjectFileReadTest, anUnrelatedDocumentYieldsDefaults) {
  store.setValue(AquiferThickness, 99);
  const QVariant language = stored(GuiLanguage);
  EXPECT_TRUE(readText("<html><body><p>text</p></body></html>"));
  EXPECT_NE(number(AquiferThickness), 99);
  EXPECT_EQ(stored(GuiLanguage), language);
}

TEST_F(ProjectFileReadTest, theNameOfTheRootDoesNotMatter) {
  EXPECT_TRUE(
      readText("<any><__parameter_set>" + parameter("_power", "4") + "</__parameter_set></any>"));
  EXPECT_EQ(stored(Power), QVariant("4"));
}

TEST_F(ProjectFileReadTest, aNameInCapitalsIsAProjectFile) {
  ASSERT_TRUE(writeBytes(path("run.TBAT"), "[hydraulic]\naquifer_h=3\n"));
  EXPECT_FALSE(store.read(path("run.TBAT"), ids));
}

TEST_F(ProjectFileReadTest, otherEncodingsAreRead) {
  EXPECT_TRUE(readText("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a><__parameter_set>" +
                       parameter("project_name", "M\xfcnchen") + "</__parameter_set></a>"));
  EXPECT_EQ(stored(ProjectName), QVariant(QStringLiteral("München")));
}

} // namespace
} // namespace TVR::Data
