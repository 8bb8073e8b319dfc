#include "gui/delegates/WellModelDelegate.h"

#include "project/ProjectTables.h"

namespace TVR {

std::optional<CellQuantity> WellModelDelegate::quantity(int column) const {
  switch (column) {
  case WellColumns::Rate:
    return rateQuantity();
  case WellColumns::TemperatureChange:
    return temperatureChangeQuantity();
  default:
    return {};
  }
}

} // namespace TVR
