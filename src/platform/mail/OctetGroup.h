// SPDX-License-Identifier: GPL-3.0-or-later
// Sixteen octets that are compared at once, by the compiler's vectors.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mail {

inline constexpr std::ptrdiff_t groupSize = 16;
using Group = signed char __attribute__((vector_size(groupSize)));

/// The group that begins at `octets`.
inline Group groupAt(const char* octets) {
    Group group;
    std::memcpy(&group, octets, groupSize);
    return group;
}

/// The octets of a comparison, each all ones or zero, in two numbers.
inline std::array<std::uint64_t, 2> halvesOf(Group compared) {
    return std::bit_cast<std::array<std::uint64_t, 2>>(compared);
}

}  // namespace mail
