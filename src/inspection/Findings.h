#pragma once

#include <QStringList>

namespace TVR {

/// What a look at a file found. Each line names section and key and says what was expected; a file
/// with errors is not to be run.
struct Findings {
  QStringList errors;
  QStringList warnings;
};

} // namespace TVR
