#pragma once

#include "platform/ado/Recordset.h"

/// Counts the selected recipients (column "sel"), the queue of sending, with the given recordset and closes
/// it. Unguarded.
qint64 ContaSelezionati(ado::Recordset& rs);
