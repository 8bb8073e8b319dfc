#include "project/DesignedWells.h"

#include "design/ParameterId.h"
#include "project/ProjectTarget.h"
#include "project/RunFrame.h"

#include <QPointF>

#include <cmath>
#include <vector>

namespace TVR {

using namespace Parameter;

namespace {

/// A distance that wells can be laid out with, else 0.
double usable(double distance) {
  return distance > 0 && std::isfinite(distance) ? distance : 0.0;
}

/// Whether the use that governs draws heat from the groundwater.
bool drawsHeat(const ProjectReader& project) {
  const auto v = [&project](int id) { return project.number(id); };
  const bool isHeatingOnly = v(EnergyDemandType) < 2;
  return isHeatingOnly ||
         (v(HeatingTemperatureChange) > 0 &&
          DesignFormulas().netDemand(v(HeatingDemand), 0, v(SystemCop)) > v(CoolingDemand));
}

} // namespace

DesignedWells designedWells(const ProjectReader& project, int wells) {
  const double change = project.number(UsedTemperatureChange);
  const double withinRow = usable(project.number(RadiusOfInfluence));
  const double betweenRows = usable(project.number(DMin));
  const QPointF centre = project.effective(DefaultWellPosition).toPointF();
  WellField field;
  field.wells = wells;
  field.betweenRows = betweenRows > 0 ? betweenRows : withinRow;
  field.withinRow = withinRow > 0 ? withinRow : betweenRows;
  field.angle = runFrameOf(project).angleOntoMap();
  field.centre = {centre.x(), centre.y()};
  return {field, drawsHeat(project) ? -change : change};
}

void placeDesignedWells(ProjectTarget& project) {
  const int wells = project.makeTable(ProjectTable::Well);
  const DesignedWells design = designedWells(project, wells);
  if (design.field.betweenRows == 0)
    return;
  const std::vector<PlanePoint> places = placeWells(design.field);
  std::vector<TableCell> cells;
  for (int row = 0; row < wells; ++row) {
    const double rate = project.wells().rate(row);
    cells.push_back({row, WellColumns::X, places[row].x});
    cells.push_back({row, WellColumns::Y, places[row].y});
    if (rate > 0) { // a temperature change counts only beside a rate that is set
      cells.push_back({row, WellColumns::Rate, rate});
      cells.push_back({row, WellColumns::TemperatureChange, design.temperatureChange});
    }
  }
  project.setCells(ProjectTable::Well, cells);
}

} // namespace TVR
