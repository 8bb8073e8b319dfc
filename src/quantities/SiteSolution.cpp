#include "quantities/SiteSolution.h"

#include "simulation/Simulation.h"

namespace TVR::Quantities {

SiteSolution solveSite(const SiteSetup& site) {
  Simulation simulation(site.input);
  simulation.setRelativeTolerance(site.tolerances.relativeGroundwater,
                                  site.tolerances.relativeHeat);
  simulation.setAbsoluteTolerance(site.tolerances.absoluteGroundwater,
                                  site.tolerances.absoluteHeat);
  QObject::connect(&simulation, &Simulation::finished, &simulation,
                   [&simulation] { simulation.done(true); });
  simulation.start(Simulation::Coupled);
  if (!simulation.errorText().isEmpty())
    throw SolutionError(simulation.errorText().toStdString());

  const std::size_t cells = site.mesh->elements.size();
  SiteSolution solution{
      static_cast<int>(cells), std::vector<double>(cells), std::vector<double>(cells), {}};
  simulation.getTemperatures(solution.temperatureChanges);
  simulation.getDrawdowns(solution.levelChanges);
  for (const Well* well : simulation.wells())
    solution.wells.push_back(*well);
  return solution;
}

} // namespace TVR::Quantities
