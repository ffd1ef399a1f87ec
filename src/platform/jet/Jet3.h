// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "platform/jet/Format.h"
#include "platform/jet/Value.h"

/// Files of Access 97 (Jet 3) have pages of 2048 bytes and the same fields in other places. They are brought
/// into the form of Jet 4 as they are read, so that the rest of the engine knows one form; only rows keep
/// their own (see Row). Nothing of it can be written back.
namespace jet::jet3 {

inline constexpr size_t pageSize = 2048;
inline constexpr size_t maskedLength = 126;   // of page 0
inline constexpr size_t passwordLength = 20;  // ANSI, without the date's mask

/// `page` contains a page of 2048 bytes in its first half. Row pages and index pages get the form that they
/// have in Jet 4; all others stay as they are. Whatever the bytes, the result is a page that can be parsed.
void widenPage(Page& page);

/// The Jet 4 form of a definition joined from its pages. Throws Failure when it is cut short.
Bytes widenDefinition(std::span<const uint8_t> block);

}  // namespace jet::jet3
