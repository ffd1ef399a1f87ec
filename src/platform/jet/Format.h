// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The layout of a Jet 4 file (files of Jet 3 get this form as they are read, see Jet3.h). Numbers are
// little endian unless "Big" is said; offsets count from the start of the page. docs/formats/jet.md says the
// same with the reasons.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

namespace jet {

inline constexpr size_t pageSize = 4096;
/// A Jet file ends at 2 GB.
inline constexpr uint32_t maxPages = 1u << 19;

using Page = std::array<uint8_t, pageSize>;
using PagePtr = std::shared_ptr<const Page>;

inline uint16_t load16(const uint8_t* p) {
    return static_cast<uint16_t>(p[0] | p[1] << 8);
}
inline uint32_t load24(const uint8_t* p) {
    return static_cast<uint32_t>(p[0] | p[1] << 8 | p[2] << 16);
}
inline uint32_t load32(const uint8_t* p) {
    return load24(p) | static_cast<uint32_t>(p[3]) << 24;
}
inline uint64_t load64(const uint8_t* p) {
    return load32(p) | static_cast<uint64_t>(load32(p + 4)) << 32;
}
inline uint32_t load24Big(const uint8_t* p) {
    return static_cast<uint32_t>(p[0] << 16 | p[1] << 8 | p[2]);
}
inline uint32_t load32Big(const uint8_t* p) {
    return static_cast<uint32_t>(p[0]) << 24 | load24Big(p + 1);
}

inline void store16(uint8_t* p, uint32_t v) {
    p[0] = static_cast<uint8_t>(v);
    p[1] = static_cast<uint8_t>(v >> 8);
}
inline void store24(uint8_t* p, uint32_t v) {
    store16(p, v);
    p[2] = static_cast<uint8_t>(v >> 16);
}
inline void store32(uint8_t* p, uint32_t v) {
    store24(p, v);
    p[3] = static_cast<uint8_t>(v >> 24);
}
inline void store64(uint8_t* p, uint64_t v) {
    store32(p, static_cast<uint32_t>(v));
    store32(p + 4, static_cast<uint32_t>(v >> 32));
}
inline void store32Big(uint8_t* p, uint32_t v) {
    p[0] = static_cast<uint8_t>(v >> 24);
    p[1] = static_cast<uint8_t>(v >> 16);
    p[2] = static_cast<uint8_t>(v >> 8);
    p[3] = static_cast<uint8_t>(v);
}

/// First byte of a page.
enum PageType : uint8_t {
    HeaderPage = 0,
    DataPage = 1,        ///< rows, usage-map rows, long values
    DefinitionPage = 2,  ///< table definition
    NodePage = 3,        ///< inner page of an index
    LeafPage = 4,
    BitmapPage = 5,  ///< part of a usage map in form 1
};

/// Pages 0 to 5 have the same place in every file.
inline constexpr uint32_t globalMapPage = 1;
inline constexpr uint32_t catalogPage = 2;
inline constexpr uint32_t firstOrdinaryPage = 6;

/// Page 0. The bytes from `masked` on are XORed with the RC4 stream of a fixed key.
namespace header {
inline constexpr size_t engineName = 0x04;  // 16: "Standard Jet DB", NUL
inline constexpr size_t version = 0x14;     // u32: 0 Jet 3, 1 Jet 4, above: later formats
inline constexpr size_t masked = 0x18;      // 128 bytes
inline constexpr size_t maskedLength = 128;
inline constexpr size_t codePage = 0x3C;  // u16: of the texts of Jet 3
inline constexpr size_t pageKey = 0x3E;   // u32: 0 = pages in clear
inline constexpr size_t password = 0x42;
inline constexpr size_t passwordLength = 40;
inline constexpr size_t creationDate = 0x72;  // f64
}  // namespace header

/// Data page. Row i ends where row i-1 begins, row 0 at the end of the page.
namespace data {
inline constexpr size_t freeBytes = 2;  // u16: lowest row start - end of the slots
inline constexpr size_t owner = 4;      // u32: definition page; "LVAL" for long values
inline constexpr size_t slotCount = 12;
inline constexpr size_t slots = 14;  // u16 each
inline constexpr size_t maxSlots = 255;
inline constexpr uint16_t offsetMask = 0x1FFF;
inline constexpr uint16_t flagsMask = 0xC000;
inline constexpr uint16_t notARow = 0x8000;  // alone: body of a moved row
inline constexpr uint16_t pointer = 0x4000;  // alone: the row has moved, 4 bytes say where
inline constexpr uint16_t deleted = 0xC000;
inline constexpr size_t maxRow = 4060;
}  // namespace data

/// Table definition, offsets in the block joined from its pages.
namespace definition {
inline constexpr size_t next = 4;    // u32: next definition page, 0 = none
inline constexpr size_t joined = 8;  // continuation pages add their bytes from here
inline constexpr size_t length = 8;
inline constexpr size_t rowCount = 16;    // u32
inline constexpr size_t autoNumber = 20;  // i32: last one given
inline constexpr size_t kind = 40;        // 'N' user, 'S' system
inline constexpr size_t maxColumns = 41;
inline constexpr size_t variableColumns = 43;
inline constexpr size_t columns = 45;
inline constexpr size_t logicalIndexes = 47;
inline constexpr size_t realIndexes = 51;
inline constexpr size_t ownedMap = 55;
inline constexpr size_t roomMap = 59;
inline constexpr size_t indexCounts = 63;       // 12 each
inline constexpr size_t indexCountLength = 12;  // u32, u32 number of different keys, u32
inline constexpr size_t columnLength = 25;
inline constexpr size_t realIndexLength = 52;
inline constexpr size_t logicalIndexLength = 28;
}  // namespace definition

/// Usage map row.
namespace map {
inline constexpr size_t firstPage = 1;  // form 0: u32, a multiple of 8
inline constexpr size_t bits = 5;       // form 0: low bit first
inline constexpr size_t pages = 1;      // form 1: u32 numbers of bitmap pages
inline constexpr size_t bitmap = 4;     // bits on a bitmap page
inline constexpr uint32_t pagesPerBitmap = (pageSize - bitmap) * 8;
inline constexpr size_t mostBitmaps = 16;  // reach to the greatest file; what follows may be garbage
inline constexpr size_t ordinaryLength = 69;
}  // namespace map

/// Index page.
namespace index {
inline constexpr size_t freeBytes = 2;  // u16: room - bytes used
inline constexpr size_t owner = 4;
inline constexpr size_t previous = 12;
inline constexpr size_t next = 16;
inline constexpr size_t tail = 20;
inline constexpr size_t prefix = 24;  // u16
inline constexpr size_t level = 26;   // u8: 0 leaf
inline constexpr size_t mask = 27;    // bit b: an entry ends at byte b of the entries
inline constexpr size_t entries = 480;
inline constexpr size_t room = pageSize - entries;
inline constexpr size_t rowIdLength = 4;  // u24 Big page, u8 row
inline constexpr size_t childLength = 4;  // u32 Big
}  // namespace index

}  // namespace jet
