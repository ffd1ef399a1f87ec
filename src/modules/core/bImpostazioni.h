// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The program folder, ending in "/". File names are appended unchanged.
QString PercorsoApp();

/// The folder "data" of the program folder, ending in "/".
QString cartellaDati();

// What more than one routine names of the data folder.

QString fileAccount();          ///< the sender accounts
QString cartellaDkim();         ///< keys that sign
QString cartellaOAuth();        ///< login providers, and the tokens that they gave
QString cartellaCertificati();  ///< authorities that are trusted besides the system's
QString fileServerConTls();     ///< servers that have offered TLS
QString fileServerSenzaTls();   ///< servers that may get a password in the clear
