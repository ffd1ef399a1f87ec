// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The pages of the help. Each language has a folder of its own below the folder of the help, named by its
/// ISO 639 code, with the same pages in each. Which one is in use say the program's own texts
/// (platform/text/Words.h), so that help and windows speak the same language.
namespace guida {

/// The page with which the help begins, in the language in use.
QString PrimaPagina();

/// The page that leads to the place about a window, in the language in use; empty where the help has none.
/// The window is named by its object name ("frmInvia").
QString PaginaDellaFinestra(const QString& nome);

/// Shows a page in the desktop's browser, and does not wait for it.
void Apri(const QString& pagina);

}  // namespace guida
