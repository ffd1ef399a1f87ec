// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace mail {

/// Size and time of change: they distinguish states of a file without reading it.
struct FileStamp {
    qint64 size = -1;         ///< -1: there is no such ordinary file
    qint64 changedAtMs = -1;  ///< milliseconds since 1970

    bool exists() const { return size >= 0; }
    bool operator==(const FileStamp&) const = default;

    static FileStamp of(const QString& path);
};

}  // namespace mail
