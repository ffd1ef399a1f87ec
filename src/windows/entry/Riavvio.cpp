#include "windows/entry/Riavvio.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <optional>
#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QProcess>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/system/Clock.h"
#include "platform/system/OwnFile.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"
#include "windows/entry/Posizione.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmGruppi.h"

namespace riavvio {

namespace {

constexpr qint64 limite = 64 * 1024;
constexpr int attesaMassima = 5000;  // milliseconds
constexpr qint64 etaMassima = 60;    // seconds
constexpr qint64 primaOfferta = 10;  // seconds
const QByteArray titolo = "[Riavvio]\r\n";

std::optional<QDateTime> avvio;
bool finestraMostrata = false;
std::function<void()> partenzaSostituita;

struct Stato {
    qint64 processo = 0;
    QDateTime ora;
    Rettangolo posizione;
    QString database;
    QStringList gruppi;  ///< keys from the root down to the one that was open
};
std::optional<Stato> raccolto;

QString fileRiavvio() {
    return cartellaDati() + QStringLiteral("riavvio.imp");
}

QStringList chiaviAperte() {
    QStringList chiavi;
    if (!nodoCorrente) return chiavi;
    ui::GroupNodeRef nodo = finestre::Main().Gruppi().TREE->Node(nodoCorrente->Key);
    for (; nodo; nodo = nodo->Parent())
        chiavi.prepend(nodo->Key());
    return chiavi;
}

void scrivi() {
    const Rettangolo posizione = PosizioneDi(finestre::Main());
    const QStringList righe{
        QStringLiteral("processo=%1").arg(::getpid()),
        QStringLiteral("ora=%1").arg(sys::clock().now().toUTC().toString(Qt::ISODate)),
        QStringLiteral("posizione=%1 %2 %3 %4 %5")
            .arg(posizione.sinistra)
            .arg(posizione.alto)
            .arg(posizione.larghezza)
            .arg(posizione.altezza)
            .arg(posizione.stato),
        QStringLiteral("database=") + QString::fromLatin1(percorsoDB.toUtf8().toPercentEncoding()),
        QStringLiteral("gruppi=") + chiaviAperte().join(u' '),
    };
    esigi(sys::replaceOwnFile(fileRiavvio(), titolo + righe.join(QStringLiteral("\r\n")).toUtf8() + "\r\n"));
}

/// None for bytes that are not of the form that scrivi() gives.
std::optional<Stato> leggi(const QByteArray& bytes) {
    if (!bytes.startsWith(titolo)) return std::nullopt;
    QMap<QByteArray, QString> valori;
    for (const QByteArray& riga : bytes.sliced(titolo.size()).split('\n')) {
        const qsizetype uguale = riga.indexOf('=');
        if (uguale > 0) valori[riga.first(uguale)] = QString::fromUtf8(riga.sliced(uguale + 1)).trimmed();
    }
    Stato stato;
    bool numeri = false;
    stato.processo = valori["processo"].toInt(&numeri);
    stato.ora = QDateTime::fromString(valori["ora"], Qt::ISODate);
    const QStringList posizione = valori["posizione"].split(u' ');
    if (!numeri || stato.processo <= 1 || !stato.ora.isValid() || posizione.size() != 5) return std::nullopt;
    int lette = 0;
    const auto numero = [&](int indice) {
        bool giusto = false;
        const int letto = posizione[indice].toInt(&giusto);
        lette += giusto ? 1 : 0;
        return letto;
    };
    stato.posizione = {numero(0), numero(1), numero(2), numero(3), numero(4)};
    if (lette != 5) return std::nullopt;
    stato.database = QString::fromUtf8(QByteArray::fromPercentEncoding(valori["database"].toLatin1()));
    stato.gruppi = valori["gruppi"].split(u' ', Qt::SkipEmptyParts);
    return stato;
}

void attendiFine(qint64 processo) {
    const int fine = static_cast<int>(::syscall(SYS_pidfd_open, static_cast<pid_t>(processo), 0));
    if (fine < 0) return;  // it has ended
    pollfd attesa{fine, POLLIN, 0};
    ::poll(&attesa, 1, attesaMassima);
    ::close(fine);
}

}  // namespace

void SegnaAvvio() {
    avvio = sys::clock().now();
    finestraMostrata = false;
    OffriNuovoAvvio({Possibile, Avvia});
}

void SegnaFinestra() {
    finestraMostrata = true;
}

bool FinestraMostrata() {
    return finestraMostrata;
}

bool Possibile() {
    return avvio && finestraMostrata && avvio->secsTo(sys::clock().now()) >= primaOfferta;
}

void Avvia() {
    Prosegui prosegui;
    prosegui([] { scrivi(); });
    if (partenzaSostituita)
        partenzaSostituita();
    else
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
}

void sostituisciPartenza(std::function<void()> partenza) {
    partenzaSostituita = std::move(partenza);
}

void Raccogli() {
    raccolto.reset();
    const Result<QByteArray> letto = sys::readOwnFile(fileRiavvio(), limite);
    if (!letto.ok() && letto.status().code() == ErrorCode::FileNotFound) return;
    if (letto.ok()) raccolto = leggi(letto.value());
    if (!raccolto) {
        QFile::rename(fileRiavvio(), fileRiavvio() + QStringLiteral(".rovinato"));
        return;
    }
    QFile::remove(fileRiavvio());
    if (qAbs(raccolto->ora.secsTo(sys::clock().now())) > etaMassima)
        raccolto.reset();
    else
        attendiFine(raccolto->processo);
}

void RiprendiPosizione() {
    if (raccolto) MettiInPosizione(finestre::Main(), raccolto->posizione);
}

void RiprendiGruppo() {
    if (!raccolto || raccolto->database != percorsoDB) return;
    Prosegui prosegui;
    prosegui([] { finestre::Main().Gruppi().Apri(raccolto->gruppi); });
}

}  // namespace riavvio
