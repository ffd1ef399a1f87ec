// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileInfo>
#include <QUrl>

namespace html {

/// Whether an address names a file of this machine that is there. A device, which could be read without end,
/// counts as none, as does a file on another machine.
inline bool namesLocalFile(const QUrl& address) {
    return address.isLocalFile() && address.host().isEmpty() && QFileInfo(address.toLocalFile()).isFile();
}

}  // namespace html
