// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/accounts/Portachiavi.h"

#include <algorithm>
#include <QSet>

#include "modules/core/Fallimento.h"
#include "platform/oauth/TokenSource.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Words.h"

namespace portachiavi {

namespace {

namespace keyring = sys::keyring;

keyring::Binding legameDi(const Account& account) {
    return {account.txtServerSMTP, account.txtUsername};
}

bool stessoLegame(const Account& uno, const Account& altro) {
    return uno.txtServerSMTP.compare(altro.txtServerSMTP, Qt::CaseInsensitive) == 0 &&
           uno.txtUsername == altro.txtUsername;
}

Result<Account> impossibile(const Status& perche, const QString& rimedio) {
    return Status(perche.code(), perche.text() + "\r\n" + rimedio);
}

}  // namespace

QString PasswordDi(const Account& account, const Attesa& attesa) {
    if (!keyring::isMarker(account.txtPassword)) return account.txtPassword;
    const auto trovata = keyring::lookUp(account.txtPassword, legameDi(account), attesa);
    return trovata.ok() ? trovata.value() : account.txtPassword;
}

Result<Account> Custodisci(const Account& valori, const TabellaAccount& precedenti, bool nuovo,
                           bool nelPortachiavi, const Attesa& attesa) {
    Account custodito = valori;
    if (keyring::isMarker(valori.txtPassword)) {
        const auto origine = std::find_if(precedenti.begin(), precedenti.end(), [&](const Account& uno) {
            return uno.txtPassword == valori.txtPassword;
        });
        const auto daRiscrivere = Words::tr("Scrivere di nuovo la password.");
        if (origine == precedenti.end())
            return impossibile({ErrorCode::ItemNotFound, Words::tr("La password non è nota.")}, daRiscrivere);
        if (nelPortachiavi && !nuovo && stessoLegame(valori, *origine)) return valori;
        const auto trovata = keyring::lookUp(valori.txtPassword, legameDi(*origine), attesa);
        if (!trovata.ok()) return impossibile(trovata.status(), daRiscrivere);
        custodito.txtPassword = trovata.value();
        if (!nelPortachiavi && !text::outsideAnsi(trovata.value()).isEmpty())
            return impossibile(
                {ErrorCode::NotSupported,
                 Words::tr("La password ha caratteri che il file degli account non può contenere.")},
                Words::tr("Resta nel portachiavi."));
    }
    // The word that represents a consent is no secret, and the window recognises it.
    const bool segreta = !custodito.txtPassword.isEmpty() && custodito.txtPassword != oauth::passwordWord;
    if (!nelPortachiavi || !segreta) return custodito;
    const auto messa = keyring::store(legameDi(valori), custodito.txtPassword,
                                      QStringLiteral("Vestrola: ") + VoceAccount(valori), attesa);
    if (!messa.ok())
        return impossibile(messa.status(),
                           Words::tr("Senza la spunta la password resta nel file degli account."));
    custodito.txtPassword = messa.value();
    return custodito;
}

void Ripulisci(const TabellaAccount& precedenti, const QString& percorso, int attesi) {
    if (!Usato(precedenti)) return;
    TabellaAccount scritti;
    int letti = 0;
    Prosegui prosegui;
    if (!prosegui([&] { CaricaAccount(percorso, scritti, [&](const Account&, int) { ++letti; }); })) return;
    if (letti != attesi) return;
    QSet<QString> inUso;
    for (const Account& uno : scritti)
        inUso.insert(uno.txtPassword);
    for (const Account& uno : precedenti) {
        if (keyring::isMarker(uno.txtPassword) && !inUso.contains(uno.txtPassword))
            static_cast<void>(keyring::remove(uno.txtPassword));
    }
}

bool Usato(const TabellaAccount& tabella) {
    return std::any_of(tabella.begin(), tabella.end(),
                       [](const Account& uno) { return keyring::isMarker(uno.txtPassword); });
}

}  // namespace portachiavi
