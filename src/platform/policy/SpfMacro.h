// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QByteArray>
#include <QDateTime>
#include <QHostAddress>

/// Macros of SPF records (RFC 7208 7).
namespace policy::spf {

/// The kind of a text: the letters c, r and t are for an explanation only.
enum class Place { Domain, Explanation };

/// Whether the text has the form of a macro-string (RFC 7208 7.1); an explanation may contain blanks too.
bool isMacroString(const QByteArray& text, Place place);

/// Whether the text is a domain-spec: a macro-string that ends in a top label or in a macro.
bool isDomainSpec(const QByteArray& text);

/// The values of the letters.
struct MacroValues {
    QHostAddress address;
    QByteArray sender;    ///< local part and domain
    QByteArray domain;    ///< whose record it is
    QByteArray helo;      ///< the name the client greets with
    QByteArray receiver;  ///< the host that checks
    QDateTime when;
    QByteArray validated = "unknown";  ///< the name of the address, confirmed (letter p)
};

/// Whether the text has the letter p, which needs its own look-ups.
bool needsValidatedName(const QByteArray& text);

/// The text with its macros expanded. Precondition: isMacroString() accepts `text`.
QByteArray expand(const QByteArray& text, const MacroValues& values);

/// The same for a domain with macros: in lower case, without a final dot, and cut from the left, label by
/// label, to 253 octets (RFC 7208 7.3).
QByteArray expandDomain(const QByteArray& text, const MacroValues& values);

}  // namespace policy::spf
