// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/Status.h"

/// Private files of the data folder: created for their owner only, replaced as a whole, read with a size
/// limit. Links are not followed, except where the file's folder is a link of the user's own or of the
/// administrator's.
namespace sys {

/// Makes the folder where it is missing. PathAccess where its name is not that of a folder.
Status makeOwnFolder(const QString& path);

/// Replaces the file by one with these bytes: written to `path` + ".nuovo", synced, and renamed, so that the
/// file always has the old or the new bytes, whenever the program ends.
Status replaceOwnFile(const QString& path, const QByteArray& bytes);

/// Makes a file with these bytes, synced; FileInUse where that name exists already. After a failure there is
/// no file.
Status createOwnFile(const QString& path, const QByteArray& bytes);

/// Removes a file that createOwnFile() made.
void removeOwnFile(const QString& path);

/// The bytes of an ordinary file. FileNotFound where there is none, Overflow where there are more than
/// `limit`.
Result<QByteArray> readOwnFile(const QString& path, qint64 limit);

/// At most `size` octets of an ordinary file from `offset` on; fewer at its end.
Result<QByteArray> readOwnFilePart(const QString& path, qint64 offset, qint64 size);

/// What users may do with a file besides its owner, who is the user or the administrator.
enum class Others { Nothing, Read };

/// The bytes of a file that must be protected from others: a key, a token. Fails as readOwnFile(), and with
/// PathAccess where others can do more with it than `others` says; the text says that and names the file. On
/// a disk that keeps no modes (FileModes.h) only the owner is checked. A link is followed where it is the
/// user's own or the administrator's.
Result<QByteArray> readGuardedFile(const QString& path, qint64 limit, Others others = Others::Nothing);

/// A lock for the lifetime of the object, and never longer than the process: its own file, which nobody else
/// can lock at the same time.
class FileLock {
  public:
    FileLock() = default;
    ~FileLock() { release(); }
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;

    /// Makes the file and locks it. FileInUse where another process has the lock.
    Status take(const QString& path);
    bool held() const { return m_file >= 0; }
    /// Releases the lock and removes its file.
    void remove();

  private:
    void release();

    int m_file = -1;
    QString m_path;
};

}  // namespace sys
