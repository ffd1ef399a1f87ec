// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/GroupTreeItem.h"

#include <QLineEdit>
#include <QPainter>

#include "platform/ui/Controls.h"
#include "platform/ui/LineEdit.h"

namespace ui {

namespace {

/// The icon in one colour, for the dark ground of a selection.
QPixmap inColour(QPixmap pixmap, const QColor& colour) {
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    return pixmap;
}

}  // namespace

GroupTreeItem::GroupTreeItem(GroupTree* tree, GroupNodeRef nodeOfItem, const QString& image,
                             const QString& selectedImage)
    : QTreeWidgetItem(UserType),
      m_tree(tree),
      m_node(std::move(nodeOfItem)),
      m_image(image),
      m_selectedImage(selectedImage) {
    m_node->m_item = this;
    setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled |
             Qt::ItemIsDropEnabled);
    setText(m_node->m_text);
}

GroupTreeItem::~GroupTreeItem() {
    m_node->m_item = nullptr;
    m_tree->m_items.erase(m_node->m_key);
}

void GroupTreeItem::setText(const QString& text) {
    m_node->m_text = text;
    QTreeWidgetItem::setText(0, text);
}

void GroupTreeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto* item = static_cast<GroupTreeItem*>(m_tree->itemFromIndex(index));
    const bool selected = option->state & QStyle::State_Selected;
    const auto image = m_tree->m_images.find(item->image(selected));
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(16, 16);
    option->showDecorationSelected = true;
    if (image == m_tree->m_images.end()) return;
    option->icon = image->second;
    if (!selected) return;
    const auto group = option->state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const qreal ratio = m_tree->devicePixelRatioF();
    const QPixmap plain = image->second.pixmap(option->decorationSize, ratio);
    option->icon = QIcon();
    option->icon.addPixmap(inColour(plain, option->palette.color(group, QPalette::HighlightedText)),
                           QIcon::Selected);
}

void GroupTreeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyleOptionViewItem node = option;
    node.state &= ~QStyle::State_HasFocus;
    QStyledItemDelegate::paint(painter, node, index);
    const auto* item = static_cast<GroupTreeItem*>(m_tree->itemFromIndex(index));
    const bool marked = item->node() == m_tree->m_highlight && !(option.state & QStyle::State_Selected);
    if (!marked && !(option.state & QStyle::State_HasFocus)) return;
    QStyleOptionFocusRect rim;
    rim.QStyleOption::operator=(option);
    m_tree->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rim, painter, m_tree);
}

QSize GroupTreeDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width(), qMax(rowHeight, option.fontMetrics.height() + 6)};
}

QWidget* GroupTreeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* box = qobject_cast<QLineEdit*>(editor)) {
        LineEdit::keepToOneLine(*box);
        if (m_tree->m_longestLabel > 0) box->setMaxLength(m_tree->m_longestLabel);
    }
    return editor;
}

void GroupTreeDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
    m_tree->finishLabelEdit(index, static_cast<QLineEdit*>(editor)->text());
}

}  // namespace ui
