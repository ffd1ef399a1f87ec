// SPDX-License-Identifier: GPL-3.0-or-later
// Clicks, keys and drags of the tree.
#include <QDrag>
#include <QDropEvent>
#include <QMouseEvent>

#include "platform/ui/DragContent.h"
#include "platform/ui/GroupTreeItem.h"
#include "platform/ui/ItemViewAccess.h"

namespace ui {

void GroupTree::clickNode(const GroupNodeRef& node) {
    m_lastClicked = node;
    Q_EMIT nodeClick(node);
    Q_EMIT click();
}

void GroupTree::Click(const GroupNodeRef& node) {
    setSelectedItem(node);
    clickNode(node);
}

void GroupTree::mousePressEvent(QMouseEvent* event) {
    const QPoint position = event->position().toPoint();
    const GroupNodeRef node = HitTest(position);
    const bool onBranch = node && position.x() < visualItemRect(node->m_item).left();
    m_pressed = nullptr;
    m_dragRefused = false;
    m_pressedEmptySpace = !node && event->button() == Qt::LeftButton;
    if (!node) return;
    if (onBranch || event->button() == Qt::LeftButton) {
        if (!onBranch) m_pressed = node;
        QTreeWidget::mousePressEvent(event);
    } else if (event->button() == Qt::RightButton) {
        setFocus(Qt::MouseFocusReason);
        setSelectedItem(node);
        clickNode(node);
    }
}

void GroupTree::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) {
        const GroupNodeRef pressed = std::exchange(m_pressed, nullptr);
        if (pressed && pressed->m_item && HitTest(event->position().toPoint()) == pressed) {
            clickNode(pressed);
        } else if (pressed) {
            setSelectedItem(m_lastClicked);
        } else if (std::exchange(m_pressedEmptySpace, false)) {
            Q_EMIT click();
        }
    }
    Q_EMIT mouseUp(event->button(), event->globalPosition().toPoint());
}

void GroupTree::mouseMoveEvent(QMouseEvent* event) {
    // Without its drag the toolkit would take the selection along with the pointer.
    if (!m_dragRefused || !(event->buttons() & Qt::LeftButton)) QTreeWidget::mouseMoveEvent(event);
    Q_EMIT mouseMove();
}

void GroupTree::keyPressEvent(QKeyEvent* event) {
    const QTreeWidgetItem* before = currentItem();
    QTreeWidget::keyPressEvent(event);
    const bool again =
        state() != EditingState &&
        (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space);
    QTreeWidgetItem* now = currentItem();
    if (!now || (now == before && !again)) return;
    setCurrentItem(now);
    clickNode(static_cast<GroupTreeItem*>(now)->node());
    event->accept();
}

std::vector<ItemAction> GroupTree::itemActions(const QModelIndex& item) {
    auto* place = static_cast<GroupTreeItem*>(itemFromIndex(item));
    const GroupNodeRef node = place->node();
    const auto clicked = [this, node](const std::function<void()>& act) {
        return [this, node, act] {
            setFocus(Qt::OtherFocusReason);
            setSelectedItem(node);
            clickNode(node);
            if (node->m_item) act();
        };
    };
    std::vector<ItemAction> actions{{QAccessibleActionInterface::pressAction(), clicked([] {})}};
    const bool open = place->isExpanded();
    if (node->Children() > 0)
        actions.push_back({open ? QStringLiteral("Collapse") : QStringLiteral("Expand"),
                           [node, open] { node->m_item->setExpanded(!open); }});
    if (node->Parent()) actions.push_back({QStringLiteral("Edit"), clicked([this] { StartLabelEdit(); })});
    actions.push_back({QAccessibleActionInterface::showMenuAction(), clicked([this, node] {
                           Q_EMIT mouseUp(Qt::RightButton,
                                          viewport()->mapToGlobal(visualItemRect(node->m_item).center()));
                       })});
    return actions;
}

void GroupTree::startDrag(Qt::DropActions) {
    if (!m_pressed || m_dragRefused) return;
    Q_EMIT beforeDrag(m_pressed, &m_dragRefused);
    if (m_dragRefused) return;
    const GroupNodeRef dragged = std::exchange(m_pressed, nullptr);
    const QRect area = visualItemRect(dragged->m_item);
    auto* drag = new QDrag(this);
    drag->setMimeData(dragContent(Dragged::Node));
    drag->setPixmap(viewport()->grab(area.intersected(viewport()->rect())));
    setSelectedItem(m_lastClicked);
    drag->exec(Qt::MoveAction);
}

void GroupTree::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(draggedIn(event->mimeData()) != Dragged::Nothing);
}

void GroupTree::dragMoveEvent(QDragMoveEvent* event) {
    QTreeWidget::dragMoveEvent(event);
    event->setAccepted(draggedIn(event->mimeData()) != Dragged::Nothing);
    if (event->isAccepted()) Q_EMIT draggedOver(HitTest(event->position().toPoint()));
}

void GroupTree::dragLeaveEvent(QDragLeaveEvent* event) {
    QTreeWidget::dragLeaveEvent(event);
    Q_EMIT draggedOver(nullptr);
}

void GroupTree::dropEvent(QDropEvent* event) {
    QDragLeaveEvent over;
    QTreeWidget::dragLeaveEvent(&over);
    const Dragged what = draggedIn(event->mimeData());
    if (what == Dragged::Nothing) return;
    event->acceptProposedAction();
    const GroupNodeRef node = HitTest(event->position().toPoint());
    if (what == Dragged::Node) {
        Q_EMIT nodeDropped(node);
    } else {
        Q_EMIT rowDropped(node);
    }
}

}  // namespace ui
