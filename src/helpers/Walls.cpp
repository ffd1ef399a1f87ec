// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/Walls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gnu/libc-version.h>
#include <iconv.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>

namespace walls {

namespace {

constexpr rlim_t longestWork = 60;  // seconds of the processor

bool limit(__rlimit_resource resource, rlim_t value) {
    const rlimit both{value, value};
    return setrlimit(resource, &both) == 0;
}

/// Rights over files that a version of landlock knows: 13 in the first; the next three each added one.
uint64_t knownRights(long version) {
    const long bits = version == 1 ? 13 : version == 2 ? 14 : version <= 4 ? 15 : 16;
    return (uint64_t{1} << bits) - 1;
}

/// Whether all files are out of reach but those of `folder`, which can be read.
bool closeFiles(const std::string& folder) {
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1) return false;
    const landlock_ruleset_attr handled{knownRights(version)};
    const int rules =
        static_cast<int>(syscall(SYS_landlock_create_ruleset, &handled, sizeof handled.handled_access_fs, 0));
    if (rules < 0) return false;
    const int open = folder.empty() ? -1 : ::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (open >= 0) {
        landlock_path_beneath_attr beneath{LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR, open};
        syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &beneath, 0);
        ::close(open);
    }
    const bool closed = syscall(SYS_landlock_restrict_self, rules, 0) == 0;
    ::close(rules);
    return closed;
}

/// libc keeps a character set loaded while a conversion from it is open.
void loadCharacterSets() {
    for (const char* set :
         {"WINDOWS-1250", "WINDOWS-1251", "WINDOWS-1252", "WINDOWS-1253", "WINDOWS-1254", "WINDOWS-1255",
          "WINDOWS-1256", "WINDOWS-1257", "WINDOWS-1258", "CP874",        "CP932",        "CP936",
          "CP949",        "CP950",        "ISO-8859-1",   "ISO-8859-2",   "ISO-8859-15",  "KOI8-R",
          "KOI8-U",       "ISO-2022-JP",  "UTF-16LE",     "UTF-7"})
        static_cast<void>(iconv_open("UTF-8", set));
}

/// Whether only computing, reading and writing of what is open are left, and the opening of
/// files for reading where `mayOpen`. Any other call fails.
bool closeCalls(bool mayOpen) {
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ERRNO(EPERM));
    if (filter == nullptr) return false;
    bool added = true;
    const auto allow = [&](int call) { added &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) == 0; };
    const auto allowWhere = [&](int call, const scmp_arg_cmp& condition) {
        added &= seccomp_rule_add_array(filter, SCMP_ACT_ALLOW, call, 1, &condition) == 0;
    };
    for (const int call : {SCMP_SYS(read),           SCMP_SYS(readv),
                           SCMP_SYS(pread64),        SCMP_SYS(write),
                           SCMP_SYS(writev),         SCMP_SYS(lseek),
                           SCMP_SYS(close),          SCMP_SYS(fstat),
                           SCMP_SYS(mmap),           SCMP_SYS(munmap),
                           SCMP_SYS(mremap),         SCMP_SYS(mprotect),
                           SCMP_SYS(madvise),        SCMP_SYS(brk),
                           SCMP_SYS(futex),          SCMP_SYS(rt_sigaction),
                           SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn),
                           SCMP_SYS(sigaltstack),    SCMP_SYS(getpid),
                           SCMP_SYS(gettid),         SCMP_SYS(getrandom),
                           SCMP_SYS(clock_gettime),  SCMP_SYS(gettimeofday),
                           SCMP_SYS(sched_yield),    SCMP_SYS(restart_syscall),
                           SCMP_SYS(exit),           SCMP_SYS(exit_group)})
        allow(call);
    // Of an open file, not of a name.
    allowWhere(SCMP_SYS(newfstatat), SCMP_A3_64(SCMP_CMP_EQ, AT_EMPTY_PATH));
    // To end itself.
    allowWhere(SCMP_SYS(tgkill), SCMP_A0_64(SCMP_CMP_EQ, static_cast<scmp_datum_t>(getpid())));
    constexpr scmp_datum_t writing = O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND;
    if (mayOpen) allowWhere(SCMP_SYS(openat), SCMP_A2_64(SCMP_CMP_MASKED_EQ, writing, O_RDONLY));
    const bool loaded = added && seccomp_load(filter) == 0;
    seccomp_release(filter);
    return loaded;
}

}  // namespace

std::string characterSets() {
    Dl_info libc{};
    if (dladdr(reinterpret_cast<const void*>(&gnu_get_libc_version), &libc) == 0) return {};
    std::array<char, PATH_MAX> real{};
    if (realpath(libc.dli_fname, real.data()) == nullptr) return {};
    const std::string path = real.data();
    return path.substr(0, path.rfind('/')) + "/gconv";
}

Raised limitOnly() {
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, longestWork);
    limit(RLIMIT_FSIZE, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    Raised raised;
#ifndef VESTROLA_SANITIZED
    raised.memory = limit(RLIMIT_AS, mostMemory);
#endif
    return raised;
}

Raised raise(Raised limits) {
    Raised raised = limits;
    // Without it neither wall can be raised, but by the administrator.
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    raised.files = closeFiles(characterSets());
    if (!raised.files) loadCharacterSets();
    raised.calls = closeCalls(raised.files);
    return raised;
}

}  // namespace walls
