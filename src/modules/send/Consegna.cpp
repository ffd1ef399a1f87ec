// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Consegna.h"

#include "modules/core/bImpostazioni.h"
#include "modules/send/bMXQuery.h"
#include "modules/send/MxInterni.h"
#include "modules/send/Porta.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/text/NumberText.h"

void ImpostaMittente(mail::DeliveryControl& SMTP, const Account& mittente, Prosegui& prosegui) {
    SMTP.FromAddress = mittente.txtEmail;
    SMTP.FromName = mittente.txtNomeVisual;
    SMTP.HeloMode = SalutaConHelo(mittente) ? 1 : 0;
    prosegui([&] { SMTP.OutPort = NumeroPorta(mittente.txtOutPort); });
    SMTP.InsideHosts = MxInterni();
    SMTP.CertificateFolder = cartellaCertificati();
    SMTP.TlsListFile = fileServerConTls();
    SMTP.ClearListFile = fileServerSenzaTls();
    SMTP.DkimFolder = cartellaDkim();
    SMTP.OAuthFolder = cartellaOAuth();
}

bool StradaDiretta(const Account& mittente) {
    const auto usaSMTP = text::numberFromText(mittente.chkUsaSMTP);
    return usaSMTP.ok() && usaSMTP.value() == 0;
}

bool SalutaConHelo(const Account& mittente) {
    return mittente.cmbSaluto != QLatin1String("EHLO");
}

bool ChiedeAccesso(const Account& mittente) {
    const auto autentica = text::numberFromText(mittente.chkAutentick);
    return autentica.ok() && autentica.value() == 1;
}

void UsaServerMX(mail::DeliveryControl& SMTP, const QString& server, const QString& motivo) {
    SMTP.OpportunisticTls = true;
    SMTP.PublicServersOnly = true;
    SMTP.ServerName = server;
    SMTP.NoServerReason = motivo;
    SMTP.ServerPort = 25;
    SMTP.UseAuth = false;
    SMTP.UserName = QString();
    SMTP.UserPassword = QString();
}

void UsaServerAccount(mail::DeliveryControl& SMTP, const Account& mittente, const QString& password,
                      Prosegui& prosegui) {
    SMTP.OpportunisticTls = false;
    SMTP.PublicServersOnly = false;
    SMTP.ServerName = mittente.txtServerSMTP;
    prosegui([&] { SMTP.ServerPort = NumeroPorta(mittente.txtServerPORT); });
    SMTP.UseAuth = ChiedeAccesso(mittente);
    SMTP.UserName = SMTP.UseAuth ? mittente.txtUsername : QString();
    SMTP.UserPassword = SMTP.UseAuth ? password : QString();
}

void ScegliStrada(mail::DeliveryControl& SMTP, const Account& mittente, const QString& password,
                  Prosegui& prosegui) {
    if (!StradaDiretta(mittente)) return UsaServerAccount(SMTP, mittente, password, prosegui);
    // Without a mail exchanger there is no host, and the delivery fails.
    prosegui([&] { MXQuery(DominioDi(SMTP.ToAddress)); });
    UsaServerMX(SMTP, bestMX, TestoMotivo(motivoMX));
}
