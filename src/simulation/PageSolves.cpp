#include "simulation/PageSolves.h"

#include "simulation/RunText.h"
#include "simulation/SiteSetup.h"
#include "simulator/models/FVGeothermSite.h"

namespace TVR {

namespace {

/// Only a constant flow with exchange runs on a frozen flow field.
Simulation::Type firstType(const SiteSetup& setup) {
  const SimulationInput& input = setup.input;
  const bool hasExchange = input.bedrock != 0 || input.caprock != 0;
  const bool isConstant = input.dispersivity == 0 && !setup.hasPeriods;
  return hasExchange && isConstant && input.times.size() >= 2 ? Simulation::GroundwaterOnly
                                                              : Simulation::Coupled;
}

} // namespace

void requireTimes(const OutputTimes& outputTimes) {
  if (outputTimes.times.empty())
    throw SetupError(RunText::tr("The simulated time is not above 0.").toStdString());
}

void startOnPage(Simulation& simulation, const SiteSetup& setup) {
  const Tolerances& tolerances = setup.tolerances;
  simulation.setRelativeTolerance(tolerances.relativeGroundwater, tolerances.relativeHeat);
  simulation.setAbsoluteTolerance(tolerances.absoluteGroundwater, tolerances.absoluteHeat);
  if (setup.hasPeriods)
    simulation.model()->setDemandStep(0);
  simulation.start(firstType(setup));
}

} // namespace TVR
