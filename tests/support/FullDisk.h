#pragma once

#include <sys/resource.h>

#include <csignal>

/// While it lives, no file of this process can grow beyond so many bytes: as on a full disk.
class FullDisk {
public:
  explicit FullDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};
