// The mail servers of one's own net.
#pragma once

#include <QStringList>

/// The names in "mx-interni.txt" of the data folder, in lower case and without a final point: servers inside
/// one's own net that the direct route may reach. Empty where there is no such file. At most 1000 of them
/// count. docs/formats/mx-interni.md shows the file.
QStringList MxInterni();
