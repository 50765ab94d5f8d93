#pragma once

#include <csignal>
#include <sys/resource.h>

namespace numorra {

/// A disk that is full after some bytes of every file, while in scope.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit little{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

}  // namespace numorra
