// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/Rilievi_html.h"

#include <optional>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <string_view>
#include <unordered_set>

#include "platform/html/HtmlTokens.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/mail/LocalImages.h"
#include "platform/text/Words.h"

namespace {

using Peso = Rilievo::Peso;
using html::startsWithHtmlText;
using std::string_view;

constexpr qsizetype piuLungo = 80;  // of what is shown of an address
constexpr int piuEsempi = 3;

QString mostrato(string_view sorgente) {
    QString testo =
        PercorsoMostrato(QString::fromUtf8(sorgente.data(), static_cast<qsizetype>(sorgente.size())));
    if (testo.size() > piuLungo) testo = testo.first(piuLungo) + u'…';
    return testo;
}

/// A few of several texts.
struct Raccolta {
    qint64 quanti = 0;
    QStringList esempi;

    void aggiungi(const QString& testo) {
        ++quanti;
        if (esempi.size() < piuEsempi && !esempi.contains(testo)) esempi << testo;
    }
    /// A sentence with what is in it.
    QString frase(QString testo) const {
        if (!esempi.isEmpty()) testo += QStringLiteral(": ") + esempi.join(QStringLiteral(", "));
        return testo;
    }
};

bool contieneSegnaposto(string_view testo) {
    return testo.find(":::") != string_view::npos;
}

bool portaSulWeb(string_view indirizzo) {
    return startsWithHtmlText(indirizzo, "http:") || startsWithHtmlText(indirizzo, "https:") ||
           startsWithHtmlText(indirizzo, "//");
}

/// Nothing but the scheme, such as "http://".
bool soloSchema(string_view indirizzo) {
    for (const string_view schema : {"http:", "https:", "mailto:", "tel:", "ftp:"})
        if (startsWithHtmlText(indirizzo, schema))
            return indirizzo.substr(schema.size()).find_first_not_of('/') == string_view::npos;
    return false;
}

/// A scheme before the first colon, none of them a script.
bool haSchema(string_view indirizzo) {
    const std::size_t duePunti = indirizzo.find(':');
    if (duePunti == string_view::npos || duePunti == 0) return false;
    const string_view schema = indirizzo.substr(0, duePunti);
    return schema.find_first_of("/?#. ") == string_view::npos && !startsWithHtmlText(schema, "javascript");
}

class LettoreMarcature {
  public:
    explicit LettoreMarcature(string_view corpo) : m_pezzi(corpo), m_attributi(corpo) {}

    void leggi() {
        using Kind = html::HtmlTokens::Kind;
        for (Kind genere = m_pezzi.next(); genere != Kind::End; genere = m_pezzi.next()) {
            if (genere == Kind::Tag)
                usa(m_pezzi.tag());
            else if (genere == Kind::RawText)
                stile(m_pezzi.text());
        }
    }

    Raccolta senzaMeta, sulWeb, senzaFile;

  private:
    void usa(const html::HtmlTag& tag) {
        if (html::sameHtmlText(tag.name, "a") || html::sameHtmlText(tag.name, "area")) collegamento(tag);
        if (html::sameHtmlText(tag.name, "img")) immagine(html::trimmedHtml(tag.src));
        if (!tag.background.empty()) immagine(html::trimmedHtml(tag.background));
        if (!tag.style.empty()) stile(tag.style);
    }

    void collegamento(const html::HtmlTag& tag) {
        if (tag.href.data() == nullptr) return;  // an anchor
        const string_view meta = html::trimmedHtml(tag.href);
        if (contieneSegnaposto(meta)) return;
        const bool ancora = meta.size() > 1 && meta.front() == '#';
        const bool buono = ancora ? esisteAncora(meta.substr(1))
                                  : !soloSchema(meta) && (haSchema(meta) || startsWithHtmlText(meta, "//"));
        if (!buono) senzaMeta.aggiungi(meta.empty() ? QStringLiteral("(vuoto)") : mostrato(meta));
    }

    bool esisteAncora(string_view nome) {
        if (!m_ancore) leggiAncore();
        return m_ancore->contains(nome);
    }

    void leggiAncore() {
        m_ancore.emplace();
        for (const string_view attributo : {"id=\"", "name=\""}) {
            std::size_t inizio = m_attributi.find(attributo);
            while (inizio != string_view::npos) {
                inizio += attributo.size();
                const std::size_t fine = m_attributi.find('"', inizio);
                if (fine == string_view::npos) break;
                m_ancore->insert(m_attributi.substr(inizio, fine - inizio));
                inizio = m_attributi.find(attributo, inizio);
            }
        }
    }

    void immagine(string_view indirizzo) {
        if (contieneSegnaposto(indirizzo)) return;
        if (portaSulWeb(indirizzo))
            sulWeb.aggiungi(mostrato(indirizzo));
        else if (!startsWithHtmlText(indirizzo, "data:") && !startsWithHtmlText(indirizzo, "cid:") &&
                 mail::localImagePath(QByteArray(indirizzo.data(), static_cast<qsizetype>(indirizzo.size())))
                     .isEmpty())
            senzaFile.aggiungi(indirizzo.empty() ? Words::tr("(senza indirizzo)") : mostrato(indirizzo));
    }

    void stile(string_view testo) {
        static const QRegularExpression forma(
            QStringLiteral(R"(url\(\s*+(?:["']|&quot;|&#39;)?\s*+((?:https?:)?//[^"')&\s]+))"),
            QRegularExpression::CaseInsensitiveOption);
        const QString css = QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
        auto trovati = forma.globalMatch(css);
        while (trovati.hasNext())
            sulWeb.aggiungi(mostrato(trovati.next().captured(1).toStdString()));
    }

    html::HtmlTokens m_pezzi;
    const string_view m_attributi;
    std::optional<std::unordered_set<string_view>> m_ancore;  ///< what a link within the body can lead to
};

/// The images that travel with the message, or should.
void rilievaFile(const QString& corpo, Raccolta& mancanti, Raccolta& escluse) {
    mail::LocalImages immagini;
    immagini.follow(corpo);
    QSet<QString> viste;
    for (const auto& posto : mail::findReferences(corpo.toUtf8()).images) {
        const QString percorso = mail::localImagePath(posto.value);
        if (percorso.isEmpty() || viste.contains(percorso) || percorso.contains(u":::")) continue;
        viste.insert(percorso);
        if (!QFileInfo(percorso).isFile())
            mancanti.aggiungi(PercorsoMostrato(percorso));
        else if (immagini.find(posto.value) < 0)
            escluse.aggiungi(PercorsoMostrato(percorso));
    }
}

}  // namespace

QList<Rilievo> RilieviHtml(const QString& corpo) {
    const QByteArray byte = corpo.toUtf8();
    LettoreMarcature lettore({byte.constData(), static_cast<std::size_t>(byte.size())});
    lettore.leggi();
    Raccolta mancanti = lettore.senzaFile, escluse;
    rilievaFile(corpo, mancanti, escluse);

    QList<Rilievo> rilievi;
    if (mancanti.quanti > 0)
        rilievi.append({Peso::Grave, mancanti.frase(Words::tr("%Ln immagini non ci sono", nullptr,
                                                              static_cast<int>(mancanti.quanti)))});
    if (escluse.quanti > 0)
        rilievi.append(
            {Peso::Grave, escluse.frase(Words::tr("%Ln file non possono partire come immagini del messaggio",
                                                  nullptr, static_cast<int>(escluse.quanti))) +
                              u' ' + Words::tr("(non è un'immagine, o insieme superano 10 MB)")});
    if (lettore.senzaMeta.quanti > 0)
        rilievi.append({Peso::Grave, lettore.senzaMeta.frase(
                                         Words::tr("%Ln collegamenti non portano da nessuna parte", nullptr,
                                                   static_cast<int>(lettore.senzaMeta.quanti)))});
    if (lettore.sulWeb.quanti > 0)
        rilievi.append(
            {Peso::Consiglio,
             lettore.sulWeb.frase(Words::tr("%Ln immagini restano sul web", nullptr,
                                            static_cast<int>(lettore.sulWeb.quanti))) +
                 ". " +
                 Words::tr("Molti programmi di posta non le mostrano finché il destinatario non vuole.")});
    return rilievi;
}
