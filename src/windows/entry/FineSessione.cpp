// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/FineSessione.h"

#include <QApplication>

#include "platform/system/TerminationSignal.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"
#include "windows/entry/Riavvio.h"
#include "windows/shell/frmMain.h"

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
