#include "gui/editor/DisplayUnits.h"

#include "project/UserSettings.h"

#include <cstring>

namespace TVR::GUI {

namespace {

constexpr double litres = 1000.0; ///< in a cubic metre
constexpr double secondsOfMinute = 60.0;
constexpr double secondsOfHour = 3600.0;
constexpr double secondsOfDay = 86400.0;

constexpr DisplayUnit flowRates[] = {
    {"m³/s", 1.0}, {"l/s", litres}, {"l/min", litres* secondsOfMinute}, {"m³/h", secondsOfHour}};
constexpr DisplayUnit velocities[] = {{"m/s", 1.0}, {"m/d", secondsOfDay}};

constexpr DisplayUnits::Quantity quantities[] = {DisplayUnits::FlowRate, DisplayUnits::Velocity};

QString keyOf(DisplayUnits::Quantity quantity) {
  return quantity == DisplayUnits::FlowRate ? QStringLiteral("display_units/flow_rate")
                                            : QStringLiteral("display_units/velocity");
}

} // namespace

std::span<const DisplayUnit> DisplayUnits::choices(Quantity quantity) {
  if (quantity == FlowRate)
    return flowRates;
  return velocities;
}

DisplayUnits::DisplayUnits() {
  for (const Quantity quantity : quantities) {
    const QString kept = userSettings().value(keyOf(quantity)).toString();
    int choice = 0;
    for (const DisplayUnit& unit : choices(quantity)) {
      if (kept == QString::fromUtf8(unit.name))
        chosen_[quantity] = choice;
      ++choice;
    }
  }
}

void DisplayUnits::choose(Quantity quantity, int choice) {
  chosen_[quantity] = choice;
  const DisplayUnit& unit = choices(quantity)[static_cast<std::size_t>(choice)];
  userSettings().setValue(keyOf(quantity), QString::fromUtf8(unit.name));
}

std::optional<DisplayUnit> DisplayUnits::unitFor(const char* storedUnit) const {
  for (const Quantity quantity : quantities)
    if (std::strcmp(choices(quantity).front().name, storedUnit) == 0)
      return choices(quantity)[static_cast<std::size_t>(chosen_[quantity])];
  return std::nullopt;
}

} // namespace TVR::GUI
