// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>

namespace contacts {

/// The syntax of a card: 2.1 folds lines and escapes characters in its own way.
enum class VCardStyle {
    Old,  ///< 2.1
    New,  ///< 3.0 (RFC 2426) and 4.0 (RFC 6350)
};

/// One logical line of a vCard, "group.NAME;PARAMETER=…:value", with folding already undone.
struct VCardProperty {
    QByteArray name;       ///< in upper case, without its group
    QByteArrayList types;  ///< TYPE values and the bare parameters of 2.1, in upper case
    int rank = 101;        ///< lowest is preferred: PREF of 4.0, 1 for the type PREF
    QString value;         ///< decoded (quoted-printable, base64, character set), escapes still in place
    VCardStyle style = VCardStyle::New;

    bool is(const char* type) const { return types.contains(type); }

    /// The value as one text, without escapes.
    QString text() const;
    /// A part of a value separated by ";", without escapes; empty where there are fewer.
    QString part(int index) const;
};

/// Whether a logical line is in quoted-printable, so that a "=" at its end continues it on the next one.
bool isQuotedPrintable(const QByteArray& line);

/// Reads a logical line. A line without a colon is a property without a name.
VCardProperty readProperty(const QByteArray& line, VCardStyle style);

}  // namespace contacts
