// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OwnFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "platform/system/FileModes.h"
#include "platform/system/OutputFile.h"
#include "platform/system/WriteAll.h"
#include "platform/text/Words.h"

namespace sys {

namespace {

Status failure() {
    switch (errno) {
        case ENOENT:
            return {ErrorCode::FileNotFound, QString()};
        case EWOULDBLOCK:
            return {ErrorCode::FileInUse, Words::tr("Il file è in uso")};
        case ENOSPC:
        case EIO:
        case EDQUOT:
            return {ErrorCode::DeviceIo, QString()};
        default:
            return {ErrorCode::PathAccess, QString()};
    }
}

/// Closes a file at the end of a scope.
class Open {
  public:
    Open(const QString& path, int flags)
        : m_file(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOFOLLOW, 0600)) {}
    ~Open() {
        if (m_file >= 0) ::close(m_file);
    }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;

    int get() const { return m_file; }
    int letGo() { return std::exchange(m_file, -1); }

  private:
    int m_file;
};

bool isFolder(const QString& path) {
    struct stat found {};
    return ::lstat(QFile::encodeName(path).constData(), &found) == 0 && S_ISDIR(found.st_mode);
}

Result<QByteArray> readPart(int open, qint64 offset, qint64 size) {
    QFile file;
    if (!file.open(open, QIODevice::ReadOnly) || !file.seek(offset))
        return Status(ErrorCode::DeviceIo, file.errorString());
    // read() makes room for all that it is asked for, and a bound is far above most files
    QByteArray bytes = file.read(std::clamp<qint64>(file.size() - offset, 0, size));
    if (file.error() != QFileDevice::NoError) return Status(ErrorCode::DeviceIo, file.errorString());
    return bytes;
}

Result<QByteArray> readUpTo(int open, qint64 limit) {
    Result<QByteArray> bytes = readPart(open, 0, limit + 1);
    if (bytes.ok() && bytes.value().size() > limit) return Status(ErrorCode::Overflow, QString());
    return bytes;
}

Status isOrdinary(const Open& open) {
    struct stat found {};
    if (open.get() < 0 || ::fstat(open.get(), &found) != 0) return failure();
    if (!S_ISREG(found.st_mode)) return {ErrorCode::PathAccess, QString()};
    return {};
}

}  // namespace

Status makeOwnFolder(const QString& path) {
    if (::mkdir(QFile::encodeName(path).constData(), 0700) == 0 || isFolder(path)) return {};
    return {ErrorCode::PathAccess, QString()};
}

Status replaceOwnFile(const QString& path, const QByteArray& bytes) {
    if (!folderIsSafe(path)) return {ErrorCode::PathAccess, QString()};
    const QByteArray aside = QFile::encodeName(path + QStringLiteral(".nuovo"));
    ::unlink(aside.constData());
    Open file(path + QStringLiteral(".nuovo"), O_WRONLY | O_CREAT | O_EXCL);
    if (file.get() >= 0 && writeAll(file.get(), bytes) && ::fsync(file.get()) == 0 &&
        ::rename(aside.constData(), QFile::encodeName(path).constData()) == 0)
        return {};
    Status failed = failure();
    if (file.get() >= 0) ::unlink(aside.constData());
    return failed;
}

Status createOwnFile(const QString& path, const QByteArray& bytes) {
    if (!folderIsSafe(path)) return {ErrorCode::PathAccess, QString()};
    const Open file(path, O_WRONLY | O_CREAT | O_EXCL);
    if (file.get() < 0 && errno == EEXIST) return {ErrorCode::FileInUse, QString()};
    if (file.get() < 0) return failure();
    if (writeAll(file.get(), bytes) && ::fsync(file.get()) == 0) return {};
    Status failed = failure();
    removeOwnFile(path);
    return failed;
}

void removeOwnFile(const QString& path) {
    ::unlink(QFile::encodeName(path).constData());
}

Result<QByteArray> readOwnFile(const QString& path, qint64 limit) {
    if (!folderIsSafe(path)) return Status(ErrorCode::PathAccess, QString());
    const Open open(path, O_RDONLY | O_NONBLOCK);
    if (Status ordinary = isOrdinary(open); !ordinary.ok()) return ordinary;
    return readUpTo(open.get(), limit);
}

Result<QByteArray> readOwnFilePart(const QString& path, qint64 offset, qint64 size) {
    if (!folderIsSafe(path)) return Status(ErrorCode::PathAccess, QString());
    const Open open(path, O_RDONLY | O_NONBLOCK);
    if (Status ordinary = isOrdinary(open); !ordinary.ok()) return ordinary;
    return readPart(open.get(), offset, size);
}

Result<QByteArray> readGuardedFile(const QString& path, qint64 limit, Others others) {
    if (!folderIsSafe(path) || !mayFollow(path))
        return Status(ErrorCode::PathAccess, Words::tr("%1 è un collegamento di un altro utente").arg(path));
    const Open open(QFileInfo(path).canonicalFilePath(), O_RDONLY | O_NONBLOCK);
    struct stat found {};
    if (open.get() < 0 || ::fstat(open.get(), &found) != 0) return failure();
    const bool owned = found.st_uid == ::geteuid() || found.st_uid == 0;
    const mode_t tooMuch = others == Others::Nothing ? 077 : 022;
    if (!S_ISREG(found.st_mode) || !owned || ((found.st_mode & tooMuch) != 0 && keepsModes(open.get())))
        return Status(
            ErrorCode::PathAccess,
            Words::tr("altri utenti possono %1 %2: deve essere un file dell'utente con i "
                      "permessi %3")
                .arg(others == Others::Nothing ? Words::tr("leggere o scrivere") : Words::tr("scrivere"),
                     path, others == Others::Nothing ? "600" : "644"));
    return readUpTo(open.get(), limit);
}

FileLock::FileLock(FileLock&& other) noexcept
    : m_file(std::exchange(other.m_file, -1)), m_path(std::move(other.m_path)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    std::swap(m_file, other.m_file);
    std::swap(m_path, other.m_path);
    return *this;
}

Status FileLock::take(const QString& path) {
    release();
    if (!folderIsSafe(path)) return {ErrorCode::PathAccess, QString()};
    Open file(path, O_RDWR | O_CREAT | O_NONBLOCK);
    if (file.get() < 0 || ::flock(file.get(), LOCK_EX | LOCK_NB) != 0) return failure();
    // Its last holder may have removed the file between the two steps: the name is then another file's.
    struct stat mine {};
    if (::fstat(file.get(), &mine) != 0 || mine.st_nlink == 0) return {ErrorCode::FileInUse, QString()};
    m_file = file.letGo();
    m_path = path;
    return {};
}

void FileLock::remove() {
    if (held()) ::unlink(QFile::encodeName(m_path).constData());
    release();
}

void FileLock::release() {
    if (held()) ::close(std::exchange(m_file, -1));
}

}  // namespace sys
