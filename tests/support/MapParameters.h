#pragma once

#include "design/ParameterAccess.h"
#include "design/ParameterId.h"

#include <map>

namespace TVR {

/// Parameters in a map, for models under test; what was never written reads as 0.
class MapParameters : public ParameterAccess {
public:
  double number(int id) const override {
    const auto found = values.find(id);
    return found == values.end() ? 0.0 : found->second;
  }
  bool flag(int id) const override { return number(id) != 0.0; }
  void write(int id, double value) override { values[id] = value; }

  std::map<int, double> values;
};

} // namespace TVR
