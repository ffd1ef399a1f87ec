// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/JournalFormat.h"

#include <algorithm>

namespace jet::journal {

namespace {

constexpr char magic[] = "VJOURN02";
constexpr size_t checkedHeader = 32;
constexpr size_t headerLength = checkedHeader + 8;
constexpr uint32_t originalKind = 1;
constexpr uint32_t announcementKind = 2;

uint64_t firstSum(uint64_t nonce) {
    return nonce ^ 0x9E3779B97F4A7C15u;
}

uint64_t nextSum(uint64_t sum, uint32_t four) {
    sum = (sum ^ four) * 0xD6E8FEB86659FD93u;
    return sum ^ sum >> 32;
}

void begin(std::vector<uint8_t>& out, uint32_t kind, uint32_t page) {
    const size_t start = out.size();
    out.resize(start + 8);
    store32(&out[start], kind);
    store32(&out[start + 4], page);
}

// Closes the record that began at `start` of `out`.
void end(std::vector<uint8_t>& out, size_t start, uint64_t at, uint64_t nonce) {
    const uint64_t sum = digest(std::span(out).subspan(start), nonce + at);
    out.resize(out.size() + 8);
    store64(&out[out.size() - 8], sum);
}

}  // namespace

uint64_t digest(std::span<const uint8_t> bytes, uint64_t nonce) {
    uint64_t sum = firstSum(nonce);
    for (size_t i = 0; i + 4 <= bytes.size(); i += 4)
        sum = nextSum(sum, load32(&bytes[i]));
    return sum;
}

// All sectors at the same time: the digest of one waits for itself at each step, those of eight do not.
Digests digestsOf(const Page& page, uint64_t nonce) {
    Digests digests;
    digests.fill(firstSum(nonce));
    for (size_t i = 0; i < sectorSize; i += 4)
        for (size_t sector = 0; sector < sectorsPerPage; ++sector)
            digests[sector] = nextSum(digests[sector], load32(&page[sector * sectorSize + i]));
    return digests;
}

HeaderBytes encode(const Header& header) {
    HeaderBytes bytes{};
    std::memcpy(bytes.data(), magic, 8);
    store32(&bytes[8], pageSize);
    store32(&bytes[12], header.pages);
    store64(&bytes[16], header.nonce);
    store64(&bytes[24], header.firstPage);
    store64(&bytes[checkedHeader], digest(std::span(bytes).first(checkedHeader), 0));
    return bytes;
}

HeaderState readHeader(const OsFile& journal, Header& header) {
    HeaderBytes bytes{};
    const size_t length = journal.read(0, std::span(bytes).first(headerLength));
    if (std::all_of(bytes.begin(), bytes.end(), [](uint8_t byte) { return byte == 0; }))
        return HeaderState::Empty;
    if (length != headerLength || std::memcmp(bytes.data(), magic, 8) != 0 || load32(&bytes[8]) != pageSize ||
        load64(&bytes[checkedHeader]) != digest(std::span(bytes).first(checkedHeader), 0))
        return HeaderState::Strange;
    header = {load32(&bytes[12]), load64(&bytes[16]), load64(&bytes[24])};
    return header.pages > 0 && header.pages <= maxPages ? HeaderState::Valid : HeaderState::Strange;
}

void appendOriginal(std::vector<uint8_t>& out, uint64_t at, uint64_t nonce, uint32_t page,
                    const Page& bytes) {
    const size_t start = out.size();
    begin(out, originalKind, page);
    out.insert(out.end(), bytes.begin(), bytes.end());
    end(out, start, at, nonce);
}

void appendAnnouncement(std::vector<uint8_t>& out, uint64_t at, uint64_t nonce, uint32_t page,
                        const Page& bytes) {
    const size_t start = out.size();
    begin(out, announcementKind, page);
    for (const uint64_t one : digestsOf(bytes, nonce)) {
        out.resize(out.size() + 8);
        store64(&out[out.size() - 8], one);
    }
    end(out, start, at, nonce);
}

bool readRecord(const OsFile& journal, uint64_t nonce, uint64_t& at, Record& record) {
    std::array<uint8_t, originalLength> bytes;
    const size_t read = journal.read(at, bytes);
    if (read < announcementLength) return false;
    const uint32_t kind = load32(bytes.data());
    const size_t length = kind == originalKind       ? originalLength
                          : kind == announcementKind ? announcementLength
                                                     : read + 1;
    if (read < length) return false;
    const auto checked = std::span(bytes).first(length - 8);
    if (load64(&bytes[length - 8]) != digest(checked, nonce + at)) return false;
    record = {kind == originalKind, load32(&bytes[4]), at + 8, {}};
    if (!record.original)
        for (size_t i = 0; i < sectorsPerPage; ++i)
            record.digests[i] = load64(&bytes[8 + 8 * i]);
    at += length;
    return true;
}

}  // namespace jet::journal
