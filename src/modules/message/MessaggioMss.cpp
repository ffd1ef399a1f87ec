// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/message/MessaggioMss.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <QFile>
#include <utility>

#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "platform/html/Bounds.h"
#include "platform/system/TextWriter.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Blanks.h"

namespace {

const QString iniSubj = QStringLiteral("[<INI-SUBJ>]");
const QString endSubj = QStringLiteral("[<END-SUBJ>]");
const QString iniPrio = QStringLiteral("[<INI-PRIO>]");
const QString endPrio = QStringLiteral("[<END-PRIO>]");
const QString iniAllg = QStringLiteral("[<INI-ALLG>]");
const QString endAllg = QStringLiteral("[<END-ALLG>]");
const QString iniMess = QStringLiteral("[<INI-MESS>]");
const QString endMess = QStringLiteral("[<END-MESS>]");

constexpr qint64 fileMassimo = 256LL * 1024 * 1024;

QString senzaMarcatori(QString riga, const QString& inizio, const QString& fine) {
    riga.remove(inizio).remove(fine);
    return text::trimBlanks(riga).toString();
}

// Adds a line of the body. False once the limit of all readers is exceeded: the rest is not read.
bool aggiungi(QString& corpo, const QString& riga) {
    corpo += riga + QStringLiteral("\r\n");
    return corpo.size() <= html::mostCharacters;
}

}  // namespace

QByteArray ScriviMessaggio(const QString& percorso, const MessaggioMss& messaggio) {
    sys::TextWriter file;
    QByteArray scritto;
    const auto stampa = [&](const QString& riga) {
        esigi(file.print(riga));
        scritto += text::toAnsi(riga) + "\r\n";
    };
    esigi(file.open(percorso, sys::WriteMode::Output, sys::kindByFolder(percorso)));
    stampa(iniSubj + messaggio.Oggetto + endSubj);
    stampa(iniPrio + messaggio.Priorita + endPrio);
    stampa(iniAllg);
    if (messaggio.Allegati.size() > std::numeric_limits<std::int16_t>::max()) fallisci(ErrorCode::Overflow);
    for (const QString& allegato : messaggio.Allegati)
        stampa(allegato);
    stampa(endAllg);
    stampa(iniMess);
    stampa(messaggio.CorpoHTML);
    stampa(endMess);
    esigi(file.close());
    return scritto;
}

FileMss LeggiFileMss(const QString& percorso) {
    FileMss letto{percorso, {}, false, {}};
    QFile file;
    letto.aperto = text::openForInput(file, percorso);
    if (!letto.aperto.ok()) return letto;
    letto.byte = file.read(std::min(file.size(), fileMassimo));
    letto.intero = file.error() == QFile::NoError && file.atEnd();
    return letto;
}

LettoreMss::LettoreMss(const FileMss& file) {
    m_file.openBytes(file.byte, text::LineEnds::CarriageReturn, file.percorso);
}

bool LettoreMss::leggiRiga() {
    Prosegui prosegui;
    return prosegui([&] { esigi(m_file.readLine(m_riga)); });
}

QString LettoreMss::oggetto() {
    leggiRiga();
    return senzaMarcatori(m_riga, iniSubj, endSubj);
}

QString LettoreMss::priorita() {
    leggiRiga();
    return senzaMarcatori(m_riga, iniPrio, endPrio);
}

std::optional<AllegatoMss> LettoreMss::allegato() {
    if (!m_inAllegati) leggiRiga();  // the row that opens the block, whatever it contains
    m_inAllegati = true;
    if (m_riga == endAllg || !leggiRiga()) return std::nullopt;
    const QString percorso = text::trimBlanks(m_riga).toString();
    if (percorso == endAllg) return std::nullopt;
    const bool presente = FileEsiste(percorso);
    return AllegatoMss{percorso, NomeDaPercorso(presente ? percorso : m_riga), presente};
}

QString LettoreMss::corpo() {
    QString corpo;
    leggiRiga();  // the row that opens the body, whatever it contains
    bool altre = m_riga != endMess;
    while (altre && leggiRiga() && text::trimBlanks(m_riga) != endMess)
        altre = aggiungi(corpo, m_riga);
    return corpo;
}

QStringList MessaggioLetto::nominati() const {
    QStringList percorsi;
    for (const AllegatoMss& allegato : allegati)
        percorsi << allegato.percorso;
    return percorsi;
}

QStringList MessaggioLetto::presenti() const {
    QStringList percorsi;
    for (const AllegatoMss& allegato : allegati)
        if (allegato.presente) percorsi << allegato.percorso;
    return percorsi;
}

MessaggioLetto LeggiMss(const FileMss& file) {
    LettoreMss lettore(file);
    MessaggioLetto letto;
    letto.oggetto = lettore.oggetto();
    letto.priorita = lettore.priorita();
    while (auto allegato = lettore.allegato())
        letto.allegati << *std::move(allegato);
    letto.corpo = lettore.corpo();
    return letto;
}

int NumeroPriorita(const QString& priorita) {
    if (priorita == QLatin1String("HI")) return 1;
    if (priorita == QLatin1String("LW")) return 5;
    return 3;
}

QString AvvisoAllegatoMancante(const QString& nome) {
    return QStringLiteral("Il file ") + nome + QStringLiteral(" allegato non esiste più o è stato spostato.");
}

QString LeggiCorpoMss(const FileMss& letto) {
    esigi(letto.aperto);
    text::LineReader file;
    file.openBytes(letto.byte, text::LineEnds::CarriageReturn, letto.percorso);
    QString riga;
    while (text::trimBlanks(riga) != iniMess)
        esigi(file.readLine(riga));
    QString corpo;
    while (true) {
        esigi(file.readLine(riga));
        if (text::trimBlanks(riga) == endMess || !aggiungi(corpo, riga)) return corpo;
    }
}
