#include "project/ProjectTables.h"

#include "project/ProjectReader.h"

namespace TVR {

namespace {

QVariant wellCell(const WellReader& wells, int row, int column) {
  switch (column) {
  case WellColumns::Name:
    return wells.name(row);
  case WellColumns::X:
    return wells.hasPlace(row) ? wells.place(row).x() : QVariant();
  case WellColumns::Y:
    return wells.hasPlace(row) ? wells.place(row).y() : QVariant();
  case WellColumns::Rate:
    return wells.rate(row);
  case WellColumns::TemperatureChange:
    return wells.temperatureChange(row);
  default:
    return {};
  }
}

QVariant wellDemandCell(const ProjectReader& project, int row, int column) {
  const int periods = project.enteredDurations().size();
  if (periods == 0)
    return {};
  const int well = row / periods;
  const int period = row % periods;
  switch (column) {
  case WellDemandColumns::Name:
    return project.wells().name(well);
  case WellDemandColumns::Duration:
    return project.enteredDurations().value(period);
  case WellDemandColumns::Rate:
    return project.wells().rate(well, period);
  case WellDemandColumns::TemperatureChange:
    return project.wells().temperatureChange(well, period);
  default:
    return {};
  }
}

} // namespace

int rowsOf(const ProjectReader& project, ProjectTable table) {
  const int periods = project.enteredDurations().size();
  switch (table) {
  case ProjectTable::Demand:
    return periods;
  case ProjectTable::Well:
    return project.wells().count();
  case ProjectTable::WellDemand:
    return project.wells().count() * periods;
  }
  return 0;
}

QVariant cellOf(const ProjectReader& project, ProjectTable table, int row, int column) {
  switch (table) {
  case ProjectTable::Demand:
    return column == 0 ? QVariant(project.enteredDurations().value(row)) : QVariant();
  case ProjectTable::Well:
    return wellCell(project.wells(), row, column);
  case ProjectTable::WellDemand:
    return wellDemandCell(project, row, column);
  }
  return {};
}

} // namespace TVR
