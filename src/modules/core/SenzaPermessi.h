#pragma once

#include <QString>

/// What the user is to be told once of a data folder on a disk that keeps no modes of files (FAT): that
/// whoever can read the disk can read the accounts too. Empty for any other disk, and once it has been said,
/// which the file "senzapermessi.imp" of the data folder remembers.
QString AvvisoSenzaPermessi();
