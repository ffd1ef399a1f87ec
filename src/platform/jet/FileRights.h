// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace jet {

/// The owner of a file and its access rights.
struct FileRights {
    uint32_t owner = 0;
    uint32_t group = 0;
    uint32_t mode = 0;  ///< the nine bits of owner, group and others
    uint64_t links = 0;
    bool regular = false;
};

/// Whether the file's group or mode lets `user` write it; the administrator may write everything.
bool mayWrite(uint32_t user, const FileRights& file);

/// Whether a journal of these rights may be trusted and changed by the user `ours`: a plain file under one
/// name only, made by the database's owner, by ourselves, or by somebody who may write the database anyway.
bool isTrusted(const FileRights& journal, const FileRights& database, uint32_t ours);

}  // namespace jet
