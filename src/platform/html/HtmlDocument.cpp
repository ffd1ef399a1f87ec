#include "platform/html/HtmlDocument.h"

#include "platform/html/InnerText.h"
#include "platform/html/NormalForm.h"
#include "platform/html/ParseTree.h"
#include "platform/html/SourceText.h"

void HtmlDocument::setDocumentHTML(const QString& html) {
    const ParseTree tree(html::sourceText(html).toUtf8());
    m_documentHTML = html::ansiForm(QString::fromUtf8(normalForm(*tree.document())));
    m_bodyInnerText = QString::fromUtf8(visibleText(*tree.document()));
}
