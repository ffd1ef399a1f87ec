// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCheckBox>

#include "modules/lang/bVAR.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/text/Words.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "windows/send/frmInvia.h"

/// Asks for the path of the support log; false when the user cancels. Without the question a log of an
/// earlier run stays on.
bool frmInvia::ChiediLog() {
    const auto percorso = ui::FileDialog::save(chkLog->text(), bVAR::FileAssistenza + " (*.xt1)|*.xt1|",
                                               "assistenza.xt1", ui::FileDialog::Existing::Accept);
    SMTP->LogFile = percorso.value_or(QString());
    SMTP->LogEnabled = percorso.has_value();
    return percorso.has_value();
}

/// A log that cannot be written would be missed only when it is needed.
void frmInvia::AvvisaLog() {
    const Status aperto = SMTP->OpenLog();
    if (!aperto.ok())
        ui::MessageDialog::show(Words::tr("Il file per l'assistenza non si può scrivere:") + "\r\n" +
                                    SMTP->LogFile + "\r\n" + aperto.text() + "\r\n" +
                                    Words::tr("L'invio prosegue senza."),
                                ui::MessageDialog::Notice, bVAR::Attenzione);
}
