#pragma once

#include "platform/ado/Recordset.h"

/// The selection of the recipients (column "sel"), which is the queue of sending.

/// A recordset on the current database as the selection is read: static cursor, server side, optimistic lock.
/// Unguarded.
ado::Recordset RecordsetSelezione();

/// Counts the selected recipients with the given recordset and closes it. Unguarded.
qint64 ContaSelezionati(ado::Recordset& rs);
