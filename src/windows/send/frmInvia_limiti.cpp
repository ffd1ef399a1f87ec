#include <QCheckBox>
#include <QComboBox>
#include <QTimer>

#include "modules/lang/bVAR.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/ui/FileDialog.h"
#include "windows/send/frmInvia.h"

void frmInvia::ImpostaPausa(Prosegui& prosegui) {
    prosegui([&] { tmr->setInterval(MillisecondiPausa(cmbPausa->currentText())); });
}

void frmInvia::ImpostaTimeout(Prosegui& prosegui) {
    prosegui([&] { SMTP->TimeoutSecs = static_cast<qint16>(SecondiTimeout(cmbTimeout->currentText())); });
}

/// Asks for the path of the support log; false when the user cancels. Without the question a log of an
/// earlier run stays on.
bool frmInvia::ChiediLog() {
    const auto percorso = ui::FileDialog::save(chkLog->text(), bVAR::FileAssistenza + " (*.xt1)|*.xt1|",
                                               "assistenza.xt1", ui::FileDialog::Existing::Accept);
    SMTP->LogFile = percorso.value_or(QString());
    SMTP->LogEnabled = percorso.has_value();
    return percorso.has_value();
}
