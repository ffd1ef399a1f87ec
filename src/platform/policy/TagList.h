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

/// Lists of tags (RFC 6376 3.2): parted by semicolons, in the order of the text.
struct TagList {
    QList<Tag> tags;

    /// The first value of a name, whose case counts.
    std::optional<QByteArray> value(const QByteArray& name) const;
    bool hasTwice() const;  ///< some name stands more than once

    /// What is no tag is left out, and `sound` says whether all were.
    bool sound = true;
    static TagList read(const QByteArray& text);
};

/// The words of a value that are parted by colons, without the blanks around them.
QByteArrayList listedWords(const QByteArray& value);

}  // namespace policy
