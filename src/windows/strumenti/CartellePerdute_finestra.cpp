// SPDX-License-Identifier: GPL-3.0-or-later
// The command "Recupera cartelle perdute...".
#include "modules/strumenti/CartellePerdute.h"

#include <QScopeGuard>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
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

/// More lines are counted and not listed.
constexpr std::size_t vociElencate = 2000;

CartellePerdute TrovaPerdute() {
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    ui::Busy lavoro;
    ContaPerCartella conta(connDB);
    strumenti::GiraTutto([&](auto tempo) { return conta.Avanza(tempo); }, [&] { lavoro.breathe(); });
    return {AlberoCartelle::Leggi(), conta};
}

ui::ListQuestion::Content DomandaPerdute(const CartellePerdute& perdute) {
    ui::ListQuestion::Content domanda{
        Words::tr("Recupera cartelle perdute"),
        {},
        {Words::tr("Cartella"), Words::tr("Destinatari"), Words::tr("Perché non si vede")},
        {},
        {}};
    for (std::size_t i = 0; i < perdute.voci.size() && i < vociElencate; ++i) {
        const CartellePerdute::Voce& voce = perdute.voci[i];
        domanda.rows << QStringList{voce.nome, text::formatGrouped(static_cast<double>(voce.destinatari)),
                                    voce.motivo};
    }
    domanda.text = Words::tr("L'albero non mostra %1 e %2.\r\nPortarli sotto \"Database Mailing\"?")
                       .arg(Words::tr("%Ln cartelle", nullptr, static_cast<int>(perdute.cartelle)),
                            Words::tr("%Ln destinatari", nullptr, static_cast<int>(perdute.destinatari)));
    if (perdute.voci.size() > vociElencate)
        domanda.text += "\r\n" + Words::tr("L'elenco mostra le prime %1 righe.").arg(vociElencate);
    return domanda;
}

}  // namespace

void RecuperaPerdute(const ViciniDestinatari& vicini) {
    Prosegui prosegui;
    const bool riuscito = prosegui([&] {
        const CartellePerdute perdute = TrovaPerdute();
        if (perdute.voci.empty()) {
            MessageDialog::show(Words::tr("Nessuna cartella è perduta: l'albero le mostra tutte."),
                                MessageDialog::Notice, Words::tr("Recupera cartelle perdute"));
            return;
        }
        if (MessageDialog::askAbout(DomandaPerdute(perdute)) == MessageDialog::No) return;
        PuntatoreAttesa();
        const auto fatto = qScopeGuard(PuntatorePredefinito);
        // What was done before a failure is shown as well.
        const bool recuperate = prosegui([&] { ui::painted([&] { RecuperaCartelle(perdute); }); });
        const QString motivo = prosegui.testo();
        vicini.RicaricaAlbero();
        if (!recuperate) fallisci(static_cast<ErrorCode>(prosegui.numero()), motivo);
    });
    if (riuscito) return;
    MessageDialog::show(Words::tr("Impossibile recuperare tutte le cartelle.") + "\r\n" + prosegui.testo(),
                        MessageDialog::Notice, Words::tr("Recupera cartelle perdute"));
}
