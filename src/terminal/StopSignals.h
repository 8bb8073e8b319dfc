#pragma once

#include <csignal>
#include <functional>

namespace TVR {

/// Takes SIGINT and SIGTERM, so that a run ends between two steps and leaves nothing half written.
/// Whoever can end so says how for as long as it can; where nobody does, the first signal ends the
/// program at once. A second one always does. A signal that the program was started to ignore is
/// ignored.
namespace StopSignals {

/// Begins to take them, for good. To be called once, before there is another thread.
void watch();

/// The signal that has come; 0 if none has.
int received();
/// What the program ends with after that signal.
int exitCode();
/// "stopped by SIGINT", for the signal that has come.
const char* name();

/// While it lives, the signal calls `stop`, on another thread.
class Handler {
public:
  explicit Handler(std::function<void()> stop);
  ~Handler();
  Handler(const Handler&) = delete;
  Handler& operator=(const Handler&) = delete;
};

/// What a child ends with that is told to stop by its parent.
inline constexpr int childExitCode = 128 + SIGTERM;

/// For a process that is forked and not replaced yet: the signals come through again. It gets
/// SIGTERM when its parent ends, and leaves what is typed at a terminal to it.
void prepareChild(int parent);

} // namespace StopSignals
} // namespace TVR
