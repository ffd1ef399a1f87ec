// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "modules/accounts/AccountFile.h"
#include "platform/system/Keyring.h"

/// Passwords of accounts that live in the desktop's keyring. The account then has a marker in its field
/// `txtPassword`, in the file as in memory; the keyring returns the password only for the server and the user
/// that it was stored for, so that changing the file does not disclose it.
namespace portachiavi {

using Attesa = sys::keyring::GoOn;

/// What to log in with: the account's password, or what the keyring has for its marker. Where the keyring
/// does not return it, the marker itself, which is never sent: the login fails.
QString PasswordDi(const Account& account, const Attesa& attesa = {});

/// The account as it is to be written, its password in the keyring or in the file. A marker in `valori` is
/// one of `precedenti`; it is kept where nothing changes for it (not for an account that is `nuovo`, which
/// gets one of its own). Fails, with a text for the user and nothing changed, where the keyring cannot return
/// or store a password, or the file cannot represent it.
Result<Account> Custodisci(const Account& valori, const TabellaAccount& precedenti, bool nuovo,
                           bool nelPortachiavi, const Attesa& attesa = {});

/// Takes the passwords of `precedenti` out of the keyring whose markers are no longer in the file.
/// Does nothing where the file does not contain `attesi` accounts: it was not written whole.
void Ripulisci(const TabellaAccount& precedenti, const QString& percorso, int attesi);

/// Whether any account has its password in the keyring.
bool Usato(const TabellaAccount& tabella);

}  // namespace portachiavi
