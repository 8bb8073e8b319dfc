#pragma once

#include "simulation/RunObserver.h"

#include <cstddef>
#include <vector>

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

class ResultGraphic;
class StepExport;
struct PageAccess;
struct ProgressPanel;

/// Shows a run to the host, in the panel and on the result page, and keeps the tables of all cells.
/// In a batch it only does the latter.
class RunView final : public RunObserver {
public:
  /// All three outlive this object.
  RunView(ResultGraphic& graphic, const ProgressPanel& progress, StepExport& steps)
      : graphic_(graphic), progress_(progress), steps_(steps) {}

  void initialising(const RunRequest& request) override;
  void outputTimesMade() override;
  void beginCellTables(const FVMesh& mesh) override;
  void starting(const RunStart& start) override;
  void setOff() override;
  void continueCellTables(const RunStep& step) override;
  void stepReached(const RunStep& step) override;
  void drawdownsReached(const RunStep& step) override;
  void temperaturesReached(const RunStep& step) override;
  void resultsReached(const RunResults& results) override;
  void completing(const RunResults& results) override;
  void failed(double time, const QString& text) override;

private:
  /// The host of an interactive run; null in a batch.
  BrenvikApp::ApplicationInterface* host() const;
  void say(const QString& text) const;
  void tellStatus(const QString& text, int milliseconds) const;
  void tellProgress(int value, int maximum) const;
  QString atTime(const QString& text, double time) const;
  void fillPage(const PageAccess& page, const Simulation& simulation) const;

  ResultGraphic& graphic_;
  const ProgressPanel& progress_;
  StepExport& steps_;
  bool isInteractive_ = true; ///< the last run
};

} // namespace TVR
