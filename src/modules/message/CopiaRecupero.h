// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <vector>

#include "platform/system/OwnFile.h"

/// Rescue copies: the message in the editor, in files of the folder "recuperati" of the data folder,
/// so that it survives however the program ends. docs/formats/recuperati.md shows the file.

/// A message in its rescue copy. Nothing is lost on the way to the file: neither characters outside
/// Windows-1252 nor a body that is being edited in the source view.
struct MessaggioRecuperato {
    QString titolo;  ///< of its file in the editor, as "offerta.mss"
    QString Oggetto;
    QString Priorita;  ///< "HI", "NR" or "LW"
    QStringList Allegati;
    QString CorpoHTML;               ///< of the design view
    std::optional<QString> Origine;  ///< of the source view, where that has not moved to the design view
    /// Where the document came from; see frmEditor. A copy that does not say so came from anywhere.
    bool estraneo = true;
    QStringList propri{};
    bool operator==(const MessaggioRecuperato&) const = default;
};

/// How many milliseconds after a change of a body of so many characters its copy is to be written.
/// `dallaPrima`: the milliseconds since the first change that the copy lacks. It is put off by each
/// change, but not for ever.
int AttesaCopia(qsizetype caratteri, qint64 dallaPrima);

/// The copy of one document. It is locked from the first write on, for as long as this object lives, so that
/// no other program offers it.
class CopiaRecupero {
  public:
    /// Replaces the copy. Unguarded; the previous one is kept where the writing fails.
    void Scrivi(const MessaggioRecuperato& messaggio);
    /// Removes the copy, if there is one.
    void Togli();
    bool Esiste() const { return blocco.held(); }

  private:
    friend class CopiaTrovata;

    QString percorso;
    sys::FileLock blocco;
};

/// A copy that an earlier run left, locked while it is handled.
class CopiaTrovata {
  public:
    /// Those that no living program has, the newest first. One that is damaged is set aside, and named in
    /// `danneggiate`. Ignores every failure.
    static std::vector<CopiaTrovata> Cerca(QStringList& danneggiate);

    const MessaggioRecuperato& Messaggio() const { return messaggio; }
    const QDateTime& Quando() const { return quando; }
    /// The user does not want it: it is kept under another name, with the four that were refused before it.
    void MettiDaParte();
    /// Makes it the copy of the document that takes the message over.
    CopiaRecupero Prendi() { return std::move(copia); }

  private:
    CopiaRecupero copia;
    MessaggioRecuperato messaggio;
    QDateTime quando;
};
