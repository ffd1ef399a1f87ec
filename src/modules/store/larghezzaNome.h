#pragma once

/// Size of the column of a group's name, in characters, in the current database; of a new one where
/// it cannot be read. Ignores every failure.
int LarghezzaNomeGruppo();
