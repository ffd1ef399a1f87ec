// SPDX-License-Identifier: GPL-3.0-or-later
// A message file with any bytes, read by the editor, the send set-up and the preview.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <QFile>
#include <QTemporaryDir>

#include "modules/core/Fallimento.h"
#include "modules/message/MessaggioMss.h"
#include "support/MemoryFolder.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const QTemporaryDir folder(memoryFolderPattern());
    const QString path = folder.filePath(QStringLiteral("m.mss"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) std::abort();
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    const auto lines = std::count(data, data + size, '\r') + 1;

    LettoreMss reader(path);
    if (reader.oggetto().contains(u'\r')) std::abort();
    NumeroPriorita(reader.priorita());
    std::ptrdiff_t attachments = 0;
    while (reader.allegato())
        ++attachments;
    const QString body = reader.corpo();
    if (!body.isEmpty() && !body.endsWith(QLatin1String("\r\n"))) std::abort();
    if (attachments + body.count(u'\r') > lines) std::abort();

    Prosegui prosegui;
    QString preview;
    if (prosegui([&] { preview = LeggiCorpoMss(path); }) && preview.count(u'\r') > lines) std::abort();
    return 0;
}
