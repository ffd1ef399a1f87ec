// SPDX-License-Identifier: GPL-3.0-or-later
// The lock by which other processes see that a run over a database is under way.
#pragma once

#include <QString>

namespace mail {

/// A lock far beyond the end of the database file, where nothing is ever written and the storage engine locks
/// nothing. It ends with the process and follows the file when that is moved. Where the file system has no
/// locks, or the file cannot be opened for writing, other processes are not seen.
class RunLock {
  public:
    RunLock() = default;
    RunLock(const RunLock&) = delete;
    RunLock& operator=(const RunLock&) = delete;
    ~RunLock() { release(); }

    /// False where another process has it. A lock held on another file is released first.
    bool take(const QString& path);
    void release();

  private:
    int m_descriptor = -1;
};

}  // namespace mail
