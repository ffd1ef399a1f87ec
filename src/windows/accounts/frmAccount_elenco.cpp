// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/accounts/frmAccount_elenco.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include "platform/text/Words.h"
#include "platform/ui/ItemViewAccess.h"

namespace {

/// Rows of one height, no wider than the list: what is cut can be read in the tool tip.
class Righe : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& aspetto, const QModelIndex& indice) const override {
        return {0, qMax(24, QStyledItemDelegate::sizeHint(aspetto, indice).height())};
    }
    bool helpEvent(QHelpEvent* richiesta, QAbstractItemView* elenco, const QStyleOptionViewItem&,
                   const QModelIndex& indice) override {
        // Escaped: an account's name is never taken for markup.
        const QString testo = indice.data().toString().toHtmlEscaped();
        QToolTip::showText(richiesta->globalPos(), "<span>" + testo + "</span>", elenco->viewport());
        return true;
    }
};

}  // namespace

ElencoAccount::ElencoAccount(QWidget* parent) : QListWidget(parent) {
    ui::installItemViewAccess<ElencoAccount, QAccessible::List>();
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setItemDelegate(new Righe(this));
}

int ElencoAccount::ListIndex() const {
    const QModelIndexList scelte = selectionModel()->selectedIndexes();
    return scelte.isEmpty() ? -1 : scelte.first().row();
}

void ElencoAccount::setListIndex(int posizione) {
    const QSignalBlocker silenzio(this);
    clearSelection();
    setCurrentRow(posizione);
}

void ElencoAccount::RemoveItem(int posizione) {
    const QSignalBlocker silenzio(this);
    delete takeItem(posizione);
    clearSelection();
    setCurrentIndex({});
}

std::vector<ui::ItemAction> ElencoAccount::itemActions(const QModelIndex& indice) {
    const auto scelta = [this, posizione = indice.row()] {
        setFocus(Qt::OtherFocusReason);
        if (posizione == ListIndex())
            Q_EMIT Click();
        else
            setCurrentRow(posizione);
    };
    const auto menu = [this, scelta, posizione = indice.row()] {
        scelta();
        Q_EMIT MenuRichiesto(viewport()->mapToGlobal(visualItemRect(item(posizione)).bottomLeft()));
    };
    return {{QAccessibleActionInterface::pressAction(), scelta},
            {QAccessibleActionInterface::showMenuAction(), menu}};
}

void ElencoAccount::selectionChanged(const QItemSelection& scelte, const QItemSelection& lasciate) {
    QListWidget::selectionChanged(scelte, lasciate);
    Q_EMIT Click();
}

QItemSelectionModel::SelectionFlags ElencoAccount::selectionCommand(const QModelIndex& indice,
                                                                    const QEvent* evento) const {
    if (!indice.isValid()) return QItemSelectionModel::NoUpdate;
    const auto comando = QListWidget::selectionCommand(indice, evento);
    return comando & QItemSelectionModel::Select ? comando : QItemSelectionModel::NoUpdate;
}

void ElencoAccount::mousePressEvent(QMouseEvent* pressione) {
    if (pressione->button() == Qt::RightButton) {
        Q_EMIT MenuRichiesto(pressione->globalPosition().toPoint());
        return;
    }
    const int prima = ListIndex();
    QListWidget::mousePressEvent(pressione);
    const bool suVoce = itemAt(pressione->position().toPoint()) != nullptr;
    if (pressione->button() == Qt::LeftButton && suVoce && ListIndex() == prima) Q_EMIT Click();
}

// The mouse's menu was opened at the press.
void ElencoAccount::contextMenuEvent(QContextMenuEvent* richiesta) {
    if (richiesta->reason() != QContextMenuEvent::Keyboard) return;
    const QListWidgetItem* voce = item(ListIndex());
    const QPoint punto = voce ? visualItemRect(voce).bottomLeft() : QPoint();
    Q_EMIT MenuRichiesto(viewport()->mapToGlobal(punto));
}

void ElencoAccount::keyPressEvent(QKeyEvent* tasto) {
    // Code 2 is the code of a mouse button, which counts as a key here.
    constexpr int codiceDue = 2;
    if (tasto->key() == Qt::Key_Delete || tasto->key() == codiceDue)
        Q_EMIT EliminaPremuto();
    else
        QListWidget::keyPressEvent(tasto);
}

void ElencoAccount::focusInEvent(QFocusEvent* fuoco) {
    QListWidget::focusInEvent(fuoco);
    // Qt makes the first entry current, and the first arrow key would step over it.
    if (ListIndex() < 0) selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
}

void ElencoAccount::paintEvent(QPaintEvent* disegno) {
    QListWidget::paintEvent(disegno);
    QPainter pennello(viewport());
    if (hasFocus() && ListIndex() < 0) {
        // Without a chosen entry the list itself shows the keyboard focus.
        QStyleOptionFocusRect bordo;
        bordo.initFrom(this);
        bordo.rect = viewport()->rect();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &bordo, &pennello, this);
    }
    if (count() > 0) return;
    pennello.setPen(palette().color(QPalette::PlaceholderText));
    pennello.drawText(viewport()->rect().adjusted(12, 0, -12, 0), Qt::AlignCenter | Qt::TextWordWrap,
                      Words::tr("Nessun account: compilare e premere Nuovo Account"));
}
