#pragma once

#include "design/RuleTarget.h"

namespace TVR {

/// Water-filled thickness of the aquifer [m]: the entered one, or for an unconfined aquifer the
/// distance from groundwater table to aquifer base.
double aquiferThickness(const ParameterReader& project);

/// Dimensions the wells for the maximum flow rate, if `calculate_well_construction` is on, and
/// writes the construction. The number of wells is raised where necessary, never lowered.
void recalculateWellDesign(RuleTarget& target);

/// Checks the construction that the user gave and writes the verdict to
/// `__provided_well_configuration_ok`; nothing else is changed.
void recalculateWellCheck(RuleTarget& target);

/// `value` truncated to a whole number; 0 where no int can hold it, so that an infinity that came
/// out of a formula does not turn into a count of wells.
int wholeNumber(double value);

} // namespace TVR
