// SPDX-License-Identifier: GPL-3.0-or-later
// A rescue copy with any bytes. Where the first byte is 'S' the rest is the object, with a valid checksum;
// else the whole is the file.
#include <cstdint>
#include <cstdlib>
#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "modules/core/bImpostazioni.h"
#include "modules/message/CopiaRecupero.h"
#include "platform/system/ProgramFolder.h"
#include "support/MemoryFolder.h"

namespace {

void write(const QByteArray& bytes) {
    QFile file(cartellaDati() + QStringLiteral("recuperati/a.copia"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
}

QByteArray summed(const QByteArray& object) {
    return "VESTROLA-RECUPERO 1\n" + QCryptographicHash::hash(object, QCryptographicHash::Sha256).toHex() +
           '\n' + object;
}

/// What is read back of a message whose copy was written and left.
MessaggioRecuperato left(const MessaggioRecuperato& message) {
    {
        CopiaRecupero copy;
        copy.Scrivi(message);
    }
    QStringList damaged;
    std::vector<CopiaTrovata> found = CopiaTrovata::Cerca(damaged);
    if (found.size() != 1 || !damaged.isEmpty()) std::abort();
    MessaggioRecuperato back = found.front().Messaggio();
    found.front().Prendi().Togli();
    return back;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const QTemporaryDir folder(memoryFolderPattern());
    sys::setProgramFolder(folder.path());
    if (!QDir(folder.path()).mkpath(QStringLiteral("data/recuperati"))) std::abort();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    write(bytes.startsWith('S') ? summed(bytes.mid(1)) : bytes);

    QStringList damaged;
    std::vector<CopiaTrovata> found = CopiaTrovata::Cerca(damaged);
    if (static_cast<qsizetype>(found.size()) + damaged.size() != 1) std::abort();
    if (found.empty()) {
        if (!QFile::remove(damaged.front())) std::abort();
        return 0;
    }
    const MessaggioRecuperato message = found.front().Messaggio();
    found.front().Prendi().Togli();
    // Half of a surrogate pair cannot be written; what could be read once is read the same from then on.
    const MessaggioRecuperato again = left(message);
    if (left(again) != again) std::abort();
    return 0;
}
