#pragma once

#include <QString>
#include <span>

#include "platform/jet/Format.h"

namespace jet {

/// What page 0 tells about a file.
struct Header {
    uint32_t pageKey = 0;  ///< 0 = pages in clear
    QString password;      ///< empty = none
};

/// Reads page 0. Fails (Failure, UnrecognizedFormat) for what is no Jet 4 file, naming the formats it knows.
Header parseHeader(std::span<const uint8_t> page0);

/// XORs `bytes` with the RC4 stream of `key`.
void rc4(std::span<const uint8_t> key, std::span<uint8_t> bytes);
/// Decodes (or encodes) the masked part of page 0 in place.
void maskHeader(Page& page0);

}  // namespace jet
