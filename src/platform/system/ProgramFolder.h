// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/Status.h"

/// The folder in which the program keeps its files: language texts and start log in the folder itself,
/// everything else in its subfolder "data".
namespace sys {

/// The program folder, ending in "/". Decided at the first call and kept:
///   1. what setProgramFolder() or the environment variable VESTROLA_FOLDER says;
///   2. the folder of the program itself, where it can be written and is not an installed copy (a portable
///      copy, the build tree);
///   3. the user's own folder "vestrola" under the XDG data home.
/// In cases 2 and 3 a folder without "data" is filled from the templates, and older language texts are
/// renewed from them; in case 3 missing language texts are copied again, and the login providers where they
/// are missing. A failure of that leaves the folder as it is.
QString programFolder();

/// Whether programFolder() has chosen a folder in which the program has never been started: it has no log of
/// starts ("Error.txt"). False for a folder of case 1.
bool programFolderIsNew();

/// Replaces the folder; an empty text makes the next call decide again.
void setProgramFolder(const QString& folder);

/// Where an installed program finds its templates: "../share/vestrola/templates" as seen from its own folder,
/// without a final "/".
QString installedTemplates(const QString& applicationFolder);

/// Where a program in this folder finds its templates: in the folder "templates" beside it (a portable copy),
/// or where an installed program has them.
QString templatesOf(const QString& applicationFolder);

/// The folder of the help, ending in "/": "help" beside the program, or where an installed program has it
/// ("../share/vestrola/help" as seen from its own folder).
QString helpFolder();

/// Replaces the folder of the help; an empty text makes it looked up again.
void setHelpFolder(const QString& folder);

/// Cases 2 and 3 for a program in `applicationFolder` and a user with the data home `userData`; no ending
/// "/".
QString chooseProgramFolder(const QString& applicationFolder, const QString& userData);

/// Fills a program folder without "data" with copies of the files of `templates` and of its subfolder "data".
/// All copies are made for their owner only, since addresses and passwords will go there. "data" is created
/// last and atomically, so that the next start completes an interrupted first one. Files that are already
/// there are kept.
Status fillProgramFolder(const QString& folder, const QString& templates);

/// Copies the language texts "LANG.lng" of `templates` where those of the folder are still the ones of an
/// earlier installation. Texts that the user changed or removed stay unchanged. "data/LANG.imp" records which
/// ones came from an installation, by their SHA-256 in hex.
Status renewTexts(const QString& folder, const QString& templates);

/// Copies "LANG.lng" again from `templates` where the folder has none, since without it the main window has
/// no groups.
Status restoreTexts(const QString& folder, const QString& templates);

/// Copies "data/oauth/providers.json" from `templates` where the folder has none; not where "data" itself
/// is missing.
Status restoreProviders(const QString& folder, const QString& templates);

}  // namespace sys
