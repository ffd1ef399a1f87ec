#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/Status.h"

namespace mail {

/// The files that messages may carry, by their paths with all links resolved. None: any file.
using CarriedFiles = std::optional<QStringList>;

/// The first `limit` bytes of an ordinary file. PathAccess where it cannot be read, or where it is none of
/// `allowed`: what counts is the file that was opened, so that a link that is changed after somebody looked
/// leads nowhere.
Result<QByteArray> readCarried(const QString& path, const CarriedFiles& allowed, qint64 limit);

}  // namespace mail
