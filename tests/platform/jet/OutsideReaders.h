// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/jet/Database.h"

/// Readers that share nothing with the engine.

/// What the page checker of the shared folder finds, empty for nothing; no value, and a note, when it is not
/// here.
std::optional<std::string> sharedCheckerFindings(const std::string& file);

/// A row in a form in which two readers can be compared: a text for each column, in the order of SELECT *. It
/// is empty for a type that the readers print differently.
using ComparableRow = std::vector<std::string>;
ComparableRow comparableRow(const jet::TableDefinition& table,
                            const std::function<jet::Value(size_t column)>& valueOf);
/// Row as one line.
std::string joined(const ComparableRow& row);

/// The rows of a table as mdbtools reads them; no value, and a note, when mdbtools is not here.
std::optional<std::vector<ComparableRow>> mdbtoolsTable(const std::string& file,
                                                        const jet::TableDefinition& table);
/// The same as lines.
std::optional<std::multiset<std::string>> mdbtoolsRows(const std::string& file,
                                                       const jet::TableDefinition& table);

/// The same lines from the engine.
std::multiset<std::string> engineRows(jet::Table& table);

/// Empty when the lines are the same, else the first that differ.
std::string firstDifference(const std::multiset<std::string>& got,
                            const std::multiset<std::string>& expected);
