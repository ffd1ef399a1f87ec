// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The port number in an account's text: a whole number from 0 to 65535. Unguarded.
quint16 NumeroPorta(const QString& testo);
