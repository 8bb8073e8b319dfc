#pragma once

namespace TVR::GUI {

/// The translation context of all that the energy pages say. Required oddity: it is spelled so.
inline constexpr char energyMessages[] = "EngerieVerbrauchWizard";

} // namespace TVR::GUI
