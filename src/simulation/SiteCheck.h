#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace TVR {

namespace Data {
class Manager;
}

/// Something in a project that makes a simulation senseless, or only deserves a second look: the
/// parameter at fault (Parameter::Id) or else the table, under its name in batch files, and a
/// sentence for the user.
struct SiteProblem {
  std::optional<int> parameter;
  QString table;
  QString text;
  bool isWarning = false;
};

/// Looks through the project for values outside physical sense: porosity, thickness,
/// conductivities, densities, capacities, viscosity, times and periods, tolerances, mesh limits,
/// wells without rates, at one place or nearer than a run does well with. Empty for a project that
/// can be simulated. Changes nothing.
std::vector<SiteProblem> checkSite(Data::Manager& store);

} // namespace TVR
