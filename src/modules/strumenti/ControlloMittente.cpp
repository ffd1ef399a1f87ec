// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/ControlloMittente.h"

#include <QNetworkInterface>
#include <utility>

#include "modules/core/bImpostazioni.h"
#include "modules/send/Consegna.h"
#include "platform/mail/AddrSpec.h"
#include "platform/mail/DomainName.h"
#include "platform/mail/InsideAddress.h"
#include "platform/system/Clock.h"
#include "platform/text/Words.h"

namespace {

constexpr int domandeMassime = 1000;

QList<QHostAddress> indirizziPubblici() {
    QList<QHostAddress> pubblici;
    for (const QHostAddress& uno : QNetworkInterface::allAddresses())
        if (mail::isPublicAddress(uno)) pubblici.append(uno);
    return pubblici;
}

DominioMittente mittenteDi(const Account& account) {
    DominioMittente mittente;
    mittente.dominio = DominioDi(account);
    const auto indirizzo = mail::parseAddrSpec(account.txtEmail);
    if (indirizzo.ok()) mittente.indirizzo = indirizzo.value().address();
    mittente.diretto = StradaDiretta(account);
    QByteArray server = mail::asciiDomain(mail::connectableHost(account.txtServerSMTP)).toLower();
    if (server.endsWith('.')) server.chop(1);
    mittente.server = server;
    if (mittente.diretto) mittente.questoComputer = indirizziPubblici();
    mittente.chiave = mail::readDkimKey(cartellaDkim(), mittente.dominio);
    return mittente;
}

}  // namespace

QByteArray DominioDi(const Account& account) {
    const auto indirizzo = mail::parseAddrSpec(account.txtEmail);
    if (!indirizzo.ok() || !mail::isDomainName(indirizzo.value().domain)) return {};
    return indirizzo.value().domain.toLower();
}

ControlloMittente::ControlloMittente(Ascolto chiAscolta, int attesaDns) : ascolto(std::move(chiAscolta)) {
    limite.setSingleShot(true);
    limite.setInterval(attesaDns);
    QObject::connect(&limite, &QTimer::timeout, &limite, [this] { Scade(); });
}

void ControlloMittente::Avvia(const Account& account, const QString& password) {
    Annulla();
    righe.clear();
    voci.clear();
    risposte.clear();
    domande = 0;
    mittente = mittenteDi(account);
    if (mittente.dominio.isEmpty()) {
        righe = {
            {Words::tr("Indirizzo dell'account"),
             Semaforo::Rosso,
             Words::tr(
                 "L'indirizzo email dell'account non è valido: correggerlo nella finestra degli account."),
             {Mostrabile(account.txtEmail.toUtf8())}}};
        ascolto.finito();
        return;
    }
    AggiungiDominio(Words::tr("Posta in arrivo (MX)"), RigaMX);
    AggiungiDominio(Words::tr("Indirizzo del dominio (A)"), RigaIndirizzo);
    AggiungiDominio("SPF", RigaSpf);
    if (mittente.diretto) AggiungiDominio(Words::tr("Nome inverso di questo computer"), RigaNomeInverso);
    AggiungiDominio(Words::tr("Firma DKIM"), RigaDkim);
    AggiungiDominio("DMARC", RigaDmarc);
    const std::size_t primaDelServer = righe.size();
    if (!mittente.diretto)
        for (const RigaControllo& riga : RigheServerInAttesa())
            righe.push_back(riga);
    mancano = static_cast<int>(righe.size());
    resolver = std::make_unique<dns::Resolver>();
    limite.start();
    if (!mittente.diretto)
        prova.Avvia(account, password, [this, primaDelServer](const ServerProvato& provato) {
            const auto nuove = RigheServer(provato, sys::clock().now());
            for (std::size_t i = 0; i < nuove.size(); ++i)
                Scrivi(primaDelServer + i, nuove[i]);
        });
    for (std::size_t voce = 0; voce < voci.size(); ++voce)
        Prosegui(voce);
}

void ControlloMittente::Annulla() {
    resolver.reset();
    prova.Annulla();
    limite.stop();
    mancano = 0;
}

void ControlloMittente::AggiungiDominio(const QString& controllo, Valuta valuta) {
    voci.push_back({valuta});
    righe.push_back({controllo, Semaforo::Attesa, {}, {}});
}

/// Continues a line as far as the answers allow.
void ControlloMittente::Prosegui(std::size_t voce) {
    voci[voce].aspetta = true;
    const RigaODomanda passo = voci[voce].valuta(mittente, risposte);
    if (const auto* domanda = std::get_if<dns::Question>(&passo)) {
        Chiedi(voce, *domanda);
        return;
    }
    voci[voce].aspetta = false;
    Scrivi(voce, std::get<RigaControllo>(passo));
}

void ControlloMittente::Chiedi(std::size_t voce, const dns::Question& domanda) {
    if (++domande > domandeMassime) {
        Scade();
        return;
    }
    resolver->ask(domanda, [this, voce, domanda](const dns::Answer& risposta) {
        risposte.emplace(domanda, risposta);
        Prosegui(voce);
    });
}

void ControlloMittente::Scrivi(std::size_t riga, const RigaControllo& contenuto) {
    righe[riga] = contenuto;
    --mancano;
    ascolto.cambiata(static_cast<int>(riga));
    if (mancano == 0) ascolto.finito();
}

/// The DNS takes too long, or leads from one name to the next without an end.
void ControlloMittente::Scade() {
    resolver->cancel();
    for (std::size_t voce = 0; voce < voci.size(); ++voce) {
        if (!voci[voce].aspetta) continue;
        voci[voce].aspetta = false;
        Scrivi(voce, {righe[voce].controllo,
                      Semaforo::Giallo,
                      Words::tr("Il DNS è troppo lento o porta troppo lontano: riprovare più tardi."),
                      {}});
    }
}
