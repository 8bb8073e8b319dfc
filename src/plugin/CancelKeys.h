#pragma once

#include <QtGlobal>

class QEvent;

namespace TVR {

/// The keys that cancel a running simulation: Escape and End.
class CancelKeys {
public:
  /// Whether the user asks with this event that a run be cancelled. Once for each press of a key,
  /// however many windows pass it on.
  bool areMeant(const QEvent& event);

private:
  ulong answered_ = 0; ///< the time [ms] of the last press that asked
};

} // namespace TVR
