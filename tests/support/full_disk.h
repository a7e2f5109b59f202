#pragma once

#include <signal.h>
#include <sys/resource.h>

namespace trimlog {

/// While it lives no file of this process can grow beyond so many bytes, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : formerHandler_(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &former_);
    rlimit limit = former_;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &former_);
    signal(SIGXFSZ, formerHandler_);
  }
  FullDisk(const FullDisk &) = delete;
  FullDisk &operator=(const FullDisk &) = delete;

 private:
  rlimit former_{};
  void (*formerHandler_)(int);
};

}  // namespace trimlog
