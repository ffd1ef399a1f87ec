// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sys {

/// The user's home folder with its links resolved, without a final "/"; empty where there is none.
QString homeFolder();

/// Replaces it (tests); an empty text restores the real one.
void setHomeFolder(const QString& folder);

}  // namespace sys
