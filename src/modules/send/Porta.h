// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The port number that an account's text gives: a whole number from 0 to 65535. Unguarded.
quint16 NumeroPorta(const QString& testo);
