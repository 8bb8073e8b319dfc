#include "simulation/PreviewRun.h"

#include "project/Units.h"
#include "simulation/SiteSetupTest.h"

#include <thread>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// What a preview handed over at one of its meshes.
struct TakenStage {
  int cells;
  bool isRefined;
};

class PreviewRunTest : public SiteSetupTest {
protected:
  /// A doublet of two years whose mesh has a cell of 1 m at each well.
  void prepare(int mostCells) {
    read(BatchProject::doublet().set("main", "max_number_of_fv_elements", mostCells));
    store.setValue(MinElementLength, 1.0);
    store.setValue(CellIncreaseFactor, 10);
  }
  std::unique_ptr<PreviewRun> previewRun() {
    makeTables(store);
    return std::make_unique<PreviewRun>(readSite(store),
                                        outputTimes(outputTimeInput(store, cycleLength)));
  }
  void take(const PreviewStage& stage) {
    EXPECT_EQ(stage.drawdowns.size(), stage.mesh.elements.size());
    EXPECT_EQ(stage.temperatures.size(), stage.mesh.elements.size());
    taken.push_back({stage.mesh.nx * stage.mesh.ny, stage.isRefined});
  }
  QString run() {
    return previewRun()->run([this](const PreviewStage& stage) { take(stage); });
  }

  std::vector<TakenStage> taken;
};

} // namespace

TEST(DraftMeshes, areNoneForASmallSiteOfConstantFlow) {
  EXPECT_TRUE(draftMeshes(1, false).empty());
  EXPECT_TRUE(draftMeshes(1600, false).empty());
}

TEST(DraftMeshes, areTheOwnMeshOfASmallSiteWithPeriods) {
  EXPECT_EQ(draftMeshes(1600, true), std::vector<int>{1600});
}

TEST(DraftMeshes, growByTheSameFactorFromOneThatIsQuick) {
  EXPECT_EQ(draftMeshes(2500, false), std::vector<int>{800});
  EXPECT_EQ(draftMeshes(10000, true), std::vector<int>{1250});
  EXPECT_EQ(draftMeshes(100000, false), (std::vector<int>{1562, 12500}));
}

TEST_F(PreviewRunTest, aSmallSiteIsRunOnItsOwnMeshAtOnce) {
  prepare(1000);
  EXPECT_EQ(run(), "");
  ASSERT_EQ(taken.size(), 1u);
  EXPECT_TRUE(taken[0].isRefined);
  EXPECT_EQ(taken[0].cells, setUp().mesh->nx * setUp().mesh->ny);
}

TEST_F(PreviewRunTest, aLargerSiteIsRunOnACoarserMeshFirst) {
  prepare(6000);
  EXPECT_EQ(run(), "");
  ASSERT_EQ(taken.size(), 2u);
  EXPECT_FALSE(taken[0].isRefined);
  EXPECT_LT(taken[0].cells, taken[1].cells / 2);
  EXPECT_TRUE(taken[1].isRefined);
  EXPECT_EQ(taken[1].cells, setUp().mesh->nx * setUp().mesh->ny);
}

TEST_F(PreviewRunTest, aSmallSiteWithPeriodsHasADraftOnItsOwnMesh) {
  read(BatchProject::seasons());
  EXPECT_EQ(run(), "");
  ASSERT_EQ(taken.size(), 2u);
  EXPECT_FALSE(taken[0].isRefined);
  EXPECT_TRUE(taken[1].isRefined);
  EXPECT_EQ(taken[0].cells, taken[1].cells);
}

TEST_F(PreviewRunTest, aStopBetweenTwoMeshesLeavesTheFinerOneOut) {
  prepare(6000);
  const auto preview = previewRun();
  EXPECT_EQ(preview->run([&](const PreviewStage& stage) {
    take(stage);
    preview->stop();
  }),
            "");
  ASSERT_EQ(taken.size(), 1u);
  EXPECT_FALSE(taken[0].isRefined);
}

TEST_F(PreviewRunTest, aStopFromAnotherThreadEndsTheRunWithoutResults) {
  read(BatchProject::seasons().set("main", "simulation_time", 900));
  const auto preview = previewRun();
  std::thread runner([&] { preview->run([this](const PreviewStage& stage) { take(stage); }); });
  preview->stop();
  runner.join();
  EXPECT_TRUE(taken.empty());
}

TEST_F(PreviewRunTest, aRunThatWasStoppedBeforeItBeganGivesNothing) {
  prepare(1000);
  const auto preview = previewRun();
  preview->stop();
  EXPECT_EQ(preview->run([this](const PreviewStage& stage) { take(stage); }), "");
  EXPECT_TRUE(taken.empty());
}

TEST_F(PreviewRunTest, aSiteWithoutTimeOrRatesIsAFault) {
  prepare(1000);
  store.setValue(SimulationTime, 0);
  EXPECT_EQ(run(), "The simulated time is not above 0.");
  store.setValue(SimulationTime, secondsPerYear);
  setWell(0, WellModel::Rate, 0.0);
  setWell(1, WellModel::Rate, 0.0);
  EXPECT_EQ(run(), "No well has a rate.");
  EXPECT_TRUE(taken.empty());
}

TEST_F(PreviewRunTest, theFaultOfTheRunItselfIsTold) {
  prepare(6000);
  store.setValue(RelTolHeat, 0.0); // no integrator reaches that
  store.setValue(AbsTolHeat, 0.0);
  EXPECT_TRUE(run().contains("heat model"));
  for (const TakenStage& stage : taken)
    EXPECT_FALSE(stage.isRefined); // a draft may do with less
}

TEST_F(PreviewRunTest, theProjectStaysAsItIs) {
  prepare(6000);
  makeTables(store);
  const Project before = store.project();
  EXPECT_EQ(run(), "");
  EXPECT_TRUE(store.project() == before);
}
