#pragma once

namespace TVR::Data {

class Manager;

/// The project as it was left, in the user's settings of this program: all parameters by key, and
/// the table of wells. The demand periods are not kept.
namespace LastParameterSet {

/// Writes the set. The key of a parameter that the store no longer holds stays behind.
void save(Manager& store);

/// Resets the store and reads the set, or the settings of the previous program generation if there
/// is none. Rules do not run: what follows from other values comes from the settings as well.
void restore(Manager& store);

} // namespace LastParameterSet
} // namespace TVR::Data
