// SPDX-License-Identifier: GPL-3.0-or-later
// Asking the desktop's keyring, which may ask the user in turn, with a notice while it lasts; Esc gives up.
#pragma once

#include "modules/accounts/Portachiavi.h"

namespace portachiavi {

/// PasswordDi().
QString PasswordConAttesa(const Account& account);

/// Custodisci().
Result<Account> CustodisciConAttesa(const Account& valori, const TabellaAccount& precedenti, bool nuovo,
                                    bool nelPortachiavi);

}  // namespace portachiavi
