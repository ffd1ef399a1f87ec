// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/HtmlDocument.h"

#include "platform/html/Bounds.h"
#include "platform/html/InnerText.h"
#include "platform/html/NormalForm.h"
#include "platform/html/ParseTree.h"
#include "platform/html/SourceText.h"

Status HtmlDocument::setDocumentHTML(const QString& html) {
    if (Status fits = html::boundSize(html.size()); !fits.ok()) return fits;
    const ParseTree tree(html::sourceText(html).toUtf8());
    if (!tree.status().ok()) return tree.status();
    m_documentHTML = html::ansiForm(QString::fromUtf8(normalForm(*tree.document())));
    m_bodyInnerText = QString::fromUtf8(visibleText(*tree.document()));
    return {};
}
