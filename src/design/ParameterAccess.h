#pragma once

#include "design/ParameterReader.h"

namespace TVR {

/// What models and rules may know of the parameter store: read a value, write a value. A test
/// implements it over a map.
class ParameterAccess : public ParameterReader {
public:
  /// Writes a value; all rules that depend on `id` run before the call returns.
  virtual void write(int id, double value) = 0;
};

} // namespace TVR
