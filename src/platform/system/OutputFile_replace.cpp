// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <cerrno>
#include <cstdlib>
#include <QFileInfo>
#include <QScopeGuard>

#include "platform/system/OutputFile.h"
#include "platform/system/WriteAll.h"
#include "platform/text/Words.h"

namespace sys {

namespace {

constexpr mode_t allModes = 07777;

enum class Beside { Done, Failed, Impossible };

bool hasAccessList(int file) {
    return ::fgetxattr(file, "system.posix_acl_access", nullptr, 0) > 0;
}

/// The name of the open file itself, where another file can take it without a difference to anybody: an
/// ordinary file of the user's with one name. Empty otherwise.
QByteArray replaceableName(int file, const struct stat& found, const QString& path) {
    if (!S_ISREG(found.st_mode) || found.st_nlink != 1 || found.st_uid != ::geteuid() || hasAccessList(file))
        return {};
    QByteArray name = QFile::encodeName(QFileInfo(path).canonicalFilePath());
    struct stat named {};
    const bool same = ::lstat(name.constData(), &named) == 0 && named.st_ino == found.st_ino &&
                      named.st_dev == found.st_dev;
    return same ? name : QByteArray();
}

/// Group and mode of the file that is replaced.
bool takesOver(int other, const struct stat& found) {
    struct stat made {};
    if (::fstat(other, &made) != 0) return false;
    if (made.st_gid != found.st_gid && ::fchown(other, made.st_uid, found.st_gid) != 0) return false;
    const mode_t mode = found.st_mode & allModes;
    return (made.st_mode & allModes) == mode || ::fchmod(other, mode) == 0;
}

bool noRoom() {
    return errno == ENOSPC || errno == EDQUOT || errno == EIO;
}

Beside replaceByAnother(int file, const QString& path, bool synced, const QByteArray& bytes) {
    struct stat found {};
    if (::fstat(file, &found) != 0) return Beside::Impossible;
    const QByteArray name = replaceableName(file, found, path);
    if (name.isEmpty()) return Beside::Impossible;
    QByteArray aside = name + ".XXXXXX";
    const int other = ::mkostemp(aside.data(), O_CLOEXEC);
    if (other < 0) return noRoom() ? Beside::Failed : Beside::Impossible;
    auto removed = qScopeGuard([&] { ::unlink(aside.constData()); });
    const auto closed = qScopeGuard([other] { ::close(other); });
    if (!takesOver(other, found)) return Beside::Impossible;
    if (!writeAll(other, bytes) || (synced && ::fsync(other) != 0) ||
        ::rename(aside.constData(), name.constData()) != 0)
        return Beside::Failed;
    removed.dismiss();
    return Beside::Done;
}

bool writeInPlace(int file, bool synced, const QByteArray& bytes) {
    const bool emptied = ::ftruncate(file, 0) == 0 || errno == EINVAL;  // a device has no length
    return emptied && writeAll(file, bytes) && (!synced || ::fsync(file) == 0 || errno == EINVAL);
}

}  // namespace

Status replaceContent(QFile& file, const QString& path, FileKind kind, const QByteArray& bytes) {
    const bool synced = kind != FileKind::Own;
    const Beside beside = replaceByAnother(file.handle(), path, synced, bytes);
    const bool written = beside == Beside::Done ||
                         (beside == Beside::Impossible && writeInPlace(file.handle(), synced, bytes));
    file.close();
    if (written) return {};
    return Status(ErrorCode::DeviceIo, Words::tr("Errore di I/O del dispositivo"))
        .about(path.toStdU16String());
}

}  // namespace sys
