// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/ControlloCampi.h"

#include <QDeadlineTimer>

#include "modules/core/Fallimento.h"
#include "modules/send/Selezione.h"
#include "modules/store/RecordsetDB.h"
#include "platform/html/HtmlTokens.h"

namespace {

bool letteraAscii(QChar carattere) {
    return (carattere >= u'a' && carattere <= u'z') || (carattere >= u'A' && carattere <= u'Z');
}

}  // namespace

UsiSegnaposto UsiDi(const TestiMessaggio& modello) {
    using Kind = html::HtmlTokens::Kind;
    UsiSegnaposto usi;
    const QByteArray corpo = modello.corpoHtml.toUtf8();
    html::HtmlTokens pezzi({corpo.constData(), static_cast<std::size_t>(corpo.size())});
    for (Kind genere = pezzi.next(); genere != Kind::End; genere = pezzi.next()) {
        if (genere == Kind::EndTag) continue;
        const std::string_view testo = genere == Kind::Tag ? pezzi.tag().attributes : pezzi.text();
        if (testo.find(":::") == std::string_view::npos) continue;
        for (std::size_t i = 0; i < numeroSegnaposto; ++i)
            if (testo.find(Segnaposto(i).toStdString()) != std::string_view::npos)
                (genere == Kind::Tag ? usi[i].inAttributo : usi[i].inTesto) = true;
    }
    for (std::size_t i = 0; i < numeroSegnaposto; ++i) {
        const QString segnaposto = Segnaposto(i);
        usi[i].altrove = modello.oggetto.contains(segnaposto) || modello.corpoTesto.contains(segnaposto);
    }
    return usi;
}

bool CambiaHtml(QStringView valore, const UsoSegnaposto& uso) {
    if (uso.inAttributo && valore.contains(u'"')) return true;
    if (!uso.inTesto && !uso.inAttributo) return false;
    for (qsizetype i = 0; i + 1 < valore.size(); ++i) {
        const QChar segno = valore[i], dopo = valore[i + 1];
        if (segno == u'<' && uso.inTesto &&
            (letteraAscii(dopo) || dopo == u'/' || dopo == u'!' || dopo == u'?'))
            return true;
        if (segno == u'&' && (letteraAscii(dopo) || dopo == u'#')) return true;
    }
    return false;
}

ControlloCampi::ControlloCampi(const UsiSegnaposto& usi) : m_usi(usi), m_destinatari(RecordsetDB()) {
    m_destinatari.setSource(codaInvio);
    esigi(m_destinatari.open());
    for (std::size_t i = 0; i < numeroSegnaposto; ++i) {
        if (!m_usi[i].alcuno()) continue;
        for (int colonna = 0; colonna < m_destinatari.fieldCount(); ++colonna)
            if (m_destinatari.fieldName(colonna).compare(colonneSegnaposto[i], Qt::CaseInsensitive) == 0)
                m_colonne.push_back({i, colonna});
    }
}

bool ControlloCampi::Avanza(std::chrono::milliseconds durata) {
    constexpr int righePerSguardo = 64;  // at the clock
    const QDeadlineTimer fine(durata);
    do {
        for (int i = 0; i < righePerSguardo; ++i) {
            if (m_destinatari.isEof()) return false;
            GiudicaRiga();
            ++m_riga;
            esigi(m_destinatari.moveNext());
        }
    } while (!fine.hasExpired());
    return !m_destinatari.isEof();
}

void ControlloCampi::GiudicaRiga() {
    for (const Colonna& colonna : m_colonne) {
        const Result<ado::Value> letto = m_destinatari.value(colonna.indice);
        // A row that was deleted meanwhile does not count.
        if (!letto.ok() && letto.status().code() == ErrorCode::NoCurrentRecord) return;
        esigi(letto.status());
        Campo& campo = m_campi[colonna.segnaposto];
        const bool nullo = letto.value().isNull();
        const QString valore = nullo ? QString() : letto.value().toTextOrEmpty();
        if (nullo || QStringView(valore).trimmed().isEmpty()) {
            ++(nullo ? campo.nulli : campo.vuoti);
            if (!campo.primoVuoto) campo.primoVuoto = m_riga;
        } else if (CambiaHtml(valore, m_usi[colonna.segnaposto])) {
            ++campo.html;
            if (!campo.primoHtml) campo.primoHtml = m_riga;
        }
    }
}
