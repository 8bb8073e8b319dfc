#include "project/ProjectReader.h"

#include "design/ParameterId.h"
#include "project/ProjectTables.h"

#include <gtest/gtest.h>

#include <cmath>

namespace TVR {
namespace {

using namespace Parameter;

/// A project of a few values, looked at as a value.
class ProjectReaderTest : public testing::Test {
protected:
  Project project;
  const ProjectView view{project};
};

TEST_F(ProjectReaderTest, whatIsNotThereReadsAsNothing) {
  EXPECT_FALSE(view.effective(HydraulicConductivity).isValid());
  EXPECT_EQ(view.number(HydraulicConductivity), 0);
  EXPECT_FALSE(view.flag(AquiferUnconfined));
  EXPECT_EQ(view.count(NumberOfWells), 0);
  EXPECT_EQ(view.text(ProjectName), "");
  EXPECT_FALSE(view.isNan(MeanFlowRate));
}

TEST_F(ProjectReaderTest, textsOfFilesReadAsTheirValues) {
  project.values = {{HydraulicConductivity, "1e-3"},
                    {AquiferUnconfined, "true"},
                    {NumberOfWells, "4.0"},
                    {MeanFlowRate, "nan"},
                    {ProjectName, "Süd"}};
  EXPECT_EQ(view.number(HydraulicConductivity), 0.001);
  EXPECT_TRUE(view.flag(AquiferUnconfined));
  EXPECT_EQ(view.count(NumberOfWells), 4);
  EXPECT_TRUE(view.isNan(MeanFlowRate));
  EXPECT_EQ(view.text(ProjectName), "Süd");
}

TEST_F(ProjectReaderTest, aNumberThatIsNoneIsSeen) {
  project.values = {{MeanFlowRate, std::nan("")}};
  EXPECT_TRUE(view.isNan(MeanFlowRate));
}

TEST_F(ProjectReaderTest, aWholeNumberIsCutTowardsZero) {
  project.values = {{NumberOfWells, 2.9}, {MaxNumberOfElements, -2.9}};
  EXPECT_EQ(view.count(NumberOfWells), 2);
  EXPECT_EQ(view.count(MaxNumberOfElements), -2);
}

TEST_F(ProjectReaderTest, thePorositiesStandInForEachOther) {
  project.values = {{AquiferPorosity, 25.0}, {EffectivePorosity, QVariant()}};
  EXPECT_EQ(view.number(EffectivePorosity), 0.25);
  project.values = {{EffectivePorosity, 0.2}, {AquiferPorosity, QVariant()}};
  EXPECT_EQ(view.number(AquiferPorosity), 0.2);
}

TEST_F(ProjectReaderTest, withoutPeriodsTheYearIsDividedEvenly) {
  EXPECT_EQ(view.periods(), std::vector<double>{3.15576e7});
  project.values = {{NumberOfDemandsPerYear, 4}};
  EXPECT_EQ(view.periods(), std::vector<double>(4, 3.15576e7 / 4));
  project.durations = {{0, 5.0}, {1, 7.0}};
  EXPECT_EQ(view.periods(), (std::vector<double>{5, 7}));
}

TEST_F(ProjectReaderTest, anOverlayHasItsOwnValuesAndLeavesTheProjectAlone) {
  project.values = {{HydraulicConductivity, 0.001}, {AquiferPorosity, 25.0}, {NumberOfWells, 2}};
  project.wells.positions = {{0, 0}, {30, 0}};
  ProjectOverlay overlay(view);
  overlay.set(HydraulicConductivity, 0.01);
  overlay.set(AquiferPorosity, 30.0);
  EXPECT_EQ(overlay.number(HydraulicConductivity), 0.01);
  EXPECT_EQ(overlay.number(EffectivePorosity), 0.3); // what follows at reading follows here too
  EXPECT_EQ(overlay.wells().place(1), QPointF(30, 0));
  EXPECT_EQ(overlay.wells().count(), 2);
  EXPECT_EQ(view.number(HydraulicConductivity), 0.001);
}

TEST_F(ProjectReaderTest, overlaysLieOnOverlays) {
  project.values = {{Gravity, 9.81}};
  ProjectOverlay lower(view);
  lower.set(DensityWater, 998.0);
  ProjectOverlay upper(lower);
  upper.set(Gravity, 1.0);
  EXPECT_EQ(upper.number(DensityWater), 998);
  EXPECT_EQ(upper.number(Gravity), 1);
  EXPECT_EQ(lower.number(Gravity), 9.81);
}

TEST_F(ProjectReaderTest, withoutPeriodsTheTableOfRatesHasNoCell) {
  project.values = {{NumberOfWells, 2}};
  EXPECT_EQ(rowsOf(view, ProjectTable::WellDemand), 0);
  EXPECT_FALSE(cellOf(view, ProjectTable::WellDemand, 0, WellDemandColumns::Rate).isValid());
  EXPECT_FALSE(cellOf(view, ProjectTable::Well, 5, WellColumns::X).isValid());
}

} // namespace
} // namespace TVR
