// SPDX-License-Identifier: GPL-3.0-or-later
// Any output of the helper that reads Outlook files, as a faulty one could print it.
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "platform/contacts/HelperOutput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray output(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    contacts::HelperOutput reader;
    reader.take(output);
    const auto folder = std::move(reader).folder();
    if (!folder) return 0;
    if (folder->count > contacts::mostEntries || folder->items.size() > static_cast<size_t>(folder->count))
        std::abort();
    return 0;
}
