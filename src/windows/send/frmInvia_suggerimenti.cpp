// What tool tips and descriptions say more of the counts. Nothing is read before somebody asks.
#include <cmath>

#include "modules/send/MotivoEsito.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/mail/SmtpReply.h"
#include "platform/system/Clock.h"
#include "platform/ui/CountLabel.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/send/frmInvia.h"

namespace {

QString Durata(double secondi) {
    if (secondi < 60) return QStringLiteral("meno di un minuto");
    const auto minuti = static_cast<qint64>(std::ceil(secondi / 60));
    if (minuti == 1) return QStringLiteral("circa un minuto");
    if (minuti < 60) return QStringLiteral("circa %1 minuti").arg(minuti);
    const QString ore =
        minuti / 60 == 1 ? QStringLiteral("un'ora") : QStringLiteral("%1 ore").arg(minuti / 60);
    return minuti % 60 == 0 ? "circa " + ore : QStringLiteral("circa %1 e %2 min").arg(ore).arg(minuti % 60);
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

/// The folders of the selection, and how long the rest of the run takes if it goes on as it did.
QString frmInvia::DettagliDaInviare() const {
    QStringList dettagli;
    if (!cartelleScelte.isEmpty()) dettagli << cartelleScelte;
    const double fatti = prgFallite->value() + prgInviate->value();
    if (inizioInvio.isValid() && !fermaInvio && fatti > 0 && prgDaInviare->value() > 0) {
        const double secondi = double(inizioInvio.msecsTo(sys::clock().now())) / 1000;
        dettagli << "Tempo rimanente: " + Durata(secondi / fatti * prgDaInviare->value());
    }
    return dettagli.join('\n');
}

QString frmInvia::DettagliFallite() const {
    const Status registro = SMTP->BookStatus();
    if (!registro.ok()) return "Il registro degli esiti non si può scrivere. " + registro.text();
    if (prgFallite->value() <= 0) return {};
    const auto ultima = SMTP->LastFailure();
    if (!ultima) return {};
    QString dettagli = "Ultima non inviata: " + mail::printable(ultima->address.toUtf8()) + '\n' +
                       TestoMotivo(MotivoDi(*ultima));
    if (!ultima->words.isEmpty()) dettagli += '\n' + ultima->words;
    return dettagli;
}
