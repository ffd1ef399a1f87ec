// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/RigaControllo.h"

#include "platform/mail/SmtpReply.h"
#include "platform/text/Words.h"

QString ParolaDi(Semaforo semaforo) {
    switch (semaforo) {
        case Semaforo::Verde:
            return Words::tr("In ordine");
        case Semaforo::Giallo:
            return Words::tr("Attenzione");
        case Semaforo::Rosso:
            return Words::tr("Da correggere");
        case Semaforo::Attesa:
            break;
    }
    return Words::tr("In corso…");
}

QString Mostrabile(const QByteArray& testo) {
    constexpr qsizetype massimo = 2000;
    const QString mostrato = mail::printable(testo.left(massimo));
    return testo.size() > massimo ? mostrato + u'…' : mostrato;
}
