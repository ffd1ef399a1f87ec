// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The program folder, ending in "/". File names are appended unchanged.
QString PercorsoApp();

/// The folder "data" of the program folder, ending in "/".
QString cartellaDati();
