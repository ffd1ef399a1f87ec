// SPDX-License-Identifier: GPL-3.0-or-later
// Preloaded into a program, hides the kernel's landlock from it.
#include <seccomp.h>
#include <sys/prctl.h>

#include <cerrno>

__attribute__((constructor)) static void takeLandlockAway() {
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    constexpr int landlockCreateRuleset = 444;
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), landlockCreateRuleset, 0);
    seccomp_load(filter);
    seccomp_release(filter);
}
