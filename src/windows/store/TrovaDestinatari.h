// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <QObject>
#include <set>

#include "modules/store/AlberoCartelle.h"
#include "modules/store/CercaOvunque.h"
#include "platform/ui/SlicedWork.h"
#include "windows/store/Principale.h"

namespace ui {
class FindBar;
class GridSearch;
}  // namespace ui

/// The search of the bar that finds recipients: in the folder that the grid shows, or everywhere. As one
/// types, the first match of the folder becomes the current row and the counts are shown; searching past the
/// last match of the folder opens the next one that has some, by what a click on it does. Nothing is written.
class TrovaDestinatari : public QObject {
    Q_OBJECT

  public:
    /// Indexes of the places to look, as the bar lists them.
    enum Dove { InCartella, Ovunque };
    static QStringList Luoghi();

    TrovaDestinatari(const Principale& finestra, ui::FindBar& barra, QObject* parent);

    /// Opens the bar, or goes back to it; what it looks for is searched again.
    void Apri();

  private:
    /// The row to go to as soon as it is found.
    enum class Meta { Nessuna, Prima, Successiva, Precedente, PrimaDiCartella, UltimaDiCartella };

    void Cambiato();
    void Chiudi();
    void Vai(Meta nuova);
    void Avvicina();
    bool NonLetta() const;
    int RigaDella(Meta quale) const;
    bool AllaCartella(bool indietro);
    void Avanza();
    void Rinuncia(const QString& motivo);

    void Racconta();
    void MostraAvviso(const QString& frase);
    QString EsitoCartella() const;
    QString EsitoOvunque() const;
    bool Bloccata() const;

    const Principale principale;
    ui::FindBar& barra;
    ui::GridSearch& inGriglia;
    ui::SlicedWork lavoro;
    std::optional<CercaOvunque> ovunque;
    QString connessione;             ///< of the search everywhere
    AlberoCartelle albero;           ///< when the last search everywhere began
    std::set<std::int32_t> provate;  ///< the folders that were opened for the present step
    Meta meta = Meta::Nessuna;
    QString rinuncia;  ///< why nothing is looked for
    QString avviso;    ///< in the status bar: what is too long for the bar
    QString primaDellAvviso;
    int respinte = 0;  ///< parts in a row that another program kept from the database
};
