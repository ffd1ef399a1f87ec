// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QString>

/// Pattern for a QTemporaryDir that is in memory where possible, so that syncing costs nothing.
inline QString memoryFolderPattern() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/vestrola-XXXXXX");
}
