// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the findings about the message.
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

#include "modules/core/Fallimento.h"
#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "windows/strumenti/frmProva.h"

namespace {

constexpr std::chrono::milliseconds fettaControllo{15};

QStyle::StandardPixmap segnoDi(Rilievo::Peso peso) {
    switch (peso) {
        case Rilievo::Peso::Grave:
            return QStyle::SP_MessageBoxCritical;
        case Rilievo::Peso::Attenzione:
            return QStyle::SP_MessageBoxWarning;
        case Rilievo::Peso::Consiglio:
            break;
    }
    return QStyle::SP_MessageBoxInformation;
}

}  // namespace

void frmProva::IniziaControllo() {
    tmrControllo->stop();
    controllo.reset();
    controlloFinito = false;
    guastoControllo.clear();
    if (!modello) return MostraRilievi();
    Prosegui prosegui;
    if (prosegui([this] { controllo.emplace(UsiDi(modello->testi)); })) {
        tmrControllo->start(0);
    } else {
        controllo.reset();
        guastoControllo = prosegui.testo();
        controlloFinito = true;
    }
    MostraRilievi();
}

void frmProva::ContinuaControllo() {
    if (!controllo) return tmrControllo->stop();
    Prosegui prosegui;
    bool avanti = false;
    if (!prosegui([&] { avanti = controllo->Avanza(fettaControllo); })) guastoControllo = prosegui.testo();
    if (avanti && guastoControllo.isEmpty()) return;
    tmrControllo->stop();
    controlloFinito = true;
    MostraRilievi();
    voce->say(lblRilievi->text());
}

void frmProva::MostraRilievi() {
    const int scelto = lstRilievi->currentRow();
    rilievi.clear();
    if (modello) {
        rilievi = rilieviModello;
        if (copia) rilievi += RilieviCopia(copia->testi);
        if (controllo && controlloFinito) rilievi += RilieviCampi(*controllo);
        if (!guastoControllo.isEmpty())
            rilievi.append(
                {Rilievo::Peso::Grave,
                 Words::tr("I campi dei destinatari non si possono controllare: %1").arg(guastoControllo)});
        rilievi = PerPeso(rilievi);
    }
    lstRilievi->clear();
    for (const Rilievo& rilievo : rilievi)
        lstRilievi->addItem(new QListWidgetItem(style()->standardIcon(segnoDi(rilievo.peso)),
                                                NomePeso(rilievo.peso) + ": " + rilievo.testo));
    if (!rilievi.isEmpty()) lstRilievi->setCurrentRow(qBound(0, scelto, int(rilievi.size()) - 1));
    QString titolo = Words::tr("Rilievi:");
    if (modello)
        titolo = !controlloFinito    ? Words::tr("Rilievi (controllo dei destinatari in corso):")
                 : rilievi.isEmpty() ? Words::tr("Rilievi: nessuno")
                                     : Words::tr("Rilievi: %1").arg(rilievi.size());
    lblRilievi->setText(titolo);
    AbilitaVai();
}

void frmProva::AbilitaVai() {
    const int scelto = lstRilievi->currentRow();
    cmdVai->setEnabled(scelto >= 0 && scelto < rilievi.size() && rilievi[scelto].riga);
}

void frmProva::VaiAlPrimo() {
    if (cmdVai->isEnabled()) MostraDestinatario(*rilievi[lstRilievi->currentRow()].riga);
}
