#pragma once

#include <string>

/// Everything that a program does with a Jet file, on one that may hold anything.
namespace exercise {

/// Opens the file, walks over its tables and changes a few rows of each. Gives whether it could be opened.
bool walkAndChange(const std::string& file);
/// Statements of every shape on each of its tables.
void runStatements(const std::string& file);

}  // namespace exercise
