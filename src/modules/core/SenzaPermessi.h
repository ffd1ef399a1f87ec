// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The notice, shown once, about a data folder on a disk without file modes (FAT): that
/// anyone who can read the disk can read the accounts too. Empty for any other disk, and once it was shown,
/// which the file "senzapermessi.imp" of the data folder remembers.
QString AvvisoSenzaPermessi();
