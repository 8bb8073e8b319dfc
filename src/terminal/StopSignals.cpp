#include "terminal/StopSignals.h"

#include "terminal/Console.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <mutex>
#include <thread>

namespace TVR::StopSignals {

namespace {

constexpr int ofAnEndBySignal = 128; // what a shell adds to the signal

std::atomic<int> receivedSignal = 0;
std::mutex handlerMutex;
std::function<void()> stopRun; ///< guarded by handlerMutex

bool isIgnored(int signal) {
  struct sigaction action {};
  return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

sigset_t watchedSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGINT, SIGTERM})
    if (!isIgnored(signal))
      sigaddset(&signals, signal);
  return signals;
}

void take(int signal) {
  const std::lock_guard lock(handlerMutex);
  const bool isFirst = receivedSignal.exchange(signal) == 0;
  if (isFirst && stopRun) {
    stopRun();
    return;
  }
  if (isFirst)
    printMessage({}, name());
  _exit(exitCode());
}

} // namespace

void watch() {
  const sigset_t signals = watchedSignals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  std::thread([signals] {
    for (int signal = 0;;)
      if (sigwait(&signals, &signal) == 0)
        take(signal);
  }).detach();
}

int received() {
  return receivedSignal;
}

int exitCode() {
  return ofAnEndBySignal + received();
}

const char* name() {
  return received() == SIGINT ? "stopped by SIGINT" : "stopped by SIGTERM";
}

Handler::Handler(std::function<void()> stop) {
  const std::lock_guard lock(handlerMutex);
  stopRun = std::move(stop);
}

Handler::~Handler() {
  const std::lock_guard lock(handlerMutex);
  stopRun = nullptr;
}

void prepareChild(int parent) {
  signal(SIGINT, SIG_IGN);
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  sigprocmask(SIG_UNBLOCK, &signals, nullptr);
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent) // it has ended before
    _exit(childExitCode);
}

} // namespace TVR::StopSignals
