#include "simulation/SiteSetup.h"

#include "simulator/MeshGeneration.h"
#include "support/ProjectTest.h"

#include <cmath>
#include <limits>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

constexpr double year = secondsPerYear;
constexpr double pi = 3.14159265358979323846;

struct Edges {
  double low;
  double high;
};

Edges edges(const FVGridLine& line) {
  const std::size_t last = line.count() - 1;
  return {line.start(0), line.start(last) + line.width(last)};
}

std::vector<double> widths(const FVGridLine& line) {
  std::vector<double> result;
  for (const FVGridLine::Cell& cell : line.cells())
    result.push_back(cell.width);
  return result;
}

/// The set-up of a project in the real store. The flow goes east, which needs no rotation, unless a
/// test says otherwise.
class SiteSetupTest : public ProjectTest {
protected:
  SiteSetup setUp() {
    return makeSiteSetup(store, outputTimes(outputTimeInput(store, cycleLength)));
  }

  /// Writes the mean flow rate, which makes the store forget the wells, and then the doublet again.
  void setMeanFlowRate(const QVariant& value) {
    store.setValue(MeanFlowRate, value);
    setWell(0, WellModel::Rate, -0.001);
    setWell(1, WellModel::Rate, 0.001);
  }

  /// Lengths of the design that the set-up takes over, since no well has a larger rate.
  void setLengths(double a, double b, double d) {
    setMeanFlowRate(1.0);
    store.setValue(AMin, a);
    store.setValue(BMin, b);
    store.setValue(DMin, d);
    store.setValue(WellDiameter, 0.2);
  }

  void setWell(int row, int column, const QVariant& value) {
    WellModel& wells = *store.wellModel();
    EXPECT_TRUE(wells.setData(wells.index(row, column), value));
  }

  static std::vector<int> ids(const SiteSetup& setup) {
    std::vector<int> result;
    for (const auto& well : setup.wells)
      result.push_back(well->id());
    return result;
  }

  /// The mesh that the wells of a set-up get from lengths and cell sizes given here.
  static void expectMesh(const SiteSetup& setup, double H, double a, double b, double minLength,
                         double maxLength, bool dispersion) {
    const auto mesh = makeWellDiscretisation(H, a, b, setup.input.wells, minLength, maxLength, 1.6,
                                             150, dispersion);
    EXPECT_EQ(widths(setup.mesh->xLine), widths(mesh->xLine));
    EXPECT_EQ(widths(setup.mesh->yLine), widths(mesh->yLine));
    EXPECT_EQ(setup.mesh->H, mesh->H);
  }

  static constexpr int cycleLength = 12;
};

} // namespace

TEST_F(SiteSetupTest, aFlowToTheEastNeedsNoRotation) {
  read(BatchProject::doublet());
  const SiteSetup setup = setUp();
  ASSERT_EQ(setup.wells.size(), 2u);
  EXPECT_EQ(setup.wells[0]->x(), 0);
  EXPECT_EQ(setup.wells[0]->y(), 0);
  EXPECT_EQ(setup.wells[1]->x(), 40);
  EXPECT_EQ(setup.wells[1]->y(), 0);
}

TEST_F(SiteSetupTest, aFlowToTheNorthIsTurnedOntoTheAxis) {
  BatchProject project;
  project.set("hydraulic", "groundwater_flow_direction", 0);
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Return", 0, 40, 0.001);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_NEAR(setup.wells[0]->x(), -20, 1e-9);
  EXPECT_NEAR(setup.wells[0]->y(), 20, 1e-9);
  EXPECT_NEAR(setup.wells[1]->x(), 20, 1e-9);
  EXPECT_NEAR(setup.wells[1]->y(), 20, 1e-9);
}

TEST_F(SiteSetupTest, wellsInLineStayInLineInEveryMainDirection) {
  for (const double direction : {0.0, 90.0, 180.0, 270.0, 360.0}) {
    BatchProject project;
    project.set("hydraulic", "groundwater_flow_direction", direction);
    project.addWell("West", 681020.3, 226950.7, -0.001);
    project.addWell("East", 681075.1, 226950.7, 0.001);
    project.addWell("North", 681020.3, 226985.9, 0.001);
    read(project, QStringLiteral("towards_%1.tbat").arg(direction));
    const SiteSetup setup = setUp();
    const bool isTurned = direction == 0.0 || direction == 180.0 || direction == 360.0;
    const Well& west = *setup.wells[0];
    const Well& east = *setup.wells[1];
    const Well& north = *setup.wells[2];
    EXPECT_EQ(isTurned ? west.x() : west.y(), isTurned ? east.x() : east.y()) << direction;
    EXPECT_EQ(isTurned ? west.y() : west.x(), isTurned ? north.y() : north.x()) << direction;
    for (const FVGridLine* line : {&setup.mesh->xLine, &setup.mesh->yLine})
      for (const double width : widths(*line))
        EXPECT_GT(width, 0.05) << direction;
  }
}

TEST_F(SiteSetupTest, wellsAreTurnedAroundTheMeanOfTheirPositions) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "groundwater_flow_direction", 120);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.origin, QPointF(20, 0));
  EXPECT_NEAR(setup.wells[1]->x(), 37.32050807568877, 1e-9);
  EXPECT_NEAR(setup.wells[1]->y(), 10, 1e-9);
  EXPECT_NEAR(setup.wells[0]->x(), 2.67949192431123, 1e-9);
  EXPECT_NEAR(setup.wells[0]->y(), -10, 1e-9);
}

TEST_F(SiteSetupTest, wellsWithoutARateCountForTheCentreOfTheRotation) {
  BatchProject project;
  project.addWell("Idle", 0, 90, 0);
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Return", 30, 0, 0.001);
  read(project);
  EXPECT_EQ(setUp().origin, QPointF(10, 30));
}

TEST_F(SiteSetupTest, withoutARegionalFlowNothingIsTurned) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "groundwater_flow_direction", 30);
  project.set("hydraulic", "groundwater_gradient", 0);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[1]->x(), 40);
  EXPECT_EQ(setup.wells[1]->y(), 0);
  EXPECT_EQ(setup.input.pressureGradient, 0);
}

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

TEST_F(SiteSetupTest, aWellWithoutARateTakesPartBehindOneThatHasARate) {
  BatchProject project;
  project.addWell("Idle before", 0, 60, 0);
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Idle behind", 20, 30, 0);
  project.addWell("Return", 40, 0, 0.001);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(ids(setup), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(setup.wells[1]->rate(0), 0);
  EXPECT_EQ(setup.input.wells.size(), 3u);
}

TEST_F(SiteSetupTest, aRateOfAPeriodIsEnoughForAWellToTakePart) {
  BatchProject project;
  project.addWell("Pump", 0, 0, 0);
  project.addWell("Return", 40, 0, 0);
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{0, 0}, {-0.002, 0}, {0, 0}, {0.002, -2}});
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(ids(setup), (std::vector<int>{0, 1}));
  EXPECT_EQ(setup.wells[0]->rate(1), -0.002);
}

TEST_F(SiteSetupTest, aProjectWithoutAnyRateIsRefused) {
  BatchProject project;
  project.addWell("Pump", 0, 0, 0);
  project.addWell("Return", 40, 0, 0);
  read(project);
  EXPECT_THROW(setUp(), SetupError);
}

TEST_F(SiteSetupTest, aProjectWithoutWellsIsRefused) {
  read(BatchProject().set("installation", "number_of_wells", 0));
  EXPECT_THROW(setUp(), SetupError);
}

TEST_F(SiteSetupTest, anAquiferWithoutThicknessIsARangeError) {
  read(BatchProject::doublet());
  store.setValue(AquiferThickness, -1.0);
  EXPECT_THROW(setUp(), std::range_error);
}

TEST_F(SiteSetupTest, ratesAndChangesOfAConstantDemandAreThoseOfTheWellTable) {
  BatchProject project;
  project.addWell("Pump", 0, 0, -0.001, 5);
  project.addWell("Return", 40, 0, 0.001, -3);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[0]->rate(0), -0.001);
  EXPECT_EQ(setup.wells[0]->temperatureChange(0), 0) << "a withdrawal changes no temperature";
  EXPECT_EQ(setup.wells[1]->rate(0), 0.001);
  EXPECT_EQ(setup.wells[1]->temperatureChange(0), -3);
}

TEST_F(SiteSetupTest, ratesOfThePeriodsComeAgainInEachCycle) {
  read(BatchProject::seasons());
  const SiteSetup setup = setUp();
  for (int cycle = 0; cycle < 12; ++cycle) {
    EXPECT_EQ(setup.wells[0]->rate(2 * cycle), -0.001);
    EXPECT_EQ(setup.wells[0]->rate(2 * cycle + 1), -0.002);
    EXPECT_EQ(setup.wells[1]->rate(2 * cycle), 0.001);
    EXPECT_EQ(setup.wells[1]->temperatureChange(2 * cycle), -3);
    EXPECT_EQ(setup.wells[1]->rate(2 * cycle + 1), 0.002);
    EXPECT_EQ(setup.wells[1]->temperatureChange(2 * cycle + 1), 4);
  }
}

TEST_F(SiteSetupTest, changesArePutToZeroWhereAWellDoesNotInject) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{-0.001, 7}, {0, 7}, {0.001, -3}, {-0.0005, 7}});
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[0]->temperatureChange(0), 0);
  EXPECT_EQ(setup.wells[0]->temperatureChange(1), 0);
  EXPECT_EQ(setup.wells[1]->temperatureChange(0), -3);
  EXPECT_EQ(setup.wells[1]->temperatureChange(1), 0);
}

TEST_F(SiteSetupTest, ratesOfThePeriodsAreFoundByTheWholeName) {
  BatchProject project;
  project.addWell("Well 10", 0, 0, -0.001);
  project.addWell("Well 1", 40, 0, 0.001);
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{-0.003, 0}, {-0.004, 0}, {0.005, -3}, {0.006, -3}});
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[0]->rate(0), -0.003);
  EXPECT_EQ(setup.wells[0]->rate(1), -0.004);
  EXPECT_EQ(setup.wells[1]->rate(0), 0.005);
  EXPECT_EQ(setup.wells[1]->rate(1), 0.006);
  EXPECT_EQ(setup.wells[1]->rate(2), 0.005) << "a second cycle";
}

TEST_F(SiteSetupTest, charactersOfPatternsInANameMeanThemselves) {
  for (const char* name : {"Well (1", "A.B", "A+B", "[x]", "^$", "a|b"}) {
    BatchProject project;
    project.addWell("AxB", 0, 0, -0.001);
    project.addWell(name, 40, 0, 0.001);
    project.addPeriod(year / 2);
    project.addPeriod(year / 2);
    project.addPeriodRates({{-0.003, 0}, {-0.004, 0}, {0.005, -3}, {0.006, -3}});
    read(project);
    const SiteSetup setup = setUp();
    EXPECT_EQ(setup.wells[1]->rate(0), 0.005) << name;
    EXPECT_EQ(setup.wells[1]->rate(1), 0.006) << name;
    EXPECT_EQ(setup.wells[1]->rate(2), 0.005) << name;
  }
}

TEST_F(SiteSetupTest, theUsedDistanceIsTheSmallestOfAnOppositePair) {
  BatchProject project;
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Second pump", 10, 0, -0.001);
  project.addWell("Return", 0, 30, 0.001);
  project.addWell("Second return", 100, 0, 0.001);
  read(project);
  setUp();
  EXPECT_DOUBLE_EQ(number(DMinUsed), 30);
}

TEST_F(SiteSetupTest, theUsedDistanceStaysIfAllWellsInject) {
  BatchProject project;
  project.addWell("Return", 0, 0, 0.001);
  project.addWell("Second return", 40, 0, 0.001);
  read(project);
  store.setValue(DMinUsed, 77.0);
  setUp();
  EXPECT_EQ(number(DMinUsed), 77);
}

TEST_F(SiteSetupTest, aPairThatWorksInOppositionInAnyPeriodCounts) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{0.001, 1}, {-0.001, 0}, {0.001, 1}, {0.001, 1}});
  read(project);
  store.setValue(DMinUsed, 77.0);
  setUp();
  EXPECT_DOUBLE_EQ(number(DMinUsed), 40);
}

TEST_F(SiteSetupTest, withPeriodsTheMeanRatesDoNotCountForTheUsedDistance) {
  BatchProject project = BatchProject::doublet(); // opposite in the mean
  project.addPeriod(year / 2);
  project.addPeriod(year / 2);
  project.addPeriodRates({{0.001, 1}, {0.001, 1}, {0.001, 1}, {0.001, 1}});
  read(project);
  store.setValue(DMinUsed, 77.0);
  setUp();
  EXPECT_EQ(number(DMinUsed), 77);
}

TEST_F(SiteSetupTest, cellsAtTheWellsAreNotBelowThirtyCentimetres) {
  read(BatchProject::doublet());
  setLengths(60, 30, 20);
  store.setValue(MinElementLength, 0.1);
  store.setValue(MaxElementLength, 25.0);
  const SiteSetup setup = setUp();
  EXPECT_EQ(number(MinElementLength), 0.3);
  expectMesh(setup, 10, 90, 45, 0.3, 25, false);
}

TEST_F(SiteSetupTest, cellsAtTheWellsAreNotNarrowerThanAWell) {
  read(BatchProject::doublet());
  setLengths(60, 30, 20);
  store.setValue(MinElementLength, 0.4);
  store.setValue(WellDiameter, 0.75);
  store.setValue(MaxElementLength, 25.0);
  const SiteSetup setup = setUp();
  EXPECT_EQ(number(MinElementLength), 0.75);
  expectMesh(setup, 10, 90, 45, 0.75, 25, false);
}

TEST_F(SiteSetupTest, aDispersivityLimitsTheCellsToTwiceItsLength) {
  read(BatchProject::doublet());
  setLengths(60, 30, 20);
  store.setValue(MinElementLength, 2.0);
  store.setValue(MaxElementLength, 25.0);
  store.setValue(ThermalDispersivity, 4.0);
  const SiteSetup setup = setUp();
  EXPECT_EQ(number(MinElementLength), 2);
  EXPECT_EQ(setup.input.dispersivity, 4);
  expectMesh(setup, 10, 90, 45, 2, 8, true);
}

TEST_F(SiteSetupTest, aSmallerDispersivityFixesTheCells) {
  read(BatchProject::doublet());
  setLengths(60, 30, 20);
  store.setValue(MinElementLength, 6.0);
  store.setValue(MaxElementLength, 25.0);
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

TEST_F(SiteSetupTest, theExchangeLengthIsNoDiffusionLength) {
  BatchProject project = BatchProject::doublet();
  project.set("thermic", "heat_conductivity_surrounding", 2.5);
  project.set("main", "density_surrounding", 2500);
  read(project);
  EXPECT_NEAR(setUp().input.exchangeLength, std::sqrt(2 * year / 2500), 1e-9);
}

TEST_F(SiteSetupTest, thePressureFallsAlongTheFlow) {
  BatchProject project = BatchProject::doublet();
  project.set("main", "density_water", 998);
  project.set("hydraulic", "groundwater_gradient", 0.25);
  read(project);
  EXPECT_NEAR(setUp().input.pressureGradient, -998 * 0.25 * 9.81 / 100, 1e-9);
}

TEST_F(SiteSetupTest, materialsComeFromTheParameters) {
  BatchProject project = BatchProject::doublet();
  project.set("main", "density_aquifer", 2300);
  project.set("main", "density_surrounding", 2500);
  project.set("thermic", "heat_conductivity_aquifer", 2.1);
  project.set("thermic", "heat_conductivity_surrounding", 2.7);
  project.set("thermic", "spezific_heat_capacity_stone", 850);
  project.set("hydraulic", "kf", 0.003);
  project.set("hydraulic", "aquifer_porosity", 0.2);
  read(project);
  const SimulationInput input = setUp().input;
  const double permeability = 0.00131 * 0.003 / number(Gravity) / 1000;

  EXPECT_EQ(input.aquifer.name, "material");
  EXPECT_EQ(input.aquifer.porosity, 0.2);
  EXPECT_EQ(input.aquifer.rockDensity, 2300);
  EXPECT_EQ(input.aquifer.rockHeatCapacity, 850);
  EXPECT_EQ(input.aquifer.conductivity, 2.1);
  EXPECT_DOUBLE_EQ(input.aquifer.permeability, permeability);
  EXPECT_EQ(input.aquifer.compressibility, 1e-7);

  EXPECT_EQ(input.surrounding.name, "material_surrounding");
  EXPECT_EQ(input.surrounding.porosity, 0.2);
  EXPECT_EQ(input.surrounding.rockDensity, 2500);
  EXPECT_EQ(input.surrounding.rockHeatCapacity, 850);
  EXPECT_EQ(input.surrounding.conductivity, 2.7);
  EXPECT_DOUBLE_EQ(input.surrounding.permeability, permeability);
  EXPECT_EQ(input.surrounding.compressibility, 1e-7);
}

TEST_F(SiteSetupTest, theRestOfTheInputComesFromTheParameters) {
  BatchProject project = BatchProject::doublet();
  project.set("main", "reltol_groundwater", 1e-4);
  project.set("main", "abstol_groundwater", 2e-4);
  project.set("main", "reltol_thermic", 3e-4);
  project.set("main", "abstol_thermic", 4e-4);
  project.set("main", "dynamic_viscosity_water", 0.0012);
  project.set("thermic", "spezific_heat_capacity_water", 4190);
  project.set("thermic", "referenz_temperature", 12);
  project.set("thermic", "exchange_caprock", "true");
  project.set("thermic", "wells_used_closed_loop", 1);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.input.mesh, setup.mesh.get());
  EXPECT_EQ(setup.input.viscosity, 0.0012);
  EXPECT_EQ(setup.input.waterHeatCapacity, 4190);
  EXPECT_EQ(setup.input.waterDensity, 1000);
  EXPECT_EQ(setup.input.referenceTemperature, 12);
  EXPECT_EQ(setup.input.caprock, 1);
  EXPECT_EQ(setup.input.bedrock, 0);
  EXPECT_TRUE(setup.input.closedLoop);
  EXPECT_EQ(setup.input.startTime, 0);
  EXPECT_EQ(setup.input.times, (std::vector<double>{year, 2 * year}));
  EXPECT_EQ(setup.input.demandSteps, (std::vector<int>{0, 0}));
  EXPECT_EQ(setup.tolerances.relativeGroundwater, 1e-4);
  EXPECT_EQ(setup.tolerances.absoluteGroundwater, 2e-4);
  EXPECT_EQ(setup.tolerances.relativeHeat, 3e-4);
  EXPECT_EQ(setup.tolerances.absoluteHeat, 4e-4);
}

TEST_F(SiteSetupTest, theExtentOfTheLastResultsIsCleared) {
  read(BatchProject::doublet());
  store.setValue(MaximumExtent3K, 55.0);
  store.setValue(TimeOfMaximumExtent3K, 66.0);
  setUp();
  EXPECT_EQ(number(MaximumExtent3K), 0);
  EXPECT_EQ(number(TimeOfMaximumExtent3K), 0);
}

TEST_F(SiteSetupTest, outputTimesDependOnTheProject) {
  read(BatchProject::seasons());
  store.setValue(ThermalDispersivity, 5.0);
  const OutputTimeInput input = outputTimeInput(store, 24);
  EXPECT_EQ(input.simulationTime, 2 * year);
  EXPECT_EQ(input.durations, (std::vector<double>{year / 2, year / 2}));
  EXPECT_EQ(input.cycleLength, 24);
  EXPECT_EQ(input.dispersivity, 5);
}
