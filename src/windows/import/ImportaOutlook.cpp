#include "windows/import/ImportaOutlook.h"

#include <QCoreApplication>

#include "modules/core/bFunctions.h"
#include "platform/contacts/ContactFolder.h"
#include "windows/import/ImportaContatti.h"

namespace {

/// No address of a recipient is shorter.
constexpr int minimoIndirizzo = 6;

inserimento::Valori ValoriDi(const contacts::Contact& contatto) {
    inserimento::Valori valori;
    const auto metti = [&](inserimento::Colonna colonna, const QString& valore) {
        valori[colonna] = inserimento::Taglia(valore, colonna);
    };
    metti(inserimento::email, contatto.email1Address);
    metti(inserimento::rgs, contatto.companyName);
    metti(inserimento::nom, contatto.lastNameAndFirstName);
    metti(inserimento::ind, contatto.businessAddress);
    metti(inserimento::cap, contatto.businessAddressPostalCode);
    metti(inserimento::loc, contatto.businessAddressCity);
    metti(inserimento::tel, contatto.businessTelephoneNumber);
    metti(inserimento::fax, contatto.businessFaxNumber);
    return valori;
}

}  // namespace

void ImportaOutlook(const ViciniContatti& vicini) {
    ImportaContatti importa(vicini);
    if (!importa.Comincia()) return;
    const auto cartella = contacts::readContactFolder(contacts::findOutlookFile(contacts::outlookFolders()));
    if (!cartella.ok()) return;

    importa.Conta(cartella.value().count);
    QCoreApplication::processEvents();
    for (const auto& voce : cartella.value().items) {
        QCoreApplication::processEvents();
        if (!voce || !EmailValida(voce->email1Address) || voce->email1Address.size() < minimoIndirizzo)
            continue;
        importa.Inserisci(ValoriDi(*voce));
        importa.Avanza();
    }
    importa.Finisci();
}
