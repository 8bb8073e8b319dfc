#pragma once

#include "simulation/WellTemperatureTable.h"
#include "simulator/solvers/LinearSolver.h"

#include <QString>

namespace TVR {

/// How a project is to be run.
struct RunRequest {
  /// On a thread of its own, with a page if there is a host for one; errors are told. Otherwise to
  /// the end on the calling thread, and errors are thrown.
  bool isInteractive = true;
  /// Where the table of well temperatures goes, whatever the project says; empty for what it says.
  QString tableFile = {};
  /// What a user names may be replaced whatever it is.
  NamedBy tableNamedBy = NamedBy::File;
  /// Without a table the histories of the wells are for the observers only.
  bool wantsTable = true;
  LinearSolver linearSolver = LinearSolver::Structured;
};

} // namespace TVR
