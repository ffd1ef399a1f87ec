// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/bFunctions.h"

#include <algorithm>
#include <QFile>
#include <QRegularExpression>

#include "modules/core/Fallimento.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Connection.h"
#include "platform/ado/ConnectionText.h"
#include "platform/system/Shell.h"
#include "platform/text/Blanks.h"
#include "platform/text/TextFile.h"

bool ApriShell(const QString& destinazione) {
    Prosegui prosegui;
    return prosegui([&] { esigi(sys::openAddress(destinazione)); });
}

bool FileEsiste(const QString& percorso) {
    return ripiega(false, [&] {
        QFile file;
        esigi(text::openForInput(file, percorso));
        return true;
    });
}

bool EmailValida(const QString& testo) {
    static const QRegularExpression modello(
        QStringLiteral("\\A([A-Za-z0-9_.=-]+@[A-Za-z0-9_.-]+\\.[A-Za-z0-9_]{2,4})\\z"));
    return modello.match(testo).hasMatch();
}

std::uint32_t ColoreDaHex(const QString& testo) {
    std::uint32_t colore = 0;
    Prosegui prosegui;
    prosegui([&] {
        QString cifre = testo.toUpper();
        cifre.remove(u'#');
        cifre = cifre.right(2) + cifre.mid(2, 2) + cifre.left(2);
        // toUInt() would also take blanks, a sign and "0X".
        const bool soloCifre = std::ranges::all_of(
            cifre, [](QChar c) { return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F'); });
        if (cifre.isEmpty() || !soloCifre) fallisci(ErrorCode::TypeMismatch);
        colore = cifre.toUInt(nullptr, 16);
    });
    return colore;
}

QString HexDaColore(std::uint32_t colore) {
    const QString cifre = (QStringLiteral("000000") + QString::number(colore, 16).toUpper()).right(6);
    return u'#' + cifre.right(2) + cifre.mid(2, 2) + cifre.left(2);
}

QString PulisciValore(const QString& testo) {
    QString valore = testo;
    valore.remove(u'"').remove(u'\'');
    return text::trimBlanks(valore).toString();
}

QString PercorsoScritto(const QString& testo) {
    QString percorso = testo;
    while (percorso.endsWith(u'\n') || percorso.endsWith(u'\r') || percorso.endsWith(QChar(QChar::Null)))
        percorso.chop(1);
    if (!percorso.endsWith(u' ') || QFile::exists(percorso)) return percorso;
    while (percorso.endsWith(u' '))
        percorso.chop(1);
    return percorso;
}

QString NomeDaPercorso(const QString& percorso) {
    return percorso.mid(qMax(percorso.lastIndexOf(u'\\'), percorso.lastIndexOf(u'/')) + 1);
}

bool VerificaDatabase(const QString& percorso) {
    ado::Connection connessione;
    esigi(connessione.open(ado::connectionPrefix + percorso + u';'));
    ado::Catalog catalogo;
    catalogo.setActiveConnection(connessione);
    bool destinatari = false;
    bool gruppi = false;
    for (const ado::Catalog::TableEntry& tabella : esigi(catalogo.tables())) {
        const QString nome = tabella.name.toLower();
        if (nome == QLatin1String("tb_destinatari")) destinatari = true;
        if (nome == QLatin1String("tb_gruppi")) gruppi = true;
    }
    return destinatari && gruppi;
}
