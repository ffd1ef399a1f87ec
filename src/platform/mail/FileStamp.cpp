// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/FileStamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace mail {

FileStamp FileStamp::of(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile()) return {};
    return {info.size(), info.fileTime(QFile::FileModificationTime).toMSecsSinceEpoch()};
}

}  // namespace mail
