#pragma once

/// Characters that the column of a group's name holds in the current database; those of a new database where
/// it cannot be read. Passes over every failure.
int LarghezzaNomeGruppo();
