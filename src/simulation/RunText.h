#pragma once

#include <QCoreApplication>
#include <QString>

namespace TVR {

/// Translation context of what is said about a run that cannot start or that fails.
class RunText {
  Q_DECLARE_TR_FUNCTIONS(Simulation)
};

} // namespace TVR
