// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/core/Portachiavi_attesa.h"

#include "platform/text/Words.h"
#include "platform/ui/WaitNotice.h"

namespace {

template <class Chiedi>
auto conAttesaDelPortachiavi(Chiedi chiedi) {
    ui::WaitNotice attesa(
        Words::tr("In attesa del portachiavi… Esc per rinunciare"), [](const QString&) {}, nullptr);
    auto risposta = chiedi([&](auto passato) { return attesa.goOn(passato); });
    attesa.over();
    return risposta;
}

}  // namespace

QString portachiavi::PasswordConAttesa(const Account& account) {
    return conAttesaDelPortachiavi([&](const Attesa& attesa) { return PasswordDi(account, attesa); });
}

Result<Account> portachiavi::CustodisciConAttesa(const Account& valori, const TabellaAccount& precedenti,
                                                 bool nuovo, bool nelPortachiavi) {
    return conAttesaDelPortachiavi(
        [&](const Attesa& attesa) { return Custodisci(valori, precedenti, nuovo, nelPortachiavi, attesa); });
}
