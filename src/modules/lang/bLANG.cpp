// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/lang/bLANG.h"

#include <limits>
#include <QHash>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/system/TextWriter.h"
#include "platform/text/TextFile.h"

namespace {

constexpr qsizetype lunghezzaMarcatore = 8;  ///< of "[<NOME>]" and of "[<LNG1>]"
constexpr qsizetype inizioSezione = 10;      ///< two characters after the marker are not read

QString percorsoTesti() {
    return PercorsoApp() + QStringLiteral("LANG.lng");
}

QString percorsoScelta() {
    return PercorsoApp() + QStringLiteral("LANGz.lng");
}

/// Passes each line to `riga`, up to the end of the file.
template <class Riga>
void perOgniRiga(const QString& percorso, Riga&& riga) {
    text::LineReader file;
    esigi(file.open(percorso, text::LineEnds::Any));
    QString testo;
    while (file.nextLine(testo))
        riga(testo);
    esigi(file.status());
}

QString linguaInUso() {
    text::LineReader file;
    QString nome;
    esigi(file.open(percorsoScelta(), text::LineEnds::Any));
    esigi(file.readLine(nome));
    return nome;
}

/// All other lines are comments.
bool conta(const QString& riga) {
    return riga.size() >= lunghezzaMarcatore && riga[0] == u'[' && riga[lunghezzaMarcatore - 1] == u']';
}

bool dichiaraLingua(const QString& riga) {
    return riga.startsWith(QLatin1String("[<LNG"));
}

bool apreSezione(const QString& riga) {
    const QStringView tipo = QStringView(riga).mid(1, 6);
    return tipo == u"<FORM>" || tipo == u"<MDLO>";
}

/// Where a marker begins, counted from 1; 0 where it is missing.
qsizetype posto(const QString& riga, const QString& marcatore) {
    // A search for one character is much faster, and brackets are rare.
    for (qsizetype i = riga.indexOf(u'['); i >= 0; i = riga.indexOf(u'[', i + 1))
        if (QStringView(riga).sliced(i).startsWith(marcatore)) return i + 1;
    return 0;
}

/// The text between two markers, given by their positions. A missing marker makes the length negative.
QStringView traMarcatori(const QString& riga, qsizetype primo, qsizetype secondo) {
    const qsizetype inizio = primo + lunghezzaMarcatore;
    if (secondo < inizio) fallisci(ErrorCode::SubscriptOutOfRange);
    return QStringView(riga).mid(inizio - 1, secondo - inizio);
}

/// The markers of all languages, and the one that ends a line.
QStringList marcatoriLingue() {
    QStringList marcatori;
    for (int numero = 1; numero <= bLANG::numeroLingue + 1; ++numero)
        marcatori += QStringLiteral("[<LNG%1>]").arg(numero);
    return marcatori;
}

/// The texts of a line in all languages. A "|" inside a text counts as the end of one.
QList<QStringView> testiDellaRiga(const QString& riga, const QStringList& marcatori) {
    QList<QStringView> testi;
    qsizetype primo = posto(riga, marcatori.constFirst());
    for (int lingua = 1; lingua <= bLANG::numeroLingue; ++lingua) {
        const qsizetype secondo = posto(riga, marcatori[lingua]);
        testi += traMarcatori(riga, primo, secondo).split(u'|');
        primo = secondo;
    }
    if (testi.isEmpty()) fallisci(ErrorCode::SubscriptOutOfRange);
    return testi;
}

}  // namespace

void bLANG::ElencaLingue(QStringList& voci) {
    voci.clear();
    perOgniRiga(percorsoTesti(), [&](const QString& riga) {
        if (!conta(riga) || !dichiaraLingua(riga)) return;
        voci += riga.mid(lunghezzaMarcatore);
        if (numeroLingue == std::numeric_limits<std::int16_t>::max()) fallisci(ErrorCode::Overflow);
        ++numeroLingue;
    });
    const QString inUso = linguaInUso();
    for (qsizetype i = 0; i < voci.size(); ++i) {
        if (voci[i] != inUso) continue;
        voci[i] = QStringLiteral(">> ") + inUso + QStringLiteral(" <<");
        linguaScelta = static_cast<std::int16_t>(i + 1);
    }
}

QString bLANG::CodiceLingua() {
    static const QHash<QString, QString> codici{{QStringLiteral("English"), QStringLiteral("en")},
                                                {QStringLiteral("Español"), QStringLiteral("es")},
                                                {QStringLiteral("Français"), QStringLiteral("fr")},
                                                {QStringLiteral("Deutsch"), QStringLiteral("de")}};
    QString codice = QStringLiteral("it");
    Prosegui prosegui;
    prosegui([&] {
        const QString inUso = linguaInUso();
        perOgniRiga(percorsoTesti(), [&](const QString& riga) {
            if (conta(riga) && dichiaraLingua(riga) && QStringView(riga).mid(lunghezzaMarcatore) == inUso)
                codice = codici.value(inUso, codice);
        });
    });
    return codice;
}

void bLANG::ScriviLinguaInUso(const QString& nome) {
    sys::TextWriter file;
    esigi(file.open(percorsoScelta(), sys::WriteMode::Output, sys::FileKind::Own));
    esigi(file.print(nome));
    esigi(file.close());
}

bool bLANG::eSegnata(const QString& voce) {
    return voce.startsWith(QLatin1String(">>"));
}

void bLANG::LeggiTesti(const std::function<Destinazione(const QString& chiave)>& destinazione) {
    const QStringList marcatori = marcatoriLingue();
    QString sezione;
    perOgniRiga(percorsoTesti(), [&](const QString& riga) {
        if (!conta(riga)) return;
        if (apreSezione(riga)) {
            sezione = riga.mid(inizioSezione);
            return;
        }
        if (dichiaraLingua(riga)) return;
        const QStringView chiave =
            traMarcatori(riga, posto(riga, QStringLiteral("[<NOME>]")), posto(riga, marcatori.constFirst()));
        const QList<QStringView> testi = testiDellaRiga(riga, marcatori);
        if (const Destinazione assegna = destinazione(sezione + u'.' + chiave.toString())) {
            if (linguaScelta < 1 || linguaScelta > testi.size()) fallisci(ErrorCode::SubscriptOutOfRange);
            assegna(testi[linguaScelta - 1].toString());
        }
    });
}
