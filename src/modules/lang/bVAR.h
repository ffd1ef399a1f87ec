// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Texts that the language file fills once at the start. They have no defaults: without a language they are
/// empty, and their users take the empty text. Some have no user; they are there so that the
/// file's line has a target.
namespace bVAR {

inline QString Attenzione;
inline QString Lingua;
inline QString ChangeLang01;
inline QString ImpossibileContinuare;
inline QString accNomeVisual;
inline QString accEmailCorretta;
inline QString accServerSMTP;
inline QString accPort;
inline QString accAutenticazione;
inline QString goSecondi;
inline QString AddDestinatario;
inline QString goApriEmail;
inline QString goEmailDiOutlook;
inline QString AzzeraMailing;
inline QString FileAssistenza;
inline QString DestInserisciEmail;
inline QString xxxCAP;
inline QString DestAggiungiDestinatario;
inline QString DestInserireEmailCorretta;
inline QString MailingSalvata;
inline QString MailingSalva;
inline QString MailingImporta;
inline QString MailingOpen;
inline QString xxxRagioneSociale;
inline QString xxxNome;
inline QString xxxPIva;
inline QString xxxIndirizzo;
inline QString xxxLocalita;
inline QString xxxProvincia;
inline QString xxxTelefono;
inline QString xxxFax;
inline QString xxxCampo1;
inline QString xxxCampo2;
inline QString xxxCampo3;
inline QString xxxCampo4;
inline QString xxxCampo5;
inline QString xxxCampo6;
inline QString xxxCampo7;
inline QString xxxCampo8;
inline QString xxxCampo9;
inline QString varModDestinatario;
inline QString varTitlePropBody;
inline QString varAddDestinatario;

}  // namespace bVAR
