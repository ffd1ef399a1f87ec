// SPDX-License-Identifier: GPL-3.0-or-later
// The file that remembers accepted messages, read as at a start of the program.
#include <cstdint>
#include <cstdlib>

#include "platform/mail/AcceptedEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    const mail::AcceptedContent content = mail::parseAccepted(file);
    if (content.entries.size() > content.room || content.room > mail::mostAccepted) std::abort();
    for (const auto& [slot, entry] : content.entries) {
        const qsizetype place = (slot + 1) * mail::AcceptedEntry::size;
        // What is read as an entry is written back unchanged.
        if (file.sliced(place, mail::AcceptedEntry::size) != entry.bytes()) std::abort();
    }
    return 0;
}
