#include "store/percorsoDBase.h"

#include "core/bGlobal.h"
#include "core/bImpostazioni.h"
#include "core/Fallimento.h"
#include "platform/ado/ConnectionText.h"
#include "platform/text/TextFile.h"

namespace {

QString fileDelPercorso() {
    return cartellaDati() + QStringLiteral("pathDBase.imp");
}

void impostaPercorso(const QString& percorso) {
    percorsoDB = percorso;
    connDB = prefissoConnDB + percorsoDB;
}

}  // namespace

void CaricaPercorsoDBase() {
    Prosegui prosegui;
    text::LineReader file;
    QString intestazione;
    QString percorso;
    prosegui([&] { esigi(file.open(fileDelPercorso(), text::LineEnds::Any)); });
    prosegui([&] { esigi(file.readLine(intestazione)); });
    prosegui([&] { esigi(file.readLine(percorso)); });
    if (percorso == QLatin1String("XXX")) percorso = cartellaDati() + QStringLiteral("data.mdb");
    prefissoConnDB = ado::connectionPrefix;
    impostaPercorso(percorso);
}

void CambiaPercorsoDBase(const QString& percorso) {
    Prosegui prosegui;
    text::TextWriter file;
    prosegui([&] { esigi(file.open(fileDelPercorso(), text::WriteMode::Output)); });
    prosegui([&] { esigi(file.print(u"[Path dabatase Quintara]")); });
    prosegui([&] { esigi(file.print(percorso)); });
    prosegui([&] { esigi(file.close()); });
    impostaPercorso(percorso);
}
