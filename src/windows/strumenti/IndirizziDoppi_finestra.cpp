// The command "Indirizzi doppi...".
#include "modules/strumenti/IndirizziDoppi.h"

#include <QScopeGuard>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/store/AlberoCartelle.h"
#include "modules/strumenti/Giro.h"
#include "platform/text/NumberText.h"
#include "platform/ui/Busy.h"
#include "platform/ui/ListQuestion.h"
#include "platform/ui/MessageDialog.h"
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
    return nome.isEmpty() ? QStringLiteral("(cartella perduta)") : nome + " (cartella perduta)";
}

QString Quanti(std::size_t numero) {
    return text::formatGrouped(static_cast<double>(numero));
}

ui::ListQuestion::Content DomandaDoppi(const Doppi& doppi, const AlberoCartelle& albero) {
    ui::ListQuestion::Content domanda{
        "Indirizzi doppi", {}, {"Indirizzo", "Cartella", "Numero", "Con \"Sì\""}, {}, {}};
    std::size_t inPiu = 0;
    for (const IndirizziDoppi::Doppio& doppio : doppi) {
        inPiu += doppio.destinatari.size() - 1;
        for (const IndirizziDoppi::Destinatario& uno : doppio.destinatari) {
            if (domanda.rows.size() >= righeElencate) break;
            const bool primo = &uno == &doppio.destinatari.front();
            domanda.rows << QStringList{doppio.indirizzo, CartellaDi(uno, albero), QString::number(uno.id),
                                        primo ? "Resta selezionato" : "Viene deselezionato"};
        }
    }
    domanda.text = doppi.size() == 1 ? QStringLiteral("1 indirizzo è selezionato più di una volta.")
                                     : Quanti(doppi.size()) + " indirizzi sono selezionati più di una volta.";
    domanda.text += inPiu == 1
                        ? QStringLiteral("\r\nDeselezionare il doppione?")
                        : "\r\nDeselezionare i " + Quanti(inPiu) + " doppioni, uno escluso per indirizzo?";
    if (domanda.rows.size() < qsizetype(inPiu) + qsizetype(doppi.size()))
        domanda.text += "\r\nL'elenco mostra i primi " +
                        Quanti(static_cast<std::size_t>(domanda.rows.size())) + " destinatari.";
    return domanda;
}

}  // namespace

void ControllaDoppi(const ViciniDestinatari& vicini) {
    Prosegui prosegui;
    const bool riuscito = prosegui([&] {
        const Doppi doppi = TrovaDoppi();
        if (doppi.empty()) {
            MessageDialog::show("Nessun indirizzo è selezionato più di una volta.", MessageDialog::Notice,
                                "Indirizzi doppi");
            return;
        }
        if (MessageDialog::askAbout(DomandaDoppi(doppi, AlberoCartelle::Leggi())) == MessageDialog::No)
            return;
        PuntatoreAttesa();
        const auto fatto = qScopeGuard(PuntatorePredefinito);
        DeselezionaDoppi(doppi);
        vicini.RinfrescaGriglia();
    });
    if (riuscito) return;
    MessageDialog::show("Impossibile controllare gli indirizzi.\r\n" + prosegui.testo(),
                        MessageDialog::Notice, "Indirizzi doppi");
}
