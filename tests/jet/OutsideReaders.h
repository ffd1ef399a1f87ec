#pragma once

#include <optional>
#include <QString>
#include <set>
#include <string>

#include "platform/jet/Database.h"

/// Readers that share nothing with the engine.

/// What the page checker of the shared folder finds, empty for nothing; no value when it is not here, which
/// is told.
std::optional<std::string> sharedCheckerFindings(const QString& file);

/// The rows of a table as mdbtools reads them, each as one line of comparable text; no value when mdbtools is
/// not here, which is told.
std::optional<std::multiset<std::string>> mdbtoolsRows(const QString& file,
                                                       const jet::TableDefinition& table);

/// The same lines from the engine.
std::multiset<std::string> engineRows(jet::Table& table);

/// Empty when the lines are the same, else the first that differ.
std::string firstDifference(const std::multiset<std::string>& got,
                            const std::multiset<std::string>& expected);
