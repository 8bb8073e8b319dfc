#pragma once

namespace TVR {
class ParameterKeys;
class ProjectTarget;
struct Project;
} // namespace TVR

namespace TVR::Data {

/// The project as it was left, in the user's settings of this program: all parameters by key, and
/// the table of wells. The demand periods are not kept.
namespace LastParameterSet {

/// Writes the set, with the wells if their table has been made. The key of a parameter that the
/// project no longer holds stays behind.
void save(const Project& project, const ParameterKeys& keys, bool withWells);

/// Reads the set into a project that holds the defaults, or the settings of the previous program
/// generation if there is none. Rules do not run: what follows from other values comes from the
/// settings as well.
void restore(ProjectTarget& project);

} // namespace LastParameterSet
} // namespace TVR::Data
