#include "platform/text/Folding.h"

#include <algorithm>
#include <QString>
#include <unordered_map>

namespace text {

namespace {

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

std::string foldByUnicode(std::string_view run) {
    const QString apart = QString::fromUtf8(run.data(), static_cast<qsizetype>(run.size()))
                              .normalized(QString::NormalizationForm_KD);
    QString kept;
    for (const QChar c : apart)
        if (c.category() != QChar::Mark_NonSpacing) kept += c;
    return kept.toUpper().toCaseFolded().toStdString();  // "ß" is "ss" in capitals only
}

/// Folded forms of the runs that were met: lists hold the same few accented letters over and over.
const std::string& foldedRun(std::string_view run) {
    constexpr size_t mostRuns = 4096;
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    static std::unordered_map<std::string, std::string, Hash, std::equal_to<>> known;
    if (const auto found = known.find(run); found != known.end()) return found->second;
    if (known.size() >= mostRuns) known.clear();
    return known.emplace(run, foldByUnicode(run)).first->second;
}

}  // namespace

void appendFolded(std::string_view utf8, std::string& out) {
    while (!utf8.empty()) {
        const auto plain =
            static_cast<size_t>(std::find_if_not(utf8.begin(), utf8.end(), isAscii) - utf8.begin());
        const size_t before = out.size();
        out.resize(before + plain);
        std::transform(utf8.begin(), utf8.begin() + static_cast<std::ptrdiff_t>(plain),
                       out.begin() + static_cast<std::ptrdiff_t>(before), lowerAscii);
        utf8.remove_prefix(plain);
        const auto other =
            static_cast<size_t>(std::find_if(utf8.begin(), utf8.end(), isAscii) - utf8.begin());
        if (other > 0) out += foldedRun(utf8.substr(0, other));
        utf8.remove_prefix(other);
    }
}

std::string folded(QStringView text) {
    std::string form;
    appendFolded(text.toUtf8().toStdString(), form);
    return form;
}

}  // namespace text
