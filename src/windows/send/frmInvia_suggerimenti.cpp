// SPDX-License-Identifier: GPL-3.0-or-later
// Tool tips and descriptions of the counts. Nothing is read before one is requested.
#include <cmath>

#include "modules/send/MotivoEsito.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/mail/SmtpReply.h"
#include "platform/system/Clock.h"
#include "platform/text/Words.h"
#include "platform/ui/CountLabel.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/send/frmInvia.h"

namespace {

QString Durata(double secondi) {
    if (secondi < 60) return Words::tr("meno di un minuto");
    const auto minuti = static_cast<qint64>(std::ceil(secondi / 60));
    if (minuti < 60) return Words::tr("circa %n minuti", nullptr, static_cast<int>(minuti));
    const int ore = static_cast<int>(minuti / 60);
    return minuti % 60 == 0 ? Words::tr("circa %n ore", nullptr, ore)
                            : Words::tr("circa %n ore e %1 min", nullptr, ore).arg(minuti % 60);
}

}  // namespace

void frmInvia::CollegaSuggerimenti() {
    const auto daInviare = [this] { return DettagliDaInviare(); };
    const auto fallite = [this] { return DettagliFallite(); };
    lblDaInviare->hint.set(daInviare);
    prgDaInviare->hint.set(daInviare);
    lblFallite->hint.set(fallite);
    prgFallite->hint.set(fallite);
}

/// The folders of the selection, and how long the rest of the run takes at its speed so far.
QString frmInvia::DettagliDaInviare() const {
    QStringList dettagli;
    if (!cartelleScelte.isEmpty()) dettagli << cartelleScelte;
    const double fatti = prgFallite->value() + prgInviate->value();
    if (inizioInvio.isValid() && !fermaInvio && fatti > 0 && prgDaInviare->value() > 0) {
        const double secondi = double(inizioInvio.msecsTo(sys::clock().now())) / 1000;
        dettagli << Words::tr("Tempo rimanente: %1").arg(Durata(secondi / fatti * prgDaInviare->value()));
    }
    return dettagli.join('\n');
}

QString frmInvia::DettagliFallite() const {
    const Status registro = SMTP->BookStatus();
    if (!registro.ok())
        return Words::tr("Il registro degli esiti non si può scrivere. %1").arg(registro.text());
    if (prgFallite->value() <= 0) return {};
    const auto ultima = SMTP->LastFailure();
    if (!ultima) return {};
    QString dettagli = Words::tr("Ultima non inviata: %1").arg(mail::printable(ultima->address.toUtf8())) +
                       '\n' + TestoMotivo(MotivoDi(*ultima));
    if (!ultima->words.isEmpty()) dettagli += '\n' + ultima->words;
    return dettagli;
}
