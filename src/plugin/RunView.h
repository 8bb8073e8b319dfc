#pragma once

#include "plugin/TVRPlugin.h"
#include "simulation/RunObserver.h"

namespace TVR {

/// Shows a run of the plug-in's simulation to the host, and keeps the tables of all cells.
class TVRPlugin::RunView final : public RunObserver {
public:
  explicit RunView(TVRPlugin& plugin) : plugin_(plugin) {}

  void outputTimesMade() override;
  void starting(int cells, int outputTimes) override;
  void stepReached(int step, int count, double time) override;
  void beginCellTables() override;
  void continueCellTables(double time) override;
  void failed(double time, const QString& text) override;

private:
  /// The host of an interactive run; null in a batch.
  BrenvikApp::ApplicationInterface* host() const;

  TVRPlugin& plugin_;
};

} // namespace TVR
