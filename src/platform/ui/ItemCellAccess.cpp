// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ItemCellAccess.h"

#include <algorithm>
#include <QHeaderView>
#include <QTableView>
#include <QTreeView>

#include "platform/ui/ItemViewAccess.h"
#include "platform/ui/Reachable.h"

namespace ui {

namespace {

QRect onScreen(const QWidget& widget, const QRect& place) {
    return {widget.mapToGlobal(place.topLeft()), place.size()};
}

}  // namespace

QAccessibleInterface* ItemCellAccess::parent() const {
    return QAccessible::queryAccessibleInterface(&m_list->view());
}

QAccessibleInterface* ItemCellAccess::child(int index) const {
    QWidget* editor = m_list->view().indexWidget(m_item);
    return index == 0 && editor ? QAccessible::queryAccessibleInterface(editor) : nullptr;
}

int ItemCellAccess::childCount() const {
    return m_list->view().indexWidget(m_item) ? 1 : 0;
}

QAccessibleInterface* ItemCellAccess::childAt(int x, int y) const {
    return rect().contains(x, y) ? child(0) : nullptr;
}

QString ItemCellAccess::text(QAccessible::Text kind) const {
    switch (kind) {
        case QAccessible::Name: {
            const QString spoken = m_item.data(Qt::AccessibleTextRole).toString();
            return spoken.isEmpty() ? m_item.data(Qt::DisplayRole).toString() : spoken;
        }
        case QAccessible::Description:
            return m_item.data(Qt::AccessibleDescriptionRole).toString();
        case QAccessible::Value:
            return m_item.flags() & Qt::ItemIsEditable ? m_item.data(Qt::EditRole).toString() : QString();
        default:
            return {};
    }
}

QRect ItemCellAccess::rect() const {
    return onScreen(*m_list->view().viewport(), m_list->view().visualRect(m_item));
}

QAccessible::Role ItemCellAccess::role() const {
    switch (m_list->role()) {
        case QAccessible::Tree:
            return QAccessible::TreeItem;
        case QAccessible::List:
            return QAccessible::ListItem;
        default:
            return QAccessible::Cell;
    }
}

QAccessible::State ItemCellAccess::state() const {
    const QAbstractItemView& view = m_list->view();
    QAccessible::State state;
    const Qt::ItemFlags flags = m_item.flags();
    const QWidget& area = *view.viewport();
    state.invisible = !view.isVisible() || !onScreen(area, area.rect()).intersects(rect());
    state.disabled = !view.isEnabled() || !(flags & Qt::ItemIsEnabled);
    state.selected = isSelected();
    state.selectable = state.focusable = flags.testFlag(Qt::ItemIsSelectable);
    state.focused = view.hasFocus() && view.currentIndex() == m_item;
    state.active = view.currentIndex() == m_item;
    state.editable = flags.testFlag(Qt::ItemIsEditable);
    const QVariant box = m_item.data(Qt::CheckStateRole);
    state.checkable = flags.testFlag(Qt::ItemIsUserCheckable) && box.isValid();
    state.checked = state.checkable && box.toInt() == Qt::Checked;
    if (const auto* tree = qobject_cast<const QTreeView*>(&view)) {
        state.expandable = m_item.column() == 0 && m_item.model()->hasChildren(m_item);
        state.expanded = state.expandable && tree->isExpanded(m_item);
        state.collapsed = state.expandable && !state.expanded;
    }
    return state;
}

void* ItemCellAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool ItemCellAccess::isSelected() const {
    return m_list->view().selectionModel()->isSelected(m_item);
}

QList<QAccessibleInterface*> ItemCellAccess::columnHeaderCells() const {
    if (m_list->role() == QAccessible::List) return {};
    return {m_list->head(Qt::Horizontal, m_item.column())};
}

QList<QAccessibleInterface*> ItemCellAccess::rowHeaderCells() const {
    if (m_list->role() != QAccessible::Table) return {};
    return {m_list->head(Qt::Vertical, m_item.row())};
}

int ItemCellAccess::rowIndex() const {
    return m_list->rowOf(m_item);
}

QStringList ItemCellAccess::actionNames() const {
    QStringList names;
    for (const ItemAction& action : m_list->actions()(m_item))
        names << action.name;
    return names;
}

void ItemCellAccess::doAction(const QString& name) {
    QAbstractItemView& view = m_list->view();
    // A window that the action opens would keep the assistive program waiting for its answer.
    const auto later = [&view, name, actions = m_list->actions(), item = m_item] {
        if (!item.isValid() || !isReachable(view)) return;
        const std::vector<ItemAction> offered = actions(item);
        const auto action = std::find_if(offered.begin(), offered.end(),
                                         [&](const ItemAction& one) { return one.name == name; });
        if (action != offered.end()) action->run();
    };
    QMetaObject::invokeMethod(&view, later, Qt::QueuedConnection);
}

QAccessibleInterface* ItemHeadAccess::parent() const {
    return QAccessible::queryAccessibleInterface(&m_list->view());
}

QString ItemHeadAccess::text(QAccessible::Text kind) const {
    if (m_section < 0) return {};
    const QAbstractItemModel& model = *m_list->view().model();
    if (kind == QAccessible::Name) return model.headerData(m_section, m_orientation).toString();
    if (kind != QAccessible::Description) return {};
    return model.headerData(m_section, m_orientation, Qt::AccessibleDescriptionRole).toString();
}

QRect ItemHeadAccess::rect() const {
    const auto* table = qobject_cast<const QTableView*>(&m_list->view());
    if (!table || m_orientation == Qt::Vertical || m_section < 0) return {};
    const QHeaderView& heads = *table->horizontalHeader();
    return onScreen(*heads.viewport(), {heads.sectionViewportPosition(m_section), 0,
                                        heads.sectionSize(m_section), heads.height()});
}

QAccessible::Role ItemHeadAccess::role() const {
    return m_orientation == Qt::Horizontal ? QAccessible::ColumnHeader : QAccessible::RowHeader;
}

QAccessible::State ItemHeadAccess::state() const {
    QAccessible::State state;
    state.invisible = rect().isEmpty();
    return state;
}

}  // namespace ui
