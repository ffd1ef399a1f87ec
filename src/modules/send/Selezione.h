// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/ado/Recordset.h"

/// The rows of the selection, in the order in which a run serves them.
extern const QString codaInvio;

/// Counts the selected recipients (column "sel"), the queue of sending, with the given recordset and closes
/// it. Unguarded.
qint64 ContaSelezionati(ado::Recordset& rs);
