// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/lang/Guida.h"

#include <QFileInfo>
#include <QLocale>
#include <QUrl>

#include "modules/core/bFunctions.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Words.h"

namespace guida {

namespace {

QString cartella() {
    return sys::helpFolder() + QLocale::languageToCode(Words::locale().language()) + u'/';
}

}  // namespace

QString PrimaPagina() {
    return cartella() + QStringLiteral("index.html");
}

QString PaginaDellaFinestra(const QString& nome) {
    const QString pagina = cartella() + QStringLiteral("windows/") + nome + QStringLiteral(".html");
    return !nome.isEmpty() && QFileInfo::exists(pagina) ? pagina : QString();
}

void Apri(const QString& pagina) {
    ApriShell(QUrl::fromLocalFile(pagina).toString());
}

}  // namespace guida
