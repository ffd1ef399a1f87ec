#pragma once

#include <QByteArray>
#include <QString>

#include "platform/Status.h"

/// Files of the data folder that hold what nobody else may read: made for their owner only, replaced whole,
/// read with a bound. Links are not followed, but where the file's
/// folder is one of the user's own or of the administrator's.
namespace sys {

/// Makes the folder where it is missing. PathAccess where something else than a folder has its name.
Status makeOwnFolder(const QString& path);

/// Replaces the file by one with these bytes: written to `path` + ".nuovo", synced, and renamed, so that the
/// name stands for the old or for the new bytes at any time, whenever the program ends.
Status replaceOwnFile(const QString& path, const QByteArray& bytes);

/// Makes a file with these bytes, synced; FileInUse where anything has that name already. After a failure
/// there is no such file.
Status createOwnFile(const QString& path, const QByteArray& bytes);

/// Takes a file away that createOwnFile() made.
void removeOwnFile(const QString& path);

/// The bytes of an ordinary file. FileNotFound where there is none, Overflow where there are more than
/// `limit`.
Result<QByteArray> readOwnFile(const QString& path, qint64 limit);

/// At most `size` octets of an ordinary file from `offset` on; fewer at its end.
Result<QByteArray> readOwnFilePart(const QString& path, qint64 offset, qint64 size);

/// What users may do with a file besides its owner, who is the user or the administrator.
enum class Others { Nothing, Read };

/// The bytes of a file that has to be out of the reach of others: a key, a token. Fails as readOwnFile(), and
/// with PathAccess where others can do more with it than `others` says; the text tells that and names the
/// file. On a disk that keeps no modes (FileModes.h) the owner alone counts. A link is followed where it is
/// the user's own or the administrator's.
Result<QByteArray> readGuardedFile(const QString& path, qint64 limit, Others others = Others::Nothing);

/// A lock that holds as long as the object, and never longer than the process: a file of its own that nobody
/// else can lock meanwhile.
class FileLock {
  public:
    FileLock() = default;
    ~FileLock() { release(); }
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;

    /// Makes the file and locks it. FileInUse where somebody else has the lock.
    Status take(const QString& path);
    bool held() const { return m_file >= 0; }
    /// Gives the lock back and removes its file.
    void remove();

  private:
    void release();

    int m_file = -1;
    QString m_path;
};

}  // namespace sys
