// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "support/Repetitions.h"

/// A message of 2.5 MB with a shop's whole catalogue; of 0.5 MB in the build with sanitizers.
inline QString largeNewsletter() {
    QString html = QStringLiteral(
        "<html><head><title>Catalogo</title></head><body bgcolor=#FFFFFF><h1>Gentile :::nom:::</h1>"
        "<table width=600 border=0 cellpadding=4>\r\n");
    for (int i = 0; html.size() < testing_support::repetitions(2'500'000); ++i) {
        html += QStringLiteral(
                    "<tr><td width=80><img src=\"articolo%1.jpg\" alt='Articolo %1'><td><font face="
                    "Verdana size=2><b>Articolo %1</b><br>Prezzo: &euro; %1,90 &ndash; per "
                    ":::rgs:::</font><td align=right><a href=\"http://example.it/?a=%1&u=:::email:::"
                    "\">Ordina</a></tr>\r\n")
                    .arg(i);
    }
    return html + QStringLiteral("</table></body></html>\r\n");
}
