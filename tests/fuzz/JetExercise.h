// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// Every use that a program makes of a Jet file, on one that may contain anything.
namespace exercise {

/// Opens the file, walks over its tables and changes a few rows of each. Returns whether it could be opened.
bool walkAndChange(const std::string& file);
/// Statements of every shape on each of its tables.
void runStatements(const std::string& file);

}  // namespace exercise
