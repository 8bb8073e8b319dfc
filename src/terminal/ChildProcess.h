#pragma once

#include <QProcess>

namespace TVR {

/// A program that ends with this one, and as it is told to by it; what is typed at a terminal is
/// left to this one. See StopSignals.
class ChildProcess : public QProcess {
public:
  ChildProcess();

private:
  void setupChildProcess() override;

  const int parent_; ///< the process that this one is
};

} // namespace TVR
