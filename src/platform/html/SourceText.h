#pragma once

#include <QString>

/// What stands between the text of a document and its parser, the same for every parser.
namespace html {

/// The text as it is given to a parser: without byte order mark, and without blanks and line ends behind its
/// end. They would become part of the body, and a file's reader adds one with every reading.
QString sourceText(const QString& html);

/// The document (written by the serialisation rules of the HTML standard) with every character that
/// Windows-1252 does not hold written in ASCII: a numeric reference in text, attributes and comments, an
/// escape in style sheets (CSS) and scripts (ECMAScript). Reading it gives the same document, save for
/// comments, whose text it is.
QString ansiForm(const QString& serialised);

}  // namespace html
