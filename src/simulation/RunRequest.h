#pragma once

#include "simulation/WellTemperatureTable.h"
#include "simulator/solvers/LinearSolver.h"

#include <QString>

#include <memory>
#include <vector>

class FVMesh;
class Well;

namespace TVR {

/// Makes a mesh from the one that a project has of its own, over the same area.
using MeshChange = FVMesh (*)(const FVMesh& own, const std::vector<std::unique_ptr<Well>>& wells);

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
  /// What the run is computed on instead of the project's own mesh, about which the project is told
  /// even so; null for the own.
  MeshChange otherMesh = nullptr;
};

} // namespace TVR
