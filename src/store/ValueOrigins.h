#pragma once

#include "design/ParameterId.h"
#include "store/Journal.h"

#include <array>
#include <vector>

namespace TVR::Data {

class Manager;

/// Knows where each value of a store comes from, for as long as it lives. Before anything is
/// written that is the reference database. A value that comes back because changes are undone or
/// redone has the origin that it had when it was last written.
class ValueOrigins final : public Journal {
public:
  /// `store` outlives it.
  explicit ValueOrigins(Manager& store);
  ~ValueOrigins() override;
  ValueOrigins(const ValueOrigins&) = delete;
  ValueOrigins& operator=(const ValueOrigins&) = delete;

  /// Where the present value of a parameter (Parameter::Id) comes from.
  ValueOrigin of(int id) const { return at(id).present; }

  void wrote(const WrittenValues& values, const Project& project) override;
  void record(const JournalEntry& entry) override;

private:
  struct Known {
    QVariant value;
    ValueOrigin origin;
  };
  struct Parameter {
    ValueOrigin present = ValueOrigin::ReferenceDatabase;
    QVariant value;           ///< that `present` is the origin of
    std::vector<Known> known; ///< all values that it has had, each once
  };

  const Parameter& at(int id) const { return parameters_[static_cast<std::size_t>(id)]; }
  static void keep(Parameter& parameter, const QVariant& value, ValueOrigin origin);

  Manager& store_;
  std::array<Parameter, TVR::Parameter::Count> parameters_;
};

} // namespace TVR::Data
