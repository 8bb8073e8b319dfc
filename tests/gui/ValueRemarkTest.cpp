#include "gui/editor/ValueRemark.h"

#include "gui/editor/EditorRows.h"
#include "gui/editor/PropertyEdits.h"
#include "project/Units.h"
#include "simulation/SiteCheck.h"
#include "support/ProjectTest.h"

using namespace TVR;
using namespace TVR::Parameter;
using namespace TVR::GUI;

namespace {

/// The doublet, with values that were typed but are not applied.
class ValueRemarkTest : public ProjectTest {
protected:
  ValueRemarkTest() { read(BatchProject::doublet()); }

  std::string remark(int id) const { return valueRemark(*editorRow(id), edited).toStdString(); }
  std::string remarkWith(int id, const QVariant& value) {
    layEdits(edited, {{id, value}});
    return remark(id);
  }

  ProjectOverlay edited{store};
};

} // namespace

TEST_F(ValueRemarkTest, nothingIsSaidOfTheValuesOfASoundSite) {
  for (const EditorRow& row : editorRows())
    EXPECT_EQ(valueRemark(row, store), "") << row.id;
}

TEST_F(ValueRemarkTest, anImpossibleValueIsSaidInTheUnitOfItsRow) {
  EXPECT_EQ(remarkWith(EffectivePorosity, 0.0), "Impossible: expected 0.1 to 100 %");
  EXPECT_EQ(remarkWith(AquiferThickness, 0.0), "Impossible: expected 1 to 1000 m");
  EXPECT_EQ(remarkWith(NumberOfWells, 100000), "Impossible: expected 1 to 10000");
  EXPECT_EQ(remarkWith(RelTolHeat, 0.5), "Impossible: expected 1e-10 to 0.1");
}

TEST_F(ValueRemarkTest, anUnusualValueIsSaidToBeOne) {
  EXPECT_EQ(remarkWith(HydraulicConductivity, 0.5), "Unusual: usual is 1e-05 to 0.1 m/s");
  EXPECT_EQ(remarkWith(SimulationTime, 200 * secondsPerYear), "Unusual: usual is 0.1 to 100 a");
}

TEST_F(ValueRemarkTest, theBaseOfAnUnconfinedAquiferLiesBelowItsWater) {
  edited.set(GroundwaterTable, 4.0);
  EXPECT_EQ(remarkWith(AquiferBasis, 3.0), "");
  edited.set(AquiferUnconfined, true);
  EXPECT_EQ(remark(AquiferBasis), "Impossible: the base has to lie below the groundwater table");
  EXPECT_EQ(remarkWith(AquiferBasis, 4.5),
            "Water-filled thickness of 0.5 m. Unusual: usual is 1 to 200 m");
  EXPECT_EQ(remarkWith(AquiferBasis, 14.0), "");
  EXPECT_EQ(remark(GroundwaterTable), "");
}

TEST_F(ValueRemarkTest, wellsNearEachOtherAreRemarkedAtTheirNumber) {
  store.setCells(ProjectTable::Well, {{0, WellModel::X, 100.0}, {0, WellModel::Y, 100.0}});
  const auto remarkAt = [this](double x) {
    store.setCells(ProjectTable::Well, {{1, WellModel::X, x}, {1, WellModel::Y, 100.0}});
    return remark(NumberOfWells);
  };
  EXPECT_EQ(remarkAt(101.001), "");
  EXPECT_EQ(remarkAt(100.6), R"(Unusual: "Pump" and "Return" stand only 0.6 m apart)");
  EXPECT_EQ(remarkAt(100.0), "") << "which is said when they are to be run";
  edited.set(MinElementLength, 2.0);
  EXPECT_EQ(remarkAt(100.6), R"(Impossible: "Pump" and "Return" stand only 0.6 m apart, )"
                             "within one cell of the mesh (2 m wide)");
}

TEST_F(ValueRemarkTest, ofSeveralNearWellsTheWorstIsNamedAndTheRestCounted) {
  BatchProject project;
  project.addWell("A", 0, 0, -0.001);
  project.addWell("B", 0.9, 0, 0.001);
  project.addWell("C", 50, 0, 0.001);
  project.addWell("<D>", 50.1, 0, -0.001);
  read(project);
  edited.set(MinElementLength, 1.0);
  EXPECT_EQ(remark(NumberOfWells), R"(Impossible: "C" and "<D>" stand only 0.1 m apart, )"
                                   "within one cell of the mesh (1 m wide). "
                                   "Further pairs of near wells: 1");
}

TEST_F(ValueRemarkTest, whatIsNoNumberOrAResultHasNone) {
  edited.set(ThermalDispersivity, 1e9);
  edited.set(MaximumExtent3K, std::numeric_limits<double>::infinity());
  EXPECT_EQ(remark(ThermalDispersivity), "");
  EXPECT_EQ(remark(MaximumExtent3K), "");
}

TEST_F(ValueRemarkTest, saysSomethingWhereTheCheckOfARunDoes) {
  const std::pair<int, double> values[] = {
      {SimulationTime, 0},     {HydraulicConductivity, 1e-9}, {HydraulicConductivity, 1},
      {EffectivePorosity, 2},  {GroundwaterGradient, 50},     {GroundwaterFlowDirection, 900},
      {MinElementLength, 5e3}, {CellIncreaseFactor, 500},     {RelTolGroundwater, 0.2},
      {AbsTolHeat, 2},         {AquiferThickness, 0.001},     {AquiferThickness, 300}};
  for (const auto& [id, value] : values) {
    ProjectOverlay wrong(store);
    layEdits(wrong, {{id, value}});
    const std::vector<SiteProblem> problems = checkSite(wrong);
    ASSERT_FALSE(problems.empty()) << id;
    const SiteProblem& problem = problems.front();
    EXPECT_EQ(problem.parameter, id);
    const QString remark = valueRemark(*editorRow(id), wrong);
    EXPECT_TRUE(remark.startsWith(problem.isWarning ? "Unusual" : "Impossible"))
        << id << ' ' << remark.toStdString();
  }
}
