#pragma once

#include "simulation/RunObserver.h"

#include <QElapsedTimer>
#include <QString>

namespace TVR::Batch {

/// Shows how a run goes: on a terminal a bar that is drawn anew, elsewhere a line for each tenth of
/// the simulated time.
class ProgressDisplay : public RunObserver {
public:
  /// `file` is named in the lines.
  ProgressDisplay(const QString& file, bool onTerminal);
  /// Leaves the terminal at the beginning of a line, however the run ended.
  ~ProgressDisplay() override;

  void starting(const RunStart& start) override;
  void stepReached(const RunStep& step) override;
  void finished(const RunSummary& summary) override;

  /// The bar for a share of the simulated years; times in seconds.
  static QString bar(double share, double years, double allYears, double elapsed);

private:
  void endLine();

  const QString file_;
  const bool onTerminal_;
  QElapsedTimer clock_;
  double allYears_ = 0;
  int lastTenth_ = 0;
  bool lineIsOpen_ = false; ///< a bar was drawn last
};

} // namespace TVR::Batch
