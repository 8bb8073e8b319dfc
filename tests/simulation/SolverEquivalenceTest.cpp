#include "data/DemandModel.h"
#include "simulation/Simulation.h"
#include "simulation/SiteSetup.h"
#include "simulator/FVGeothermSite.h"
#include "support/ProjectTest.h"

#include <QDir>
#include <QFile>

#include <cmath>
#include <memory>

using namespace TVR;

namespace {

constexpr double pascalPerMetre = 9.81 * 1000.0;

/// An example as a test has time for: the first years of it on fewer cells.
struct Excerpt {
  const char* example;
  int years = 2;
  int cells = 300;
};

/// The batch run of an example with one of the solvers.
class ExampleRun {
public:
  ExampleRun(Data::Manager& store, LinearSolver solver)
      : times_(outputTimes(outputTimeInput(store, 12))), setup_(makeSiteSetup(store, times_)) {
    setup_.input.linearSolver = solver;
    simulation_ = std::make_unique<Simulation>(setup_.input);
    const bool hasPeriods = store.demandModel()->rowCount() > 1;
    const Tolerances& tolerances = setup_.tolerances;
    for (std::size_t k = 0; k < times_.times.size(); ++k) {
      if (hasPeriods)
        site().setDemandStep(times_.demandSteps[k]);
      site().solveGroundwater(times_.times[k], tolerances.relativeGroundwater,
                              tolerances.absoluteGroundwater);
      site().solveHeat(times_.times[k], true, tolerances.relativeHeat, tolerances.absoluteHeat);
    }
  }

  FVGeothermSite& site() const { return *simulation_->model(); }

private:
  OutputTimes times_;
  SiteSetup setup_;
  std::unique_ptr<Simulation> simulation_;
};

class SolverEquivalenceTest : public ProjectTest, public testing::WithParamInterface<Excerpt> {
protected:
  SolverEquivalenceTest() {
    QMap<QString, int> fieldIds;
    const QString file = QStringLiteral(TEVRANE_EXAMPLES_DIR "/%1.tbat").arg(GetParam().example);
    EXPECT_TRUE(store.read(file, fieldIds));
    store.setValue(Parameter::SimulationTime, GetParam().years * secondsPerYear);
    store.setValue(Parameter::MaxNumberOfElements, GetParam().cells);
  }
};

double share(long part, long whole) {
  return static_cast<double>(part) / static_cast<double>(whole);
}

} // namespace

TEST_P(SolverEquivalenceTest, bothSolversGiveOneResultInAsManySteps) {
  const ExampleRun own(store, LinearSolver::Structured);
  const ExampleRun packaged(store, LinearSolver::Reference);
  EXPECT_NEAR(share(own.site().groundwaterSteps(), packaged.site().groundwaterSteps()), 1.0, 0.1);
  EXPECT_NEAR(share(own.site().heatSteps(), packaged.site().heatSteps()), 1.0, 0.1);
  for (std::size_t i = 0; i < own.site().groundwater.elementCount(); ++i) {
    EXPECT_NEAR(own.site().temperature(i), packaged.site().temperature(i), 3e-4) << i;
    EXPECT_NEAR(own.site().pressureChange(i) / pascalPerMetre,
                packaged.site().pressureChange(i) / pascalPerMetre, 1e-5)
        << i;
  }
  RecordProperty("cells", static_cast<int>(own.site().mesh().elements.size()));
}

INSTANTIATE_TEST_SUITE_P(Examples, SolverEquivalenceTest,
                         testing::Values(Excerpt{"defaults"}, Excerpt{"minimal"},
                                         Excerpt{"doublet"}, Excerpt{"no_regional_flow"},
                                         Excerpt{"unconfined"}, Excerpt{"school_four_seasons", 1},
                                         Excerpt{"office_closed_loop_months", 1}),
                         [](const auto& instance) { return std::string(instance.param.example); });
