// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/JournalReplay.h"

#include <algorithm>
#include <cassert>
#include <cerrno>

#include "platform/jet/DiskTrouble.h"

namespace jet {

using journal::sectorSize;
using journal::sectorsPerPage;

JournalReplay::JournalReplay(const OsFile& journal, const journal::Header& header, const OsFile& database)
    : m_journal(journal), m_header(header) {
    const uint64_t size = database.state().size;
    if (size < uint64_t{m_header.pages} * pageSize || !firstPageFits(database) || !readRecords()) return;
    for (const auto& [page, record] : m_pages)
        if (page < m_header.pages && !oldPageFits(database, page, record)) return;
    m_fits = appendedFit(database, size);
}

// Whether all records make sense. Those that are incomplete end the list: nothing was written for them.
bool JournalReplay::readRecords() {
    journal::Record record;
    for (uint64_t at = journal::recordsStart; journal::readRecord(m_journal, m_header.nonce, at, record);) {
        const bool old = record.page < m_header.pages;
        const auto known = m_pages.find(record.page);
        if (record.page == 0 || record.page >= maxPages) return false;
        if (record.original) {
            if (!old || known != m_pages.end()) return false;
            m_pages[record.page].originalAt = record.bytesAt;
        } else {
            if (old && known == m_pages.end()) return false;
            m_pages[record.page].announced.push_back(record.digests);
        }
    }
    return true;
}

bool JournalReplay::firstPageFits(const OsFile& database) const {
    Page page;
    return database.read(0, page) == page.size() &&
           journal::digest(page, m_header.nonce) == m_header.firstPage;
}

bool JournalReplay::isAnnounced(const PageRecord& record, size_t sector,
                                std::span<const uint8_t> bytes) const {
    const uint64_t found = journal::digest(bytes, m_header.nonce);
    return std::any_of(record.announced.begin(), record.announced.end(),
                       [&](const journal::Digests& digests) { return digests[sector] == found; });
}

bool JournalReplay::oldPageFits(const OsFile& database, uint32_t page, const PageRecord& record) const {
    Page original;
    Page now;
    if (m_journal.read(record.originalAt, original) != pageSize ||
        database.read(uint64_t{page} * pageSize, now) != pageSize)
        return false;
    for (size_t i = 0; i < sectorsPerPage; ++i) {
        const auto bytes = std::span(now).subspan(i * sectorSize, sectorSize);
        const bool same = std::equal(bytes.begin(), bytes.end(), original.begin() + i * sectorSize);
        if (!same && !isAnnounced(record, i, bytes)) return false;
    }
    return true;
}

bool JournalReplay::appendedFit(const OsFile& database, uint64_t size) const {
    const uint64_t appended = uint64_t{m_header.pages} * pageSize;
    for (uint64_t at = appended; at < size; at += pageSize) {
        const auto known = m_pages.find(static_cast<uint32_t>(at / pageSize));
        if (known == m_pages.end()) return false;
        Page now;
        const size_t length = database.read(at, now);
        // A last sector that is cut short has no digest of its own.
        for (size_t i = 0; (i + 1) * sectorSize <= length; ++i) {
            const auto bytes = std::span(now).subspan(i * sectorSize, sectorSize);
            const bool zeros =
                std::all_of(bytes.begin(), bytes.end(), [](uint8_t byte) { return byte == 0; });
            if (!zeros && !isAnnounced(known->second, i, bytes)) return false;
        }
    }
    return true;
}

void JournalReplay::putBack(OsFile& database) const {
    assert(m_fits);  // J4
    const FileState before = database.state();
    for (const auto& [page, record] : m_pages) {
        if (page >= m_header.pages) continue;
        Page original;
        Page now;
        if (m_journal.read(record.originalAt, original) != pageSize)
            failIo("lettura"_tr, m_journal.path(), EIO);
        const uint64_t at = uint64_t{page} * pageSize;
        if (database.read(at, now) != pageSize || now != original) database.write(at, original);
    }
    const uint64_t size = uint64_t{m_header.pages} * pageSize;
    if (before.size > size) database.truncate(size);
    database.stampAfter(before.modifiedNs);
    // Also where all is as it was: it may be so in the system's memory only.
    database.sync();
}

}  // namespace jet
