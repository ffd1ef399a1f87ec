#pragma once

#include <QString>

/// "pathDBase.imp" in the data folder remembers which database is current. docs/formats/pathdbase.md shows
/// its lines.

/// The start-up reading: sets percorsoDB, prefissoConnDB and connDB. A file that is missing or has no second
/// line leaves the path empty. Passes over every failure.
void CaricaPercorsoDBase();

/// Makes another database the current one: rewrites the file, then sets percorsoDB and connDB. A failure of
/// the file is passed over.
void CambiaPercorsoDBase(const QString& percorso);
