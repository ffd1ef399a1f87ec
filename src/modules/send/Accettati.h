// SPDX-License-Identifier: GPL-3.0-or-later
// The recipients who were served but whose row is still selected: the process's one list, and
// what becomes of it.
#pragma once

#include <functional>
#include <QList>
#include <QString>

#include "platform/mail/AcceptedList.h"

/// The list of this process, kept in the data folder; what others left there is taken over when it is
/// first named. It lives as long as the process.
mail::AcceptedList& accettati();

/// Deselects the remembered recipients of the current database whose row still has the
/// address that was served; what no longer fits is dropped, and `annota` gets a line for the log. Unguarded:
/// fails where the database cannot be changed within 5 seconds; what was not done then stays remembered. Not
/// in the middle of a run, which counts rows.
void ApplicaAccettati(const std::function<void(const QString& riga)>& annota = {});

/// Before the user selects a recipient again or deselects him: his choice is newer than what is remembered,
/// or what a server's reply that is still awaited may bring.
void DimenticaAccettato(const QString& id);
/// The same for all recipients of a group, given by its number. Unguarded.
void DimenticaAccettatiDelGruppo(const QString& numero);
/// The same for all recipients of the database.
void DimenticaAccettati();
/// The same for these.
void DimenticaAccettati(const QList<qint64>& numeri);

/// The messages of the current database whose reply the send window still awaits. It sets all three when it
/// is made, and takes them away when it goes.
struct RisposteAttese {
    std::function<void()> concludi;  ///< before the program ends: waits some seconds for them
    std::function<QList<qint64>()> numeri;
    std::function<void(const QList<qint64>& numeri)> dimentica;
};
RisposteAttese& risposteAttese();
