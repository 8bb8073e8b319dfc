#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace TVR {

namespace Data {
class Manager;
}

/// Something in a project that makes a simulation senseless: the parameter at fault (Parameter::Id)
/// or else the table, under its name in batch files, and a sentence for the user.
struct SiteProblem {
  std::optional<int> parameter;
  QString table;
  QString text;
};

/// Looks through the project for values outside physical sense: porosity, thickness,
/// conductivities, densities, capacities, viscosity, times and periods, tolerances, mesh limits,
/// wells without rates and wells at one place. Empty for a project that can be simulated. Changes
/// nothing.
std::vector<SiteProblem> checkSite(Data::Manager& store);

/// A sentence for the user if two wells stand at one place, as wells do that nobody gave a place:
/// one cell would hold the flows of both. Empty otherwise.
QString wellsAtOnePlace(Data::Manager& store);

} // namespace TVR
