#pragma once

#include <QString>
#include <QStringList>

/// The running program's own file and what lies around it. From a disk that gives files no right to be
/// executed a program can be started by naming it to the dynamic loader; the system then takes the loader for
/// the program.
namespace sys {

/// The program's file, absolute.
QString programFile();

/// The folder of programFile(), without ending "/".
QString applicationFolder();

/// What starts `program`, a file of the folder of this one: the file itself, or the loader and the file where
/// this program was started by the loader.
QStringList commandOf(const QString& program);

/// The same for a program that the loader has started, or not; `own` is what the system takes for the
/// program.
QStringList commandOf(const QString& program, bool byLoader, const QString& own);

}  // namespace sys
