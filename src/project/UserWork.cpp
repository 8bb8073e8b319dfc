#include "project/UserWork.h"

#include "design/ParameterId.h"
#include "project/ParameterTable.h"
#include "project/Project.h"
#include "project/ProjectReader.h"
#include "project/ProjectTables.h"

#include <algorithm>
#include <optional>

namespace TVR {

using namespace Parameter;

namespace {

/// What the program writes down for itself, and when.
constexpr int notes[] = {
    ProgramVersion,         // a key of a file or of the settings that no parameter has
    SimulationUpToDate,     // a run begins or ends
    GuiLanguage,            // the program starts, or speaks another language
    DefaultWellPosition,    // a page is prepared: the middle of its map
    MaximumExtent3K,        // isotherms are drawn; they come from a run, which changes the page
    TimeOfMaximumExtent3K,  // the same
    UsedNumberOfElements,   // a run makes its mesh
    BatchOutputFile,        // a batch file is read; project files do not name it
    ExportIsohypsesAsShape, // the dialog of an export remembers its options
    ExportIsothermsAsShape, // the same
};

/// As a file would hold it; none for what has no text, such as a point.
std::optional<QString> textOf(const QVariant& value) {
  if (value.isValid() && !value.canConvert<QString>())
    return std::nullopt;
  return value.toString();
}

bool isSameNumberIn(const QVariant& one, const QVariant& other) {
  bool isNumber = false;
  bool isOther = false;
  const double a = one.toDouble(&isNumber);
  const double b = other.toDouble(&isOther);
  return isNumber && isOther && a == b;
}

bool areSameValues(const Project& one, const Project& other, bool (*counts)(int id)) {
  for (int id = 0; id < Parameter::Count; ++id)
    if (counts(id) && !isSameEntry(id, one.values.value(id), other.values.value(id)))
      return false;
  return true;
}

bool isSamePlace(const Wells& one, const Wells& other, int row) {
  const bool isGiven = one.givenPlaces.contains(row);
  return isGiven == other.givenPlaces.contains(row) &&
         (!isGiven || (isSameNumber(one.positions.value(row).x(), other.positions.value(row).x()) &&
                       isSameNumber(one.positions.value(row).y(), other.positions.value(row).y())));
}

bool areSameCells(const ProjectReader& one, const ProjectReader& other, int row) {
  const WellReader a = one.wells();
  const WellReader b = other.wells();
  if (a.name(row) != b.name(row) || !isSameNumber(a.rate(row), b.rate(row)) ||
      !isSameNumber(a.temperatureChange(row), b.temperatureChange(row)))
    return false;
  const int periods = static_cast<int>(std::min(one.periods().size(), other.periods().size()));
  for (int period = 0; period < periods; ++period)
    if (!isSameNumber(a.rate(row, period), b.rate(row, period)) ||
        !isSameNumber(a.temperatureChange(row, period), b.temperatureChange(row, period)))
      return false;
  return true;
}

/// Of projects with the same parameters and periods.
bool areSameWells(const Project& one, const Project& other) {
  if (one.wells == other.wells)
    return true;
  const int wells = ProjectView(one).wells().count();
  for (int row = 0; row < wells; ++row)
    if (!isSameWell(one, other, row))
      return false;
  return true;
}

} // namespace

bool isUserWork(int id) {
  return std::find(std::begin(notes), std::end(notes), id) == std::end(notes);
}

bool isSameEntry(int id, const QVariant& one, const QVariant& other) {
  if (isSameValue(one, other))
    return true;
  const auto text = textOf(one);
  if (text && text == textOf(other))
    return true;
  switch (parameterRow(id).kind) {
  case ParameterKind::Text:
  case ParameterKind::Heading:
    return false;
  case ParameterKind::Flag:
    return one.toBool() == other.toBool();
  default:
    return isSameNumberIn(one, other);
  }
}

bool isSameWell(const Project& one, const Project& other, int row) {
  return isSamePlace(one.wells, other.wells, row) &&
         areSameCells(ProjectView(one), ProjectView(other), row);
}

bool isSameWork(const Project& one, const Project& other, bool (*counts)(int id)) {
  return areSameValues(one, other, counts) &&
         ProjectView(one).periods() == ProjectView(other).periods() && areSameWells(one, other);
}

} // namespace TVR
