#include "modules/message/MessaggioMss.h"

#include <cstdint>
#include <limits>

#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "platform/html/Bounds.h"
#include "platform/system/TextWriter.h"
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

QString senzaMarcatori(QString riga, const QString& inizio, const QString& fine) {
    riga.remove(inizio).remove(fine);
    return text::trimBlanks(riga).toString();
}

// Adds a line of the body. False once there is more than anybody takes: the rest needs no reading.
bool aggiungi(QString& corpo, const QString& riga) {
    corpo += riga + QStringLiteral("\r\n");
    return corpo.size() <= html::mostCharacters;
}

}  // namespace

void ScriviMessaggio(const QString& percorso, const MessaggioMss& messaggio) {
    sys::TextWriter file;
    esigi(file.open(percorso, sys::WriteMode::Output, sys::kindByFolder(percorso)));
    esigi(file.print(iniSubj + messaggio.Oggetto + endSubj));
    esigi(file.print(iniPrio + messaggio.Priorita + endPrio));
    esigi(file.print(iniAllg));
    if (messaggio.Allegati.size() > std::numeric_limits<std::int16_t>::max()) fallisci(ErrorCode::Overflow);
    for (const QString& allegato : messaggio.Allegati)
        esigi(file.print(allegato));
    esigi(file.print(endAllg));
    esigi(file.print(iniMess));
    esigi(file.print(messaggio.CorpoHTML));
    esigi(file.print(endMess));
    esigi(file.close());
}

LettoreMss::LettoreMss(const QString& percorso) {
    Prosegui prosegui;
    prosegui([&] { esigi(m_file.open(percorso, text::LineEnds::CarriageReturn)); });
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
    if (!m_inAllegati) leggiRiga();  // the row that opens the block, whatever it holds
    m_inAllegati = true;
    if (m_riga == endAllg || !leggiRiga()) return std::nullopt;
    const QString percorso = text::trimBlanks(m_riga).toString();
    if (percorso == endAllg) return std::nullopt;
    const bool presente = FileEsiste(percorso);
    return AllegatoMss{percorso, NomeDaPercorso(presente ? percorso : m_riga), presente};
}

QString LettoreMss::corpo() {
    QString corpo;
    leggiRiga();  // the row that opens the body, whatever it holds
    bool altre = m_riga != endMess;
    while (altre && leggiRiga() && text::trimBlanks(m_riga) != endMess)
        altre = aggiungi(corpo, m_riga);
    return corpo;
}

int NumeroPriorita(const QString& priorita) {
    if (priorita == QLatin1String("HI")) return 1;
    if (priorita == QLatin1String("LW")) return 5;
    return 3;
}

QString AvvisoAllegatoMancante(const QString& nome) {
    return QStringLiteral("Il file ") + nome + QStringLiteral(" allegato non esiste più o è stato spostato.");
}

QString LeggiCorpoMss(const QString& percorso) {
    text::LineReader file;
    esigi(file.open(percorso, text::LineEnds::CarriageReturn));
    QString riga;
    while (text::trimBlanks(riga) != iniMess)
        esigi(file.readLine(riga));
    QString corpo;
    while (true) {
        esigi(file.readLine(riga));
        if (text::trimBlanks(riga) == endMess || !aggiungi(corpo, riga)) return corpo;
    }
}
