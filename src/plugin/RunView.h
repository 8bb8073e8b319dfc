#pragma once

#include "plugin/TVRPlugin.h"
#include "simulation/RunObserver.h"

#include <vector>

namespace TVR {

/// Shows a run of the plug-in's simulation to the host and on the result page, and keeps the tables
/// of all cells. In a batch it only does the latter.
class TVRPlugin::RunView final : public RunObserver {
public:
  explicit RunView(TVRPlugin& plugin) : plugin_(plugin) {}

  void initialising(bool batch) override;
  void outputTimesMade() override;
  void starting(int cells, int outputTimes) override;
  void setOff() override;
  void stepReached(int step, int count, double time) override;
  void headsReached() override;
  void temperaturesReached(double time) override;
  void resultsReached() override;
  void completing() override;
  void beginCellTables() override;
  void continueCellTables(double time) override;
  void failed(double time, const QString& text) override;

private:
  /// The host of an interactive run; null in a batch.
  BrenvikApp::ApplicationInterface* host() const;
  bool isInteractive() const { return !plugin_.run_.isBatch(); }
  void say(const QString& text) const;
  void tellStatus(const QString& text, int milliseconds) const;
  void tellProgress(int value, int maximum) const;
  QString atTime(const QString& text, double time) const;
  std::vector<double> heads() const;
  std::vector<double> temperatures(std::size_t count) const;
  void fillPage(const PageAccess& page) const;

  TVRPlugin& plugin_;
};

} // namespace TVR
