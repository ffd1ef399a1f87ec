// SPDX-License-Identifier: GPL-3.0-or-later
// A file of the book of outcomes, read as the window does.
#include <cstdint>
#include <cstdlib>

#include "platform/mail/OutcomeBook.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    const mail::outcomes::Content content = mail::outcomes::parse(file);
    for (const auto& [line, database] : content.rows) {
        if (database >= content.databases.size()) std::abort();
        if (line.words.size() > mail::OutcomeLine::longestText) std::abort();
        if (line.address.size() > mail::OutcomeLine::longestText) std::abort();
        // What is read as a line reads the same after it is written back.
        const QByteArray bytes = line.bytes();
        if (bytes.size() >= mail::longestOutcomeLine || bytes.count('\n') != 1) std::abort();
        if (mail::parseOutcomeLine(QByteArrayView(bytes).chopped(1)) != line) std::abort();
    }
    return 0;
}
