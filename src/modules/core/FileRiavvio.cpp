// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/FileRiavvio.h"

#include <chrono>
#include <climits>
#include <QFile>
#include <QMap>

#include "modules/core/bImpostazioni.h"
#include "platform/system/Clock.h"
#include "platform/system/OwnFile.h"

namespace fileRiavvio {

namespace {

constexpr qint64 byteMassimi = 64 * 1024;
constexpr qint64 etaMassima = 60;  // seconds
constexpr int sguardi = 200;       // at the lock
constexpr std::chrono::milliseconds traSguardi{10};
const QByteArray titolo = "[Riavvio]\r\n";
const QByteArray chiaveMessaggio = "messaggio";

struct Messaggio {
    QByteArray ora;  ///< as in the file
    QByteArray percorso;
};

struct Contenuto {
    std::optional<Stato> stato;
    QList<Messaggio> messaggi;
};

QString percorsoFile() {
    return cartellaDati() + QStringLiteral("riavvio.imp");
}

/// Keeps the other programs away from the file for as long as it lives. The holder of the lock is done in
/// milliseconds; the wait for one that was stopped in the middle is bounded.
class Turno {
  public:
    Turno() {
        for (int sguardo = 0; sguardo < sguardi; ++sguardo) {
            const Status preso = m_blocco.take(cartellaDati() + QStringLiteral("riavvio.blocco"));
            if (preso.code() != ErrorCode::FileInUse) return;
            sys::systemClock().sleep(traSguardi);
        }
    }
    ~Turno() { m_blocco.remove(); }
    Turno(const Turno&) = delete;
    Turno& operator=(const Turno&) = delete;

  private:
    sys::FileLock m_blocco;
};

QByteArray adesso() {
    return sys::clock().now().toUTC().toString(Qt::ISODate).toLatin1();
}

bool recente(const QDateTime& ora) {
    return ora.isValid() && qAbs(ora.secsTo(sys::clock().now())) <= etaMassima;
}

QByteArray riga(const QByteArray& chiave, const QByteArray& valore) {
    return chiave + '=' + valore + "\r\n";
}

QByteArray righeDi(const Stato& stato) {
    QByteArrayList numeri;
    for (const int numero : stato.posizione)
        numeri << QByteArray::number(numero);
    return riga("processo", QByteArray::number(stato.processo)) +
           riga("ora", stato.ora.toUTC().toString(Qt::ISODate).toLatin1()) +
           riga("posizione", numeri.join(' ')) +
           riga("database", stato.database.toUtf8().toPercentEncoding()) +
           riga("gruppi", stato.gruppi.join(u' ').toUtf8());
}

QByteArray byteDi(const Contenuto& contenuto) {
    QByteArray byte = titolo;
    if (contenuto.stato) byte += righeDi(*contenuto.stato);
    for (const Messaggio& messaggio : contenuto.messaggi)
        byte += riga(chiaveMessaggio, messaggio.ora + ' ' + messaggio.percorso.toPercentEncoding("/"));
    return byte;
}

std::optional<Stato> statoDa(const QMap<QByteArray, QByteArray>& valori) {
    Stato stato;
    bool giusto = false;
    stato.processo = valori["processo"].toInt(&giusto);
    stato.ora = QDateTime::fromString(QString::fromLatin1(valori["ora"]), Qt::ISODate);
    const QByteArrayList posizione = valori["posizione"].split(' ');
    if (!giusto || stato.processo <= 1 || !stato.ora.isValid() || posizione.size() != 5) return std::nullopt;
    for (std::size_t i = 0; i < stato.posizione.size(); ++i) {
        stato.posizione[i] = posizione[static_cast<qsizetype>(i)].toInt(&giusto);
        if (!giusto) return std::nullopt;
    }
    stato.database = QString::fromUtf8(QByteArray::fromPercentEncoding(valori["database"]));
    stato.gruppi = QString::fromUtf8(valori["gruppi"]).split(u' ', Qt::SkipEmptyParts);
    return stato;
}

/// None for one that does not count.
std::optional<Messaggio> messaggioDa(const QByteArray& valore) {
    const qsizetype spazio = valore.indexOf(' ');
    if (spazio < 0) return std::nullopt;
    const Messaggio messaggio{valore.first(spazio),
                              QByteArray::fromPercentEncoding(valore.sliced(spazio + 1))};
    const bool possibile = messaggio.percorso.startsWith('/') && messaggio.percorso.size() < PATH_MAX &&
                           !messaggio.percorso.contains('\0');
    if (!possibile || !recente(QDateTime::fromString(QString::fromLatin1(messaggio.ora), Qt::ISODate)))
        return std::nullopt;
    return messaggio;
}

/// None for bytes that are not of the form of byteDi().
std::optional<Contenuto> leggi(const QByteArray& byte) {
    if (!byte.startsWith(titolo)) return std::nullopt;
    Contenuto contenuto;
    QMap<QByteArray, QByteArray> valori;
    bool messaggi = false;
    for (const QByteArray& intera : byte.sliced(titolo.size()).split('\n')) {
        const qsizetype uguale = intera.indexOf('=');
        if (uguale <= 0) continue;
        const QByteArray chiave = intera.first(uguale);
        const QByteArray valore = intera.sliced(uguale + 1).trimmed();
        if (chiave != chiaveMessaggio) {
            valori[chiave] = valore;
            continue;
        }
        messaggi = true;
        if (const auto messaggio = messaggioDa(valore)) contenuto.messaggi << *messaggio;
    }
    contenuto.stato = statoDa(valori);
    if (!contenuto.stato && (!messaggi || valori.contains("processo"))) return std::nullopt;
    return contenuto;
}

/// The content of the file; an invalid file is set aside.
Contenuto prendi() {
    const Result<QByteArray> letto = sys::readGuardedFile(percorsoFile(), byteMassimi, sys::Others::Read);
    if (!letto.ok() && letto.status().code() == ErrorCode::FileNotFound) return {};
    if (letto.ok())
        if (const auto contenuto = leggi(letto.value())) return *contenuto;
    QFile::rename(percorsoFile(), percorsoFile() + QStringLiteral(".rovinato"));
    return {};
}

Status scrivi(const Contenuto& contenuto) {
    const QByteArray byte = byteDi(contenuto);
    if (byte.size() > byteMassimi) return {ErrorCode::Overflow, QString()};
    return sys::replaceOwnFile(percorsoFile(), byte);
}

}  // namespace

Status LasciaStato(const Stato& stato) {
    const Turno turno;
    Contenuto contenuto = prendi();
    contenuto.stato = stato;
    return scrivi(contenuto);
}

Status LasciaMessaggio(const QByteArray& percorso) {
    const Turno turno;
    Contenuto contenuto = prendi();
    contenuto.messaggi << Messaggio{adesso(), percorso};
    return scrivi(contenuto);
}

Raccolto Raccogli() {
    if (!QFile::exists(percorsoFile())) return {};
    const Turno turno;
    Contenuto contenuto = prendi();
    Raccolto raccolto{std::exchange(contenuto.stato, std::nullopt), {}};
    if (raccolto.stato && !recente(raccolto.stato->ora)) raccolto.stato.reset();
    if (!contenuto.messaggi.isEmpty()) raccolto.messaggio = contenuto.messaggi.takeFirst().percorso;
    if (contenuto.messaggi.isEmpty() || !scrivi(contenuto).ok()) QFile::remove(percorsoFile());
    return raccolto;
}

}  // namespace fileRiavvio
