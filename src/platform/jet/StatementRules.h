// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/Database.h"
#include "platform/jet/PageFile.h"

namespace jet {

/// For asserts: whether the pages that a statement on this table has changed obey the rules of
/// docs/formats/jet.md that can be checked on them and their neighbours: P1, P3, P5 of row pages, T1 to T4 of
/// index pages. A file may be damaged already: pages that broke a rule before are not checked, and where one
/// breaks it now the pages beside it must have kept it.
bool keepsRules(PageFile& file, const TableDefinition& definition);

}  // namespace jet
