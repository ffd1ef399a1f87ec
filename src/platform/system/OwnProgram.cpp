// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OwnProgram.h"

#include <sys/auxv.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace sys {

namespace {

/// The kernel reports the address of a program's loader; the loader run as the program has none.
bool startedByLoader() {
    return ::getauxval(AT_BASE) == 0;
}

}  // namespace

QString programFile() {
    if (!startedByLoader()) return QCoreApplication::applicationFilePath();
    static const QString named = QFileInfo(QCoreApplication::arguments().value(0)).absoluteFilePath();
    return named;
}

QString applicationFolder() {
    return QFileInfo(programFile()).path();
}

QStringList commandOf(const QString& program) {
    return commandOf(program, startedByLoader(), QCoreApplication::applicationFilePath());
}

QStringList commandOf(const QString& program, bool byLoader, const QString& own) {
    return byLoader ? QStringList{own, program} : QStringList{program};
}

}  // namespace sys
