// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// The sandbox of a process that reads foreign files: code that a crafted file injects into the reader
/// reaches only what is open already.
namespace walls {

struct Raised {
    bool files = false;  ///< landlock: of all files only libc's character sets can be read, none written
    bool calls =
        false;  ///< seccomp: no sockets, no programs, no processes; files are opened for reading only
    bool memory = false;  ///< the limit on memory
};

/// The limit on memory, in bytes.
constexpr unsigned long long mostMemory = 512ULL << 20;

/// Limits on memory, time, core dumps and written files, and the end of this process with its parent. To be
/// called first. A build with AddressSanitizer has no limit on memory: its shadow is larger than any.
Raised limitOnly();

/// Raises the walls for good, once the file is open. Where the kernel has no landlock, the character sets
/// that Outlook writes are loaded now and no file at all can be opened any more. Needs one thread.
Raised raise(Raised limits);

/// The folder of libc's character sets, as this libc finds it; empty where that is unknown.
std::string characterSets();

}  // namespace walls
