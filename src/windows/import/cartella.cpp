// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/cartella.h"

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/store/nodo.h"
#include "platform/ado/Recordset.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/Puntatore.h"

void cartella::senzaGuardia(const std::function<void()>& istruzione) {
    istruzione();
}

namespace {

QString NuovoGruppo(const QString& nome, ado::Recordset& rs, const cartella::Passo& passo,
                    const cartella::NuovoNodo& nuovoNodo) {
    QString id = "0";
    rs.setSource("SELECT * FROM [tb_gruppi];");
    passo([&] { esigi(rs.open()); });
    passo([&] { esigi(rs.addNew()); });
    passo([&] { esigi(rs.setValue(u"id_up", 0)); });
    passo([&] { esigi(rs.setValue(u"nome", nome)); });
    passo([&] { id = esigi(esigi(rs.value(u"id")).toText()); });
    passo([&] { esigi(rs.update()); });
    rs.close();
    passo([&] { nuovoNodo(id, nome); });
    return id;
}

}  // namespace

std::optional<QString> cartella::Scegli(const Scelta& scelta, ado::Recordset& rs, const QString& avviso,
                                        const Passo& passo, const NuovoNodo& nuovoNodo) {
    if (!scelta.selezionata) return NuovoGruppo(scelta.nuova, rs, passo, nuovoNodo);
    // Rows of a removed group would be invisible and still get mail.
    if (nodoCorrente && GruppoEsiste(NumeroNodo(nodoCorrente->Key))) return NumeroNodo(nodoCorrente->Key);
    PuntatorePredefinito();
    ui::MessageDialog::show(avviso, ui::MessageDialog::Notice, "Attenzione");
    return std::nullopt;
}
