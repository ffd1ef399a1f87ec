// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/Status.h"

namespace sys {

/// Hands a web address, a mail link or a local file to the desktop (xdg-open) and does not wait for it. Only
/// http, https, mailto and file addresses are allowed; PathAccess for anything else and where the desktop's
/// opener cannot be started.
Status openAddress(const QString& address);

}  // namespace sys
