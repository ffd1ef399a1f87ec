// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ItemViewAccess.h"

#include <QTreeView>
#include <utility>

#include "platform/ui/ItemCellAccess.h"

namespace ui {

namespace {

/// Visits the rows below `parent` from top to bottom, those inside a closed item left out, until `found` says
/// so.
bool walk(const QTreeView& tree, const QModelIndex& parent,
          const std::function<bool(const QModelIndex&)>& found) {
    const QAbstractItemModel& model = *tree.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex item = model.index(row, 0, parent);
        if (found(item) || (tree.isExpanded(item) && walk(tree, item, found))) return true;
    }
    return false;
}

}  // namespace

ItemViewAccess::ItemViewAccess(QAbstractItemView* view, QAccessible::Role role, ItemActions actions)
    : QAccessibleWidget(view, role), m_actions(std::move(actions)) {}

ItemViewAccess::~ItemViewAccess() {
    for (const QAccessible::Id id : std::as_const(m_cells))
        QAccessible::deleteAccessibleInterface(id);
    for (const auto& heads : {m_columnHeads, m_rowHeads})
        for (const QAccessible::Id id : heads)
            QAccessible::deleteAccessibleInterface(id);
}

int ItemViewAccess::rowOf(const QModelIndex& item) const {
    const auto* tree = qobject_cast<QTreeView*>(&view());
    if (!tree) return item.row();
    int row = -1;
    const QModelIndex first = item.siblingAtColumn(0);
    const bool found = walk(*tree, {}, [&](const QModelIndex& other) {
        ++row;
        return other == first;
    });
    return found ? row : -1;
}

QModelIndex ItemViewAccess::itemAt(int row, int column) const {
    const auto* tree = qobject_cast<QTreeView*>(&view());
    if (!tree) return view().model()->index(row, column);
    QModelIndex item;
    walk(*tree, {}, [&](const QModelIndex& other) {
        item = other;
        return row-- == 0;
    });
    return row < 0 ? item.siblingAtColumn(column) : QModelIndex();
}

int ItemViewAccess::rowCount() const {
    const auto* tree = qobject_cast<QTreeView*>(&view());
    if (!tree) return view().model()->rowCount();
    int rows = 0;
    walk(*tree, {}, [&](const QModelIndex&) {
        ++rows;
        return false;
    });
    return rows;
}

int ItemViewAccess::columnCount() const {
    return view().model()->columnCount();
}

QAccessibleInterface* ItemViewAccess::cell(const QModelIndex& item) const {
    if (!item.isValid()) return nullptr;
    QAccessible::Id& id = m_cells[QPersistentModelIndex(item)];
    if (!id) id = QAccessible::registerAccessibleInterface(new ItemCellAccess(this, item));
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface* ItemViewAccess::head(Qt::Orientation orientation, int section) const {
    QAccessible::Id& id = (orientation == Qt::Horizontal ? m_columnHeads : m_rowHeads)[section];
    if (!id) id = QAccessible::registerAccessibleInterface(new ItemHeadAccess(this, orientation, section));
    return QAccessible::accessibleInterface(id);
}

void* ItemViewAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

int ItemViewAccess::childCount() const {
    return (rowCount() + leadingRows()) * (columnCount() + leadingColumns());
}

QAccessibleInterface* ItemViewAccess::child(int index) const {
    const int columns = columnCount() + leadingColumns();
    if (index < 0 || columns == 0) return nullptr;
    const int row = index / columns - leadingRows();
    const int column = index % columns - leadingColumns();
    if (row < 0) return head(Qt::Horizontal, column);
    return column < 0 ? head(Qt::Vertical, row) : cell(itemAt(row, column));
}

int ItemViewAccess::indexOfChild(const QAccessibleInterface* face) const {
    const int columns = columnCount() + leadingColumns();
    if (const auto* cellFace = dynamic_cast<const ItemCellAccess*>(face)) {
        const int row = rowOf(cellFace->item());
        return row < 0 ? -1 : (row + leadingRows()) * columns + cellFace->item().column() + leadingColumns();
    }
    const auto* headFace = dynamic_cast<const ItemHeadAccess*>(face);
    if (!headFace) return -1;
    return headFace->orientation() == Qt::Horizontal ? headFace->section() + leadingColumns()
                                                     : (headFace->section() + 1) * columns;
}

QAccessibleInterface* ItemViewAccess::childAt(int x, int y) const {
    return cell(view().indexAt(view().viewport()->mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* ItemViewAccess::focusChild() const {
    return view().hasFocus() ? cell(view().currentIndex()) : QAccessibleWidget::focusChild();
}

QAccessibleInterface* ItemViewAccess::cellAt(int row, int column) const {
    return row < 0 || column < 0 ? nullptr : cell(itemAt(row, column));
}

QString ItemViewAccess::columnDescription(int column) const {
    return view().model()->headerData(column, Qt::Horizontal).toString();
}

QString ItemViewAccess::rowDescription(int row) const {
    return view().model()->headerData(row, Qt::Vertical).toString();
}

QList<QAccessibleInterface*> ItemViewAccess::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const QModelIndex& item : view().selectionModel()->selectedIndexes())
        cells << cell(item);
    return cells;
}

QList<int> ItemViewAccess::selectedRows() const {
    QList<int> rows;
    for (const QModelIndex& item : view().selectionModel()->selectedRows())
        rows << rowOf(item);
    return rows;
}

bool ItemViewAccess::selectRow(int row) {
    const QModelIndex item = itemAt(row, 0);
    if (!item.isValid()) return false;
    view().selectionModel()->setCurrentIndex(item,
                                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return true;
}

void ItemViewAccess::modelChange(QAccessibleTableModelChangeEvent* event) {
    if (event->modelChangeType() == QAccessibleTableModelChangeEvent::DataChanged) {
        const bool one = event->firstRow() == event->lastRow() && event->firstColumn() == event->lastColumn();
        QAccessibleInterface* changed = one ? cellAt(event->firstRow(), event->firstColumn()) : nullptr;
        if (!changed || !changed->state().checkable) return;
        QAccessible::State what;
        what.checked = true;
        QAccessibleStateChangeEvent told(changed, what);
        QAccessible::updateAccessibility(&told);
        return;
    }
    for (auto entry = m_cells.begin(); entry != m_cells.end();) {
        if (entry.key().isValid()) {
            ++entry;
            continue;
        }
        QAccessible::deleteAccessibleInterface(entry.value());
        entry = m_cells.erase(entry);
    }
}

}  // namespace ui
