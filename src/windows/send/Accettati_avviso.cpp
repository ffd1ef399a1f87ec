#include "windows/send/Accettati_avviso.h"

#include "modules/send/Accettati.h"
#include "platform/ui/MessageDialog.h"

void AvvisaAccettatiScartati() {
    const QStringList scartati = accettati().takeSetAside();
    for (const QString& file : scartati)
        ui::MessageDialog::show(
            "Il file degli invii già accettati era danneggiato ed è stato messo da parte:\r\n" + file +
                "\r\nChi vi era ricordato potrebbe ricevere il messaggio una seconda volta.",
            ui::MessageDialog::Notice, "Attenzione");
}
