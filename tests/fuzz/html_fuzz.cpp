// Any text is a document: reading it neither crashes nor hangs, and both results are well-formed texts.
#include <cstdint>
#include <cstdlib>
#include <QString>

#include "platform/html/HtmlDocument.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    HtmlDocument document;
    document.setDocumentHTML(
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!document.documentHTML().contains(u"<html")) std::abort();
    if (!document.bodyInnerText().isValidUtf16()) std::abort();
    if (document.bodyInnerText().count(u'\n') != document.bodyInnerText().count(u"\r\n")) std::abort();
    return 0;
}
