// SPDX-License-Identifier: GPL-3.0-or-later
// An LDIF file from anywhere, read as the address book reads it.
#include <cstdint>
#include <cstdlib>

#include "platform/contacts/Ldif.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto cards = contacts::readLdif(file);
    if (cards.size() > size || cards.size() > contacts::mostCards) std::abort();
    return 0;
}
