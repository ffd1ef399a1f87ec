// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/GroupTree.h"

#include <QHeaderView>
#include <QPainter>
#include <utility>

#include "platform/text/Words.h"
#include "platform/ui/GroupTreeItem.h"
#include "platform/ui/ItemViewAccess.h"

namespace ui {

namespace {

constexpr int levelWidth = 18;

Status unknownNode(const QString& key) {
    return {ErrorCode::ItemNotFound, Words::tr("Elemento \"%1\" non trovato.").arg(key)};
}

GroupTreeItem* groupItem(QTreeWidgetItem* item) {
    return static_cast<GroupTreeItem*>(item);
}

}  // namespace

GroupNodeRef GroupNode::Parent() const {
    QTreeWidgetItem* parent = m_item ? static_cast<QTreeWidgetItem*>(m_item)->parent() : nullptr;
    return parent ? groupItem(parent)->node() : nullptr;
}

int GroupNode::Children() const {
    return m_item ? m_item->childCount() : 0;
}

GroupTree::GroupTree(QWidget* parent) : QTreeWidget(parent) {
    installItemViewAccess<GroupTree, QAccessible::Tree>();
    setHeaderHidden(true);
    setColumnCount(1);
    setIndentation(levelWidth);
    setUniformRowHeights(true);
    setItemDelegate(new GroupTreeDelegate(this));
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    setAutoExpandDelay(700);
    header()->setStretchLastSection(true);
}

GroupTree::~GroupTree() {
    Clear();
}

void GroupTree::setImage(const QString& image, const QString& iconName) {
    m_images[image] = QIcon::fromTheme(iconName);
}

void GroupTree::setEmptyText(const QString& text) {
    m_emptyText = text;
    viewport()->update();
}

void GroupTree::Clear() {
    clear();
}

GroupTreeItem* GroupTree::itemOf(const QString& key) const {
    const auto found = m_items.find(key);
    return found == m_items.end() ? nullptr : found->second;
}

Result<GroupNodeRef> GroupTree::Add(const QString& parentKey, const QString& key, const QString& text,
                                    const QString& image, const QString& selectedImage) {
    GroupTreeItem* parent = itemOf(parentKey);
    if (!parent && !parentKey.isEmpty()) return unknownNode(parentKey);
    if (itemOf(key))
        return Status(ErrorCode::DuplicateKey, Words::tr("L'elemento \"%1\" esiste già.").arg(key));
    auto node = std::make_shared<GroupNode>();
    node->m_key = key;
    node->m_text = text;
    auto* item = new GroupTreeItem(this, node, image, selectedImage);
    m_items[key] = item;
    if (parent) {
        parent->addChild(item);
    } else {
        addTopLevelItem(item);
    }
    return node;
}

Status GroupTree::Remove(const QString& key) {
    GroupTreeItem* item = itemOf(key);
    if (!item) return unknownNode(key);
    delete item;
    return {};
}

Status GroupTree::Move(const QString& key, const QString& parentKey) {
    GroupTreeItem* item = itemOf(key);
    GroupTreeItem* parent = itemOf(parentKey);
    if (!item) return unknownNode(key);
    if (!parent) return unknownNode(parentKey);
    QTreeWidgetItem* before = static_cast<QTreeWidgetItem*>(item)->parent();
    bool below = false;
    for (QTreeWidgetItem* above = parent; above; above = above->parent())
        below = below || above == item;
    if (!before || below)
        return {ErrorCode::NotSupported,
                Words::tr("Un elemento non può essere spostato dentro sé stesso o i propri elementi.")};
    const bool selected = currentItem() == item;
    const bool expanded = item->isExpanded();
    parent->addChild(before->takeChild(before->indexOfChild(item)));
    item->setExpanded(expanded);
    if (selected) setCurrentItem(item);
    return {};
}

GroupNodeRef GroupTree::Node(const QString& key) const {
    const GroupTreeItem* item = itemOf(key);
    return item ? item->node() : nullptr;
}

Status GroupTree::Expand(const QString& key) {
    GroupTreeItem* item = itemOf(key);
    if (!item) return unknownNode(key);
    item->setExpanded(true);
    return {};
}

GroupNodeRef GroupTree::SelectedItem() const {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? nullptr : groupItem(selected.constFirst())->node();
}

void GroupTree::setSelectedItem(const GroupNodeRef& node) {
    setCurrentItem(node ? node->m_item : nullptr);
}

void GroupTree::EnsureVisible(const GroupNodeRef& node) {
    if (node->m_item) scrollToItem(node->m_item);
}

GroupNodeRef GroupTree::HitTest(const QPoint& position) const {
    QTreeWidgetItem* item = itemAt(position);
    return item ? groupItem(item)->node() : nullptr;
}

void GroupTree::setDropHighlight(const GroupNodeRef& node) {
    m_highlight = node;
    viewport()->update();
}

void GroupTree::setMarked(const GroupNodeRef& node) {
    QFont italic;
    italic.setItalic(true);
    const GroupNodeRef before = std::exchange(m_marked, node);
    if (before && before->m_item) before->m_item->setData(0, Qt::FontRole, {});
    if (node && node->m_item) node->m_item->setData(0, Qt::FontRole, italic);
}

void GroupTree::StartLabelEdit() {
    const GroupNodeRef node = SelectedItem();
    if (!node) return;
    bool cancel = false;
    Q_EMIT beforeLabelEdit(&cancel);
    if (!cancel && node->m_item) editItem(node->m_item);
}

void GroupTree::finishLabelEdit(const QModelIndex& index, const QString& text) {
    const GroupNodeRef node = groupItem(itemFromIndex(index))->node();
    bool cancel = false;
    Q_EMIT afterLabelEdit(text, &cancel);
    if (!cancel && node->m_item) node->m_item->setText(text);
}

void GroupTree::initViewItemOption(QStyleOptionViewItem* option) const {
    QTreeWidget::initViewItemOption(option);
    if (!hasFocus()) option->state &= ~QStyle::State_Active;
}

void GroupTree::paintEvent(QPaintEvent* event) {
    QTreeWidget::paintEvent(event);
    if (m_emptyText.isEmpty() || m_items.size() != static_cast<size_t>(topLevelItemCount())) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(12, 0, -12, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     m_emptyText);
}

}  // namespace ui
