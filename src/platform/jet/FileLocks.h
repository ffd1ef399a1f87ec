// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/jet/LockWait.h"
#include "platform/jet/OsFile.h"

namespace jet {

/// The locks of a database file, which keep other processes out (docs/formats/jet.md). They fail with
/// FileInUse when the wait is given up, and then lock nothing new.

/// The content, shared or exclusive. Who locks it exclusively closes the gate first, so as not to wait for
/// ever while readers come and go, and keeps it closed.
void lockContent(OsFile& file, OsFile::Lock kind, const LockWait& wait);
/// The writer's lock.
void lockWriter(OsFile& file, const LockWait& wait);

/// Fails (FileInUse) when another program has the database open, as its file NAME.ldb shows. Removes one that
/// a crash left.
void refuseIfOpenElsewhere(const std::string& path);

}  // namespace jet
