#include "platform/jet/Journal.h"

#include <random>

#include "platform/jet/Failure.h"

namespace jet {

namespace {

constexpr size_t headerLength = 32;
constexpr size_t checkedHeader = 24;
constexpr size_t checkedRecord = 4 + pageSize;
constexpr size_t recordLength = checkedRecord + 8;
constexpr char magic[] = "VJOURNAL";

using HeaderBytes = std::array<uint8_t, headerLength>;
using RecordBytes = std::array<uint8_t, recordLength>;

// Guards against torn and never written records, not against an attacker. `length` is a multiple of 4.
uint64_t checksum(const uint8_t* bytes, size_t length, uint64_t nonce) {
    uint64_t sum = nonce ^ 0x9E3779B97F4A7C15u;
    for (size_t i = 0; i < length; i += 4) {
        sum = (sum ^ load32(bytes + i)) * 0xD6E8FEB86659FD93u;
        sum ^= sum >> 32;
    }
    return sum;
}

}  // namespace

void Journal::start(const OsFile& database, uint32_t pages) {
    OsFile file(m_path, OsFile::Access::Create);
    file.copyRights(database);
    std::random_device random;
    m_header = {pages, static_cast<uint64_t>(random()) << 32 | random()};
    HeaderBytes bytes{};
    std::memcpy(bytes.data(), magic, 8);
    store32(&bytes[8], pageSize);
    store32(&bytes[12], pages);
    store64(&bytes[16], m_header.nonce);
    store64(&bytes[24], checksum(bytes.data(), checkedHeader, 0));
    file.write(0, bytes);
    m_end = headerLength;
    m_folderSynced = false;
    m_file = std::move(file);
}

void Journal::add(uint32_t page, const Page& original) {
    RecordBytes record;
    store32(record.data(), page);
    std::memcpy(&record[4], original.data(), pageSize);
    store64(&record[checkedRecord], checksum(record.data(), checkedRecord, m_header.nonce));
    m_file.write(m_end, record);
    m_end += recordLength;
}

void Journal::sync() {
    m_file.sync();
    if (m_folderSynced) return;
    OsFile::syncFolderOf(m_path);
    m_folderSynced = true;
}

void Journal::finish() {
    OsFile::remove(m_path);
    m_file = OsFile();
    try {
        OsFile::syncFolderOf(m_path);
    } catch (const Failure&) {
        // It has happened, and whoever reads the file next sees it. The next transaction fails in step 3.
    }
}

void Journal::discard() {
    m_file = OsFile();
    OsFile::remove(m_path);
}

bool Journal::readHeader(const OsFile& file, Header& header) {
    HeaderBytes bytes;
    if (file.read(0, bytes) != headerLength || std::memcmp(bytes.data(), magic, 8) != 0) return false;
    if (load32(&bytes[8]) != pageSize || load64(&bytes[24]) != checksum(bytes.data(), checkedHeader, 0))
        return false;
    header = {load32(&bytes[12]), load64(&bytes[16])};
    return header.pages <= maxPages;
}

bool Journal::isHot() const {
    if (!exists()) return false;
    Header header;
    return readHeader(OsFile(m_path, OsFile::Access::Read), header);
}

void Journal::rollBack(OsFile& database) {
    m_file = OsFile();
    Header header;
    const OsFile journal(m_path, OsFile::Access::Read);
    if (readHeader(journal, header)) {
        const FileState before = database.state();
        RecordBytes record;
        for (uint64_t at = headerLength; journal.read(at, record) == recordLength; at += recordLength) {
            if (load64(&record[checkedRecord]) != checksum(record.data(), checkedRecord, header.nonce)) break;
            const uint32_t page = load32(record.data());
            if (page >= header.pages) break;
            database.write(uint64_t{page} * pageSize, std::span(record).subspan(4, pageSize));
        }
        if (before.size > uint64_t{header.pages} * pageSize)
            database.truncate(uint64_t{header.pages} * pageSize);
        database.stampAfter(before.modifiedNs);
        database.sync();
    }
    finish();
}

}  // namespace jet
