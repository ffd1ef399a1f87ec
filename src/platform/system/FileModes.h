#pragma once

#include <functional>
#include <QString>

/// Disks whose files have no modes of their own: FAT and exFAT, as on most sticks. What such a disk says of a
/// file's owner and mode is the same for all files, and is what it was mounted with.
namespace sys {

/// Whether the disk of an open file keeps the modes of files. Taken as true where the system does not tell.
bool keepsModes(int file);

/// The same for a folder.
bool keepsModes(const QString& folder);

/// What tells the kind of an open file's disk (statfs(2), f_type; -1 for unknown). Tests put their own in.
std::function<long(int file)>& diskKind();

/// What the system tells.
long systemDiskKind(int file);

}  // namespace sys
