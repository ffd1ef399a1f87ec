// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <ctime>
#include <QTextStream>

#include "platform/html/HtmlDocument.h"
#include "platform/html/HtmlPatterns.h"
#include "platform/mail/HtmlReferences.h"

// Reads each pattern of hostile text, once and with twice the text, by all readers of a body: the parser, the
// two forms, and what the composition looks for. Prints a JSON list of {"name", "ms", "growth"}: processor
// time for the longer text, and how many times that of the shorter one it is. Each is the shortest of several
// readings.

namespace {

constexpr int readings = 3;
constexpr qsizetype size = 1'200'000;

double threadMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double millisecondsFor(const QByteArray& text) {
    double best = 1e9;
    for (int i = 0; i < readings && (i == 0 || best < 2000); ++i) {
        const double before = threadMilliseconds();
        HtmlDocument document;
        static_cast<void>(document.setDocumentHTML(QString::fromUtf8(text)));
        mail::findReferences(text);
        mail::findReferences(document.documentHTML().toUtf8());
        best = std::min(best, threadMilliseconds() - before);
    }
    return best;
}

}  // namespace

int main() {
    QTextStream out(stdout);
    out << '[';
    bool first = true;
    for (const HtmlPattern& pattern : htmlPatterns()) {
        // so many repetitions as make half a text of that size
        const int times = static_cast<int>(size / 2 * 100 / std::max<qsizetype>(1, pattern.text(100).size()));
        const double once = millisecondsFor(pattern.text(times));
        const double twice = millisecondsFor(pattern.text(2 * times));
        out << (first ? "\n" : ",\n") << R"({"name": ")" << pattern.name << R"(", "ms": )" << twice
            << R"(, "growth": )" << twice / once << '}';
        out.flush();
        first = false;
    }
    out << "\n]\n";
    return 0;
}
