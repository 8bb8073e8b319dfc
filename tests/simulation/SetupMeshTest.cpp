#include "simulation/SiteSetupTest.h"
#include "simulator/mesh/MeshGeneration.h"
#include "simulator/mesh/MeshRequest.h"

#include <algorithm>
#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;
using MeshRequests::widths;

namespace {

constexpr double pi = 3.14159265358979323846;

struct Edges {
  double low;
  double high;
};

Edges edges(const FVGridLine& line) {
  const std::size_t last = line.count() - 1;
  return {line.start(0), line.start(last) + line.width(last)};
}

/// The mesh that the wells of a set-up get from lengths and cell sizes given here.
void expectMesh(const SiteSetup& setup, double H, double a, double b, double minLength,
                double maxLength, bool dispersion) {
  const auto mesh = makeWellDiscretisation(H, a, b, setup.input.wells, minLength, maxLength, 1.6,
                                           150, dispersion);
  EXPECT_EQ(widths(setup.mesh->xLine), widths(mesh->xLine));
  EXPECT_EQ(widths(setup.mesh->yLine), widths(mesh->yLine));
  EXPECT_EQ(setup.mesh->H, mesh->H);
}

} // namespace

// Extents

TEST_F(SiteSetupTest, withoutARegionalFlowTheModelReachesAsFarBeforeTheWellsAsBehindThem) {
  read(BatchProject::doublet());
  store.setValue(GroundwaterGradient, 0.0);
  setLengths(60, 30, 20);
  const SiteSetup setup = setUp();
  EXPECT_NEAR(edges(setup.mesh->xLine).low, 0 - 90, 1e-9);
  EXPECT_NEAR(edges(setup.mesh->xLine).high, 40 + 90, 1e-9);
  EXPECT_NEAR(edges(setup.mesh->yLine).low, -90, 1e-9);
  EXPECT_NEAR(edges(setup.mesh->yLine).high, 90, 1e-9);
}

TEST_F(SiteSetupTest, theLengthsOfTheDesignAreRaisedByHalf) {
  read(BatchProject::doublet());
  setLengths(60, 30, 20);
  const SiteSetup setup = setUp();
  EXPECT_NEAR(edges(setup.mesh->xLine).low, 0 - 45, 1e-9);
  EXPECT_NEAR(edges(setup.mesh->xLine).high, 40 + 90, 1e-9);
  EXPECT_NEAR(edges(setup.mesh->yLine).low, -45, 1e-9);
  EXPECT_NEAR(edges(setup.mesh->yLine).high, 45, 1e-9);
}

TEST_F(SiteSetupTest, theLargerOfWidthAndDistanceIsTheExtentBeforeTheWells) {
  read(BatchProject::doublet());
  setLengths(60, 30, 36);
  EXPECT_NEAR(edges(setUp().mesh->xLine).low, 0 - 54, 1e-9);
}

TEST_F(SiteSetupTest, theModelEndsTenKilometresBehindTheWells) {
  read(BatchProject::doublet());
  setLengths(20000, 30, 20);
  EXPECT_NEAR(edges(setUp().mesh->xLine).high, 40 + 10000, 1e-6);
}

TEST_F(SiteSetupTest, theExtentBeforeTheWellsIsNotAboveThatBehindThem) {
  read(BatchProject::doublet());
  setLengths(60, 300, 20);
  EXPECT_NEAR(edges(setUp().mesh->xLine).low, 0 - 90, 1e-9);
}

TEST_F(SiteSetupTest, lengthsStayUnlessAWellExceedsTheMeanFlow) {
  read(BatchProject::doublet());
  setLengths(60, 30, 20);
  store.setValue(MeanFlowRate, 0.001);
  setWell(0, WellModel::Rate, -0.001);
  setWell(1, WellModel::Rate, 0.001);
  store.setValue(AMin, 60.0);
  store.setValue(BMin, 30.0);
  store.setValue(DMin, 20.0);
  setUp();
  EXPECT_EQ(number(AMin), 60);
  EXPECT_EQ(number(BMin), 30);
  EXPECT_EQ(number(DMin), 20);
}

TEST_F(SiteSetupTest, lengthsAreMadeForTheRateThatAWellReallyHas) {
  read(BatchProject::doublet());
  setMeanFlowRate(0.0005);
  store.setValue(GroundwaterVelocity, 2e-6);
  store.setValue(RadiusOfInfluence, 12.0);
  const SiteSetup setup = setUp();

  const double Q = 0.001;
  const double t = 2 * year;
  const double H = 10;
  const double front = 1000 * 4186 * (2e-6 * 1.1) / (0.75 * 2200 * 800 + 0.25 * 1000 * 4186.0) * t;
  const double a = std::max(front, 2 * std::sqrt(3 * Q * t / (2 * pi * H)));
  const double b = std::max(std::sqrt(2 * Q * t / (H * pi)), 12.0);
  const double d =
      std::min(2 * std::sqrt(1 * Q * 3 * t / (2 * pi * H)), 2 * 1 * Q / (pi * 2e-6 * H));
  EXPECT_NEAR(number(AMin), a, 1e-9 * a);
  EXPECT_NEAR(number(BMin), b, 1e-9 * b);
  EXPECT_NEAR(number(DMin), d, 1e-9 * d);
  EXPECT_NEAR(edges(setup.mesh->xLine).high, 40 + 1.5 * a, 1e-6);
  EXPECT_NEAR(edges(setup.mesh->xLine).low, -1.5 * std::max(b, d), 1e-6);
}

TEST_F(SiteSetupTest, anOddNumberOfWellsCountsAsThePairsInIt) {
  for (const int wells : {2, 3, 4, 5}) {
    BatchProject project;
    for (int well = 0; well < wells; ++well)
      project.addWell(QStringLiteral("Well %1").arg(well), 40 * well, 0,
                      well % 2 == 0 ? -0.001 : 0.001);
    read(project);
    store.setValue(MeanFlowRate, 0.0005);
    store.setValue(GroundwaterVelocity, 2e-6);
    for (int well = 0; well < wells; ++well)
      setWell(well, WellModel::Rate, well % 2 == 0 ? -0.001 : 0.001);
    setUp();
    const int pairs = wells / 2;
    const double d = std::min(2 * std::sqrt(pairs * 0.001 * 3 * 2 * year / (2 * pi * 10)),
                              2 * pairs * 0.001 / (pi * 2e-6 * 10));
    EXPECT_NEAR(number(DMin), d, 1e-9 * d) << wells;
  }
}

TEST_F(SiteSetupTest, theRateOfAPeriodCountsForTheLengths) {
  read(BatchProject::seasons());
  store.setValue(MeanFlowRate, 0.0015); // below the 0.002 of the second period
  for (int well = 0; well < 2; ++well)
    for (int period = 0; period < 2; ++period)
      store.wellModel()->setStepRate(well, period, (well ? 1 : -1) * 0.001 * (period + 1));
  store.setValue(AMin, 1.0);
  setUp();
  EXPECT_GT(number(AMin), 10);
}

TEST_F(SiteSetupTest, aMeanFlowThatIsNoNumberCountsAsNone) {
  for (const QVariant& nothing : {QVariant("nan"), QVariant(std::nan(""))}) {
    read(BatchProject::doublet());
    setMeanFlowRate(nothing);
    store.setValue(AMin, 1.0);
    setUp();
    EXPECT_GT(number(AMin), 10);
  }
}

// Cells

class SetupCellsTest : public SiteSetupTest {
protected:
  /// A doublet in a short model, whose cells are of `least` width at the wells and of 25 m at most.
  void readWithCells(double least) {
    read(BatchProject::doublet());
    setLengths(60, 30, 20);
    store.setValue(MinElementLength, least);
    store.setValue(MaxElementLength, 25.0);
  }
};

TEST_F(SetupCellsTest, cellsAtTheWellsAreNotBelowThirtyCentimetres) {
  readWithCells(0.1);
  const SiteSetup setup = setUp();
  EXPECT_EQ(number(MinElementLength), 0.3);
  expectMesh(setup, 10, 90, 45, 0.3, 25, false);
}

TEST_F(SetupCellsTest, cellsAtTheWellsAreNotNarrowerThanAWell) {
  readWithCells(0.4);
  store.setValue(WellDiameter, 0.75);
  const SiteSetup setup = setUp();
  EXPECT_EQ(number(MinElementLength), 0.75);
  expectMesh(setup, 10, 90, 45, 0.75, 25, false);
}

TEST_F(SetupCellsTest, aDispersivityLimitsTheCellsToTwiceItsLength) {
  readWithCells(2.0);
  store.setValue(ThermalDispersivity, 4.0);
  const SiteSetup setup = setUp();
  EXPECT_EQ(number(MinElementLength), 2);
  EXPECT_EQ(setup.input.dispersivity, 4);
  expectMesh(setup, 10, 90, 45, 2, 8, true);
}

TEST_F(SetupCellsTest, aSmallerDispersivityFixesTheCells) {
  readWithCells(6.0);
  store.setValue(ThermalDispersivity, "5");
  const SiteSetup setup = setUp();
  EXPECT_EQ(number(MinElementLength), 10);
  EXPECT_EQ(store.value(ThermalDispersivity), QVariant(5.0)) << "written back as a number";
  expectMesh(setup, 10, 90, 45, 10, 10, true);
}

TEST_F(SiteSetupTest, theNumberOfCellsIsStored) {
  read(BatchProject::doublet());
  const SiteSetup setup = setUp();
  EXPECT_EQ(store.count(UsedNumberOfElements), setup.mesh->nx * setup.mesh->ny);
  EXPECT_EQ(static_cast<std::size_t>(store.count(UsedNumberOfElements)),
            setup.mesh->elements.size());
}

TEST_F(SiteSetupTest, theThicknessOfAnUnconfinedAquiferReachesFromTheTableToTheBase) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "aquifer_unconfined", 1);
  project.set("hydraulic", "aquifer_h", 99);
  project.set("hydraulic", "aquifer_basis", 16);
  project.set("hydraulic", "groundwater_table", 4);
  read(project);
  EXPECT_EQ(setUp().mesh->H, 12);
}
