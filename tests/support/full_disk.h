#pragma once

#include <sys/resource.h>

#include <csignal>

namespace frostmark::test {

// While it lives no file of this process grows beyond BYTES, as on a disk without room.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    (void)std::signal(SIGXFSZ, signal_);
  }

 private:
  void (*signal_)(int);
  rlimit before_{};
};

}  // namespace frostmark::test
