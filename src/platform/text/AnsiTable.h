// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The characters of Windows-1252, for code without Qt as well. See AnsiCodec.h.
namespace text {

/// Characters of the bytes 80 to 9F; all other bytes are their own character.
inline constexpr std::array<char16_t, 32> ansiUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t ansiCharacter(std::uint8_t code) {
    return code >= 0x80 && code < 0xA0 ? ansiUpperControls[code - 0x80u] : char16_t{code};
}

}  // namespace text
