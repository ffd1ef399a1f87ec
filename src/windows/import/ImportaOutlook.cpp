// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/ImportaOutlook.h"

#include <chrono>
#include <QCoreApplication>
#include <utility>

#include "modules/core/bFunctions.h"
#include "modules/import/UltimaImportazione.h"
#include "modules/store/Destinatario.h"
#include "platform/contacts/ContactFolder.h"
#include "platform/text/Words.h"
#include "platform/ui/WaitNotice.h"
#include "windows/import/ImportaContatti.h"

namespace {

/// No address of a recipient is shorter.
constexpr int minimoIndirizzo = 6;

destinatario::Valori ValoriDi(const contacts::Contact& contatto) {
    destinatario::Valori valori;
    const auto metti = [&](schema::Campo campo, const QString& valore) {
        valori[campo] = destinatario::Taglia(valore, campo);
    };
    metti(schema::email, contatto.email1Address);
    metti(schema::rgs, contatto.companyName);
    metti(schema::nom, contatto.lastNameAndFirstName);
    metti(schema::ind, contatto.businessAddress);
    metti(schema::cap, contatto.businessAddressPostalCode);
    metti(schema::loc, contatto.businessAddressCity);
    metti(schema::tel, contatto.businessTelephoneNumber);
    metti(schema::fax, contatto.businessFaxNumber);
    return valori;
}

QString MotivoOutlook(const QString& indirizzo) {
    return EmailValida(indirizzo) ? Words::tr("L'indirizzo ha meno di %1 caratteri").arg(minimoIndirizzo)
                                  : MotivoIndirizzo(indirizzo);
}

Result<contacts::ContactFolder> LeggiOutlook(const ViciniContatti& vicini) {
    ui::WaitNotice attesa(Words::tr("Lettura dei contatti di Outlook in corso… Esc per interrompere"),
                          vicini.MostraAttesa, nullptr);
    auto cartella = contacts::readContactFolder(contacts::findOutlookFile(contacts::outlookFolders()),
                                                std::chrono::seconds(60),
                                                [&](auto passato) { return attesa.goOn(passato); });
    attesa.over();
    return cartella;
}

/// Says in the status bar which restrictions of the reader the system lacks.
void AvvisaSenzaMura(const ViciniContatti& vicini, const QStringList& mura) {
    QStringList mancano;
    for (const auto& [muro, nome] :
         {std::pair("files", Words::tr("file")), std::pair("calls", Words::tr("chiamate di sistema")),
          std::pair("memory", Words::tr("memoria"))})
        if (!mura.contains(QLatin1String(muro))) mancano << nome;
    if (!mancano.isEmpty())
        vicini.MostraAttesa(Words::tr("Outlook letto senza queste protezioni del sistema: ") +
                            mancano.join(", "));
}

}  // namespace

void ImportaOutlook(const ViciniContatti& vicini) {
    ImportaContatti importa(vicini);
    if (!importa.Comincia(Words::tr("contatti di Outlook"))) return;
    const auto cartella = LeggiOutlook(vicini);
    if (!cartella.ok()) return;

    const contacts::ContactList& voci = cartella.value().items;
    importa.Conta(cartella.value().count);
    QCoreApplication::processEvents();
    for (std::size_t i = 0; i < voci.size(); ++i) {
        QCoreApplication::processEvents();
        const auto voce = voci[i];
        const auto numero = static_cast<qint64>(i) + 1;
        if (!voce || !EmailValida(voce->email1Address) || voce->email1Address.size() < minimoIndirizzo) {
            ultimaImportazione().Rifiutata(
                numero, voce ? voce->email1Address : QString(),
                voce ? MotivoOutlook(voce->email1Address) : Words::tr("Non è un contatto"));
            continue;
        }
        importa.Inserisci(numero, ValoriDi(*voce));
        importa.Avanza();
    }
    importa.Finisci();
    AvvisaSenzaMura(vicini, cartella.value().walls);
}
