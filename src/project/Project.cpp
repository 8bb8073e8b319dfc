#include "project/Project.h"

#include <algorithm>

namespace TVR {

bool Project::operator==(const Project& other) const {
  const auto isSameEntry = [](const auto& one, const auto& two) {
    return one.first == two.first && isSameValue(one.second, two.second);
  };
  const bool areValuesSame =
      values.isSharedWith(other.values) ||
      std::equal(values.keyValueBegin(), values.keyValueEnd(), other.values.keyValueBegin(),
                 other.values.keyValueEnd(), isSameEntry);
  return areValuesSame && wells == other.wells && isSame(durations, other.durations);
}

void swap(Project& one, Project& other) noexcept {
  std::swap(one.values, other.values);
  std::swap(one.wells, other.wells);
  std::swap(one.durations, other.durations);
  std::swap(one.made, other.made);
}

} // namespace TVR
