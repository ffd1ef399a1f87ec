// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/message/CopiaRecupero.h"

#include <algorithm>
#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>
#include <utility>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"

namespace {

// Four times the longest body that a message file may have.
constexpr qint64 copiaMassima = 256LL * 1024 * 1024;
constexpr int messeDaParte = 5;

// Milliseconds from the last change to the copy, and at most from the first one that it lacks.
constexpr qint64 dopoUltima = 1000;
constexpr qint64 dopoPrima = 5000;
constexpr qint64 dopoPrimaGrande = 15000;
constexpr qsizetype corpoGrande = 1024 * 1024;  // characters

const QByteArray intestazione = QByteArrayLiteral("VESTROLA-RECUPERO 1\n");
const QString copie = QStringLiteral(".copia");
const QString rifiutate = QStringLiteral(".rifiutata");
const QString danneggiata = QStringLiteral(".danneggiata");
const QString blocchi = QStringLiteral(".blocco");
const QString nuove = QStringLiteral(".nuovo");

QString cartellaRecuperati() {
    return cartellaDati() + QStringLiteral("recuperati");
}

QByteArray impronta(QByteArrayView contenuto) {
    QCryptographicHash somma(QCryptographicHash::Sha256);
    somma.addData(contenuto.toByteArray());
    return somma.result().toHex() + '\n';
}

QByteArray inByte(const MessaggioRecuperato& messaggio) {
    QJsonObject campi{{"titolo", messaggio.titolo},
                      {"oggetto", messaggio.Oggetto},
                      {"priorita", messaggio.Priorita},
                      {"allegati", QJsonArray::fromStringList(messaggio.Allegati)},
                      {"corpo", messaggio.CorpoHTML},
                      {"estraneo", messaggio.estraneo},
                      {"propri", QJsonArray::fromStringList(messaggio.propri)}};
    if (messaggio.Origine) campi["origine"] = *messaggio.Origine;
    const QByteArray contenuto = QJsonDocument(campi).toJson(QJsonDocument::Compact);
    return intestazione + impronta(contenuto) + contenuto;
}

std::optional<MessaggioRecuperato> daByte(const QByteArray& byte) {
    constexpr qsizetype lunghezzaImpronta = 65;
    const qsizetype inizio = intestazione.size() + lunghezzaImpronta;
    if (!byte.startsWith(intestazione) || byte.size() < inizio) return std::nullopt;
    const QByteArray contenuto = byte.mid(inizio);
    if (byte.mid(intestazione.size(), lunghezzaImpronta) != impronta(contenuto)) return std::nullopt;
    const QJsonDocument documento = QJsonDocument::fromJson(contenuto);
    if (!documento.isObject()) return std::nullopt;
    const QJsonObject campi = documento.object();
    MessaggioRecuperato messaggio;
    messaggio.titolo = campi["titolo"].toString();
    messaggio.Oggetto = campi["oggetto"].toString();
    messaggio.Priorita = campi["priorita"].toString();
    for (const QJsonValue allegato : campi["allegati"].toArray())
        messaggio.Allegati << allegato.toString();
    messaggio.CorpoHTML = campi["corpo"].toString();
    if (campi.contains(QLatin1String("origine"))) messaggio.Origine = campi["origine"].toString();
    messaggio.estraneo = campi["estraneo"].toBool(true);
    for (const QJsonValue proprio : campi["propri"].toArray())
        messaggio.propri << proprio.toString();
    return messaggio;
}

QFileInfoList elenco(const QString& suffisso) {
    return QDir(cartellaRecuperati())
        .entryInfoList({'*' + suffisso}, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDir::Time);
}

QString senza(const QString& percorso, const QString& suffisso) {
    return percorso.chopped(suffisso.size());
}

/// Renames a copy so that it is not offered, and keeps only the newest of those.
void metti(const QString& percorso, const QString& suffisso) {
    QFile::remove(percorso + nuove);
    QFile::rename(percorso, senza(percorso, copie) + suffisso);
    const QFileInfoList messe = elenco(suffisso);
    for (qsizetype i = messeDaParte; i < messe.size(); ++i)
        QFile::remove(messe[i].absoluteFilePath());
}

/// A program that was killed at its first copy left a lock without a copy.
void togliResti() {
    for (const QFileInfo& file : elenco(blocchi)) {
        const QString percorso = senza(file.absoluteFilePath(), blocchi);
        if (QFile::exists(percorso + copie)) continue;
        sys::FileLock blocco;
        if (!blocco.take(percorso + blocchi).ok()) continue;
        if (!QFile::exists(percorso + copie)) {
            QFile::remove(percorso + copie + nuove);
            blocco.remove();
        }
    }
}

}  // namespace

int AttesaCopia(qsizetype caratteri, qint64 dallaPrima) {
    const qint64 rimane = (caratteri > corpoGrande ? dopoPrimaGrande : dopoPrima) - dallaPrima;
    return static_cast<int>(std::clamp<qint64>(rimane, 0, dopoUltima));
}

void CopiaRecupero::Scrivi(const MessaggioRecuperato& messaggio) {
    if (!Esiste()) {
        esigi(sys::makeOwnFolder(cartellaRecuperati()));
        percorso = cartellaRecuperati() + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
        esigi(blocco.take(percorso + blocchi));
    }
    const QByteArray byte = inByte(messaggio);
    if (byte.size() > copiaMassima) fallisci(ErrorCode::Overflow);
    esigi(sys::replaceOwnFile(percorso + copie, byte));
}

void CopiaRecupero::Togli() {
    if (!Esiste()) return;
    QFile::remove(percorso + copie);
    QFile::remove(percorso + copie + nuove);
    blocco.remove();
}

std::vector<CopiaTrovata> CopiaTrovata::Cerca(QStringList& danneggiate) {
    std::vector<CopiaTrovata> trovate;
    togliResti();
    for (const QFileInfo& file : elenco(copie)) {
        CopiaTrovata trovata;
        trovata.copia.percorso = senza(file.absoluteFilePath(), copie);
        if (!trovata.copia.blocco.take(trovata.copia.percorso + blocchi).ok()) continue;
        const Result<QByteArray> byte = sys::readOwnFile(file.absoluteFilePath(), copiaMassima);
        // Its program may have removed it before the lock was free.
        if (!byte.ok() && byte.status().code() == ErrorCode::FileNotFound) {
            trovata.copia.blocco.remove();
            continue;
        }
        auto messaggio = byte.ok() ? daByte(byte.value()) : std::nullopt;
        if (!messaggio) {
            metti(file.absoluteFilePath(), danneggiata);
            trovata.copia.blocco.remove();
            danneggiate << senza(file.absoluteFilePath(), copie) + danneggiata;
            continue;
        }
        trovata.messaggio = *std::move(messaggio);
        trovata.quando = file.lastModified();
        trovate.push_back(std::move(trovata));
    }
    return trovate;
}

void CopiaTrovata::MettiDaParte() {
    metti(copia.percorso + copie, rifiutate);
    copia.blocco.remove();
}
