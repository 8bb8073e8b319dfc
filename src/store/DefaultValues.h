#pragma once

#include "project/ParameterValues.h"

#include <optional>

namespace TVR {
class ParameterKeys;
}

namespace TVR::Data {

/// The values of a project in which nothing was entered, from the reference database; none if that
/// can't be opened.
std::optional<ParameterValues> defaultValues(const ParameterKeys& keys);

} // namespace TVR::Data
