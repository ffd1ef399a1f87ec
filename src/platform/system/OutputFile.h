#pragma once

#include <QFile>
#include <QString>

#include "platform/Status.h"

/// Opens files for writing. The program folder may be shared, and whoever else can write there can put a link
/// or a file of his own where the program is going to write.
namespace sys {

enum class WriteMode {
    Output,  ///< starts with an empty file
    Append,  ///< keeps what is there and appends
};

/// What a file is for: decides who may read it where it is made, and what is refused where it is there.
enum class FileKind {
    /// A document under a name that the user has chosen: made as his settings say (umask). A link is followed
    /// where it is his own or the administrator's.
    Document,
    /// A file of the program: made for its owner alone (0600). Only a plain file with one name is written,
    /// whoever owns it. No link is followed, be it symbolic or a second name of the file: in its place a new
    /// file is made, but when appending, which is refused.
    Own,
    /// A file of the program that holds secrets: as Own, but a file of somebody else is refused, and one that
    /// others may read is narrowed to 0600 before anything is written. On a disk that keeps no modes
    /// (FileModes.h) the owner alone counts.
    Secret,
};

/// Opens the file, which is made where it is missing; `file` must be closed. Nothing of a file that is
/// refused is changed. PathAccess, with the reason, for what is refused and for what the user may not write;
/// also for an Own or Secret file whose folder is not safe.
Status openForWriting(QFile& file, const QString& path, WriteMode mode, FileKind kind);

/// Whether the file is there and belongs to another user, so that no Secret is written to it.
bool belongsToAnother(const QString& path);

/// Own for a file in the data folder or below it, Document elsewhere: for files that the user names.
FileKind kindByFolder(const QString& path);

/// Whether what bears the name is no link, or one of the user's own or the administrator's.
bool mayFollow(const QString& path);

/// Whether the file's folder is a folder, and not reached by a link that belongs to somebody else than the
/// user and the administrator.
bool folderIsSafe(const QString& path);

}  // namespace sys
