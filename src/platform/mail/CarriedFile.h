// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/Status.h"

namespace mail {

/// The files that messages may carry, by their paths with all links resolved. None: any file.
using CarriedFiles = std::optional<QStringList>;

/// The first `limit` bytes of an ordinary file. PathAccess where it cannot be read, or is not in
/// `allowed`. The file that was opened is checked, so a link that is changed after the check has no
/// effect.
Result<QByteArray> readCarried(const QString& path, const CarriedFiles& allowed, qint64 limit);

}  // namespace mail
