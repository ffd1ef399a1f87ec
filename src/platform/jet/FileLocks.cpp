// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/FileLocks.h"

#include <cassert>

#include "platform/jet/Failure.h"

namespace jet {

using Lock = OsFile::Lock;
using Range = OsFile::Range;

namespace {

[[noreturn]] void failInUse(const OsFile& file) {
    fail(ErrorCode::FileInUse, "Il database \"%1\" è in uso da un altro programma."_tr, file.path());
}

// NAME.ldb beside NAME.mdb: made by other programs while they have the database open.
std::string foreignLockFile(const std::string& path) {
    const size_t slash = path.rfind('/');
    const size_t dot = path.rfind('.');
    const bool hasSuffix = dot != std::string::npos && (slash == std::string::npos || dot > slash);
    return path.substr(0, hasSuffix ? dot : path.size()) + ".ldb";
}

}  // namespace

void lockContent(OsFile& file, OsFile::Lock kind, const LockWait& wait) {
    if (kind == Lock::Exclusive) {
        if (file.tryLock(kind, Range::Entrance)) return;  // as a rule: nobody reads
        if (!waitFor(wait, [&] { return file.tryLock(kind, Range::Gate); })) failInUse(file);
        assert(file.isHeld(Range::Gate));  // L4: those who read end, and none begins
        if (waitFor(wait, [&] { return file.tryLock(kind, Range::Content); })) return;
        file.tryLock(Lock::None, Range::Gate);
        failInUse(file);
    }
    if (!waitFor(wait, [&] { return file.tryLock(kind, Range::Entrance); })) failInUse(file);
    file.tryLock(Lock::None, Range::Gate);
}

void lockWriter(OsFile& file, const LockWait& wait) {
    if (!waitFor(wait, [&] { return file.tryLock(Lock::Exclusive, Range::Writer); })) failInUse(file);
}

void refuseIfOpenElsewhere(const std::string& databasePath) {
    const std::string path = foreignLockFile(databasePath);
    if (!OsFile::exists(path)) return;
    try {
        const bool held = OsFile(path, OsFile::Access::Read).lockedByOthers();
        if (!held) OsFile::remove(path);
        if (!held) return;
    } catch (const Failure&) {
        // It cannot be opened or removed: its maker still has it open.
    }
    fail(ErrorCode::FileInUse,
         "Il database \"%1\" è aperto in un altro programma (%2): non può essere modificato."_tr,
         databasePath, path);
}

}  // namespace jet
