// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// "pathDBase.imp" in the data folder remembers which database is current, and "pathDBase.utf8" beside it a
/// path that Windows-1252 cannot encode. docs/formats/pathdbase.md shows their lines.

/// The start-up reading: sets percorsoDB, prefissoConnDB and connDB. A file that is missing or has no second
/// line leaves the path empty. Ignores every failure. Returns a notice for the user, empty for
/// nothing: that the second file was damaged and was set aside.
[[nodiscard]] QString CaricaPercorsoDBase();

/// Makes another database the current one: rewrites the files, then sets percorsoDB and connDB. Failures of
/// files are ignored.
void CambiaPercorsoDBase(const QString& percorso);
