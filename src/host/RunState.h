#pragma once

#include <QObject>

namespace BrenvikApp {

/// Whether a plug-in has a simulation running, for a host that offers to end it and does not close
/// over it unasked. It is a QObject among the plug-in's children, so that a host finds it by
/// casting them; its signal `changed()` says that the answer is another one now.
class RunState {
public:
  virtual bool isRunning() const = 0;
  /// Ends the run at its next step, with the results so far, and asks nobody.
  virtual void stop() = 0;

protected:
  ~RunState() = default;
};

} // namespace BrenvikApp

#define BRENVIK_RUN_STATE_IID "venlor.BrenvikApplication.RunState/1.1"
Q_DECLARE_INTERFACE(BrenvikApp::RunState, BRENVIK_RUN_STATE_IID)
