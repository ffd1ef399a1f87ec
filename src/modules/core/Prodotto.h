// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The program's name and version.
namespace prodotto {

/// "Vestrola"
QString nome();
/// "Ver. 3.0.2130": major, minor and revision as plain numbers.
QString versione();

/// The maker's web site, and the maker's mail address as people read it and as a link.
QString paginaWeb();
QString indirizzoPosta();
QString collegamentoPosta();

}  // namespace prodotto
