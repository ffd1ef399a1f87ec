// SPDX-License-Identifier: GPL-3.0-or-later
// vestrola-apri [FILE]: what a double click on a message file starts. Leaves the file's path for the next
// start and becomes the program, which takes no arguments. Without FILE it starts the program alone.
#include <unistd.h>

#include <cstdio>
#include <QCoreApplication>
#include <QFile>
#include <vector>

#include "modules/core/FileRiavvio.h"
#include "platform/system/OwnProgram.h"
#include "platform/system/ProgramFolder.h"

namespace {

/// In the octets of the file system, which need not be text. The name stays as it was given: a link is the
/// user's way to the file.
QByteArray absolute(const QByteArray& path) {
    if (path.startsWith('/')) return path;
    std::vector<char> folder(65536);
    return ::getcwd(folder.data(), folder.size()) == nullptr ? path : QByteArray(folder.data()) + '/' + path;
}

/// Comes back only where it fails.
void become(const QStringList& command) {
    QByteArrayList octets;
    for (const QString& part : command)
        octets << QFile::encodeName(part);
    std::vector<char*> arguments;
    for (QByteArray& part : octets)
        arguments.push_back(part.data());
    arguments.push_back(nullptr);
    ::execv(arguments.front(), arguments.data());
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc > 2) {
        std::fprintf(stderr, "uso: vestrola-apri [FILE.mss]\n");
        return 2;
    }
    sys::programFolder();  // made, where the program has never been started
    if (argc == 2 && !fileRiavvio::LasciaMessaggio(absolute(argv[1])).ok())
        std::fprintf(stderr, "vestrola-apri: %s non sarà aperto\n", argv[1]);
    const QString program = sys::applicationFolder() + QStringLiteral("/vestrola");
    become(sys::commandOf(program));
    std::perror(qPrintable(program));
    return 1;
}
