#pragma once

#include <QString>

namespace sys {

/// The user's home folder with its links resolved, without an ending "/"; empty where there is none.
QString homeFolder();

/// Replaces it (tests); an empty text brings the true one back.
void setHomeFolder(const QString& folder);

}  // namespace sys
