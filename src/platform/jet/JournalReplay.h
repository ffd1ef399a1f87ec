// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "platform/jet/JournalFormat.h"
#include "platform/jet/OsFile.h"

namespace jet {

/// A hot journal, checked against the file beside it and rolled back. Both files stay the caller's. Members
/// throw Failure when the disk fails.
class JournalReplay {
  public:
    /// Reads the records of the journal and all sectors that they name; nothing is written.
    JournalReplay(const OsFile& journal, const journal::Header& header, const OsFile& database);

    /// Whether the journal is of this file: its first page and its number of pages are plausible, each sector
    /// of a page that was there before has the original or an announced content, each one after them an
    /// announced content or zeros, unless the file ends before.
    bool fits() const { return m_fits; }

    /// Writes the originals, cuts off what was appended and syncs the file. Only when it fits(). Can be
    /// repeated after a crash within it: each sector then has the original or its former content.
    void putBack(OsFile& database) const;

  private:
    struct PageRecord {
        uint64_t originalAt = 0;  ///< 0: appended by the transaction
        std::vector<journal::Digests> announced;
    };

    bool readRecords();
    bool firstPageFits(const OsFile& database) const;
    bool oldPageFits(const OsFile& database, uint32_t page, const PageRecord& record) const;
    bool appendedFit(const OsFile& database, uint64_t size) const;
    bool isAnnounced(const PageRecord& record, size_t sector, std::span<const uint8_t> bytes) const;

    const OsFile& m_journal;
    journal::Header m_header;
    std::map<uint32_t, PageRecord> m_pages;
    bool m_fits = false;
};

}  // namespace jet
