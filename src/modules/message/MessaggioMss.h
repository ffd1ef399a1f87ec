#pragma once

#include <optional>
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

/// Writes the message over the file at `percorso`. Unguarded; a failure midway leaves the part that was
/// written.
void ScriviMessaggio(const QString& percorso, const MessaggioMss& messaggio);

/// One row of the attachment block.
struct AllegatoMss {
    QString percorso;  ///< without blanks at the ends
    /// What stands behind the last slash or backslash; of a missing file with the row's blanks.
    QString nome;
    bool presente = false;
};

/// The reader of the editor and of the send set-up. The steps are called once each in the order in which they
/// stand, the attachments until there is no more. It passes over every failure: a line that cannot be read
/// counts as the one before (as empty, if it is the first), a file that cannot be opened as one without
/// lines, and a file that ends early ends the attachments and the body with what there was.
class LettoreMss {
  public:
    explicit LettoreMss(const QString& percorso);

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

/// The number of a priority for the delivery: 1 for "HI", 5 for "LW", 3 for anything else.
int NumeroPriorita(const QString& priorita);

/// What the user is told of an attachment that is not there.
QString AvvisoAllegatoMancante(const QString& nome);

/// The reader of the preview: the body alone, wherever it begins. Unguarded: fails when the file cannot be
/// opened or ends before the body does.
QString LeggiCorpoMss(const QString& percorso);
