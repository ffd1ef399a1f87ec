#include "modules/send/Personalizza.h"

#include <bitset>
#include <QUrl>

#include "modules/core/Errori.h"

const std::array<QString, numeroSegnaposto> colonneSegnaposto{
    QStringLiteral("rgs"),    QStringLiteral("nom"),    QStringLiteral("email"),  QStringLiteral("piva"),
    QStringLiteral("ind"),    QStringLiteral("cap"),    QStringLiteral("loc"),    QStringLiteral("prov"),
    QStringLiteral("tel"),    QStringLiteral("fax"),    QStringLiteral("campo1"), QStringLiteral("campo2"),
    QStringLiteral("campo3"), QStringLiteral("campo4"), QStringLiteral("campo5"), QStringLiteral("campo6"),
    QStringLiteral("campo7"), QStringLiteral("campo8"), QStringLiteral("campo9")};

namespace {

const QString segno = QStringLiteral(":::");

// Which placeholders stand in the text: one quick pass, where a search for each would cost nineteen.
std::bitset<numeroSegnaposto> presentiIn(QStringView testo) {
    std::bitset<numeroSegnaposto> presenti;
    for (auto posto = testo.indexOf(u':'); posto >= 0; posto = testo.indexOf(u':', posto + 1)) {
        if (!testo.sliced(posto).startsWith(segno)) continue;
        const QStringView nome = testo.sliced(posto + segno.size());
        for (std::size_t i = 0; i < numeroSegnaposto; ++i) {
            const QString& colonna = colonneSegnaposto[i];
            if (nome.startsWith(colonna) && nome.sliced(colonna.size()).startsWith(segno)) presenti.set(i);
        }
    }
    return presenti;
}

}  // namespace

QString Segnaposto(std::size_t i) {
    return segno + colonneSegnaposto[i] + segno;
}

LeggiColonna ColonneDi(const ado::Recordset& destinatari) {
    return [&destinatari](const QString& colonna) -> Result<std::optional<QString>> {
        const Result<ado::Value> valore = destinatari.value(colonna);
        if (!valore.ok()) return valore.status();
        if (valore.value().isNull()) return std::optional<QString>();
        const Result<QString> testo = valore.value().toText();
        if (!testo.ok()) return testo.status();
        return std::optional<QString>(testo.value());
    };
}

ValoriSegnaposto LeggiValori(const LeggiColonna& leggi) {
    ValoriSegnaposto valori;
    for (std::size_t i = 0; i < numeroSegnaposto; ++i) {
        const Result<std::optional<QString>> letto = leggi(colonneSegnaposto[i]);
        if (letto.ok()) valori[i] = letto.value();
    }
    return valori;
}

QString Personalizza(QString modello, const ValoriSegnaposto& valori) {
    auto presenti = presentiIn(modello);
    for (std::size_t i = 0; i < numeroSegnaposto; ++i) {
        if (!presenti[i] || !valori[i]) continue;
        modello.replace(Segnaposto(i), *valori[i]);
        // The value may have brought others, or made one with the text around it.
        presenti = presentiIn(modello);
    }
    return modello;
}

ValoriSegnaposto PerCollegamento(ValoriSegnaposto valori) {
    for (auto& valore : valori) {
        if (valore) valore = QString::fromLatin1(QUrl::toPercentEncoding(*valore));
    }
    return valori;
}

TestiMessaggio PersonalizzaTesti(TestiMessaggio modello, const ValoriSegnaposto& valori) {
    for (QString* testo : {&modello.corpoHtml, &modello.corpoTesto, &modello.oggetto})
        *testo = Personalizza(*testo, valori);
    modello.disiscrizione = Personalizza(modello.disiscrizione, PerCollegamento(valori));
    return modello;
}

Result<QString> NomeDestinatario(const LeggiColonna& leggi) {
    std::optional<QString> nome;
    for (const QString& colonna : {QStringLiteral("rgs"), QStringLiteral("nom"), QStringLiteral("email")}) {
        const Result<std::optional<QString>> letto = leggi(colonna);
        if (!letto.ok()) return letto.status();
        nome = letto.value();
        if (nome && !nome->isEmpty()) break;
    }
    if (!nome) return Status(ErrorCode::InvalidNull, testoErrore(ErrorCode::InvalidNull));
    return *nome;
}
