#pragma once

#include "project/Project.h"

#include <QString>

#include <optional>

namespace TVR {

/// The project of a file ".tvr" as a value, without its page: what is stored there, without any
/// rule, and without a store. None if the file can't be read.
std::optional<Project> projectOf(const QString& fileName);

} // namespace TVR
