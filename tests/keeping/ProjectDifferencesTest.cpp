#include "keeping/ProjectDifferences.h"

#include "design/ParameterId.h"
#include "project/Project.h"
#include "support/ContextTranslator.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

using namespace Parameter;

Project project() {
  Project project;
  project.values = {{NumberOfWells, 2},         {NumberOfDemandsPerYear, 1},
                    {SimulationTime, 31557600}, {GroundwaterGradient, "0.2"},
                    {AquiferUnconfined, false}, {ProjectName, "Riverside"},
                    {AquiferPorosity, 0.2}};
  return project;
}

/// A line for each difference, its parts between bars.
QStringList differences(const Project& before, const Project& after) {
  QStringList lines;
  for (const Difference& difference : ProjectDifferences::between(before, after))
    lines << difference.what + '|' + difference.before + '|' + difference.after;
  return lines;
}

QStringList afterSetting(int id, const QVariant& value) {
  Project after = project();
  after.values[id] = value;
  return differences(project(), after);
}

TEST(ProjectDifferences, ofAProjectToItselfThereAreNone) {
  EXPECT_EQ(differences(project(), project()), QStringList());
}

TEST(ProjectDifferences, bearTheLabelOfTheParameterAndItsUnit) {
  EXPECT_EQ(afterSetting(GroundwaterGradient, 0.75),
            QStringList("Hydraulic gradient|0.2 m/100m|0.75 m/100m"));
}

TEST(ProjectDifferences, areInTheUnitOfTheForms) {
  EXPECT_EQ(afterSetting(SimulationTime, 63115200.0), QStringList("Operation time|1 a|2 a"));
  EXPECT_EQ(afterSetting(AquiferPorosity, 0.25), QStringList("Porosity|20 %|25 %"));
}

TEST(ProjectDifferences, haveTheUnitInTheLanguageOfUse) {
  EXPECT_EQ(afterSetting(HeatingPeriod, 200.0), QStringList("Heating period||200 days"));
  const ContextTranslator translator;
  EXPECT_TRUE(afterSetting(HeatingPeriod, 200.0).join("").endsWith("|200 TVR::ParameterName/days"));
}

TEST(ProjectDifferences, ofTruthValuesAreWords) {
  EXPECT_EQ(afterSetting(AquiferUnconfined, "true"), QStringList("Unconfined aquifer|no|yes"));
}

TEST(ProjectDifferences, ofTextsAreTheTexts) {
  EXPECT_EQ(afterSetting(ProjectName, "Hill"), QStringList("Project name|Riverside|Hill"));
}

TEST(ProjectDifferences, ofAParameterWithoutALabelBearItsKey) {
  EXPECT_EQ(afterSetting(UserLogo, "a.png"), QStringList("user_logo||a.png"));
}

TEST(ProjectDifferences, areNoneInWhatTheProgramNotes) {
  EXPECT_EQ(afterSetting(GuiLanguage, "fr"), QStringList());
}

TEST(ProjectDifferences, areNoneInWhatIsPutTogetherFromOthers) {
  EXPECT_EQ(afterSetting(ProjectAddress, "Riverside<br>Mill Lane 4"), QStringList());
}

TEST(ProjectDifferences, mayBeThoseOfSomeParametersOnly) {
  Project after = project();
  after.values[GroundwaterGradient] = 0.75;
  after.values[ProjectName] = "Hill";
  const QList<Difference> found = ProjectDifferences::between(
      project(), after, [](int id) { return id == GroundwaterGradient; });
  ASSERT_EQ(found.size(), 1);
  EXPECT_EQ(found[0].what, "Hydraulic gradient");
}

TEST(ProjectDifferences, ofWellsAreCounted) {
  Project after = project();
  after.values[NumberOfWells] = 4;
  after.wells.names[1] = "South";
  EXPECT_EQ(differences(project(), after),
            QStringList({"Wells|2|4", "Wells with other values||1"}));
}

TEST(ProjectDifferences, ofPeriodsAreCounted) {
  Project before = project();
  before.durations = {{0, 1e7}, {1, 2e7}};
  Project after = project();
  after.durations = {{0, 1e7}, {1, 1e7}, {2, 1e7}};
  EXPECT_EQ(differences(before, after),
            QStringList({"Demand periods|2|3", "Demand periods of another length||1"}));
}

} // namespace
} // namespace TVR
