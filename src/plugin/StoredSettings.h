#pragma once

namespace TVR {

/// Asks the user whether to remove all settings that the program keeps, and then those of the
/// previous program generation if there are any, and removes what the user wants to lose.
void clearStoredSettings();

} // namespace TVR
