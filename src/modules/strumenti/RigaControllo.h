// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <variant>

#include "platform/dns/Answer.h"

/// One line of the check of a sender.

/// The state of what a line is about. Each level has its own word, as a colour alone is lost on
/// some.
enum class Semaforo { Attesa, Verde, Giallo, Rosso };

/// "In corso…", "In ordine", "Attenzione" or "Da correggere".
QString ParolaDi(Semaforo semaforo);

struct RigaControllo {
    QString controllo;  ///< what was looked at
    Semaforo semaforo = Semaforo::Attesa;
    QString frase;         ///< what was found, or what to do: one sentence
    QStringList dettagli;  ///< what was found, unchanged; hostile text in printable characters
};

/// A line, or the question to the DNS whose answer it still needs.
using RigaODomanda = std::variant<RigaControllo, dns::Question>;

/// Octets that others sent, as they may be shown: bounded, and without control characters.
QString Mostrabile(const QByteArray& testo);
