// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The preparation of a document's text for a parser, the same for every parser.
namespace html {

/// The text as it is given to a parser: without byte order mark, and without blanks and line ends after its
/// end. They would become part of the body, and each reading of a file adds one.
QString sourceText(const QString& html);

/// The document (written by the serialisation rules of the HTML standard) with every character that
/// Windows-1252 does not contain written in ASCII: a numeric reference in text, attributes and comments, an
/// escape in style sheets (CSS) and scripts (ECMAScript). Reading it results in the same document, except in
/// comments, where the reference is part of the text.
QString ansiForm(const QString& serialised);

}  // namespace html
