// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Shell.h"

#include <QProcess>
#include <QUrl>

#include "platform/text/Words.h"

namespace sys {

Status openAddress(const QString& address) {
    const QString scheme = QUrl(address).scheme();
    const bool known = scheme == QLatin1String("http") || scheme == QLatin1String("https") ||
                       scheme == QLatin1String("mailto") || scheme == QLatin1String("file");
    if (known && QProcess::startDetached(QStringLiteral("xdg-open"), {address})) return {};
    return {ErrorCode::PathAccess, Words::tr("Impossibile aprire ") + address};
}

}  // namespace sys
