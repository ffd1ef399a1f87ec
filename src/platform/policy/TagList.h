// SPDX-License-Identifier: GPL-3.0-or-later
// The parser of lists of "name=value", as DKIM and DMARC records are.
#pragma once

#include <optional>
#include <QByteArray>
#include <QList>

namespace policy {

/// One "name=value" of a list, without the blanks around them.
struct Tag {
    QByteArray name;
    QByteArray value;
};

/// Lists of tags (RFC 6376 3.2): separated by semicolons, in the order of the text.
struct TagList {
    QList<Tag> tags;

    /// The first value of a name, which is case-sensitive.
    std::optional<QByteArray> value(const QByteArray& name) const;
    bool hasTwice() const;  ///< some name occurs more than once

    /// What is no tag is left out; `sound` says whether all were valid.
    bool sound = true;
    static TagList read(const QByteArray& text);
};

/// The words of a value, separated by colons, without the blanks around them.
QByteArrayList listedWords(const QByteArray& value);

}  // namespace policy
