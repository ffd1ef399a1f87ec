// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/jet/Format.h"
#include "platform/jet/JournalFormat.h"
#include "platform/jet/OsFile.h"

namespace jet {

/// The rollback journal `<file>-journal`: the original bytes of every page that a transaction changes, and
/// digests of what is written instead. Its layout is in JournalFormat.h.
///
/// The file stays while its database is open for writing, with an empty header, so that the room for the next
/// small transaction is taken already. Each process that has it open has a shared lock on it; only one that
/// gets that lock alone removes it. A journal is hot while its header is not empty.
///
/// Steps of a transaction (PageFile drives them) and what a crash leaves:
///   1  writer's lock taken; no hot journal is there; the name leads to the open journal   [keepRoom]
///   2  originals appended, new contents announced                          [start, add, announce]
///   3  author's lock taken, header written, journal synced (and its folder, the first time)    [sync]
///   4  exclusive lock taken, changed pages written to the file, the file grows
///   5  the file synced
///   6  header emptied: the transaction has happened                        [finish]
///   7  journal synced: it has happened for good
/// Invariants:
///   J1 a page is written (4) only when its original and the digests of this new content are in the synced
///      journal (3)
///   J2 the header is emptied (6) only when the file is synced (5)
///   J3 one that finds a hot journal whose author's lock is free takes the writer's lock and the exclusive
///      one, and rolls it back before reading anything else
///   J4 nothing is rolled back unless all sectors of the file that the journal names contain the original or
///      an announced content; else the whole journal is set aside under another name, and a notice says so
///   J5 a journal is touched only when it is a plain file of somebody who may write the database
/// A crash before 3 is complete leaves an untouched file, and a journal of which only whole records count:
/// putting them back changes nothing. Between 3 and 6 the journal leads back to the state before. Between 6
/// and 7 a power failure may bring the header back and with it the state before; from 7 on only the new
/// state is possible. A journal that cannot be synced in 7 makes no failure of what has happened: the next
/// transaction syncs it first, and fails where that fails. Steps 2 to 4 may be repeated for a large
/// transaction.
class Journal {
  public:
    /// Kept for the next transaction: enough for one row, the indexes it is in included.
    static constexpr uint64_t room = 128 * 1024;

    explicit Journal(const std::string& databasePath) : m_path(databasePath + "-journal") {}

    const std::string& path() const { return m_path; }

    /// Foreign: not empty, and not of this layout.
    enum class Found { None, Idle, Hot, Foreign };
    /// What is under the name. Fails (PathAccess) for what must not be touched (J5), naming it.
    Found look(const OsFile& database) const { return look(database, database.rights()); }
    /// The same where the database's rights are known.
    Found look(const OsFile& database, const FileRights& rights) const;
    /// Whether something that is not empty is under the name; without a database to judge it by.
    bool isLeftBehind() const;

    /// Opens the journal that the name leads to, makes it where there is none, and takes its room. Fails
    /// where it cannot be opened; only roomKept() reports lack of room. Returns what is in it.
    Found keepRoom(const OsFile& database, const FileRights& rights);
    /// Whether the room is taken and the name still leads to it.
    bool roomKept() const;
    /// Closes the journal and removes it where it is not hot and nobody else keeps it open. The caller holds
    /// the writer's lock and the exclusive one.
    void remove(const OsFile& database);
    /// Closes the journal.
    void close();

    /// Begins a transaction, after keepRoom(): `rights` and `firstPage` are the database's. Nothing is
    /// written yet.
    void start(const OsFile& database, const FileRights& rights, uint32_t pages, const Page& firstPage);
    bool started() const { return m_stage != Stage::Idle; }
    /// Whether the journal is hot, and synced with everything that was added and announced.
    bool inForce() const { return m_stage == Stage::Hot && m_synced == m_end && m_records.empty(); }
    void add(uint32_t page, const Page& original);
    void announce(uint32_t page, const Page& content);
    void sync();
    /// Steps 6 and 7, after the database was synced (J2). Fails in step 6 only.
    void finish(OsFile::Synced database);
    /// Drops a transaction of which no page was written to the file.
    void discard() noexcept;

    /// Rolls a hot journal back, or sets it aside (J4). The caller holds the writer's lock and the exclusive
    /// one. Can be repeated after a crash within it.
    void recover(OsFile& database);
    /// Renames the journal to `<file>-journal.scartato`, or with a number appended where that is taken, and
    /// reports it. The caller holds the writer's lock.
    void setAside(const OsFile& database);

  private:
    /// So many originals are written together.
    static constexpr size_t recordsTogether = 64;

    bool isOpen() const { return m_file.isOpen(); }
    void writeRecords();
    bool leadsTo(const OsFile& file) const;
    bool leadsHere(FileRights& rights) const;
    OsFile open(const FileRights& database, OsFile::Access access) const;
    static bool trusted(const FileRights& rights, const FileRights& database);
    void requireTrusted(const FileRights& rights, const FileRights& database) const;
    static void empty(OsFile& file);
    Found stateOf(const OsFile& file) const;

    std::string m_path;
    OsFile m_file;
    FileState m_opened;   ///< of m_file: device and inode stay
    FileRights m_rights;  ///< of m_file, when its room was last asked for
    bool m_roomTaken = false;
    bool m_folderSynced = false;
    bool m_syncOwed = false;  // step 7 has failed

    /// Of the own transaction: there is none, it is not in the file yet, its header is.
    enum class Stage { Idle, Recording, Hot };
    Stage m_stage = Stage::Idle;
    journal::Header m_header;
    std::vector<uint8_t> m_records;  ///< that are still to be written, at m_end
    uint64_t m_end = 0;
    uint64_t m_synced = 0;
};

}  // namespace jet
