// SPDX-License-Identifier: GPL-3.0-or-later
// The mail exchanger that a test copy goes to on the direct route, looked up while the window lives.
#pragma once

#include <functional>
#include <memory>
#include <QByteArray>
#include <QString>

#include "platform/dns/Resolver.h"

/// One of the two is empty.
struct ServerMX {
    QString server;  ///< host of the lowest preference, of several equal ones the first of the answer
    QString motivo;  ///< why there is none, in one sentence
};

/// What an answer about a domain's exchangers leads to. A domain without an MX record has no server, as in a
/// run.
ServerMX ServerDi(const dns::Answer& risposta);

/// Asks on the event loop, unlike MXQuery, which a run uses and which blocks the thread.
class RicercaMX {
  public:
    using Fine = std::function<void(const ServerMX& trovato)>;

    /// `dominio` is what follows the "@", in A-labels. `fine` is called once, from the event loop,
    /// after ten seconds at the latest; from within this call where the text is no domain name. A look-up
    /// that is under way is dropped.
    void Avvia(const QByteArray& dominio, Fine fine);
    /// No `fine` is called any more.
    void Annulla();
    bool InCorso() const { return resolver != nullptr; }

  private:
    std::unique_ptr<dns::Resolver> resolver;
};
