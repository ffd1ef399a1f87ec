// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "modules/core/Fallimento.h"
#include "modules/import/Inserimento.h"
#include "modules/store/Destinatario.h"
#include "windows/import/cartella.h"

class frmScelta;
namespace ui {
class ProgressCounter;
}

/// What an import of contacts needs of the windows.
struct ViciniContatti {
    std::function<frmScelta&()> Scelta;                 ///< the question for the group
    std::function<ui::ProgressCounter&()> stcProgress;  ///< the counter in the status bar
    cartella::NuovoNodo NuovoNodo;
    /// Shows in the status bar what is waited for; an empty text restores the previous one.
    std::function<void(const QString&)> MostraAttesa;
};

/// What the imports from the address book and from Outlook have in common: the question for the group, the
/// counter in the status bar, and errors that are ignored in every statement.
class ImportaContatti {
  public:
    explicit ImportaContatti(ViciniContatti intorno) : vicini(std::move(intorno)) {}

    /// Asks for the group. False when the user gave up, or wanted the current group and there is none.
    /// `origine`: where the contacts come from, as the user knows it.
    bool Comincia(const QString& origine);

    /// Sets the counter to 0 of `massimo`.
    void Conta(int massimo);
    void Avanza();
    /// Inserts a recipient into the group; one that is refused is skipped silently.
    void Inserisci(qint64 numero, const destinatario::Valori& valori);
    /// The last rows to disk, the counter back to 0.
    void Finisci();

  private:
    const ViciniContatti vicini;
    Prosegui prosegui;
    Inserimento inserimento;
    QString gruppo;
};
