// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/ProvaServer.h"

#include <utility>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "modules/send/Consegna.h"
#include "modules/send/Porta.h"
#include "platform/mail/DomainName.h"
#include "platform/system/Keyring.h"
#include "platform/text/Words.h"

namespace {

constexpr int attesaPasso = 15000;

mail::SmtpTimes tempi() {
    mail::SmtpTimes tempi;
    tempi.stall = attesaPasso;
    return tempi;
}

mail::Route percorsoServer(const Account& account, const QString& password) {
    mail::Route percorso;
    percorso.host = mail::connectableHost(account.txtServerSMTP);
    Prosegui prosegui;
    percorso.port = 0;
    prosegui([&] { percorso.port = NumeroPorta(account.txtServerPORT); });
    prosegui([&] { percorso.localPort = NumeroPorta(account.txtOutPort); });
    percorso.greetWithHelo = SalutaConHelo(account);
    percorso.certificateFolder = cartellaCertificati();
    percorso.tlsListFile = fileServerConTls();
    percorso.clearListFile = fileServerSenzaTls();
    percorso.login = ChiedeAccesso(account);
    if (percorso.login) {
        percorso.user = account.txtUsername;
        percorso.password = password;
        percorso.bearer = password == oauth::passwordWord;
    }
    return percorso;
}

}  // namespace

ProvaServer::ProvaServer(int attesaMassima) : sessione(registro) {
    limite.setSingleShot(true);
    limite.setInterval(attesaMassima);
    dopo.setSingleShot(true);
    QObject::connect(&sessione, &mail::SmtpSession::finished, &sessione,
                     [this](const mail::DeliveryOutcome& esito) {
                         esitoSubito = esito;
                         dopo.start(0);
                     });
    QObject::connect(&dopo, &QTimer::timeout, &dopo, [this] { Consegna(esitoSubito); });
    QObject::connect(&limite, &QTimer::timeout, &limite, [this] {
        sessione.abandon();
        gettoni.cancel();
        Consegna({false, 0, Words::tr("Tempo scaduto: il server non risponde."), false});
    });
}

void ProvaServer::Avvia(const Account& account, const QString& password, Fatto quando) {
    Annulla();
    fatto = std::move(quando);
    percorso = percorsoServer(account, password);
    limite.start();
    const auto rinuncia = [this](const QString& perche, bool diAccesso) {
        esitoSubito = {false, 0, perche, diAccesso};
        dopo.start(0);
    };
    if (percorso.host.isEmpty()) {
        rinuncia(account.txtServerSMTP.trimmed().isEmpty() ? Words::tr("Manca il nome del server.")
                                                           : Words::tr("Il nome del server non è valido."),
                 false);
    } else if (percorso.port == 0) {
        rinuncia(Words::tr("La porta del server non è valida."), false);
    } else if (percorso.login && sys::keyring::isMarker(password)) {
        percorso.login = false;
        rinuncia(Words::tr("Il portachiavi non ha dato la password di questo account."), true);
    } else if (percorso.bearer) {
        gettoni.setFolders(cartellaOAuth(), percorso.certificateFolder);
        gettoni.get(percorso.host, percorso.user, attesaPasso,
                    [this, rinuncia](const Result<oauth::Access>& accesso) {
                        if (!accesso.ok()) {
                            rinuncia(accesso.status().text(), true);
                            return;
                        }
                        percorso.password = QString::fromLatin1(accesso.value().token);
                        Collega();
                    });
    } else {
        Collega();
    }
}

void ProvaServer::Collega() {
    sessione.beginRun();
    sessione.inspect(percorso, tempi());
}

void ProvaServer::Annulla() {
    fatto = nullptr;
    limite.stop();
    dopo.stop();
    gettoni.cancel();
    sessione.abandon();
}

void ProvaServer::Consegna(const mail::DeliveryOutcome& esito) {
    limite.stop();
    dopo.stop();
    const Fatto quando = std::exchange(fatto, nullptr);
    if (quando) quando({esito, sessione.findings(), percorso.login || esito.ofLogin});
}
