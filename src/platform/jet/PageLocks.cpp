// The locks of a PageFile: other processes are kept out, what a dead one left is rolled back.
#include "platform/jet/Failure.h"
#include "platform/jet/PageFile.h"

namespace jet {

namespace {

// NAME.ldb beside NAME.mdb: made by other programs while they have the database open.
std::string foreignLockFile(const std::string& path) {
    const size_t slash = path.rfind('/');
    const size_t dot = path.rfind('.');
    const bool hasSuffix = dot != std::string::npos && (slash == std::string::npos || dot > slash);
    return path.substr(0, hasSuffix ? dot : path.size()) + ".ldb";
}

}  // namespace

// A writer closes the gate first, so that it does not wait for ever while others come and go to read.
void PageFile::lock(OsFile& file, OsFile::Lock kind) const {
    using Lock = OsFile::Lock;
    using Range = OsFile::Range;
    const auto until = [&](const auto& attempt) {
        if (!waitFor(m_limits.lockWait, attempt))
            fail(ErrorCode::FileInUse, "Il database \"", m_path, "\" è in uso da un altro programma.");
    };
    if (kind == Lock::Exclusive) {
        until([&] { return file.tryLock(kind, Range::Gate); });
        until([&] { return file.tryLock(kind, Range::Content); });
        return;
    }
    until([&] {
        if (!file.tryLock(kind, Range::Gate)) return false;
        const bool got = file.tryLock(kind, Range::Content);
        file.tryLock(Lock::None, Range::Gate);
        return got;
    });
}

// Locks the file that the path names now, which may have been replaced since it was opened. Returns its
// state.
FileState PageFile::lockCurrent(OsFile::Lock kind) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        lock(m_file, kind);
        FileState now;
        if (!fileState(m_path, now))
            fail(ErrorCode::FileNotFound, "Impossibile trovare il file \"", m_path, "\".");
        if (now.inode == m_opened.inode && now.device == m_opened.device) return now;
        m_file = OsFile();
        dropCache();
        open();
    }
    fail(ErrorCode::FileInUse, "Il database \"", m_path,
         "\" viene sostituito di continuo da un altro programma.");
}

void PageFile::unlock() {
    if (!m_file.isOpen()) return;
    m_file.tryLock(m_readers > 0 ? OsFile::Lock::Shared : OsFile::Lock::None, OsFile::Range::Content);
    m_file.tryLock(OsFile::Lock::None, OsFile::Range::Gate);
}

void PageFile::beginRead() {
    if (m_readers == 0 && !m_writing) {
        try {
            if (!m_file.isOpen()) open();
            FileState now = lockCurrent(OsFile::Lock::Shared);
            // With this lock held no writer is alive: a journal is what a dead one left.
            while (canHaveJournal() && m_journal.exists() && (!m_readOnly || m_journal.isHot())) {
                recover();
                now = lockCurrent(OsFile::Lock::Shared);
            }
            refreshState(now);
        } catch (...) {
            unlock();
            throw;
        }
    }
    ++m_readers;
}

void PageFile::endRead() {
    if (--m_readers == 0 && !m_writing) unlock();
}

// Invariant J3. Another process may have done it while this one waited for the exclusive lock.
void PageFile::recover() {
    OsFile file;
    try {
        file = OsFile(m_path, OsFile::Access::ReadWrite);
    } catch (const Failure&) {
        fail(ErrorCode::ReadOnlyDatabase, "Il database \"", m_path,
             "\" va ripristinato dopo un'interruzione, ma non può essere scritto.");
    }
    m_file.tryLock(OsFile::Lock::None, OsFile::Range::Content);
    lock(file, OsFile::Lock::Exclusive);
    if (m_journal.exists()) m_journal.rollBack(file);
}

void PageFile::refuseIfOpenElsewhere() const {
    const std::string path = foreignLockFile(m_path);
    if (!OsFile::exists(path)) return;
    try {
        const bool held = OsFile(path, OsFile::Access::Read).lockedByOthers();
        if (!held) OsFile::remove(path);
        if (!held) return;
    } catch (const Failure&) {
        // It cannot be opened or removed: its maker still has it.
    }
    fail(ErrorCode::FileInUse, "Il database \"", m_path, "\" è aperto in un altro programma (", path,
         "): non può essere modificato.");
}

}  // namespace jet
