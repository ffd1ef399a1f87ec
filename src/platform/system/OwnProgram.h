// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The running program's own file and its folder. From a disk mounted without execute rights a program
/// can be started as an argument of the dynamic loader; the system then reports the loader as the
/// program.
namespace sys {

/// The program's file, absolute.
QString programFile();

/// The folder of programFile(), without a final "/".
QString applicationFolder();

/// The command that starts `program`, a file in this program's folder: the file itself, or the loader and the
/// file where this program was started by the loader.
QStringList commandOf(const QString& program);

/// The same for a program that the loader has started, or not; `own` is what the system reports as the
/// program.
QStringList commandOf(const QString& program, bool byLoader, const QString& own);

}  // namespace sys
