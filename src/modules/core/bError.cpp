// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/bError.h"

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/system/Clock.h"
#include "platform/system/TextWriter.h"
#include "platform/text/DateText.h"

void ScriviInizioLog() {
    Prosegui prosegui;
    sys::TextWriter file;
    prosegui([&] {
        esigi(file.open(PercorsoApp() + QStringLiteral("Error.txt"), sys::WriteMode::Output,
                        sys::FileKind::Own));
    });
    prosegui([&] {
        esigi(file.print(QStringLiteral("Inizio applicazione: ") + text::dateTimeText(sys::clock().now())));
    });
    prosegui([&] { esigi(file.close()); });
}
