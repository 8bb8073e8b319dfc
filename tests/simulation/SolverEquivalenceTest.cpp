#include "simulation/Simulation.h"
#include "simulation/SiteWriteBack.h"
#include "simulator/models/FVGeothermSite.h"
#include "simulator/solvers/FVCvodeSolver.h"
#include "support/ProjectTest.h"
#include "tables/DemandModel.h"

#include <QDir>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <memory>

using namespace TVR;

namespace {

constexpr double pascalPerMetre = 9.81 * 1000.0;

/// An example as a test has time for: the first years of it on fewer cells, which
/// are wider at the wells.
struct Excerpt {
  const char* example;
  int years = 2;
  int cells = 250;
};

/// The batch run of an example with one of the solvers.
class ExampleRun {
public:
  ExampleRun(Data::Manager& store, LinearSolver solver)
      : times_(outputTimes(outputTimeInput(store, 12))), setup_(setUpSite(store, times_)) {
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

constexpr Excerpt excerpts[]{{"defaults"},
                             {"minimal"},
                             {"doublet"},
                             {"no_regional_flow"},
                             {"unconfined"},
                             {"school_four_seasons", 1},
                             {"office_closed_loop_months", 1}};

void readExcerpt(Data::Manager& store, const Excerpt& excerpt) {
  QMap<QString, int> fieldIds;
  const QString file = QStringLiteral(TEVRANE_EXAMPLES_DIR "/%1.tbat").arg(excerpt.example);
  EXPECT_TRUE(store.read(file, fieldIds));
  store.setValue(Parameter::SimulationTime, excerpt.years * secondsPerYear);
  store.setValue(Parameter::MaxNumberOfElements, excerpt.cells);
  store.setValue(Parameter::MinElementLength, 2.0);
}

/// Largest differences of the final states.
struct Difference {
  double temperature = 0.0; // [K]
  double drawdown = 0.0;    // [m]
};

Difference between(const FVGeothermSite& one, const FVGeothermSite& other) {
  Difference largest;
  for (std::size_t i = 0; i < one.groundwater.elementCount(); ++i) {
    largest.temperature =
        std::max(largest.temperature, std::abs(one.temperature(i) - other.temperature(i)));
    const double drawdown = (one.pressureChange(i) - other.pressureChange(i)) / pascalPerMetre;
    largest.drawdown = std::max(largest.drawdown, std::abs(drawdown));
  }
  return largest;
}

double shareMore(long one, long other) {
  return std::abs(static_cast<double>(one) / static_cast<double>(other) - 1.0);
}

class SolverEquivalenceTest : public ProjectTest {};

} // namespace

// Rounding alone decides between steps and orders that are equally good, so that the number of
// steps of a single run scatters; over all runs it hardly does.
TEST_F(SolverEquivalenceTest, bothSolversGiveOneResultInAsManyStepsOverAllExamples) {
  ASSERT_EQ(QDir(TEVRANE_EXAMPLES_DIR).entryList({"*.tbat"}).size(),
            static_cast<int>(std::size(excerpts)));
  long steps[2] = {};
  long packagedSteps[2] = {};
  for (const Excerpt& excerpt : excerpts) {
    readExcerpt(store, excerpt);
    const ExampleRun own(store, LinearSolver::Structured);
    readExcerpt(store, excerpt);
    const ExampleRun packaged(store, LinearSolver::Reference);
    const Difference difference = between(own.site(), packaged.site());
    EXPECT_LE(difference.temperature, 3e-4) << excerpt.example;
    EXPECT_LE(difference.drawdown, 1e-5) << excerpt.example;
    EXPECT_LE(shareMore(own.site().groundwaterSteps(), packaged.site().groundwaterSteps()), 0.25)
        << excerpt.example;
    EXPECT_LE(shareMore(own.site().heatSteps(), packaged.site().heatSteps()), 0.25)
        << excerpt.example;
    steps[0] += own.site().groundwaterSteps();
    steps[1] += own.site().heatSteps();
    packagedSteps[0] += packaged.site().groundwaterSteps();
    packagedSteps[1] += packaged.site().heatSteps();
    EXPECT_EQ(own.site().groundwaterSolver()->convergenceFailures(), 0) << excerpt.example;
    EXPECT_EQ(own.site().heatSolver()->convergenceFailures(), 0) << excerpt.example;
    std::printf("%s: %zu cells, water steps %ld (packaged %ld), heat steps %ld (%ld), %.1e K, "
                "%.1e m\n",
                excerpt.example, own.site().mesh().elements.size(), own.site().groundwaterSteps(),
                packaged.site().groundwaterSteps(), own.site().heatSteps(),
                packaged.site().heatSteps(), difference.temperature, difference.drawdown);
  }
  EXPECT_LE(shareMore(steps[0], packagedSteps[0]), 0.1);
  EXPECT_LE(shareMore(steps[1], packagedSteps[1]), 0.1);
}
