#include "project/ProjectChange.h"

#include "design/ParameterId.h"

namespace TVR {

namespace {

/// A part of the wells alone, so that the comparison of all wells tells whether it is the same.
template <typename Part>
Wells onlyWith(Part Wells::*part, const Wells& wells) {
  Wells only;
  only.*part = wells.*part;
  return only;
}

template <typename Part>
void takePart(Part Wells::*part, Wells& present, const Wells& from, const Wells& to) {
  if (!(onlyWith(part, from) == onlyWith(part, to)))
    present.*part = to.*part;
}

void takeWells(Wells& present, const Wells& from, const Wells& to) {
  takePart(&Wells::positions, present, from, to);
  takePart(&Wells::givenPlaces, present, from, to);
  takePart(&Wells::names, present, from, to);
  takePart(&Wells::rates, present, from, to);
  takePart(&Wells::temperatureChanges, present, from, to);
  takePart(&Wells::periodRates, present, from, to);
  takePart(&Wells::periodTemperatureChanges, present, from, to);
}

void takeValues(ParameterValues& present, const ParameterValues& from, const ParameterValues& to) {
  for (auto entry = to.begin(); entry != to.end(); ++entry)
    if (!from.contains(entry.key()) || !isSameValue(from.value(entry.key()), entry.value()))
      present.insert(entry.key(), entry.value());
  for (auto entry = from.begin(); entry != from.end(); ++entry)
    if (!to.contains(entry.key()))
      present.remove(entry.key());
}

void takeFlag(bool& present, bool from, bool to) {
  if (from != to)
    present = to;
}

QPointF defaultPosition(const Project& project) {
  return project.values.value(Parameter::DefaultWellPosition).toPointF();
}

/// Wells that `to` has on its default position stand on the one of `project`.
void settleWells(Project& project, const Project& to) {
  const QPointF from = defaultPosition(to);
  const QPointF place = defaultPosition(project);
  for (int row = 0; row < project.wells.positions.size(); ++row) {
    const QPointF& well = project.wells.positions.at(row);
    if (!project.wells.givenPlaces.contains(row) && isSameNumber(well.x(), from.x()) &&
        isSameNumber(well.y(), from.y()))
      project.wells.positions[row] = place;
  }
}

} // namespace

Project withChange(const Project& present, const Project& from, const Project& to) {
  if (present == from && present.made == from.made)
    return to;
  Project project = present;
  takeValues(project.values, from.values, to.values);
  takeWells(project.wells, from.wells, to.wells);
  if (!isSame(from.durations, to.durations))
    project.durations = to.durations;
  takeFlag(project.made.wells, from.made.wells, to.made.wells);
  takeFlag(project.made.periods, from.made.periods, to.made.periods);
  takeFlag(project.made.wellPeriods, from.made.wellPeriods, to.made.wellPeriods);
  settleWells(project, to);
  return project;
}

} // namespace TVR
