#pragma once

#include <QString>

/// What the program is called and which version it is.
namespace prodotto {

/// "Vestrola"
QString nome();
/// "Ver. 3.0.2130": major, minor and revision as plain numbers.
QString versione();

}  // namespace prodotto
