// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/PlainStatus.h"

namespace jet {

/// Whether the file at `path` can be a database that `password` opens, by its first page alone. Takes no
/// lock, so it never waits and disturbs nobody; damage after that page is found by Database::open(). Path
/// and password as for Database. Fails with FileNotFound, PathAccess, UnrecognizedFormat, InvalidPassword or
/// DeviceIo.
Status probe(const std::string& path, const std::string& password);

}  // namespace jet
