// SPDX-License-Identifier: GPL-3.0-or-later
// The locks of a PageFile: other processes are kept out, what a dead one left is rolled back.
#include <cassert>
#include <chrono>

#include "platform/jet/Failure.h"
#include "platform/jet/FileLocks.h"
#include "platform/jet/PageFile.h"

namespace jet {

using Lock = OsFile::Lock;
using Range = OsFile::Range;

// Locks the file that the path names now, which may have been replaced since it was opened. Returns its
// state.
FileState PageFile::lockCurrent(Range range) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        if (range == Range::Writer) {
            // Two that keep reading and wait for each other's end would wait for ever.
            lockWriter(m_file,
                       m_readers > 0 ? LockWait{.limit = std::chrono::milliseconds(0)} : m_limits.lockWait);
        } else {
            lockContent(m_file, Lock::Shared, m_limits.lockWait);
        }
        FileState now;
        if (!fileState(m_path, now, &m_rights)) failMissing();
        if (sameFile(now, m_opened)) return now;
        m_file = OsFile();
        dropCache();
        open();
        if (range == Range::Writer) requireWritable();
    }
    fail(ErrorCode::FileInUse, "Il database \"%1\" viene sostituito di continuo da un altro programma."_tr,
         m_path);
}

// Releases everything but what the readers of this file need.
void PageFile::unlock() {
    if (!m_file.isOpen()) return;
    if (m_readers == 0) {
        m_file.tryLock(Lock::None, Range::Everything);
    } else {
        m_file.tryLock(Lock::Shared, Range::Content);
        m_file.tryLock(Lock::None, Range::Aside);
    }
}

void PageFile::beginRead() {
    if (m_readers == 0 && !m_writing) {
        try {
            if (!m_file.isOpen()) open();
            FileState now = lockCurrent(Range::Content);
            while (isJournalLeft()) {
                recover();
                now = lockCurrent(Range::Content);
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
    // A reader has nothing but the content.
    if (--m_readers == 0 && !m_writing && m_file.isOpen()) m_file.tryLock(Lock::None, Range::Content);
}

// With the content locked: whether a dead writer left a journal. That of a living one says nothing yet about
// the file, since pages are written only while nobody reads.
bool PageFile::isJournalLeft() const {
    if (!canHaveJournal()) return false;
    const Journal::Found found = m_journal.look(m_file, m_rights);
    if (found != Journal::Found::Hot && found != Journal::Found::Foreign) return false;
    return !m_file.lockedByOthers(Range::Author);
}

// Invariant J3, for a reader. Another process may have done it while this one waited.
void PageFile::recover() {
    assert(m_readers == 0 && !m_writing);  // J3
    OsFile file;
    try {
        file = OsFile(m_path, OsFile::Access::ReadWrite);
    } catch (const Failure&) {
        fail(ErrorCode::ReadOnlyDatabase,
             "Il database \"%1\" va ripristinato dopo un'interruzione, ma non può essere scritto."_tr,
             m_path);
    }
    m_file.tryLock(Lock::None, Range::Content);
    lockWriter(file, m_limits.lockWait);
    lockContent(file, Lock::Exclusive, m_limits.lockWait);
    FileState now;
    if (!fileState(m_path, now) || !sameFile(now, file.state())) return;
    if (m_journal.look(file) == Journal::Found::None) return;
    m_journal.recover(file);
    if (m_readOnly) m_journal.remove(file);
}

// The writer's lock, and a file in order. The process that has it is the only one that writes, so the content
// needs no lock for reading. Returns the file's state.
FileState PageFile::lockForWriting() {
    if (!m_file.isOpen()) open();
    const FileState now = lockCurrent(Range::Writer);
    const Journal::Found found = m_journal.keepRoom(m_file, m_rights);
    if (found != Journal::Found::Hot && found != Journal::Found::Foreign) return now;
    lockContent(m_file, Lock::Exclusive, m_limits.lockWait);
    m_journal.recover(m_file);
    m_journal.keepRoom(m_file, m_rights);
    m_file.tryLock(m_readers > 0 ? Lock::Shared : Lock::None, Range::Content);
    m_file.tryLock(Lock::None, Range::Gate);
    return m_file.state();
}

// Before pages are written. Fails when another file has the name now, or none has this one's content any
// more: a change of it would be lost. One that was moved away takes the change with it; its journal waits
// under the old name.
void PageFile::lockPages() {
    const auto requireInPlace = [&] {
        FileState now;
        if (fileState(m_path, now) ? sameFile(now, m_opened) : m_file.rights().links > 0) return;
        fail(ErrorCode::FileNotFound,
             "Il database \"%1\" è stato sostituito o cancellato: la modifica non è stata fatta."_tr, m_path);
    };
    if (m_pagesWritten) requireInPlace();
    if (!m_file.tryLock(Lock::Exclusive, Range::Author))
        fail(ErrorCode::FileInUse, "Il database \"%1\" è in uso da un altro programma."_tr, m_path);
    m_journal.sync();
    if (m_pagesWritten) return;
    assert(m_file.isHeld(Range::Writer));  // L2: never waited for with the content locked
    lockContent(m_file, Lock::Exclusive, m_limits.lockWait);
    requireInPlace();
}

// When the file is closed: nobody else keeps room, so the journal goes.
void PageFile::letGoOfRoom() noexcept {
    try {
        FileState now;
        if (m_file.isOpen() && !readOnly() && fileState(m_path, now) && sameFile(now, m_opened) &&
            m_file.tryLock(Lock::Exclusive, Range::Writer) && m_file.tryLock(Lock::Exclusive, Range::Content))
            m_journal.remove(m_file);
    } catch (const Failure&) {
        // An empty journal that stays does no harm.
    }
}

}  // namespace jet
