#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace TVR {

class ProjectReader;

/// Something in a project that makes a simulation senseless, or only deserves a second look: the
/// parameter at fault (Parameter::Id) or else the table, under its name in batch files, and a
/// sentence for the user.
struct SiteProblem {
  std::optional<int> parameter;
  QString table;
  QString text;
  bool isWarning = false;
};

/// Looks through what a run reads of the project: parameters and the values of the wells against
/// their ranges (ParameterRow::range), the water-filled thickness, the temperature of the injected
/// water, periods without a length, wells without rates, at one place, nearer than a run does well
/// with, or kilometres apart. Empty for a project that can be simulated as usual. Changes nothing.
std::vector<SiteProblem> checkSite(const ProjectReader& project);

/// A sentence for the user if two wells stand at one place, as wells do that nobody gave a place:
/// one cell would hold the flows of both. Empty otherwise.
QString wellsAtOnePlace(const ProjectReader& project);

} // namespace TVR
