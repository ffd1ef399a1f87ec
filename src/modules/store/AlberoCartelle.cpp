// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/AlberoCartelle.h"

#include <algorithm>

#include "modules/core/Fallimento.h"
#include "modules/store/RecordsetDB.h"

namespace {

constexpr std::int32_t radice = 0;

std::int32_t NumeroDi(const ado::Value& valore) {
    return static_cast<std::int32_t>(esigi(valore.toInteger()));
}

}  // namespace

AlberoCartelle AlberoCartelle::Leggi() {
    std::vector<Cartella> lette;
    ado::Recordset rs = RecordsetDB();
    rs.setCursorType(ado::CursorType::ForwardOnly);
    rs.setLockType(ado::LockType::ReadOnly);
    rs.setSource("SELECT * FROM [tb_gruppi] ORDER BY nome ASC;");
    esigi(rs.open());
    for (; !rs.isEof(); esigi(rs.moveNext())) {
        const ado::Value id = esigi(rs.value(u"id"));
        const ado::Value padre = esigi(rs.value(u"id_up"));
        lette.push_back({NumeroDi(id), padre.isNull(), padre.isNull() ? radice : NumeroDi(padre),
                         esigi(rs.value(u"nome")).toTextOrEmpty()});
    }
    return AlberoCartelle(std::move(lette));
}

AlberoCartelle::AlberoCartelle(std::vector<Cartella> lette) : cartelle(std::move(lette)) {
    for (std::size_t posto = 0; posto < cartelle.size(); ++posto) {
        const Cartella& cartella = cartelle[posto];
        // The number of the root belongs to no group.
        if (cartella.id == radice) continue;
        posti[cartella.id] = posto;
        if (!cartella.senzaPadre) figlie[cartella.padre].push_back(cartella.id);
    }
    Raggiungi(radice, raggiunte, &ordine);
}

/// Adds a group and all its descendants, unless it is among them already.
void AlberoCartelle::Raggiungi(std::int32_t inizio, std::set<std::int32_t>& insieme,
                               std::vector<std::int32_t>* elenco) const {
    std::vector<std::int32_t> daVisitare{inizio};
    while (!daVisitare.empty()) {
        const std::int32_t id = daVisitare.back();
        daVisitare.pop_back();
        if (!insieme.insert(id).second) continue;
        if (elenco) elenco->push_back(id);
        if (const auto sotto = figlie.find(id); sotto != figlie.end())
            daVisitare.insert(daVisitare.end(), sotto->second.rbegin(), sotto->second.rend());
    }
}

const Cartella* AlberoCartelle::Trova(std::int32_t id) const {
    const auto posto = posti.find(id);
    return posto == posti.end() ? nullptr : &cartelle[posto->second];
}

QStringList AlberoCartelle::Chiavi(std::int32_t id) const {
    QStringList chiavi;
    if (!Raggiunta(id)) return chiavi;
    for (; id != radice; id = Trova(id)->padre)
        chiavi.prepend('K' + QString::number(id));
    chiavi.prepend("K0");
    return chiavi;
}

QString AlberoCartelle::Nome(std::int32_t id) const {
    if (id == radice) return "Database Mailing";
    const Cartella* cartella = Trova(id);
    return cartella ? cartella->nome : QString();
}

QString AlberoCartelle::Percorso(std::int32_t id) const {
    QString percorso = Nome(id);
    if (id == radice || !Raggiunta(id)) return percorso;
    for (id = Trova(id)->padre; id != radice; id = Trova(id)->padre)
        percorso.prepend(Nome(id) + " / ");
    return percorso;
}

std::vector<Cartella> AlberoCartelle::Perdute() const {
    std::vector<Cartella> perdute;
    for (const auto& [id, posto] : posti)
        if (!Raggiunta(id)) perdute.push_back(cartelle[posto]);
    return perdute;
}

std::vector<std::int32_t> AlberoCartelle::CapiDellePerdute() const {
    std::vector<std::int32_t> capi;
    std::set<std::int32_t> prese;
    const std::vector<Cartella> perdute = Perdute();
    for (const Cartella& cartella : perdute) {
        if (!cartella.senzaPadre && Trova(cartella.padre)) continue;
        capi.push_back(cartella.id);
        Raggiungi(cartella.id, prese, nullptr);
    }
    // What is left depends on cycles: each chain of parents ends in one.
    for (const Cartella& cartella : perdute) {
        if (prese.contains(cartella.id)) continue;
        std::set<std::int32_t> viste;
        std::int32_t id = cartella.id;
        while (viste.insert(id).second)
            id = Trova(id)->padre;
        std::int32_t minore = id;
        for (std::int32_t altra = Trova(id)->padre; altra != id; altra = Trova(altra)->padre)
            minore = std::min(minore, altra);
        capi.push_back(minore);
        Raggiungi(minore, prese, nullptr);
    }
    return capi;
}
