#pragma once

#include <cstdint>
#include <string>

#include "platform/jet/Format.h"
#include "platform/jet/OsFile.h"

namespace jet {

/// The rollback journal `<file>-journal`: the original bytes of every page that a transaction changes.
///
/// Header, 32 bytes:
///   0  8  "VJOURNAL"
///   8  u32 page size
///  12  u32 pages of the file before the transaction
///  16  u64 nonce, part of each checksum
///  24  u64 checksum of the 24 bytes before it
/// then for each page, 4108 bytes:
///   0  u32 page number
///   4  4096 bytes as they were
///   4100 u64 checksum of the 4100 bytes before it
///
/// Steps of a transaction (PageFile drives them) and what a crash leaves:
///   1  exclusive lock taken, no journal is left from others
///   2  journal created, originals appended                    [start, add]
///   3  journal synced, its folder synced                      [sync]
///   4  changed pages written to the file, the file grows
///   5  the file synced
///   6  journal removed: the transaction has happened          [finish]
///   7  folder synced: it has happened for good
/// Invariants:
///   J1 a page that existed before is written (4) only when its original stands in the synced journal (3)
///   J2 the journal is removed (6) only when the file is synced (5)
///   J3 who finds a journal and gets the exclusive lock rolls it back before reading anything else
/// A crash before 3 is complete leaves an untouched file, and a journal of which only intact records count:
/// putting them back changes nothing. Between 3 and 6 the journal leads back to the state before. Between 6
/// and 7 a power failure may bring the journal back and with it the state before; from 7 on only the new
/// state is possible. A folder that cannot be synced in 7 makes no failure of what has happened: it is told
/// by the next transaction, whose step 3 syncs the same folder before anything is changed. Steps 3 and 4 may
/// be repeated for a large transaction.
class Journal {
  public:
    explicit Journal(const std::string& databasePath) : m_path(databasePath + "-journal") {}

    bool exists() const { return OsFile::exists(m_path); }
    bool started() const { return m_file.isOpen(); }
    void start(const OsFile& database, uint32_t pages);
    void add(uint32_t page, const Page& original);
    void sync();
    /// Steps 6 and 7. Fails in step 6 only.
    void finish();
    /// Drops a journal whose pages were never changed in the file.
    void discard();

    /// Puts back what the journal holds, makes that durable and removes the journal. An incomplete one is
    /// only removed. Can be repeated after a crash in the middle of it.
    void rollBack(OsFile& database);
    /// Whether the journal found has a valid header, so that the file cannot be read without rolling it back.
    bool isHot() const;

  private:
    struct Header {
        uint32_t pages = 0;
        uint64_t nonce = 0;
    };
    static bool readHeader(const OsFile& file, Header& header);

    std::string m_path;
    OsFile m_file;
    Header m_header;
    uint64_t m_end = 0;
    bool m_folderSynced = false;
};

}  // namespace jet
