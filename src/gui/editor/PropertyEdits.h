#pragma once

#include <QVariant>

#include <vector>

namespace TVR {
class ProjectOverlay;
class ProjectTarget;
} // namespace TVR

namespace TVR::GUI {

/// A value that was typed for a parameter (Parameter::Id), in the unit in which it is stored.
struct PropertyEdit {
  int id;
  QVariant value;

  bool operator==(const PropertyEdit&) const = default;
};
using PropertyEdits = std::vector<PropertyEdit>;

/// Writes what was typed into a project, in its order; rules run for each value. From then on the
/// values count as they stand, and wells are not designed again.
void applyEdits(ProjectTarget& project, const PropertyEdits& edits);

/// Lays over a project what was typed for it but is not applied yet, a porosity of 0 included.
void layEdits(ProjectOverlay& project, const PropertyEdits& edits);

} // namespace TVR::GUI
