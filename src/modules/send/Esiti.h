// SPDX-License-Identifier: GPL-3.0-or-later
// The book of each recipient's outcome: where it is, whether it is kept, and what can be done with it.
#pragma once

#include <QList>
#include <QString>

#include "modules/send/MotivoEsito.h"
#include "platform/mail/OutcomeBook.h"
#include "platform/Status.h"

namespace esiti {

/// The folder "esiti" of the data folder, ending in "/".
QString Cartella();

/// Whether the next run keeps a book. So it does unless it was switched off.
bool Acceso();
/// Fails where the folder cannot be written.
Status Accendi(bool acceso);

/// A recipient of a run.
struct Riga {
    mail::OutcomeLine esito;
    MotivoEsito motivo = MotivoEsito::Nessuno;
    bool delDatabase = false;  ///< the row's database is the current one, and its number is known
};

struct Invio {
    QList<Riga> righe;
    qint64 rovinate = 0;      ///< lines that could not be read
    bool interrotto = false;  ///< the last line was cut off
};

/// Reads a run's file. Fails with a sentence for the user.
Result<Invio> Leggi(const QString& percorso);

/// Number of recipients, and how many of them have an address that does not exist.
struct Inesistenti {
    qsizetype destinatari = 0;
    QList<Riga> righe;
    /// More than half: it is rather the server, or the sender, than the addresses.
    bool troppi() const { return righe.size() * 2 > destinatari; }
};
Inesistenti CercaInesistenti(const QList<Riga>& righe);

/// What became of a change of the selection.
struct Cambiati {
    qint64 cambiati = 0;
    qint64 giaCosi = 0;     ///< were as wanted before
    qint64 nonTrovati = 0;  ///< no row with this number and address, or of another database
};
/// Selects or deselects the recipients of these lines in the current database, where number and address still
/// match, octet by octet. What was remembered or is awaited for them no longer counts: the user's choice is
/// newer. Unguarded; rows are changed in groups, and those before a failure stay changed.
Cambiati Seleziona(const QList<Riga>& righe, bool selezionati);

/// The lines as CSV (RFC 4180): UTF-8 with a byte order mark, a head, ";" between fields, as Italian
/// spreadsheets read it.
QByteArray Csv(const QList<Riga>& righe);
/// The same for the clipboard: tabs between fields, no mark.
QString Tabella(const QList<Riga>& righe);

/// A field that no spreadsheet takes for a formula: one that begins as formulas do gets an apostrophe before
/// it, which spreadsheets read as "this is text".
QString SenzaFormule(const QString& campo);

}  // namespace esiti
