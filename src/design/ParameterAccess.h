#pragma once

namespace TVR {

/// What models and rules may know of the parameter store: read a value, write a value. Ids are
/// those of Parameter::Id. A parameter without a value reads as 0 or false; nothing throws. A test
/// implements it over a map.
class ParameterAccess {
public:
  virtual ~ParameterAccess() = default;

  /// Effective value of a parameter as a number.
  virtual double number(int id) const = 0;
  /// Effective value of a parameter as a truth value.
  virtual bool flag(int id) const = 0;
  /// Writes a value; all rules that depend on `id` run before the call returns.
  virtual void write(int id, double value) = 0;
};

} // namespace TVR
