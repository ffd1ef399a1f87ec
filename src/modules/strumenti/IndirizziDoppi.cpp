// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/IndirizziDoppi.h"

#include <algorithm>
#include <optional>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/send/Accettati.h"
#include "modules/strumenti/Blocchi.h"
#include "platform/ado/Command.h"
#include "platform/text/Blanks.h"
#include "platform/text/Words.h"

namespace {

struct ColonneDoppi {
    explicit ColonneDoppi(const jet::TableDefinition& tabella)
        : id(tabella.find("id")),
          gruppo(tabella.find("id_grp")),
          email(tabella.find("email")),
          sel(tabella.find("sel")) {}
    bool tutte() const { return id && gruppo && email && sel; }
    std::optional<std::size_t> id, gruppo, email, sel;
};

}  // namespace

Result<bool> IndirizziDoppi::Avanza(std::chrono::microseconds tempo) {
    std::optional<ColonneDoppi> colonne;
    bool mancano = false;
    Result<bool> esito = giro.step(tempo, [&](const ado::WalkedRow& riga) {
        if (!colonne) colonne.emplace(riga.definition());
        mancano = !colonne->tutte();
        if (mancano || !riga.yesNo(*colonne->sel)) return;
        testo.clear();
        riga.appendText(*colonne->email, testo);
        const QString intero = QString::fromStdString(testo);
        const QStringView indirizzo = text::trimBlanks(intero);
        if (indirizzo.isEmpty()) return;
        Trovato& trovato = trovati[indirizzo.toString().toCaseFolded().toStdString()];
        if (trovato.destinatari.empty()) trovato.indirizzo = indirizzo.toString();
        trovato.destinatari.push_back({static_cast<std::int32_t>(riga.integer(*colonne->id)),
                                       static_cast<std::int32_t>(riga.integer(*colonne->gruppo)),
                                       riga.isNull(*colonne->gruppo)});
    });
    if (esito.ok() && mancano)
        return Status(ErrorCode::ItemNotFound,
                      Words::tr("La tabella dei destinatari non ha tutte le sue colonne."));
    return esito;
}

std::vector<IndirizziDoppi::Doppio> IndirizziDoppi::Doppi() const {
    std::vector<Doppio> doppi;
    for (const auto& [chiave, trovato] : trovati)
        if (trovato.destinatari.size() > 1) doppi.push_back({trovato.indirizzo, trovato.destinatari});
    for (Doppio& doppio : doppi)
        std::sort(doppio.destinatari.begin(), doppio.destinatari.end(),
                  [](const Destinatario& a, const Destinatario& b) { return a.id < b.id; });
    std::sort(doppi.begin(), doppi.end(), [](const Doppio& a, const Doppio& b) {
        return a.indirizzo.compare(b.indirizzo, Qt::CaseInsensitive) < 0;
    });
    return doppi;
}

void DeselezionaDoppi(const std::vector<IndirizziDoppi::Doppio>& doppi) {
    std::vector<std::int32_t> numeri;
    for (const IndirizziDoppi::Doppio& doppio : doppi)
        for (std::size_t i = 1; i < doppio.destinatari.size(); ++i)
            numeri.push_back(doppio.destinatari[i].id);
    for (const std::int32_t numero : numeri)
        DimenticaAccettato(QString::number(numero));
    ado::Command comando;
    esigi(comando.setActiveConnection(connDB));
    comando.setCommandTimeout(0);
    for (const QString& blocco : strumenti::Blocchi(numeri)) {
        comando.setCommandText("UPDATE [tb_destinatari] SET sel = False WHERE id IN (" + blocco + ") ;");
        esigi(comando.execute());
    }
}
