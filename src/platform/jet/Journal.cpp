// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Journal.h"

#include <unistd.h>

#include <cassert>
#include <chrono>
#include <random>

#include "platform/jet/Failure.h"
#include "platform/jet/JournalReplay.h"
#include "platform/jet/LockWait.h"
#include "platform/jet/Notices.h"

namespace jet {

using Access = OsFile::Access;
using Links = OsFile::Links;
using Lock = OsFile::Lock;
using Range = OsFile::Range;

bool Journal::leadsTo(const OsFile& file) const {
    FileState now;
    return file.isOpen() && nameIs(m_path, now) && sameFile(now, file.state());
}

/// Whether the name leads to the journal that is open, and the rights of what has it.
bool Journal::leadsHere(FileRights& rights) const {
    FileState now;
    return isOpen() && nameIs(m_path, now, &rights) && sameFile(now, m_opened);
}

bool Journal::trusted(const FileRights& rights, const FileRights& database) {
    // Who we are is asked only where the database's owner did not make it.
    return isTrusted(rights, database, database.owner) || isTrusted(rights, database, ::geteuid());
}

void Journal::requireTrusted(const FileRights& rights, const FileRights& database) const {
    if (trusted(rights, database)) return;
    fail(ErrorCode::PathAccess,
         "Il file \"%1\" non è un giornale di questo database: è un collegamento o "
         "appartiene a chi non può scrivere il database. Il database "
         "non viene aperto finché il file resta al suo posto."_tr,
         m_path);
}

OsFile Journal::open(const FileRights& database, Access access) const {
    OsFile file(m_path, access, Links::Refuse);
    requireTrusted(file.rights(), database);
    return file;
}

Journal::Found Journal::stateOf(const OsFile& file) const {
    journal::Header header;
    switch (journal::readHeader(file, header)) {
        case journal::HeaderState::Empty:
            return Found::Idle;
        case journal::HeaderState::Valid:
            return Found::Hot;
        case journal::HeaderState::Strange:
            break;
    }
    return Found::Foreign;
}

Journal::Found Journal::look(const OsFile&, const FileRights& database) const {
    FileRights rights;
    if (leadsHere(rights)) {
        requireTrusted(rights, database);
        return stateOf(m_file);
    }
    if (!OsFile::exists(m_path)) return Found::None;
    try {
        return stateOf(open(database, Access::Read));
    } catch (const Failure& failure) {
        if (failure.status.code() == ErrorCode::FileNotFound) return Found::None;  // just removed
        throw;
    }
}

bool Journal::isLeftBehind() const {
    try {
        return OsFile::exists(m_path) && stateOf(OsFile(m_path, Access::Read, Links::Refuse)) != Found::Idle;
    } catch (const Failure&) {
        return true;
    }
}

Journal::Found Journal::keepRoom(const OsFile& database, const FileRights& rights) {
    if (leadsHere(m_rights)) {
        requireTrusted(m_rights, rights);
        if (!m_roomTaken) m_roomTaken = m_file.reserve(room);
        return stateOf(m_file);
    }
    close();
    // Others may make or remove it between two of these steps; then all is tried again.
    const auto attempt = [&] {
        OsFile file;
        const bool there = OsFile::exists(m_path);
        try {
            if (there) {
                file = open(rights, Access::ReadWrite);
            } else {
                file = OsFile(m_path, Access::Create, Links::Refuse);
                file.takeRights(database);
            }
        } catch (const Failure& failure) {
            const bool gone = there && failure.status.code() == ErrorCode::FileNotFound;
            if (gone || OsFile::exists(m_path) != there) return false;
            throw;
        }
        if (!file.tryLock(Lock::Shared, Range::Content) || !leadsTo(file)) return false;
        m_file = std::move(file);
        m_opened = m_file.state();
        m_rights = m_file.rights();
        return true;
    };
    if (!waitFor(LockWait{}, attempt))
        fail(ErrorCode::FileInUse, "Il file \"%1\" è in uso da un altro programma."_tr, m_path);
    m_roomTaken = m_file.reserve(room);
    return stateOf(m_file);
}

bool Journal::roomKept() const {
    FileRights rights;
    return m_roomTaken && leadsHere(rights);
}

void Journal::close() {
    m_file = OsFile();
    m_roomTaken = m_folderSynced = m_syncOwed = false;
}

void Journal::remove(const OsFile& database) {
    if (!isOpen() && OsFile::exists(m_path)) m_file = open(database.rights(), Access::ReadWrite);
    if (isOpen() && m_file.tryLock(Lock::Exclusive, Range::Content) && leadsTo(m_file) &&
        stateOf(m_file) == Found::Idle) {
        assert(database.isHeld(Range::Writer) && database.isHeld(Range::Content));  // R1
        OsFile::remove(m_path);
    }
    close();
}

void Journal::start(const OsFile& database, const FileRights& rights, uint32_t pages, const Page& firstPage) {
    if (m_syncOwed) m_file.sync();
    m_syncOwed = false;
    m_file.takeRights(database, m_rights, rights);
    assert((m_file.rights().mode & ~rights.mode) == 0);  // J8
    // Kept: making one asks the processor what it can do, a quarter of a small transaction.
    static std::random_device random;
    m_header = {pages, static_cast<uint64_t>(random()) << 32 | random(), 0};
    m_header.firstPage = journal::digest(firstPage, m_header.nonce);
    m_end = journal::recordsStart;
    m_synced = 0;
    m_records.clear();
    m_stage = Stage::Recording;
}

void Journal::add(uint32_t page, const Page& original) {
    assert(started() && page < m_header.pages);
    if (m_records.size() >= recordsTogether * journal::originalLength) writeRecords();
    journal::appendOriginal(m_records, m_end + m_records.size(), m_header.nonce, page, original);
}

void Journal::announce(uint32_t page, const Page& content) {
    assert(started());
    journal::appendAnnouncement(m_records, m_end + m_records.size(), m_header.nonce, page, content);
}

void Journal::writeRecords() {
    if (!m_records.empty()) m_file.write(m_end, m_records);
    m_end += m_records.size();
    m_records.clear();
}

void Journal::sync() {
    assert(started());
    if (m_stage != Stage::Hot && m_end == journal::recordsStart) {
        // The header is before the first records: one write does for all.
        const journal::HeaderBytes header = journal::encode(m_header);
        m_records.insert(m_records.begin(), header.begin(), header.end());
        m_end = 0;
        m_stage = Stage::Hot;
    }
    writeRecords();
    if (m_stage != Stage::Hot) {
        m_stage = Stage::Hot;
        m_file.write(0, journal::encode(m_header));
    }
    m_file.sync();
    m_synced = m_end;
    if (m_folderSynced) return;
    OsFile::syncFolderOf(m_path);
    m_folderSynced = true;
}

void Journal::empty(OsFile& file) {
    file.write(0, journal::HeaderBytes{});
}

void Journal::finish(OsFile::Synced) {
    assert(inForce());
    try {
        empty(m_file);
    } catch (const Failure&) {
        // A partial write may be enough: every process sees the header as it is read here.
        if (stateOf(m_file) != Found::Idle) throw;
        m_syncOwed = true;
    }
    m_stage = Stage::Idle;
    try {
        m_file.sync();
        m_syncOwed = false;
        if (m_end > room) m_file.truncate(room);
    } catch (const Failure&) {
        m_syncOwed = true;
    }
}

// Where the header stays, putting back the records will change nothing.
void Journal::discard() noexcept {
    assert(started());
    try {
        if (m_stage == Stage::Hot) empty(m_file);
        if (m_end > room) m_file.truncate(room);
    } catch (const Failure&) {
    }
    m_records.clear();
    m_stage = Stage::Idle;
}

void Journal::recover(OsFile& database) {
    // The journal of an own transaction counts even after its name was taken away.
    const bool own = started();
    m_stage = Stage::Idle;
    m_records.clear();
    OsFile other;
    FileRights rights;
    if (!own && !leadsHere(rights)) other = open(database.rights(), Access::ReadWrite);
    OsFile& file = other.isOpen() ? other : m_file;
    assert(own || trusted(file.rights(), database.rights()));  // J6
    journal::Header header;
    switch (journal::readHeader(file, header)) {
        case journal::HeaderState::Empty:
            return;
        case journal::HeaderState::Strange:
            return setAside(database);
        case journal::HeaderState::Valid:
            break;
    }
    assert(database.isHeld(Range::Writer) && database.isHeld(Range::Content));  // J3
    const JournalReplay replay(file, header, database);
    if (!replay.fits()) return setAside(database);
    replay.putBack(database);
    assert(JournalReplay(file, header, database).fits());  // J7: it can be repeated
    empty(file);
    file.sync();
    if (file.state().size > room) file.truncate(room);
}

void Journal::setAside([[maybe_unused]] const OsFile& database) {
    assert(database.isHeld(Range::Writer));  // J5: nobody else does so, nor makes another one
    const std::string wanted = m_path + ".scartato";
    std::string name = wanted;
    for (int n = 2; !OsFile::rename(m_path, name, false); ++n) {  // J5: no other one is replaced
        if (n > 999) fail(ErrorCode::PathAccess, "Troppi file \"%1\"."_tr, wanted);
        name = wanted + "-" + std::to_string(n);
    }
    close();
    notice(
        Phrase("Accanto al database c'era un giornale di modifiche interrotte che non gli appartiene. Il "
               "database resta com'è; il giornale è stato messo da parte come \"%1\"."_tr,
               name));
    try {
        OsFile::syncFolderOf(m_path);
    } catch (const Failure&) {
        // A journal that comes back is set aside once more.
    }
}

}  // namespace jet
