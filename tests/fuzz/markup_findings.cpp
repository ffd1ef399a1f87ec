// SPDX-License-Identifier: GPL-3.0-or-later
// For any body, the findings about its links and images are a few sentences without control characters.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "modules/strumenti/Rilievi_html.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString body = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QList<Rilievo> findings = RilieviHtml(body);
    if (findings.size() > 4) std::abort();  // missing, not carried, without a target, on the web
    for (const Rilievo& finding : findings) {
        const auto isControl = [](QChar letter) { return letter.category() == QChar::Other_Control; };
        if (finding.testo.isEmpty() || finding.riga) std::abort();
        if (std::ranges::any_of(finding.testo, isControl)) std::abort();
        // three examples of a kind, each no longer than what it is taken from
        if (finding.testo.size() > 3 * (body.size() + 1) + 400) std::abort();
    }
    // A link to a place before it is never reported as broken.
    const QString anchored = QStringLiteral(
        "<a name=\"anchored\">x</a><a href=\"#anchored\">y</a><a href=\"mailto:a@x.it\">z</a>");
    if (RilieviHtml(anchored + body).size() != findings.size()) std::abort();
    return 0;
}
