// SPDX-License-Identifier: GPL-3.0-or-later
// The mail servers of the user's own network.
#pragma once

#include <QStringList>

/// The names in "mx-interni.txt" of the data folder, in lower case and without a final point: servers inside
/// the user's network that the direct route may reach. Empty where the file is missing. At most 1000 of them
/// count. docs/formats/mx-interni.md shows the file.
QStringList MxInterni();
