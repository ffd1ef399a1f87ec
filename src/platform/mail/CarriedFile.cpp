// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/CarriedFile.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>

#include "platform/text/Words.h"

namespace mail {

Result<QByteArray> readCarried(const QString& path, const CarriedFiles& allowed, qint64 limit) {
    const auto refused = [](const QString& why) { return Status(ErrorCode::PathAccess, why); };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return refused(Words::tr("non si può leggere"));
    if (allowed) {
        // The system's path of the file that was opened
        const QString opened = QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(file.handle()));
        if (!allowed->contains(opened)) return refused(Words::tr("non è il file che è stato confermato"));
    }
    QByteArray content = file.read(std::min(file.size(), limit));
    if (file.error() != QFile::NoError) return refused(Words::tr("non si può leggere"));
    return content;
}

}  // namespace mail
