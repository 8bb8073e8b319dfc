#pragma once

namespace TVR {

namespace Data {
class Manager;
}

class ResultGraphic;
class SimulationRun;
class WizardCommands;
struct ProgressPanel;
struct RunRequest;

/// Starts the runs whose results the user sees on a page.
class InteractiveRun {
public:
  /// Everything that is given outlives this object.
  InteractiveRun(Data::Manager& store, SimulationRun& run, ResultGraphic& graphic,
                 const WizardCommands& wizards, const ProgressPanel& progress)
      : store_(store), run_(run), graphic_(graphic), wizards_(wizards), progress_(progress) {}

  /// Opens the page of the project in the store, if there is a host for one, and starts a run of
  /// it. The user is told why it can't be run, and the page is then what it was. While another run
  /// is under way nothing is done.
  void start(const RunRequest& request);

private:
  void runOnOpenPage(const RunRequest& request);

  Data::Manager& store_;
  SimulationRun& run_;
  ResultGraphic& graphic_;
  const WizardCommands& wizards_;
  const ProgressPanel& progress_;
};

} // namespace TVR
