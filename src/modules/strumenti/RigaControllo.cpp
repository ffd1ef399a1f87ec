#include "modules/strumenti/RigaControllo.h"

#include "platform/mail/SmtpReply.h"

QString ParolaDi(Semaforo semaforo) {
    switch (semaforo) {
        case Semaforo::Verde:
            return QStringLiteral("In ordine");
        case Semaforo::Giallo:
            return QStringLiteral("Attenzione");
        case Semaforo::Rosso:
            return QStringLiteral("Da correggere");
        case Semaforo::Attesa:
            break;
    }
    return QStringLiteral("In corso…");
}

QString Mostrabile(const QByteArray& testo) {
    constexpr qsizetype massimo = 2000;
    const QString mostrato = mail::printable(testo.left(massimo));
    return testo.size() > massimo ? mostrato + u'…' : mostrato;
}
