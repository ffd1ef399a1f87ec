// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of a message that one recipient of the selection would get.
#pragma once

#include <QString>

#include "modules/accounts/AccountFile.h"
#include "modules/send/Personalizza.h"
#include "modules/strumenti/ModelloProva.h"
#include "platform/ado/Recordset.h"
#include "platform/mail/CarriedFile.h"
#include "platform/mail/Message.h"

struct CopiaProva {
    TestiMessaggio testi;
    QString indirizzo;  ///< empty where the row has none
    QString nome;
};

/// The copy of the current row of a recordset; of the template alone where there is no row.
CopiaProva LeggiCopia(const ModelloProva& modello, const ado::Recordset& destinatari);

/// What the composition of the copy needs, from this account.
mail::MessageData DatiMessaggio(const ModelloProva& modello, const CopiaProva& copia, const Account& mittente,
                                const mail::CarriedFiles& concessi);

/// The text form as it travels, with the links of the HTML form below it.
QString FormaTesto(const TestiMessaggio& testi);

/// The HTML form without the images of this machine that only a value of the recipient names: those never
/// travel, so they are not to be shown either.
QString FormaHtml(const ModelloProva& modello, const TestiMessaggio& testi);
