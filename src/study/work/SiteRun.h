#pragma once

#include "simulation/RunRequest.h"
#include "study/plan/ResultLayout.h"
#include "study/work/Record.h"
#include "study/work/RunInput.h"

#include <QByteArray>

#include <vector>

namespace TVR::Study {

/// Computes the runs of a study, one after the other, in the store of this process: exactly what
/// the batch program computes for the file of the run; and where the layout has mesh bands, the
/// same site on a coarser and on a finer mesh behind it.
class SiteRun {
public:
  /// `base`: complete path of a batch file or project file.
  SiteRun(const QString& base, const ResultLayout& layout);

  /// The record of the run with these values, one for each key of the layout. One that can't be
  /// computed says why.
  Record compute(const QByteArray& name, const std::vector<double>& values);
  /// Whether the machine is to blame for a failure of the last run, and not the run.
  bool isMachineAtFault() const { return input_.isMachineAtFault(); }

private:
  /// What a run yields, and on how many cells.
  struct Solution {
    Record record;
    int cells = 0;
  };

  Solution solve(const ResultLayout& layout, MeshChange mesh);
  void addMeshBands(Solution& own);

  const ResultLayout layout_;
  RunInput input_;
};

} // namespace TVR::Study
