// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/send/Accettati_avviso.h"

#include "modules/send/Accettati.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"

void AvvisaAccettatiScartati() {
    const QStringList scartati = accettati().takeSetAside();
    for (const QString& file : scartati)
        ui::MessageDialog::show(
            Words::tr("Il file degli invii già accettati era danneggiato ed è stato messo da parte:") +
                "\r\n" + file + "\r\n" +
                Words::tr("Chi vi era ricordato potrebbe ricevere il messaggio una seconda volta."),
            ui::MessageDialog::Notice, Words::tr("Attenzione"));
}
