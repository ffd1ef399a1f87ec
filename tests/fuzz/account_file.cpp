// SPDX-License-Identifier: GPL-3.0-or-later
// An account file with any bytes. What could be read is the same after it was written and read again.
#include <cstdint>
#include <cstdlib>
#include <QFile>
#include <QTemporaryDir>

#include "modules/accounts/AccountFile.h"
#include "modules/core/Fallimento.h"
#include "support/MemoryFolder.h"

namespace {

bool read(const QString& path, TabellaAccount& table) {
    Prosegui prosegui;
    return prosegui([&] {
        CaricaAccount(path, table, [&](const Account&, int number) {
            if (number < 0 || static_cast<size_t>(number) >= table.size()) std::abort();
        });
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const QTemporaryDir folder(memoryFolderPattern());
    const QString path = folder.filePath(QStringLiteral("Account.imp"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) std::abort();
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();

    TabellaAccount table;
    const bool whole = read(path, table);
    if (table.size() > 32768) std::abort();
    if (!whole || table.empty() || table.size() > 64) return 0;

    ModificaAccount(path, table, static_cast<int>(table.size()), 0, Account(table[0]));
    TabellaAccount again;
    if (!read(path, again) || again.size() != table.size()) std::abort();
    for (size_t i = 0; i < table.size(); ++i) {
        for (size_t field = 1; field < Account::numeroCampi; ++field) {
            if (again[i].*Account::campi[field] != table[i].*Account::campi[field]) std::abort();
        }
    }
    return 0;
}
