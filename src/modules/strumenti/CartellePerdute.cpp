// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/CartellePerdute.h"

#include <algorithm>
#include <optional>
#include <set>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/strumenti/Blocchi.h"
#include "platform/ado/Command.h"
#include "platform/text/Words.h"

Result<bool> ContaPerCartella::Avanza(std::chrono::microseconds tempo) {
    std::optional<std::size_t> gruppo;
    bool manca = false;
    Result<bool> esito = giro.step(tempo, [&](const ado::WalkedRow& riga) {
        if (!gruppo) gruppo = riga.definition().find("id_grp");
        manca = !gruppo;
        if (manca) return;
        if (riga.isNull(*gruppo))
            ++senzaCartella;
        else
            ++perCartella[static_cast<std::int32_t>(riga.integer(*gruppo))];
    });
    if (esito.ok() && manca)
        return Status(ErrorCode::ItemNotFound,
                      Words::tr("La tabella dei destinatari non ha la colonna \"id_grp\"."));
    return esito;
}

CartellePerdute::CartellePerdute(const AlberoCartelle& albero, const ContaPerCartella& conta) {
    const std::map<std::int32_t, qint64>& perCartella = conta.PerCartella();
    const std::vector<Cartella> perdute = albero.Perdute();
    std::set<std::int32_t> esistenti;
    for (const Cartella& cartella : perdute)
        esistenti.insert(cartella.id);
    for (const Cartella& cartella : perdute) {
        const auto suoi = perCartella.find(cartella.id);
        const qint64 quanti = suoi == perCartella.end() ? 0 : suoi->second;
        QString motivo = Words::tr("La cartella che la contiene non c'è");
        if (!cartella.senzaPadre && esistenti.contains(cartella.padre))
            motivo = Words::tr("Sta dentro \"%1\", perduta anch'essa").arg(albero.Percorso(cartella.padre));
        voci.push_back({cartella.nome, quanti, motivo});
        destinatari += quanti;
    }
    cartelle = static_cast<qint64>(perdute.size());
    for (const auto& [id, quanti] : perCartella) {
        if (albero.Raggiunta(id) || esistenti.contains(id)) continue;
        mancanti.push_back(id);
        voci.push_back(
            {Words::tr("(cartella %1)").arg(id), quanti, Words::tr("La cartella dei destinatari non c'è")});
        destinatari += quanti;
    }
    senzaCartella = conta.SenzaCartella() > 0;
    if (!senzaCartella) return;
    voci.push_back({Words::tr("(nessuna cartella)"), conta.SenzaCartella(),
                    Words::tr("I destinatari non hanno una cartella")});
    destinatari += conta.SenzaCartella();
}

void RecuperaCartelle(const CartellePerdute& perdute) {
    ado::Command comando;
    esigi(comando.setActiveConnection(connDB));
    comando.setCommandTimeout(0);
    const auto esegui = [&](const QString& istruzione) {
        comando.setCommandText(istruzione);
        esigi(comando.execute());
    };
    for (const QString& blocco : strumenti::Blocchi(AlberoCartelle::Leggi().CapiDellePerdute()))
        esegui("UPDATE [tb_gruppi] SET id_up = 0 WHERE id IN (" + blocco + ") ;");
    const AlberoCartelle albero = AlberoCartelle::Leggi();
    std::vector<std::int32_t> mancanti;
    std::copy_if(perdute.mancanti.begin(), perdute.mancanti.end(), std::back_inserter(mancanti),
                 [&](std::int32_t id) { return !albero.Raggiunta(id); });
    for (const QString& blocco : strumenti::Blocchi(mancanti))
        esegui("UPDATE [tb_destinatari] SET id_grp = 0 WHERE id_grp IN (" + blocco + ") ;");
    if (perdute.senzaCartella) esegui("UPDATE [tb_destinatari] SET id_grp = 0 WHERE id_grp IS NULL ;");
}
