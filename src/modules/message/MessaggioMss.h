// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include "platform/text/TextFile.h"

/// Message files (.mss): subject, priority, attachment paths and HTML body as lines between markers.
/// docs/formats/mss.md shows the layout.

/// A message as it is written.
struct MessaggioMss {
    QString Oggetto;
    QString Priorita;  ///< "HI", "NR" or "LW"; anything else counts as normal
    QStringList Allegati;
    QString CorpoHTML;
};

/// Overwrites the file at `percorso` with the message and returns the bytes written. Unguarded; a failure
/// midway leaves the part that was written.
QByteArray ScriviMessaggio(const QString& percorso, const MessaggioMss& messaggio);

/// A message file, read once: what is checked and what is used are the same bytes, also
/// where another process changes the file meanwhile.
struct FileMss {
    QString percorso;
    QByteArray byte;
    bool intero = false;  ///< `byte` is all of it: it could be read to its end and is not too long for that
    Status aperto;        ///< why the file could not be opened
};

/// Ignores every failure. At most 256 MB are read.
FileMss LeggiFileMss(const QString& percorso);

/// One row of the attachment block.
struct AllegatoMss {
    QString percorso;  ///< without blanks at the ends
    /// What follows the last slash or backslash; of a missing file with the row's blanks.
    QString nome;
    bool presente = false;
};

/// The reader of the editor and of the send set-up. Each step is called once, in the order of their
/// declaration; the attachments until none is left. It ignores every failure: a line that cannot be read
/// counts as the one before (as empty, if it is the first), a file that cannot be opened as one without
/// lines, and a file that ends early ends the attachments and the body with what there was.
class LettoreMss {
  public:
    explicit LettoreMss(const FileMss& file);
    explicit LettoreMss(const QString& percorso) : LettoreMss(LeggiFileMss(percorso)) {}

    QString oggetto();
    QString priorita();
    std::optional<AllegatoMss> allegato();
    QString corpo();

  private:
    bool leggiRiga();

    text::LineReader m_file;
    QString m_riga;
    bool m_inAllegati = false;
};

/// What a message file contains, read at once by LettoreMss.
struct MessaggioLetto {
    QString oggetto;
    QString priorita;
    QList<AllegatoMss> allegati;
    QString corpo;

    /// The paths of the attachments, of all and of those that are there.
    QStringList nominati() const;
    QStringList presenti() const;
};
MessaggioLetto LeggiMss(const FileMss& file);

/// The number of a priority for the delivery: 1 for "HI", 5 for "LW", 3 for anything else.
int NumeroPriorita(const QString& priorita);

/// The text about an attachment that is missing.
QString AvvisoAllegatoMancante(const QString& nome);

/// The reader of the preview: the body alone, wherever it begins. Unguarded: fails when the file cannot be
/// opened or ends before the body does.
QString LeggiCorpoMss(const FileMss& file);
inline QString LeggiCorpoMss(const QString& percorso) {
    return LeggiCorpoMss(LeggiFileMss(percorso));
}
