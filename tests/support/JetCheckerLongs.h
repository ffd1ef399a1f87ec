// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/JetCheckerFile.h"

namespace jetcheck {

/// A check of the memo and OLE values of a table's rows with the long-value pages of their columns: each
/// value is whole, each of its rows belongs to it alone, and nothing else is on those pages. Findings go to
/// `file`.
void checkLongValues(JetFile& file, const TableFacts& table, const std::map<Place, Bytes>& rows);

}  // namespace jetcheck
