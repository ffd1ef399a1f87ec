// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/Status.h"

/// An HTML document held in memory without a browser: text goes in, the document's normal form and its
/// visible text come out. Page scripts do not run and nothing is loaded.
///
/// Any text is a document: it is read as the HTML standard prescribes for browsers (missing tags supplied,
/// wrong ones repaired). One that is too large or too deep (platform/html/Bounds.h) is refused.
class HtmlDocument {
  public:
    /// A failure (Overflow) where the text is refused; the document is then unchanged.
    Status setDocumentHTML(const QString& html);

    /// The normal form: the parsed document written by the serialisation rules of the HTML standard. Lines
    /// end in LF as the parser leaves them. Empty until a document was set. Setting the normal form results
    /// in the same one back.
    const QString& documentHTML() const { return m_documentHTML; }

    /// The visible text of the body, laid out as a browser's innerText: blocks on lines of their own, a blank
    /// line around paragraphs, table cells separated by a tab, white space collapsed outside preformatted
    /// text, U+00A0 kept. Hidden content (scripts, styles, templates, `hidden`, `display:none`) is left out,
    /// and so are images and their alternative texts. Lines end in CR LF, with none at the end.
    const QString& bodyInnerText() const { return m_bodyInnerText; }

  private:
    QString m_documentHTML;
    QString m_bodyInnerText;
};
