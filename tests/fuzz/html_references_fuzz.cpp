// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a body contains, the places found in it are inside it, in order and without overlap.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/mail/HtmlReferences.h"
#include "platform/mail/WebAddress.h"

namespace {

void check(const std::vector<mail::HtmlReferences::Place>& places, qsizetype size) {
    qsizetype end = 0;
    for (const auto& place : places) {
        if (place.from < end || place.length < 0 || place.from + place.length > size) std::abort();
        end = place.from + place.length;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray html(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto references = mail::findReferences(html);
    check(references.images, html.size());
    check(references.charsets, html.size());
    check(references.addresses, html.size());
    if (references.links.size() > mail::HtmlReferences::mostLinks) std::abort();
    for (const auto& place : references.addresses) {
        const QByteArray source = html.mid(place.from, place.length);
        const QByteArray uri =
            mail::attributeAsUri({source.constData(), static_cast<std::size_t>(source.size())});
        for (const char c : uri)
            if (c <= ' ' || c >= 0x7F || c == '<' || c == '>') std::abort();
        // what is a URI stays one
        if (mail::attributeAsUri({uri.constData(), static_cast<std::size_t>(uri.size())}) != uri)
            std::abort();
    }
    return 0;
}
