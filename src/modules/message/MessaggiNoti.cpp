// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/message/MessaggiNoti.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/html/HtmlDocument.h"
#include "platform/mail/LocalImages.h"
#include "platform/system/OwnFile.h"

namespace messaggiNoti {

namespace {

constexpr qsizetype vociMassime = 2000;
constexpr qint64 elencoMassimo = 16LL * 1024 * 1024;

QString fileElenco() {
    return cartellaDati() + QStringLiteral("messaggi-noti.json");
}

/// The canonical name of a file, links resolved.
QString nomeVero(const QString& percorso) {
    const QFileInfo file(percorso);
    const QString vero = file.canonicalFilePath();
    return vero.isEmpty() ? file.absoluteFilePath() : vero;
}

QJsonArray voci() {
    const Result<QByteArray> letto = sys::readGuardedFile(fileElenco(), elencoMassimo);
    if (!letto.ok()) return {};
    return QJsonDocument::fromJson(letto.value()).object().value(QLatin1String("messaggi")).toArray();
}

QStringList testi(const QJsonValue& valore) {
    QStringList testi;
    for (const QJsonValue uno : valore.toArray())
        testi << uno.toString();
    return testi;
}

QJsonObject voceDi(const QString& percorso) {
    const QString nome = nomeVero(percorso);
    for (const QJsonValue voce : voci())
        if (voce[QLatin1String("file")].toString() == nome) return voce.toObject();
    return {};
}

}  // namespace

QStringList FileNominati(const QStringList& allegati, const QString& corpo) {
    HtmlDocument documento;
    // One that is refused is never sent.
    static_cast<void>(documento.setDocumentHTML(corpo));
    QStringList nominati =
        allegati + mail::localImagePaths(corpo) + mail::localImagePaths(documento.documentHTML());
    nominati.removeDuplicates();
    return nominati;
}

QByteArray Impronta(const QByteArray& byte) {
    return QCryptographicHash::hash(byte, QCryptographicHash::Sha256);
}

std::optional<Noto> Cerca(const QString& percorso, const QByteArray& impronta) {
    const QJsonObject voce = voceDi(percorso);
    if (impronta.isEmpty() || voce[QLatin1String("impronta")].toString().toLatin1() != impronta.toHex())
        return std::nullopt;
    return Noto{testi(voce[QLatin1String("daConfermare")]), testi(voce[QLatin1String("confermati")])};
}

QStringList Confermati(const QString& percorso) {
    return testi(voceDi(percorso)[QLatin1String("confermati")]);
}

void Annota(const QString& percorso, const QByteArray& impronta, const Noto& noto) {
    const QString nome = nomeVero(percorso);
    QJsonArray nuove;
    for (const QJsonValue voce : voci())
        if (voce[QLatin1String("file")].toString() != nome) nuove.append(voce);
    nuove.append(QJsonObject{{"file", nome},
                             {"impronta", QString::fromLatin1(impronta.toHex())},
                             {"daConfermare", QJsonArray::fromStringList(noto.daConfermare)},
                             {"confermati", QJsonArray::fromStringList(noto.confermati)}});
    while (nuove.size() > vociMassime)
        nuove.removeFirst();
    QByteArray byte = QJsonDocument(QJsonObject{{"messaggi", nuove}}).toJson();
    while (byte.size() > elencoMassimo && !nuove.isEmpty()) {
        for (qsizetype n = nuove.size() / 2 + 1; n > 0; --n)
            nuove.removeFirst();
        byte = QJsonDocument(QJsonObject{{"messaggi", nuove}}).toJson();
    }
    Prosegui prosegui;
    prosegui([&] { esigi(sys::replaceOwnFile(fileElenco(), byte)); });
}

}  // namespace messaggiNoti
