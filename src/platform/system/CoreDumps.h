#pragma once

namespace sys {

/// From here on, until it ends, this process leaves no core dump, and no other process of the user looks into
/// its memory. To be called before a password is read. Programs that it starts are not concerned.
void forbidCoreDumps();

/// Takes that back for as long as it lives, where it holds. For the start of other programs in namespaces of
/// their own, which the kernel keeps from a process that nobody may look into. To be short.
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
