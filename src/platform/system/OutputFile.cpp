// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <QFileInfo>

#include "platform/system/FileModes.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Words.h"

namespace sys {

namespace {

constexpr mode_t ownerOnly = 0600;

Status refused(const QString& path, const QString& why) {
    return Status(ErrorCode::PathAccess, why).about(path.toStdU16String());
}

Status noAccess(const QString& path) {
    return refused(path, Words::tr("Errore di accesso al percorso/file"));
}

/// Links of the user and of the administrator are trusted.
bool isTrustedLink(const struct stat& link) {
    return link.st_uid == ::geteuid() || link.st_uid == 0;
}

bool hasSecondName(int file) {
    struct stat found {};
    return ::fstat(file, &found) == 0 && S_ISREG(found.st_mode) && found.st_nlink > 1;
}

/// Why an open file may not be written; empty where it may.
QString objection(int file, FileKind kind) {
    if (kind == FileKind::Document) return {};
    struct stat found {};
    if (::fstat(file, &found) != 0 || !S_ISREG(found.st_mode)) return Words::tr("Non è un file");
    if (found.st_nlink != 1) return Words::tr("Il percorso è un collegamento");
    if (kind == FileKind::Own) return {};
    if (found.st_uid != ::geteuid()) return Words::tr("Il file appartiene a un altro utente");
    if ((found.st_mode & 0777) != ownerOnly && keepsModes(file) && ::fchmod(file, ownerOnly) != 0)
        return Words::tr("Il file può essere letto da altri utenti");
    return {};
}

/// O_NONBLOCK: a pipe without a reader must not block. Not emptied: it is not known yet to be the right one.
int openAt(const QByteArray& path, WriteMode mode, FileKind kind, int exclusively = 0) {
    const int appending = mode == WriteMode::Append ? O_APPEND : 0;
    const int links = kind == FileKind::Document ? 0 : O_NOFOLLOW;
    return ::open(path.constData(),
                  O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | appending | links | exclusively,
                  kind == FileKind::Document ? 0666 : ownerOnly);
}

/// The open file, or -1 with errno set. A link's target, or a file with a second name, is never written:
/// where a new file is wanted anyway, only the name is removed and the file made in its place.
int openWithoutLinks(const QByteArray& path, WriteMode mode, FileKind kind) {
    int file = openAt(path, mode, kind);
    if (kind == FileKind::Document || mode == WriteMode::Append) return file;
    const bool link = file < 0 ? errno == ELOOP : hasSecondName(file);
    if (!link || ::unlink(path.constData()) != 0) return file;
    if (file >= 0) ::close(file);
    return openAt(path, mode, kind, O_EXCL);
}

}  // namespace

bool mayFollow(const QString& path) {
    struct stat found {};
    if (::lstat(QFile::encodeName(path).constData(), &found) != 0) return errno == ENOENT;
    return !S_ISLNK(found.st_mode) || isTrustedLink(found);
}

bool folderIsSafe(const QString& path) {
    const QString folder = QFileInfo(path).path();
    return mayFollow(folder) && QFileInfo(folder).isDir();
}

bool belongsToAnother(const QString& path) {
    struct stat found {};
    return ::stat(QFile::encodeName(path).constData(), &found) == 0 && found.st_uid != ::geteuid();
}

FileKind kindByFolder(const QString& path) {
    const QString data = QFileInfo(programFolder() + QStringLiteral("data")).canonicalFilePath();
    const QString folder = QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath();
    const bool inside = !data.isEmpty() && (folder + u'/').startsWith(data + u'/');
    return inside ? FileKind::Own : FileKind::Document;
}

Status openForWriting(QFile& file, const QString& path, WriteMode mode, FileKind kind) {
    if (path.isEmpty()) return noAccess(path);
    if (kind == FileKind::Document ? !mayFollow(path) : !folderIsSafe(path))
        return refused(path, Words::tr("Il percorso è un collegamento di un altro utente"));
    const int opened = openWithoutLinks(QFile::encodeName(path), mode, kind);
    if (opened < 0) {
        return errno == ELOOP ? refused(path, Words::tr("Il percorso è un collegamento")) : noAccess(path);
    }
    const QString why = objection(opened, kind);
    const auto handling = mode == WriteMode::Append ? QIODevice::Append : QIODevice::WriteOnly;
    if (why.isEmpty() && file.open(opened, handling, QFileDevice::AutoCloseHandle)) return {};
    ::close(opened);
    return why.isEmpty() ? noAccess(path) : refused(path, why);
}

}  // namespace sys
