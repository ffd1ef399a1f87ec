#include "modules/core/bError.h"

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/system/Clock.h"
#include "platform/text/DateText.h"
#include "platform/text/TextFile.h"

void ScriviInizioLog() {
    Prosegui prosegui;
    text::TextWriter file;
    prosegui([&] { esigi(file.open(PercorsoApp() + QStringLiteral("Error.txt"), text::WriteMode::Output)); });
    prosegui([&] {
        esigi(file.print(QStringLiteral("Inizio applicazione: ") + text::dateTimeText(sys::clock().now())));
    });
    prosegui([&] { esigi(file.close()); });
}
