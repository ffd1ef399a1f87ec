// SPDX-License-Identifier: GPL-3.0-or-later
// A disk without room: no file of this process can grow beyond a number of bytes.
#pragma once

#include <sys/resource.h>
#include <csignal>

/// While it lives, a write that would make a file longer than `bytes` writes what fits and then fails.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : m_signal(::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        ::signal(SIGXFSZ, m_signal);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit m_before{};
    void (*m_signal)(int);
};
