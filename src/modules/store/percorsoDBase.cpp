// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/percorsoDBase.h"

#include <QFile>
#include <QStringDecoder>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/ado/ConnectionText.h"
#include "platform/system/OwnFile.h"
#include "platform/system/TextWriter.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/TextFile.h"
#include "platform/text/Words.h"

namespace {

QString fileDelPercorso() {
    return cartellaDati() + QStringLiteral("pathDBase.imp");
}

QString fileDelPercorsoIntero() {
    return cartellaDati() + QStringLiteral("pathDBase.utf8");
}

/// The part of a path that "pathDBase.imp" can represent.
QString formaAnsi(const QString& percorso) {
    return text::fromAnsi(text::toAnsi(percorso));
}

/// The path in the second file: one line of UTF-8. Empty for anything else.
QString percorsoDi(const QByteArray& contenuto) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString percorso = utf8(contenuto);
    if (utf8.hasError() || !percorso.endsWith(QLatin1String("\r\n"))) return {};
    percorso.chop(2);
    for (const QChar vietato : {QChar(0), QChar('\r'), QChar('\n')})
        if (percorso.contains(vietato)) return {};
    return percorso;
}

/// The whole path for one from the first file, or that one itself. A damaged second file is set
/// aside, which `avviso` then says.
QString percorsoIntero(const QString& percorso, QString& avviso) {
    constexpr qint64 byteAlPiu = 16384;
    const Result<QByteArray> contenuto = sys::readOwnFile(fileDelPercorsoIntero(), byteAlPiu);
    if (!contenuto.ok() && contenuto.status().code() == ErrorCode::FileNotFound) return percorso;
    const QString intero = contenuto.ok() ? percorsoDi(contenuto.value()) : QString();
    if (!intero.isEmpty()) return formaAnsi(intero) == percorso ? intero : percorso;
    const QString daParte = fileDelPercorsoIntero() + QStringLiteral(".guasto");
    QFile::remove(daParte);
    if (QFile::rename(fileDelPercorsoIntero(), daParte))
        avviso = Words::tr(
            "Il file pathDBase.utf8, con il percorso del database, è danneggiato.\r\n"
            "È stato messo da parte con il nome pathDBase.utf8.guasto.");
    return percorso;
}

/// The second file exists only for a path that needs it.
void scriviPercorsoIntero(const QString& percorso) {
    if (formaAnsi(percorso) == percorso) {
        QFile::remove(fileDelPercorsoIntero());
        return;
    }
    static_cast<void>(sys::replaceOwnFile(fileDelPercorsoIntero(), percorso.toUtf8() + "\r\n"));
}

void impostaPercorso(const QString& percorso) {
    percorsoDB = percorso;
    connDB = prefissoConnDB + percorsoDB;
}

}  // namespace

QString CaricaPercorsoDBase() {
    Prosegui prosegui;
    QString avviso;
    text::LineReader file;
    QString intestazione;
    QString percorso;
    prosegui([&] { esigi(file.open(fileDelPercorso(), text::LineEnds::Any)); });
    prosegui([&] { esigi(file.readLine(intestazione)); });
    prosegui([&] { esigi(file.readLine(percorso)); });
    if (percorso == QLatin1String("XXX"))
        percorso = cartellaDati() + QStringLiteral("data.mdb");
    else
        percorso = percorsoIntero(percorso, avviso);
    prefissoConnDB = ado::connectionPrefix;
    impostaPercorso(percorso);
    return avviso;
}

void CambiaPercorsoDBase(const QString& percorso) {
    Prosegui prosegui;
    sys::TextWriter file;
    prosegui([&] { esigi(file.open(fileDelPercorso(), sys::WriteMode::Output, sys::FileKind::Own)); });
    prosegui([&] { esigi(file.print(u"[Path dabatase Quintara]")); });
    prosegui([&] { esigi(file.print(percorso)); });
    prosegui([&] { esigi(file.close()); });
    scriviPercorsoIntero(percorso);
    impostaPercorso(percorso);
}
