// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/HomeFolder.h"

#include <QDir>

namespace sys {

namespace {

QString& replacedHome() {
    static QString folder;
    return folder;
}

}  // namespace

QString homeFolder() {
    const QString home = QDir(replacedHome().isEmpty() ? QDir::homePath() : replacedHome()).canonicalPath();
    return home == QLatin1String("/") ? QString() : home;
}

void setHomeFolder(const QString& folder) {
    replacedHome() = folder;
}

}  // namespace sys
