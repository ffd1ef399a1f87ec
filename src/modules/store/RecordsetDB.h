// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ado/Recordset.h"

/// A recordset on the current database whose rows can be counted and changed: static cursor, server side,
/// optimistic lock. Unguarded.
ado::Recordset RecordsetDB();
