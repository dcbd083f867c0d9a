// SPDX-License-Identifier: GPL-3.0-or-later
// A disk without room for more.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace kervol {

/// While it lives, no file can grow beyond that size, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : old_handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_);
        rlimit limit = old_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, old_handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit old_{};
    void (*old_handler_)(int);
};

}  // namespace kervol
