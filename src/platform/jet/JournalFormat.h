// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/jet/Format.h"
#include "platform/jet/OsFile.h"

/// Layout of the rollback journal `<file>-journal`.
///
/// Header, at the start of the first 512 bytes; all zeros (or a shorter file) is an empty one:
///   0  8  "VJOURN02"
///   8  u32 page size
///  12  u32 pages of the file before the transaction
///  16  u64 nonce, part of each checksum and digest
///  24  u64 digest of the file's page 0, which is never changed
///  32  u64 checksum of the 32 bytes before it
/// Records from 512 on, until one has a wrong checksum. The original of a page, 4112 bytes:
///   0  u32 1
///   4  u32 page number
///   8  4096 bytes as they were
///   4104 u64 checksum of the 4104 bytes before it
/// The announcement of what will be written to a page, 80 bytes:
///   0  u32 2
///   4  u32 page number
///   8  8 times u64: digest of each sector (512 bytes) of the new content
///  72  u64 checksum of the 72 bytes before it
/// The checksum of a record covers its offset as well. Numbers are little endian. What follows the last
/// record is left from earlier transactions, with another nonce.
namespace jet::journal {

inline constexpr size_t sectorSize = 512;
inline constexpr size_t sectorsPerPage = pageSize / sectorSize;
inline constexpr uint64_t recordsStart = sectorSize;
inline constexpr size_t originalLength = 8 + pageSize + 8;
inline constexpr size_t announcementLength = 8 + sectorsPerPage * 8 + 8;

using Digests = std::array<uint64_t, sectorsPerPage>;
using HeaderBytes = std::array<uint8_t, sectorSize>;

struct Header {
    uint32_t pages = 0;
    uint64_t nonce = 0;
    uint64_t firstPage = 0;
};

/// Strange: neither empty nor one of ours.
enum class HeaderState { Empty, Valid, Strange };

HeaderBytes encode(const Header& header);
HeaderState readHeader(const OsFile& journal, Header& header);

/// Digest of a sector, or of any bytes whose number is a multiple of 4. It identifies versions of a page; it
/// is no guard against somebody who forges a journal.
uint64_t digest(std::span<const uint8_t> bytes, uint64_t nonce);
Digests digestsOf(const Page& page, uint64_t nonce);

/// Appends a record to `out` that will be at `at`.
void appendOriginal(std::vector<uint8_t>& out, uint64_t at, uint64_t nonce, uint32_t page, const Page& bytes);
void appendAnnouncement(std::vector<uint8_t>& out, uint64_t at, uint64_t nonce, uint32_t page,
                        const Page& bytes);

struct Record {
    bool original = false;  ///< else an announcement
    uint32_t page = 0;
    uint64_t bytesAt = 0;  ///< of an original: where its 4096 bytes are
    Digests digests = {};  ///< of an announcement
};
/// Reads the record at `at` and moves `at` past it; false when there is none that is whole.
bool readRecord(const OsFile& journal, uint64_t nonce, uint64_t& at, Record& record);

}  // namespace jet::journal
