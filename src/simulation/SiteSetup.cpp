#include "simulation/SiteSetup.h"

#include "design/DesignFormulas.h"
#include "project/Constants.h"
#include "simulation/RunText.h"
#include "simulator/mesh/MeshGeneration.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TVR {

namespace {

/// A rate [m3/s] from which on a well takes part in a run.
constexpr double leastRate = 1e-25;
/// The lengths of the design are raised by this factor to make the extents of the model.
constexpr double extentMargin = 1.5;
constexpr double largestExtent = 10000.0; // [m]
constexpr double compressibility = 1e-07; // of the aquifer's pores [1/Pa]

DesignLengths withMargin(const DesignLengths& lengths) {
  return {lengths.a * extentMargin, lengths.b * extentMargin, lengths.d * extentMargin};
}

DesignLengths withoutMargin(const DesignLengths& lengths) {
  return {lengths.a / extentMargin, lengths.b / extentMargin, lengths.d / extentMargin};
}

double lastTime(const OutputTimes& outputTimes) {
  return outputTimes.times.empty() ? 0.0 : outputTimes.times.back();
}

/// The flows by demand period of all wells of one name, which those wells share, one well after the
/// other. Names are compared as a whole: "Well 1" is no "Well 10".
using FlowsByName = QHash<QString, std::vector<WellFlow>>;

FlowsByName flowsByName(const std::vector<SiteWell>& wells) {
  FlowsByName flows;
  for (const SiteWell& well : wells) {
    std::vector<WellFlow>& ofName = flows[well.name];
    ofName.insert(ofName.end(), well.periods.begin(), well.periods.end());
  }
  return flows;
}

class Planner {
public:
  Planner(const SiteInput& site, const OutputTimes& outputTimes)
      : site_(site), outputTimes_(outputTimes), flows_(flowsByName(site.wells)),
        periods_(static_cast<int>(site.periods.size())) {}

  SitePlan plan() {
    makeWells();
    plan_.used.wellDistance = leastDistance();
    plan_.extents = withMargin(site_.designLengths);
    if (maxFlow_ > site_.meanFlow) {
      plan_.extents = withMargin(lengthsForFlow(maxFlow_));
      plan_.used.lengths = withoutMargin(plan_.extents);
    }
    if (const double alpha = site_.aquifer.dispersivity; alpha > 0)
      plan_.used.dispersivity = alpha;
    plan_.used.cellWidth = site_.cells.width;
    return std::move(plan_);
  }

private:
  /// Required oddity: the largest flow runs on from row to row, so that behind a well with a rate
  /// every well takes part.
  void makeWells() {
    for (int row = 0; row < static_cast<int>(site_.wells.size()); ++row) {
      const SiteWell& well = site_.wells[row];
      maxFlow_ = std::max(maxFlow_, std::abs(well.mean.rate));
      for (const WellFlow& flow : well.periods)
        maxFlow_ = std::max(maxFlow_, std::abs(flow.rate));
      if (maxFlow_ >= leastRate || injectsInAnyPeriod(well))
        addWell(row, well);
    }
    if (plan_.wells.empty())
      throw SetupError(RunText::tr("No well has a rate.").toStdString());
  }

  bool injectsInAnyPeriod(const SiteWell& well) const {
    const std::vector<WellFlow>& flows = *flows_.find(well.name);
    return std::any_of(flows.begin(), flows.end(),
                       [](const WellFlow& flow) { return flow.rate > leastRate; });
  }

  void addWell(int row, const SiteWell& source) {
    const QPointF place = site_.frame.inModel(source.place);
    auto well = std::make_unique<Well>(row, place.x(), place.y(), source.mean.rate,
                                       source.mean.temperatureChange);
    if (site_.hasPeriods())
      setFlows(*flows_.find(source.name), *well);
    plan_.wells.push_back(std::move(well));
  }

  /// Repeats the flows of the demand periods in each cycle of the run.
  void setFlows(const std::vector<WellFlow>& flows, Well& well) const {
    const int cycles = static_cast<int>(outputTimes_.times.size()) / periods_;
    for (int cycle = 0; cycle < cycles; ++cycle)
      for (int j = 0; j < static_cast<int>(flows.size()); ++j) {
        well.setRate(cycle * periods_ + j, flows[j].rate);
        well.setTemperatureChange(cycle * periods_ + j,
                                  flows[j].rate <= 0 ? 0.0 : flows[j].temperatureChange);
      }
  }

  bool workAgainstEachOther(const Well& one, const Well& other) const {
    for (int step = 0; step < periods_; ++step)
      if (one.rate(step) * other.rate(step) < 0)
        return true;
    return false;
  }

  std::optional<double> leastDistance() const {
    std::optional<double> least;
    for (std::size_t i = 0; i < plan_.wells.size(); ++i)
      for (std::size_t j = i + 1; j < plan_.wells.size(); ++j) {
        const Well& one = *plan_.wells[i];
        const Well& other = *plan_.wells[j];
        if (!workAgainstEachOther(one, other))
          continue;
        const double dx = one.x() - other.x();
        const double dy = one.y() - other.y();
        const double square = dx * dx + dy * dy;
        least = least ? std::min(*least, square) : square;
      }
    return least && *least > 0 ? std::optional(std::sqrt(*least)) : std::nullopt;
  }

  DesignLengths lengthsForFlow(double flow) const {
    const DesignFormulas formulas;
    const SiteAquifer& aquifer = site_.aquifer;
    const double time = lastTime(outputTimes_);
    const auto halfOfWells = static_cast<double>(site_.wells.size() / 2);
    return {formulas.aMin(flow, time, aquifer.thickness, aquifer.groundwaterVelocity,
                          aquifer.porosity, site_.water.density, aquifer.density,
                          site_.water.heatCapacity, site_.rockHeatCapacity),
            formulas.bMin(flow, time, aquifer.thickness, aquifer.radiusOfInfluence),
            formulas.dMin(halfOfWells, flow, time, aquifer.thickness, aquifer.groundwaterVelocity)};
  }

  const SiteInput& site_;
  const OutputTimes& outputTimes_;
  const FlowsByName flows_;
  const int periods_;
  double maxFlow_ = 0;
  SitePlan plan_;
};

void makeMaterials(const SiteInput& site, SimulationInput& input) {
  const double porosity = site.aquifer.porosity;
  const double permeability =
      site.water.viscosity * site.aquifer.hydraulicConductivity / site.gravity / site.water.density;
  input.aquifer = FVMaterial("material", porosity, site.aquifer.density, site.rockHeatCapacity,
                             site.aquifer.heatConductivity, permeability, compressibility);
  input.surrounding =
      FVMaterial("material_surrounding", porosity, site.surrounding.density, site.rockHeatCapacity,
                 site.surrounding.heatConductivity, permeability, compressibility);
}

std::unique_ptr<FVMesh> makeMesh(const SiteInput& site, const DesignLengths& extents,
                                 const std::vector<Well*>& wells) {
  const double alpha = site.aquifer.dispersivity;
  const double before = site.frame.hasRegionalFlow ? std::max(extents.d, extents.b) : extents.a;
  const double behind = std::min(largestExtent, extents.a);
  const double largest = alpha > 0 ? std::min(site.cells.largest, 2 * alpha) : site.cells.largest;
  return makeWellDiscretisation(site.aquifer.thickness, behind, std::min(behind, before), wells,
                                site.cells.width, largest, 1 + site.cells.increase / 100,
                                site.cells.most, alpha > 0);
}

/// The reference length of the exchange chains. Required oddity: the conductivity stands above and
/// below the line, so that it is no thermal diffusivity.
double exchangeLength(const SiteSurrounding& surrounding, double time) {
  const double lambda = surrounding.heatConductivity;
  return std::sqrt(lambda / (surrounding.density * lambda) * time);
}

} // namespace

SitePlan planSite(const SiteInput& site, const OutputTimes& outputTimes) {
  return Planner(site, outputTimes).plan();
}

SiteSetup makeSite(const SiteInput& site, const OutputTimes& outputTimes, SitePlan plan) {
  SiteSetup setup{site.frame, std::move(plan.wells), {}, {}, site.tolerances, site.hasPeriods()};
  SimulationInput& input = setup.input;
  for (const auto& well : setup.wells)
    input.wells.push_back(well.get());
  makeMaterials(site, input);
  setup.mesh = makeMesh(site, plan.extents, input.wells);
  input.mesh = setup.mesh.get();
  input.pressureGradient = site.water.density * site.aquifer.gradient * -gravity / 100;
  input.referenceTemperature = site.referenceTemperature;
  input.waterDensity = site.water.density;
  input.waterHeatCapacity = site.water.heatCapacity;
  input.viscosity = site.water.viscosity;
  input.dispersivity = site.aquifer.dispersivity;
  input.bedrock = site.surrounding.exchangesBelow;
  input.caprock = site.surrounding.exchangesAbove;
  input.exchangeLength = exchangeLength(site.surrounding, lastTime(outputTimes));
  input.closedLoop = site.closedLoop;
  input.times = outputTimes.times;
  input.demandSteps = outputTimes.demandSteps;
  return setup;
}

} // namespace TVR
