// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QTimer>

#include "modules/accounts/AccountFile.h"
#include "modules/strumenti/RigheServer.h"
#include "platform/mail/SmtpSession.h"
#include "platform/mail/Transcript.h"
#include "platform/oauth/TokenSource.h"

/// A test of an account's server, as far as a run gets before its first message: connection, TLS, login. The
/// password is treated as in a run: never in the clear where it must not be, and a marker of the keyring is
/// never sent. Delivers nothing.
class ProvaServer {
  public:
    using Fatto = std::function<void(const ServerProvato& provato)>;

    /// `attesaMassima` in milliseconds.
    explicit ProvaServer(int attesaMassima = 120000);

    /// `password` is from portachiavi::PasswordDi(). `fatto` is called once, from the event loop, after
    /// `attesaMassima` at the latest.
    void Avvia(const Account& account, const QString& password, Fatto fatto);
    /// `fatto` is not called any more.
    void Annulla();

  private:
    void Consegna(const mail::DeliveryOutcome& esito);
    void Collega();

    mail::Transcript registro;  ///< without a file
    mail::SmtpSession sessione;
    oauth::TokenSource gettoni;
    mail::Route percorso;
    QTimer limite;
    QTimer dopo;  ///< reports from the event loop
    mail::DeliveryOutcome esitoSubito;
    Fatto fatto;
};
