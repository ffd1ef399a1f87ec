// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QString>

/// Disks whose files have no modes: FAT and exFAT, as on most USB sticks. Such a disk reports one owner and
/// mode for all files, those that it was mounted with.
namespace sys {

/// Whether the disk of an open file keeps the modes of files. True where the system does not say.
bool keepsModes(int file);

/// The same for a folder.
bool keepsModes(const QString& folder);

/// Returns the type of an open file's disk (statfs(2), f_type; -1 for unknown). Tests set their own.
std::function<long(int file)>& diskKind();

/// The system's function.
long systemDiskKind(int file);

}  // namespace sys
