#include "gui/editor/ApplyCheck.h"

#include "design/DesignFormulas.h"
#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "messages/PluginText.h"
#include "project/ProjectReader.h"
#include "project/Units.h"

#include <algorithm>
#include <cmath>

namespace TVR::GUI {

using namespace Parameter;

namespace {

constexpr int yearsOfCentury = 100;
constexpr double leastRate = 1e-25; ///< of a well that does anything [m3/s]

/// The time [s] that a run takes; what is not positive is none.
double simulatedTime(const ProjectReader& project) {
  const double time = project.number(SimulationTime);
  const std::vector<double> periods = project.periods();
  const int years = wholeNumber(inYears(time));
  if (periods.size() > 1 || years >= yearsOfCentury)
    return time;
  // Required oddity: one period is repeated for whole years only, so that less than one is none.
  return periods.front() != time / years ? years * periods.front() : time;
}

bool haveWellsOfOnePlace(const WellReader& wells) {
  std::vector<std::pair<double, double>> places;
  for (int well = 0; well < wells.count(); ++well)
    places.emplace_back(wells.place(well).x(), wells.place(well).y());
  std::ranges::sort(places);
  return std::ranges::adjacent_find(places) != places.end();
}

/// The rate of a well in the period in which it is largest [m3/s], whatever its direction.
double largestRate(const WellReader& wells, int well, int periods) {
  if (periods < 2)
    return std::abs(wells.rate(well));
  double largest = 0;
  for (int period = 0; period < periods; ++period)
    largest = std::max(largest, std::abs(wells.rate(well, period)));
  return largest;
}

struct WellsInUse {
  double largestRate = 0; ///< [m3/s]
  int count = 0;
};

WellsInUse wellsInUse(const ProjectReader& project) {
  const WellReader wells = project.wells();
  const int periods = static_cast<int>(project.periods().size());
  WellsInUse used;
  for (int well = 0; well < wells.count(); ++well) {
    const double rate = largestRate(wells, well, periods);
    used.largestRate = std::max(used.largestRate, rate);
    if (rate >= leastRate)
      ++used.count;
  }
  return used;
}

bool isPossible(const ProjectReader& project, const WellsInUse& used, double time) {
  const auto v = [&project](int id) { return project.number(id); };
  const DesignFormulas formulas;
  const double flow = used.largestRate;
  const double porosity = v(EffectivePorosity);
  const double conductivity = v(HydraulicConductivity);
  const double thickness = aquiferThickness(project);
  const double velocity = formulas.darcyVelocity(conductivity, v(GroundwaterGradient));
  const double results[] = {porosity,
                            conductivity,
                            thickness,
                            formulas.bMin(flow, time, thickness, v(RadiusOfInfluence)),
                            formulas.aMin(flow, time, thickness, velocity, porosity,
                                          v(DensityWater), v(DensityAquifer), v(HeatCapacityWater),
                                          v(HeatCapacityStone)),
                            formulas.dMin(used.count * 0.5, flow, time, thickness, velocity)};
  return std::ranges::all_of(results, [](double value) { return value > 0; });
}

} // namespace

ApplyVerdict checkApply(const ProjectReader& project) {
  const double time = simulatedTime(project);
  if (!(time > 0))
    return {};
  if (haveWellsOfOnePlace(project.wells()))
    return {false, PluginText::tr("<b>More then one well at one position not supported started "
                                  "with version 1.2!<br>Redefine the wells in use!</b><br>")};
  const WellsInUse used = wellsInUse(project);
  if (!(used.largestRate > 0) || used.count == 0)
    return {};
  return {isPossible(project, used, time), {}};
}

} // namespace TVR::GUI
