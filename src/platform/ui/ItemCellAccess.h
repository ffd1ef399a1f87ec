// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QPersistentModelIndex>

namespace ui {

class ItemViewAccess;

/// One item of a list as assistive programs see it. An open editor of the item is its only child.
class ItemCellAccess : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
  public:
    ItemCellAccess(const ItemViewAccess* list, const QModelIndex& item) : m_list(list), m_item(item) {}

    const QPersistentModelIndex& item() const { return m_item; }

    bool isValid() const override { return m_item.isValid(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* face) const override { return face == child(0) ? 0 : -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override { return m_item.column(); }
    int rowIndex() const override;
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override;
    /// Returns at once; what the action opens comes from the event loop. Nothing happens while another window
    /// has the user.
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    const ItemViewAccess* m_list;
    QPersistentModelIndex m_item;
};

/// The head of one column or row.
class ItemHeadAccess : public QAccessibleInterface {
  public:
    ItemHeadAccess(const ItemViewAccess* list, Qt::Orientation orientation, int section)
        : m_list(list), m_orientation(orientation), m_section(section) {}

    Qt::Orientation orientation() const { return m_orientation; }
    int section() const { return m_section; }

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

  private:
    const ItemViewAccess* m_list;
    Qt::Orientation m_orientation;
    int m_section;
};

}  // namespace ui
