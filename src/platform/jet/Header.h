// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "platform/jet/Format.h"

namespace jet {

/// The header of a Jet file, its page 0.
struct Header {
    bool jet3 = false;     ///< of Access 97; else Jet 4
    uint32_t pageKey = 0;  ///< 0 = pages in clear
    std::string password;  ///< in UTF-8; empty = none
};

/// Reads page 0. Fails (Failure, UnrecognizedFormat) for what is no Jet file, naming the formats it knows.
Header parseHeader(std::span<const uint8_t> page0);

/// Decodes (or encodes) a page of a file whose pages are encoded; `bytes` is the page as it is in the file.
void codePage(uint32_t pageKey, uint32_t number, std::span<uint8_t> bytes);
/// Decodes (or encodes) the masked part of page 0 in place.
void maskHeader(Page& page0);

}  // namespace jet
