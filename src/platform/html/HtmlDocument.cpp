#include "platform/html/HtmlDocument.h"

#include "platform/html/InnerText.h"
#include "platform/html/NormalForm.h"
#include "platform/html/ParseTree.h"

void HtmlDocument::setDocumentHTML(const QString& html) {
    const QStringView text =
        html.startsWith(QChar::ByteOrderMark) ? QStringView(html).mid(1) : QStringView(html);
    const ParseTree tree(text.toUtf8());
    m_documentHTML = QString::fromUtf8(normalForm(*tree.document()));
    m_bodyInnerText = QString::fromUtf8(visibleText(*tree.document()));
}
