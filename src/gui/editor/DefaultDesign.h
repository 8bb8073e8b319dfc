#pragma once

#include "project/ParameterValues.h"

class QtProperty;

namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

/// What the rows of the design tree show where nothing was entered.
class DefaultDesign {
public:
  /// Takes the defaults from the reference database. `store` outlives it.
  explicit DefaultDesign(const Data::Manager& store);

  /// The default of a property of the tree, for the kind of project that it shows; invalid for a
  /// group, a result, and what has no default.
  QVariant valueOf(const QtProperty& property) const;

private:
  const Data::Manager& store_;
  ParameterValues values_;
};

} // namespace TVR::GUI
