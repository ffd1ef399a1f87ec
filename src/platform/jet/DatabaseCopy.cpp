// SPDX-License-Identifier: GPL-3.0-or-later
// A copy of a database under another name.
#include <unistd.h>

#include <cassert>
#include <filesystem>
#include <random>

#include "platform/jet/Database.h"
#include "platform/jet/Engine.h"
#include "platform/jet/Failure.h"
#include "platform/jet/FileLocks.h"
#include "platform/jet/Journal.h"
#include "platform/jet/OsFile.h"

namespace jet {

namespace {

using Lock = OsFile::Lock;
using Range = OsFile::Range;

/// A file beside the target that is gone when it did not become the target.
class TemporaryFile {
  public:
    TemporaryFile(const std::string& target, OsFile::Links links) {
        std::random_device random;
        const std::string name = target + "." + std::to_string(random()) + ".tmp";
        try {
            m_file = OsFile(name, OsFile::Access::Create, links);
        } catch (const Failure& failure) {
            if (failure.status.code() != ErrorCode::FileNotFound) throw;
            fail(ErrorCode::PathAccess, "Impossibile scrivere nella cartella di \"%1\"."_tr, target);
        }
        m_there = true;
    }
    ~TemporaryFile() {
        if (m_there) ::unlink(m_file.path().c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    OsFile& file() { return m_file; }
    /// Once it is on the disk (L7).
    void becomes(const std::string& target, OsFile::Synced) {
        (void)OsFile::rename(m_file.path(), target, true);
        m_there = false;
    }

  private:
    OsFile m_file;
    bool m_there = false;
};

// Locks all other processes out of the file that is to be replaced.
void lockWhole(OsFile& file, const LockWait& wait) {
    refuseIfOpenElsewhere(file.path());
    lockWriter(file, wait);
    lockContent(file, Lock::Exclusive, wait);
    FileState now;
    if (!fileState(file.path(), now) || !sameFile(now, file.state()))
        fail(ErrorCode::FileInUse, "Il file \"%1\" è in uso da un altro programma."_tr, file.path());
}

// What the name leads to, if it is a link.
std::string realTarget(const std::string& target) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(target, error);
    return error ? target : real.string();
}

}  // namespace

Status Database::copyTo(const std::string& wanted, bool ownerOnly) {
    return guarded([&]() -> Status {
        const std::string target = realTarget(wanted);
        const LockWait& wait = m_engine->file.lockWait();
        FileState there;
        const bool exists = fileState(target, there);
        const Reading reading(m_engine->file);
        FileState source;
        if (exists && fileState(m_engine->path, source) && sameFile(source, there))
            fail(ErrorCode::PathAccess, "\"%1\" è il database aperto."_tr, wanted);

        OsFile old;
        if (exists) {
            old = OsFile(target, OsFile::Access::ReadWrite);
            lockWhole(old, wait);
        }
        TemporaryFile copy(target, ownerOnly ? OsFile::Links::Refuse : OsFile::Links::Follow);
        if (exists) copy.file().takeRights(old);
        Journal journal(target);
        const OsFile& owner = exists ? old : copy.file();
        (void)journal.look(owner);  // fails for one that must not be touched
        // A process that opens the new file waits until the old one's journal is gone.
        lockWriter(copy.file(), wait);
        lockContent(copy.file(), Lock::Exclusive, wait);
        m_engine->file.copyTo(copy.file());
        [[maybe_unused]] const auto excluded = [](const OsFile& file) {
            return file.isHeld(Range::Writer) && file.isHeld(Range::Content);
        };
        assert(excluded(copy.file()) && (!exists || excluded(old)));  // L7
        copy.becomes(target, copy.file().sync());
        OsFile::syncFolderOf(target);
        try {
            const Journal::Found left = journal.look(owner);
            if (left == Journal::Found::Hot || left == Journal::Found::Foreign) journal.setAside(owner);
        } catch (const Failure&) {
            // The next process to open the file finds that the journal does not fit.
        }
        return {};
    });
}

}  // namespace jet
