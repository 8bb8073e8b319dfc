#pragma once

#include "gui/delegates/QuantityDelegate.h"

namespace TVR {

/// Shows and edits the table of wells (WellModel): rates in l/min, temperature changes in K.
class WellModelDelegate : public QuantityDelegate {
  Q_OBJECT

public:
  using QuantityDelegate::QuantityDelegate;

  std::optional<CellQuantity> quantity(int column) const override;
};

} // namespace TVR
