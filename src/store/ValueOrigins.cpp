#include "store/ValueOrigins.h"

#include "store/Manager.h"

#include <algorithm>

namespace TVR::Data {

ValueOrigins::ValueOrigins(Manager& store) : store_(store) {
  for (int id = 0; id < TVR::Parameter::Count; ++id)
    keep(parameters_[static_cast<std::size_t>(id)], store.values().value(id),
         ValueOrigin::ReferenceDatabase);
  store.addJournal(this);
}

ValueOrigins::~ValueOrigins() {
  store_.removeJournal(this);
}

void ValueOrigins::keep(Parameter& parameter, const QVariant& value, ValueOrigin origin) {
  parameter.present = origin;
  parameter.value = value;
  const auto known =
      std::find_if(parameter.known.begin(), parameter.known.end(),
                   [&value](const Known& one) { return isSameValue(one.value, value); });
  if (known != parameter.known.end())
    known->origin = origin;
  else
    parameter.known.push_back({value, origin});
}

void ValueOrigins::wrote(const WrittenValues& values, const Project& project) {
  for (const auto& [id, origin] : values)
    keep(parameters_.at(static_cast<std::size_t>(id)), project.values.value(id), origin);
}

// What was written is known by now; anything else has been put back as it once was.
void ValueOrigins::record(const JournalEntry& entry) {
  for (int id = 0; id < TVR::Parameter::Count; ++id) {
    Parameter& parameter = parameters_[static_cast<std::size_t>(id)];
    const QVariant value = entry.after.values.value(id);
    if (isSameValue(value, parameter.value))
      continue;
    parameter.value = value;
    for (const Known& known : parameter.known)
      if (isSameValue(known.value, value))
        parameter.present = known.origin;
  }
}

} // namespace TVR::Data
