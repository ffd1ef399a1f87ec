#pragma once

#include <QString>

/// "pathDBase.imp" in the data folder remembers which database is current, and "pathDBase.utf8" beside it a
/// path that Windows-1252 cannot hold. docs/formats/pathdbase.md shows their lines.

/// The start-up reading: sets percorsoDB, prefissoConnDB and connDB. A file that is missing or has no second
/// line leaves the path empty. Passes over every failure. Gives what the user has to be told, empty for
/// nothing: that the second file was damaged and was set aside.
[[nodiscard]] QString CaricaPercorsoDBase();

/// Makes another database the current one: rewrites the files, then sets percorsoDB and connDB. A failure of
/// a file is passed over.
void CambiaPercorsoDBase(const QString& percorso);
