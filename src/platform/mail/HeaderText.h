// SPDX-License-Identifier: GPL-3.0-or-later
// The text of header lines: encoding, parameters and folding.
#pragma once

#include <QByteArray>
#include <QString>

namespace mail {

/// One line of text: CR, LF, NUL and every other control or line separator become one blank each.
QString singleLine(QString text);

/// Value of an unstructured header such as Subject (RFC 5322 3.6.5): plain ASCII where possible, else
/// encoded words in UTF-8 (RFC 2047) for the whole text, so that no blank is lost between them. Not yet
/// folded.
QByteArray unstructuredText(const QString& text);

/// Value of an address header: the name as atoms, quoted string or encoded words, and the address. An empty
/// name leaves the bare address; a name is cut after 1000 characters.
QByteArray namedAddress(const QString& name, const QByteArray& address);

/// A parameter that follows a header's value, on separate lines: ";", line end, blank, name and value. A
/// value that is short and plain ASCII is a quoted string, any other by RFC 2231 in UTF-8, in sections
/// where it does not fit on one line; no character is split between sections.
QByteArray parameter(const QByteArray& name, const QString& value);

/// The header line with its line end, folded before blanks so that lines have at most 78 octets (RFC
/// 5322 2.1.1) wherever a blank allows it.
QByteArray foldedHeader(const QByteArray& name, const QByteArray& value);

}  // namespace mail
