// SPDX-License-Identifier: GPL-3.0-or-later
// The figures of a run: on the screen before a wait, and reported to assistive programs.
#include <array>

#include "platform/system/Clock.h"
#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/CountLabel.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/send/frmInvia.h"

namespace {

constexpr qint64 secondiTraAnnunci = 5;

}  // namespace

/// The wait of the block limit blocks the window: it shows meanwhile what was painted before. No event
/// is processed here.
void frmInvia::DipingiConteggi() {
    for (QWidget* conteggio :
         std::array<QWidget*, 6>{lblDaInviare, prgDaInviare, lblFallite, prgFallite, lblInviate, prgInviate})
        conteggio->repaint();
}

/// At most every five seconds, since a fast run would leave a listener no time to hear it; and once at the
/// end.
void frmInvia::RaccontaConteggi(bool finito) {
    const QDateTime adesso = sys::clock().now();
    if (!finito && ultimoRacconto.isValid() && ultimoRacconto.secsTo(adesso) < secondiTraAnnunci) return;
    ultimoRacconto = adesso;
    const std::array<ui::CountLabel*, 3> etichette{lblDaInviare, lblFallite, lblInviate};
    QString racconto = finito ? Words::tr("Invio terminato") : QString();
    for (ui::CountLabel* etichetta : etichette) {
        if (!racconto.isEmpty()) racconto += ", ";
        racconto += etichetta->text();
        etichetta->tell();
    }
    for (ui::ProgressCounter* barra : {prgDaInviare, prgFallite, prgInviate})
        barra->tell();
    setAccessibleDescription(racconto);
    voce->say(racconto);
}
