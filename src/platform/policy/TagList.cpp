// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/TagList.h"

#include <algorithm>
#include <QByteArrayList>
#include <QSet>

namespace policy {

namespace {

bool isTagName(const QByteArray& name) {
    const auto isAlpha = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    return !name.isEmpty() && isAlpha(name.front()) && std::all_of(name.begin(), name.end(), [&](char c) {
        return isAlpha(c) || (c >= '0' && c <= '9') || c == '_';
    });
}

bool isTagValue(const QByteArray& value) {
    return std::all_of(value.begin(), value.end(), [](char c) {
        return (c > ' ' && c < 0x7f) || c == ' ' || c == '\t' || c == '\r' || c == '\n';
    });
}

}  // namespace

std::optional<QByteArray> TagList::value(const QByteArray& name) const {
    const auto found =
        std::find_if(tags.begin(), tags.end(), [&](const Tag& tag) { return tag.name == name; });
    return found == tags.end() ? std::nullopt : std::optional(found->value);
}

bool TagList::hasTwice() const {
    QSet<QByteArray> names;
    for (const Tag& tag : tags)
        names.insert(tag.name);
    return names.size() < tags.size();
}

TagList TagList::read(const QByteArray& text) {
    TagList list;
    auto pieces = text.split(';');
    if (pieces.last().trimmed().isEmpty()) pieces.removeLast();
    for (const QByteArray& piece : pieces) {
        const qsizetype equals = piece.indexOf('=');
        const Tag tag{piece.left(std::max<qsizetype>(equals, 0)).trimmed(), piece.mid(equals + 1).trimmed()};
        if (isTagName(tag.name) && isTagValue(tag.value))
            list.tags.append(tag);
        else
            list.sound = false;
    }
    return list;
}

QByteArrayList listedWords(const QByteArray& value) {
    QByteArrayList words;
    for (const QByteArray& word : value.split(':'))
        words.append(word.trimmed());
    return words;
}

}  // namespace policy
