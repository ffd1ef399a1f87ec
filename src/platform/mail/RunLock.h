// Tells other processes that a run over a database is on.
#pragma once

#include <QString>

namespace mail {

/// A lock far behind the end of the database file, where nothing is ever written and the storage engine locks
/// nothing. It ends with the process and goes with the file where that is moved. Where the file system knows
/// no locks, or the file cannot be opened for writing, other processes are not seen.
class RunLock {
  public:
    RunLock() = default;
    RunLock(const RunLock&) = delete;
    RunLock& operator=(const RunLock&) = delete;
    ~RunLock() { release(); }

    /// False where another process has it. The lock of another file that was held is given back first.
    bool take(const QString& path);
    void release();

  private:
    int m_descriptor = -1;
};

}  // namespace mail
