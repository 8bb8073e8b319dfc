#pragma once

namespace TVR {

/// What a formula or a table may read of a project. Ids are those of Parameter::Id. A parameter
/// without a value reads as 0 or false; nothing throws.
class ParameterReader {
public:
  virtual ~ParameterReader() = default;

  /// Effective value of a parameter as a number.
  virtual double number(int id) const = 0;
  /// Effective value of a parameter as a truth value.
  virtual bool flag(int id) const = 0;
};

} // namespace TVR
