// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Personalizza.h"

#include <algorithm>
#include <QUrl>
#include <utility>

#include "modules/core/Errori.h"
#include "modules/store/Destinatario.h"
#include "platform/text/SameText.h"

const std::array<QString, numeroSegnaposto> colonneSegnaposto = [] {
    std::array<QString, numeroSegnaposto> colonne;
    std::ranges::transform(schema::ordineSegnaposto, colonne.begin(), destinatario::NomeColonna);
    return colonne;
}();

namespace {

const QString segno = QStringLiteral(":::");

// The number of the placeholder that the text begins with; numeroSegnaposto: none
std::size_t segnapostoInTesta(QStringView testo) {
    if (!testo.startsWith(segno)) return numeroSegnaposto;
    const QStringView nome = testo.sliced(segno.size());
    std::size_t i = 0;
    while (i < numeroSegnaposto && !(nome.startsWith(colonneSegnaposto[i]) &&
                                     nome.sliced(colonneSegnaposto[i].size()).startsWith(segno)))
        ++i;
    return i;
}

// Which placeholders are in the text: one quick pass instead of nineteen searches.
std::bitset<numeroSegnaposto> presentiIn(QStringView testo) {
    std::bitset<numeroSegnaposto> presenti;
    for (auto posto = testo.indexOf(u':'); posto >= 0; posto = testo.indexOf(u':', posto + 1)) {
        if (const std::size_t i = segnapostoInTesta(testo.sliced(posto)); i < numeroSegnaposto)
            presenti.set(i);
    }
    return presenti;
}

// Whether a placeholder begins in the colons that end the one before `fine`.
bool cominciaNeiDuePunti(QStringView testo, qsizetype fine) {
    for (qsizetype posto = fine - segno.size(); posto < fine; ++posto)
        if (segnapostoInTesta(testo.sliced(posto)) < numeroSegnaposto) return true;
    return false;
}

// No colon of it can become part of a placeholder, whatever is beside it.
bool isolato(QStringView testo) {
    return !testo.startsWith(u':') && !testo.endsWith(u':') && !testo.contains(segno);
}

}  // namespace

QString Segnaposto(std::size_t i) {
    return destinatario::Segnaposto(schema::ordineSegnaposto[i]);
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

QString ModelloDiviso::Personalizza(const QString& modello, const ValoriSegnaposto& valori) {
    if (!text::sameText(modello, m_modello)) {
        m_modello = modello;
        Dividi();
    }
    if (!BastaUnGiro(valori)) return ::Personalizza(modello, valori);
    std::array<QStringView, numeroSegnaposto + 1> per;  // the last one: none
    for (std::size_t i = 0; i < numeroSegnaposto; ++i)
        if (m_presenti[i]) per[i] = *valori[i];
    qsizetype lunghezza = 0;
    for (const Pezzo& pezzo : m_pezzi)
        lunghezza += pezzo.lunghezza + per[pezzo.segnaposto].size();
    QString testo(lunghezza, Qt::Uninitialized);
    QChar* a = testo.data();
    for (const Pezzo& pezzo : m_pezzi) {
        const QStringView valore = per[pezzo.segnaposto];
        a = std::copy_n(m_modello.constData() + pezzo.da, pezzo.lunghezza, a);
        a = std::copy_n(valore.begin(), valore.size(), a);
    }
    return testo;
}

void ModelloDiviso::Dividi() {
    m_pezzi.clear();
    m_presenti.reset();
    const QStringView testo = m_modello;
    qsizetype da = 0;
    for (auto posto = testo.indexOf(u':'); posto >= 0; posto = testo.indexOf(u':', posto)) {
        const std::size_t i = segnapostoInTesta(testo.sliced(posto));
        if (i == numeroSegnaposto) {
            ++posto;
            continue;
        }
        m_pezzi.push_back({da, posto - da, i});
        m_presenti.set(i);
        posto = da = posto + colonneSegnaposto[i].size() + 2 * segno.size();
        if (cominciaNeiDuePunti(testo, da)) {
            m_pezzi.clear();
            return;
        }
    }
    m_pezzi.push_back({da, testo.size() - da, numeroSegnaposto});
    for (const Pezzo& pezzo : m_pezzi) {
        if (isolato(testo.sliced(pezzo.da, pezzo.lunghezza))) continue;
        m_pezzi.clear();
        return;
    }
}

/// Each placeholder has a value, and no piece of the text can make another one with those beside it.
bool ModelloDiviso::BastaUnGiro(const ValoriSegnaposto& valori) const {
    if (m_pezzi.empty()) return false;
    for (std::size_t i = 0; i < numeroSegnaposto; ++i)
        if (m_presenti[i] && (!valori[i] || !isolato(*valori[i]))) return false;
    return true;
}

ValoriSegnaposto PerCollegamento(ValoriSegnaposto valori) {
    for (auto& valore : valori) {
        if (valore) valore = QString::fromLatin1(QUrl::toPercentEncoding(*valore));
    }
    return valori;
}

TestiMessaggio PersonalizzaTesti(TestiMessaggio modello, const ValoriSegnaposto& valori) {
    return ModelliDivisi().Personalizza(std::move(modello), valori);
}

TestiMessaggio ModelliDivisi::Personalizza(TestiMessaggio modello, const ValoriSegnaposto& valori) {
    modello.corpoHtml = corpoHtml.Personalizza(modello.corpoHtml, valori);
    modello.corpoTesto = corpoTesto.Personalizza(modello.corpoTesto, valori);
    modello.oggetto = oggetto.Personalizza(modello.oggetto, valori);
    if (!modello.disiscrizione.isEmpty())
        modello.disiscrizione = ::Personalizza(modello.disiscrizione, PerCollegamento(valori));
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
