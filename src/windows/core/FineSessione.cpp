#include "core/FineSessione.h"

#include <QApplication>

#include "core/Evento.h"
#include "core/Finestre.h"
#include "core/Riavvio.h"
#include "platform/system/TerminationSignal.h"
#include "shell/frmMain.h"

void FineSessione() {
    if (!riavvio::FinestraMostrata()) TerminaProgramma(0);
    if (!accettaEventi()) TerminaProgramma();
    finestre::Main().close();
}

void SeguiFineSessione() {
    const auto fine = [] {
        try {
            FineSessione();
        } catch (const ProgrammaTerminato&) {
        }
    };
    sys::onTerminationSignal(fine);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, fine, Qt::DirectConnection);
}
