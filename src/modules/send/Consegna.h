// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of the delivery control for an account, the same for a run and for a single copy.
#pragma once

#include "modules/accounts/AccountFile.h"
#include "modules/core/Fallimento.h"

namespace mail {
class DeliveryControl;
}

/// Who sends, and the folders and lists of the data folder that a delivery asks. An invalid port leaves
/// the one before.
void ImpostaMittente(mail::DeliveryControl& SMTP, const Account& mittente, Prosegui& prosegui);

/// The account has no server: each message goes straight to its recipient's mail exchanger.
bool StradaDiretta(const Account& mittente);
/// The account's server is greeted by HELO.
bool SalutaConHelo(const Account& mittente);
/// The account logs in on its server.
bool ChiedeAccesso(const Account& mittente);

/// The direct route: to this mail exchanger, without a login. Where there is none the delivery fails, with
/// `motivo`.
void UsaServerMX(mail::DeliveryControl& SMTP, const QString& server, const QString& motivo);

/// To the account's server, with its login.
void UsaServerAccount(mail::DeliveryControl& SMTP, const Account& mittente, const QString& password,
                      Prosegui& prosegui);

/// Where the message with this ToAddress of a run goes and how the login is made: to the account's server, or
/// on the direct route to the mail exchanger that is looked up now (MXQuery, which blocks the thread).
void ScegliStrada(mail::DeliveryControl& SMTP, const Account& mittente, const QString& password,
                  Prosegui& prosegui);
