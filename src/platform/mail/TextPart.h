// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace mail {

struct HtmlReferences;

/// The text form of a message with an HTML form: for readers without HTML, and for filters.
///
/// It is `bodyText` with no more than two empty lines in a row; where that is blank, the alternative texts of
/// the images and, where there are none, the subject. After it the links of the HTML form that it does not
/// name itself are under "Collegamenti:", each with its text and its address.
QString textPart(const QString& bodyText, const HtmlReferences& html, const QString& subject);

/// The text with each run of more than two empty lines cut to two. A line of blanks only is empty.
QString withoutLongGaps(const QString& text);

/// Whether nothing can be seen: white space and characters without width.
bool isBlankText(QStringView text);

}  // namespace mail
