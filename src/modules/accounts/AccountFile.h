// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <QString>
#include <vector>

/// The sender accounts and their file "Account.imp": one line of binary digits (bBinary.h) for each account,
/// its eleven fields joined by "|". docs/formats/account.md shows the bytes.

/// One account. A field is named after the control that edits it.
struct Account {
    QString idAccount;  ///< the account's number at the time it was written
    QString txtNomeVisual;
    QString txtEmail;
    QString txtServerSMTP;
    QString txtServerPORT;
    QString chkAutentick;  ///< "1" or "0"
    QString txtUsername;
    QString txtPassword;
    QString cmbSaluto;  ///< "EHLO" or "HELO"
    QString txtOutPort;
    QString chkUsaSMTP;  ///< "1" or "0"

    /// The fields in the order of the file.
    static constexpr std::size_t numeroCampi = 11;
    static const std::array<QString Account::*, numeroCampi> campi;
};

/// The accounts in memory, indexed by their numbers from 0. A number that no line had leaves an empty
/// account.
using TabellaAccount = std::vector<Account>;

/// The account's entry in a list: name, " [", address, "]".
QString VoceAccount(const Account& account);

/// Reads the file at `percorso`. Each line is stored in the table at its number, which may widen the table
/// but never makes it shorter, and is then handed to `aggiungi` with its number, so that a list can show it.
/// Returns whether there was a line. Unguarded: a file that is missing, a line with too few fields or a
/// number that is invalid, negative or above 32767 fails; the lines before it stay loaded. Fields after the
/// eleventh are dropped. From the first call on the process leaves no core dump, as it may contain passwords.
bool CaricaAccount(const QString& percorso, TabellaAccount& tabella,
                   const std::function<void(const Account& account, int numero)>& aggiungi);

/// The three writers ignore every failure, as a file that cannot be written must not stop the window. The
/// entries of the window's list are the caller's: `voci` is their count before the call.

/// Appends an account with the number above the highest of the table and stores it there. Returns the number.
int NuovoAccount(const QString& percorso, TabellaAccount& tabella, Account nuovo);

/// Stores the account (its old number stays) at `posizione` and rewrites the file.
void ModificaAccount(const QString& percorso, TabellaAccount& tabella, int voci, int posizione,
                     const Account& valori);

/// Moves the accounts after `posizione` one up, shortens the table to the entries that are left and rewrites
/// the file. Removing the only one leaves it in the table, since a table cannot become empty, while the file
/// does.
void EliminaAccount(const QString& percorso, TabellaAccount& tabella, int voci, int posizione);
