// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "platform/Status.h"

namespace mail {

/// A small text file of the data folder that lists mail servers, one a line. The user may edit it at any
/// time, so it is read at each use. Lines that begin with "#" are comments.

/// The entries without the blanks at their ends. None where there is no such file. Fails where it cannot be
/// read, is a link, or is larger than 256 KB.
Result<QStringList> readServerList(const QString& path);

/// Appends an entry; the existing lines stay unchanged.
Status addToServerList(const QString& path, const QString& entry);

}  // namespace mail
