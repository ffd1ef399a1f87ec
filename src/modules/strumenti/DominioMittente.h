// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHostAddress>
#include <QList>

#include "modules/strumenti/RigaControllo.h"
#include "platform/mail/DkimKey.h"
#include "platform/Status.h"

/// The check of a sender's domain in the DNS, line by line: each routine is a function of the answers
/// that are known, and asks for the next one that it needs.

/// Whose domain, and where its mail leaves from.
struct DominioMittente {
    QByteArray dominio;                  ///< in A-labels and lower case
    QByteArray indirizzo;                ///< the sender's address
    bool diretto = false;                ///< without a server: this machine delivers
    QByteArray server;                   ///< name or address of the account's server; empty: none
    QList<QHostAddress> questoComputer;  ///< public addresses of this machine, where it delivers itself
    Result<mail::DkimKey> chiave{Status(ErrorCode::FileNotFound, QString())};  ///< see readDkimKey()
};

using Risposte = dns::Answers;

/// That a look-up has failed, and why, in a sentence for the user.
QString FraseRicercaFallita(const QByteArray& nome, const dns::Answer& risposta);
/// The same for the first failure at this name.
QString FraseRicercaFallita(const QByteArray& nome, const Risposte& risposte);

RigaODomanda RigaMX(const DominioMittente& mittente, const Risposte& risposte);
RigaODomanda RigaIndirizzo(const DominioMittente& mittente, const Risposte& risposte);
/// SPF, for each address that the mail can be known to come from.
RigaODomanda RigaSpf(const DominioMittente& mittente, const Risposte& risposte);
/// The names of this machine's addresses; only where it delivers itself.
RigaODomanda RigaNomeInverso(const DominioMittente& mittente, const Risposte& risposte);
RigaODomanda RigaDkim(const DominioMittente& mittente, const Risposte& risposte);
/// What DMARC requires, checked against the results of SPF and DKIM.
RigaODomanda RigaDmarc(const DominioMittente& mittente, const Risposte& risposte);
