// SPDX-License-Identifier: GPL-3.0-or-later
// The command "Indirizzi doppi...".
#include "modules/strumenti/IndirizziDoppi.h"

#include <QScopeGuard>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/store/AlberoCartelle.h"
#include "modules/strumenti/Giro.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/Busy.h"
#include "platform/ui/ListQuestion.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PaintedWork.h"
#include "windows/core/Puntatore.h"
#include "windows/strumenti/ViciniDestinatari.h"

namespace {

using ui::MessageDialog;
using Doppi = std::vector<IndirizziDoppi::Doppio>;

/// More lines are counted and not listed.
constexpr qsizetype righeElencate = 2000;

Doppi TrovaDoppi() {
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    ui::Busy lavoro;
    IndirizziDoppi indirizzi(connDB);
    strumenti::GiraTutto([&](auto tempo) { return indirizzi.Avanza(tempo); }, [&] { lavoro.breathe(); });
    return indirizzi.Doppi();
}

QString CartellaDi(const IndirizziDoppi::Destinatario& destinatario, const AlberoCartelle& albero) {
    const bool raggiunta = !destinatario.senzaGruppo && albero.Raggiunta(destinatario.gruppo);
    if (raggiunta) return albero.Percorso(destinatario.gruppo);
    const QString nome = destinatario.senzaGruppo ? QString() : albero.Percorso(destinatario.gruppo);
    return nome.isEmpty() ? Words::tr("(cartella perduta)") : Words::tr("%1 (cartella perduta)").arg(nome);
}

ui::ListQuestion::Content DomandaDoppi(const Doppi& doppi, const AlberoCartelle& albero) {
    ui::ListQuestion::Content domanda{
        Words::tr("Indirizzi doppi"),
        {},
        {Words::tr("Indirizzo"), Words::tr("Cartella"), Words::tr("Numero"), Words::tr("Con \"Sì\"")},
        {},
        {}};
    std::size_t inPiu = 0;
    for (const IndirizziDoppi::Doppio& doppio : doppi) {
        inPiu += doppio.destinatari.size() - 1;
        for (const IndirizziDoppi::Destinatario& uno : doppio.destinatari) {
            if (domanda.rows.size() >= righeElencate) break;
            const bool primo = &uno == &doppio.destinatari.front();
            domanda.rows << QStringList{
                doppio.indirizzo, CartellaDi(uno, albero), QString::number(uno.id),
                primo ? Words::tr("Resta selezionato") : Words::tr("Viene deselezionato")};
        }
    }
    domanda.text = Words::tr("%Ln indirizzi sono selezionati più di una volta.", nullptr,
                             static_cast<int>(doppi.size()));
    domanda.text += "\r\n" + Words::tr("Deselezionare i %Ln doppioni, uno escluso per indirizzo?", nullptr,
                                       static_cast<int>(inPiu));
    if (domanda.rows.size() < qsizetype(inPiu) + qsizetype(doppi.size()))
        domanda.text += "\r\n" + Words::tr("L'elenco mostra i primi %1 destinatari.")
                                     .arg(text::formatGrouped(static_cast<double>(domanda.rows.size())));
    return domanda;
}

}  // namespace

void ControllaDoppi(const ViciniDestinatari& vicini) {
    Prosegui prosegui;
    const bool riuscito = prosegui([&] {
        const Doppi doppi = TrovaDoppi();
        if (doppi.empty()) {
            MessageDialog::show(Words::tr("Nessun indirizzo è selezionato più di una volta."),
                                MessageDialog::Notice, Words::tr("Indirizzi doppi"));
            return;
        }
        if (MessageDialog::askAbout(DomandaDoppi(doppi, AlberoCartelle::Leggi())) == MessageDialog::No)
            return;
        PuntatoreAttesa();
        const auto fatto = qScopeGuard(PuntatorePredefinito);
        ui::painted([&] { DeselezionaDoppi(doppi); });
        vicini.RinfrescaGriglia();
    });
    if (riuscito) return;
    MessageDialog::show(Words::tr("Impossibile controllare gli indirizzi.") + "\r\n" + prosegui.testo(),
                        MessageDialog::Notice, Words::tr("Indirizzi doppi"));
}
