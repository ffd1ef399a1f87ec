// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

#include "platform/ui/GroupTree.h"

namespace ui {

/// A node's place in the tree.
class GroupTreeItem : public QTreeWidgetItem {
  public:
    GroupTreeItem(GroupTree* tree, GroupNodeRef nodeOfItem, const QString& image,
                  const QString& selectedImage);
    ~GroupTreeItem() override;

    const GroupNodeRef& node() const { return m_node; }
    void setText(const QString& text);
    const QString& image(bool selected) const { return selected ? m_selectedImage : m_image; }

  private:
    GroupTree* m_tree;
    GroupNodeRef m_node;
    QString m_image;
    QString m_selectedImage;
};

/// Draws the nodes and edits their texts.
class GroupTreeDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit GroupTreeDelegate(GroupTree* tree) : QStyledItemDelegate(tree), m_tree(tree) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    GroupTree* m_tree;
};

}  // namespace ui
