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
    SMTP.HeloMode = mittente.cmbSaluto == QLatin1String("EHLO") ? 0 : 1;
    prosegui([&] { SMTP.OutPort = NumeroPorta(mittente.txtOutPort); });
    SMTP.InsideHosts = MxInterni();
    const QString dati = cartellaDati();
    SMTP.CertificateFolder = dati + QStringLiteral("certificati");
    SMTP.TlsListFile = dati + QStringLiteral("tls.txt");
    SMTP.ClearListFile = dati + QStringLiteral("senza-tls.txt");
    SMTP.DkimFolder = dati + QStringLiteral("dkim");
    SMTP.OAuthFolder = dati + QStringLiteral("oauth");
}

void ScegliStrada(mail::DeliveryControl& SMTP, const Account& mittente, const QString& password,
                  Prosegui& prosegui) {
    const auto usaSMTP = text::numberFromText(mittente.chkUsaSMTP);
    const bool diretta = usaSMTP.ok() && usaSMTP.value() == 0;
    SMTP.OpportunisticTls = diretta;
    SMTP.PublicServersOnly = diretta;
    if (diretta) {
        // Without a mail exchanger there is no host, and the delivery fails.
        prosegui([&] { MXQuery(DominioDi(SMTP.ToAddress)); });
        SMTP.ServerName = bestMX;
        SMTP.NoServerReason = TestoMotivo(motivoMX);
        SMTP.ServerPort = 25;
    } else {
        SMTP.ServerName = mittente.txtServerSMTP;
        prosegui([&] { SMTP.ServerPort = NumeroPorta(mittente.txtServerPORT); });
    }
    const auto autentica = text::numberFromText(mittente.chkAutentick);
    SMTP.UseAuth = !diretta && autentica.ok() && autentica.value() == 1;
    SMTP.UserName = SMTP.UseAuth ? mittente.txtUsername : QString();
    SMTP.UserPassword = SMTP.UseAuth ? password : QString();
}
