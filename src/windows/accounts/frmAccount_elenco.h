// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace ui {
struct ItemAction;
}

/// The list box of the account window. It has one position, or none as long as nothing was chosen; taking the
/// focus chooses nothing, and neither mouse nor keyboard takes a choice back.
class ElencoAccount : public QListWidget {
    Q_OBJECT

  public:
    explicit ElencoAccount(QWidget* parent = nullptr);

    /// From 0; -1 while no entry is chosen.
    int ListIndex() const;
    /// Chooses an entry, or none for -1, without raising Click.
    void setListIndex(int posizione);
    /// Takes the entry away and leaves none chosen, without raising Click.
    void RemoveItem(int posizione);
    /// What assistive programs can do with an entry: choose it, or choose it and ask for the menu.
    std::vector<ui::ItemAction> itemActions(const QModelIndex& indice);

  Q_SIGNALS:
    /// The user chose an entry, by mouse or keyboard, or pressed the one that was chosen already.
    void Click();
    /// The right button was pressed over the list, or its menu was asked for by a key.
    void MenuRichiesto(const QPoint& punto);
    /// One of the keys that delete.
    void EliminaPremuto();

  protected:
    void selectionChanged(const QItemSelection& scelte, const QItemSelection& lasciate) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& indice,
                                                         const QEvent* evento) const override;
    void mousePressEvent(QMouseEvent* pressione) override;
    void contextMenuEvent(QContextMenuEvent* richiesta) override;
    void keyPressEvent(QKeyEvent* tasto) override;
    void focusInEvent(QFocusEvent* fuoco) override;
    void paintEvent(QPaintEvent* disegno) override;
};
