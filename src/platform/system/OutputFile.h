// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

#include "platform/Status.h"

/// Writing files: opened with care, and replaced as a whole. The program folder may be shared: other users
/// who can write there can put a link or their own file where the program is going to write.
namespace sys {

enum class WriteMode {
    Output,  ///< new content comes as a whole, by replaceContent(); until then the file keeps its own
    Append,  ///< keeps what is there and appends
};

/// The purpose of a file: decides who may read a new file, and which existing files are refused.
enum class FileKind {
    /// A document under a name that the user has chosen: created with his umask. A link is followed where it
    /// is his own or the administrator's.
    Document,
    /// A file of the program: created for its owner only (0600). Only a regular file with one name is
    /// written, whoever owns it. No link is followed, symbolic or hard: a new file replaces it, except when
    /// appending, which is refused.
    Own,
    /// A file of the program that contains secrets: as Own, but a file of another user is refused, and one
    /// that others may read is set to 0600 before anything is written. On a disk that keeps no modes
    /// (FileModes.h) only the owner is checked.
    Secret,
};

/// Opens the file, which is made where it is missing; `file` must be closed. A refused file is not changed.
/// PathAccess, with the reason, for what is refused and for what the user may not write; also for an Own or
/// Secret file whose folder is not safe.
Status openForWriting(QFile& file, const QString& path, WriteMode mode, FileKind kind);

/// Writes these bytes to the file that openForWriting() opened for Output, and closes it. They are written to
/// a new file beside it that takes its place (a Document or Secret after a sync), so that a full disk or a
/// loss of power leaves the old content. Written in place instead: what is no ordinary file of the user's
/// alone, with one name and no access list, and where no file can be made beside it. DeviceIo where it fails.
Status replaceContent(QFile& file, const QString& path, FileKind kind, const QByteArray& bytes);

/// Whether the file is there and belongs to another user, so that no Secret is written to it.
bool belongsToAnother(const QString& path);

/// Own for a file in the data folder or below it, Document elsewhere: for files that the user names.
FileKind kindByFolder(const QString& path);

/// Whether the name is no link, or one of the user's own or the administrator's.
bool mayFollow(const QString& path);

/// Whether the file's folder is a folder, and not reached by a link of anyone but the user and the
/// administrator.
bool folderIsSafe(const QString& path);

}  // namespace sys
