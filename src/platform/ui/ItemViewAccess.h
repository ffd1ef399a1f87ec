// SPDX-License-Identifier: GPL-3.0-or-later
// The accessibility of a table or a tree.
#pragma once

#include <functional>
#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QHash>
#include <vector>

namespace ui {

/// Something that a user can do with one item of a list.
struct ItemAction {
    QString name;  ///< as the accessibility interfaces name actions; one of theirs, or "Edit", "Expand",
                   ///< "Collapse"
    std::function<void()> run;
};

/// What can be done with an item now; empty for one that is only shown.
using ItemActions = std::function<std::vector<ItemAction>(const QModelIndex& item)>;

/// A table or a tree as assistive programs see it: the items that are not inside a closed one as cells of a
/// table, each with the actions that a user has for it, after one row of heads (none in a list; in a table
/// one column of them as well). The toolkit's own interface offers "Toggle" on each item, whatever it is.
///
/// Items are numbered as the toolkit's views number them in the events that they send.
class ItemViewAccess : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    /// `role` is Table, Tree or List. Owned by the toolkit, as every interface that a factory makes.
    ItemViewAccess(QAbstractItemView* view, QAccessible::Role role, ItemActions actions);
    ~ItemViewAccess() override;

    QAbstractItemView& view() const { return *static_cast<QAbstractItemView*>(widget()); }
    const ItemActions& actions() const { return m_actions; }
    /// Row among the items that are not inside a closed one; -1 for one that is.
    int rowOf(const QModelIndex& item) const;
    QAccessibleInterface* cell(const QModelIndex& item) const;
    QAccessibleInterface* head(Qt::Orientation orientation, int section) const;

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* face) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int rowCount() const override;
    int columnCount() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    QList<QAccessibleInterface*> selectedCells() const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override { return selectedRows().contains(row); }
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

  private:
    QModelIndex itemAt(int row, int column) const;
    /// Rows and columns of heads in front of the items.
    int leadingRows() const { return role() == QAccessible::List ? 0 : 1; }
    int leadingColumns() const { return role() == QAccessible::Table ? 1 : 0; }

    ItemActions m_actions;
    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_cells;
    mutable QHash<int, QAccessible::Id> m_columnHeads;
    mutable QHash<int, QAccessible::Id> m_rowHeads;
};

/// Lets assistive programs see every View so; its itemActions() says what can be done with an item.
template <class View, QAccessible::Role role>
void installItemViewAccess() {
    constexpr auto factory = [](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* view = qobject_cast<View*>(object);
        if (!view) return nullptr;
        return new ItemViewAccess(view, role,
                                  [view](const QModelIndex& item) { return view->itemActions(item); });
    };
    static const bool installed = (QAccessible::installFactory(factory), true);
    Q_UNUSED(installed)
}

}  // namespace ui
