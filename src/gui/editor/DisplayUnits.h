#pragma once

#include <QString>

#include <optional>
#include <span>

namespace TVR::GUI {

/// A unit in which values are shown, and what is shown for 1 of the stored unit.
struct DisplayUnit {
  const char* name; ///< UTF-8, without translation
  double scale;
};

/// The units that the user has chosen to see values in. Nothing is stored in them: they are for the
/// eye alone, and the user's settings keep them.
class DisplayUnits {
public:
  enum Quantity { FlowRate, Velocity, QuantityCount };

  /// The choices for a quantity, the stored unit first.
  static std::span<const DisplayUnit> choices(Quantity quantity);

  /// Takes what the settings keep.
  DisplayUnits();

  /// Index into the choices.
  int chosen(Quantity quantity) const { return chosen_[quantity]; }
  /// Keeps the choice in the settings.
  void choose(Quantity quantity, int choice);
  /// The unit in which values of a stored unit are shown; none if there is no choice for it.
  std::optional<DisplayUnit> unitFor(const char* storedUnit) const;

private:
  int chosen_[QuantityCount] = {};
};

} // namespace TVR::GUI
