// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/Bounds.h"

#include "platform/html/Nesting.h"
#include "platform/html/ParseTree.h"
#include "platform/html/SourceText.h"
#include "platform/text/Words.h"

namespace html {
namespace {

// The estimate may count more than the tree has, so it has to be well above
constexpr int mostReckonedDepth = 4 * mostDepth;

Status refused(const QString& reason) {
    return {ErrorCode::Overflow, Words::tr("Il corpo del messaggio non si può aprire: ") + reason};
}

}  // namespace

Status boundSize(qsizetype characters) {
    if (characters <= mostCharacters) return {};
    return refused(
        Words::tr("è troppo grande (più di %1 milioni di caratteri).").arg(mostCharacters / 1'000'000));
}

Status boundTags(std::string_view utf8) {
    const Nesting reckoned = reckonNesting(utf8, {mostReckonedDepth, mostElements, mostAttributes});
    if (reckoned.elements > mostElements)
        return refused(Words::tr("ha troppi elementi (più di %1).").arg(mostElements));
    if (reckoned.attributes > mostAttributes)
        return refused(Words::tr("un elemento ha troppi attributi (più di %1).").arg(mostAttributes));
    return boundDepth(reckoned.depth > mostReckonedDepth ? reckoned.depth : 0);
}

Status boundDepth(int depth) {
    if (depth <= mostDepth) return {};
    return refused(Words::tr("ha troppi elementi uno dentro l'altro (più di %1).").arg(mostDepth));
}

Status unreadable() {
    return refused(Words::tr("il suo codice HTML è troppo intricato."));
}

Status readable(const QString& html) {
    if (Status fits = boundSize(html.size()); !fits.ok()) return fits;
    return ParseTree(sourceText(html).toUtf8()).status();
}

}  // namespace html
