#pragma once

#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"

#include <QString>

#include <functional>
#include <mutex>
#include <vector>

class FVMesh;

namespace TVR {

class Simulation;
struct SiteSetup;

/// The results of one mesh of a preview, by cell, row by row. They hold during the call only.
struct PreviewStage {
  const FVMesh& mesh;
  const RunFrame& frame;
  const std::vector<double>& drawdowns;    ///< at the end of the run [m]
  const std::vector<double>& temperatures; ///< changes at the end of the run [K]
  bool isRefined;                          ///< whether this is the mesh of the run itself
};

/// Numbers of cells of the drafts that go before a run of `cells` cells, ascending: what is there
/// soon is drawn first. None where the run itself is there soon, which takes few cells and no
/// demand periods.
std::vector<int> draftMeshes(int cells, bool hasPeriods);

/// A run as an interactive one of the same site would be, without a project: it reads and writes
/// nothing, and tells nobody but who asked. A run that takes its time has drafts go before it, on
/// coarser meshes and with larger tolerances. The last results are to the last bit those of the run
/// (see startOnPage).
class PreviewRun {
public:
  PreviewRun(SiteInput site, OutputTimes outputTimes);

  /// Runs on the calling thread, once. `take` is given the results of each mesh. What is wrong with
  /// the site or its results, as rich text; empty if nothing is, or if the run was stopped.
  QString run(const std::function<void(const PreviewStage&)>& take);
  /// Lets `run` return soon, without any further results. Any thread.
  void stop();

private:
  class Current;

  SiteSetup setUp(const SiteInput& site) const;
  SiteInput draftOf(int fewer, int cells) const;
  QString simulate(const SiteSetup& setup, bool isRefined,
                   const std::function<void(const PreviewStage&)>& take);
  QString faultOf(const SiteSetup& setup, const Simulation& simulation) const;
  bool isStopped() const;

  const SiteInput site_;
  const OutputTimes outputTimes_;
  mutable std::mutex mutex_;
  Simulation* simulation_ = nullptr; ///< that runs now; guarded by mutex_
  bool stopped_ = false;             ///< guarded by mutex_
};

} // namespace TVR
