#include "simulation/SiteInput.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "project/NearWells.h"
#include "project/ProjectReader.h"
#include "simulation/OutputTimes.h"

#include <algorithm>

namespace TVR {

using namespace Parameter;

namespace {

std::vector<SiteWell> readWells(const ProjectReader& project, int periods) {
  const WellReader wells = project.wells();
  std::vector<SiteWell> result;
  for (int row = 0; row < wells.count(); ++row) {
    SiteWell well{
        wells.name(row), wells.place(row), {wells.rate(row), wells.temperatureChange(row)}, {}};
    for (int period = 0; periods > 1 && period < periods; ++period)
      well.periods.push_back({wells.rate(row, period), wells.temperatureChange(row, period)});
    result.push_back(std::move(well));
  }
  return result;
}

SiteAquifer readAquifer(const ProjectReader& project) {
  return {.thickness = aquiferThickness(project),
          .porosity = project.number(EffectivePorosity),
          .hydraulicConductivity = project.number(HydraulicConductivity),
          .gradient = project.number(GroundwaterGradient),
          .groundwaterVelocity = project.number(GroundwaterVelocity),
          .radiusOfInfluence = project.number(RadiusOfInfluence),
          .dispersivity = project.number(ThermalDispersivity),
          .density = project.number(DensityAquifer),
          .heatConductivity = project.number(HeatConductivityAquifer)};
}

/// The largest width counts as it does once the width at the wells has been written back: where
/// none was entered it follows from that one.
SiteCells readCells(const ProjectReader& project) {
  const double width = wellCellWidth(project);
  ProjectOverlay withWidth(project);
  withWidth.set(MinElementLength, width);
  return {.width = width,
          .largest = withWidth.number(MaxElementLength),
          .increase = project.number(CellIncreaseFactor),
          .most = project.count(MaxNumberOfElements)};
}

} // namespace

SiteInput readSite(const ProjectReader& project) {
  const auto number = [&project](int id) { return project.number(id); };
  const std::vector<double> periods = project.periods();
  return {.frame = runFrameOf(project),
          .wells = readWells(project, static_cast<int>(periods.size())),
          .periods = periods,
          .meanFlow = project.isNan(MeanFlowRate) ? 0.0 : number(MeanFlowRate),
          .designLengths = {number(AMin), number(BMin), number(DMin)},
          .aquifer = readAquifer(project),
          .water = {number(DensityWater), number(HeatCapacityWater), number(DynamicViscosityWater)},
          .surrounding = {number(DensitySurrounding), number(HeatConductivitySurrounding),
                          project.flag(ExchangeBedrock), project.flag(ExchangeCaprock)},
          .rockHeatCapacity = number(HeatCapacityStone),
          .gravity = number(Gravity),
          .referenceTemperature = number(ReferenceTemperature),
          .closedLoop = project.flag(ClosedLoop),
          .cells = readCells(project),
          .tolerances = {number(RelTolGroundwater), number(RelTolHeat), number(AbsTolGroundwater),
                         number(AbsTolHeat)}};
}

OutputTimeInput outputTimeInput(const ProjectReader& project, int cycleLength) {
  return {project.number(SimulationTime), project.periods(), cycleLength,
          project.number(ThermalDispersivity)};
}

} // namespace TVR
