// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sys {

/// Disables core dumps of this process until it ends, and access to its memory by other processes of the
/// user. To be called before a password is read. Programs that it starts are not affected.
void forbidCoreDumps();

/// Reverts that for its lifetime, where it is in force. For starting other programs in their own namespaces,
/// which the kernel denies to such a protected process. Keep it short.
class CoreDumpsMeanwhile {
  public:
    CoreDumpsMeanwhile();
    ~CoreDumpsMeanwhile();
    CoreDumpsMeanwhile(const CoreDumpsMeanwhile&) = delete;
    CoreDumpsMeanwhile& operator=(const CoreDumpsMeanwhile&) = delete;

  private:
    int m_before;
};

}  // namespace sys
