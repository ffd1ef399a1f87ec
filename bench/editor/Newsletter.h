// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A newsletter of at least so many characters: a table with a row for each article.
inline QString newsletter(qsizetype size) {
    QString html = QStringLiteral("<html><body><table width=600>");
    for (int i = 0; html.size() < size; ++i) {
        html += QStringLiteral(
                    "<tr><td width=80>%1</td><td><font face=Verdana size=2><b>Articolo %1</b><br>"
                    "Prezzo :::campo1::: per :::rgs:::, disponibile da subito</font></td></tr>\n")
                    .arg(i);
    }
    return html + QStringLiteral("</table></body></html>");
}

/// The article whose name the keys go into.
inline QString typedArticle() {
    return QStringLiteral("Articolo 200");
}
