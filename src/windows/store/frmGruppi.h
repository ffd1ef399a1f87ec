// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>
#include <QWidget>

#include "platform/ui/GroupTree.h"
#include "windows/store/Principale.h"

namespace ado {
class Recordset;
}

/// The group window, docked in the pane "dckGruppi": one tree over the table of groups. The tree drives the
/// grid, never the reverse.
///
/// A level of the tree is loaded when its parent is clicked or dropped upon, and never again; nothing may be
/// added under a node whose level was not loaded.
class frmGruppi : public QWidget {
    Q_OBJECT

  public:
    explicit frmGruppi(const Principale& finestra, QWidget* parent = nullptr);

    /// Rebuilds the tree from the database. When the database cannot be used the user is asked for another
    /// one, until the tree is there; a refusal, or a file that is no recipient database, ends the program.
    void CaricaGruppiINI();
    /// What a click on the tree does: loads the children of the selected node and fills the grid with the
    /// current one. Does nothing more from the point on where something fails, but for a sentence over the
    /// grid.
    void TREEClick();

    /// Loads the children of a node, unless it has some in the tree. Unguarded.
    void CaricaSottogruppi(const QString& chiave);
    /// Adds a node for the group as the last child of a node. Unguarded.
    void AggiungiNodo(const QString& chiavePadre, const QString& id, const QString& nome);
    /// Clicks the last of these nodes, each a child of the one before, from the root on; where a level is not
    /// as it was, the last one that is there. Unguarded.
    void Apri(const QStringList& chiavi);
    /// Name of the pop-up menu whose commands keys and bar buttons start at this moment; empty for none, also
    /// where the current node is not the one that the tree shows as selected.
    QString MenuOra() const;
    /// Forgets the current and the clicked node: another database took the place of theirs.
    void DimenticaNodo();
    /// Loads the level of a node again if the last click on it could not. Unguarded.
    void CompletaLivello(const QString& chiave);

    const Principale principale;
    ui::GroupTree* const TREE;

  private:
    bool CaricaPrimoLivello();
    void ChiediAltroDatabase();
    QString MenuDelNodo() const;
    void CaricaLivello(ado::Recordset& rs, const QString& chiavePadre);

    // frmGruppi_eventi.cpp
    void CollegaEventi();
    void TREENodeClick(const ui::GroupNodeRef& nodo);
    void TREEMouseUp(Qt::MouseButton pulsante, const QPoint& punto);
    void TREEAfterLabelEdit(const QString& testo, bool* annulla);
    void TREEDragDrop(const ui::GroupNodeRef& nodo);
    void TREEOLEDragDrop(const ui::GroupNodeRef& nodo);
    void SpostaDestinatario(const QString& id, const ui::GroupNodeRef& nodo);
    bool SpostaGruppo(const QString& chiave, const ui::GroupNodeRef& nodo);

    // frmGruppi_taglia.cpp
    void CollegaTaglia();
    void Racconta(const QString& testo);
    void TagliaDestinatario();
    void TagliaGruppo();
    void Incolla();
    void DimenticaTaglio();

    /// What Ctrl+X marked.
    struct Taglio {
        bool gruppo;
        QString chiave;  ///< key of the group, or number of the recipient
    };

    QString chiaveNodo;          ///< key of the node last clicked: the group that a drag moves
    QString livelloMancato;      ///< key of the node whose level the last click failed to load
    QString chiaveDestinazione;  ///< key of the node under a group drop
    std::optional<Taglio> tagliato;
};
