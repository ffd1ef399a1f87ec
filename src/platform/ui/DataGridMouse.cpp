// SPDX-License-Identifier: GPL-3.0-or-later
// Clicks, keys and drags of the grid.
#include <QApplication>
#include <QDrag>
#include <QHeaderView>
#include <QMouseEvent>

#include "platform/ui/DataGrid.h"
#include "platform/ui/DragContent.h"
#include "platform/ui/ItemViewAccess.h"

namespace ui {

void DataGrid::mousePressEvent(QMouseEvent* event) {
    if (!m_notice.isEmpty()) return;
    const QModelIndex cell = indexAt(event->position().toPoint());
    m_pressed = event->button() == Qt::LeftButton ? cell : QModelIndex();
    m_pressedAt = m_pointer = event->position().toPoint();
    // A press beside the rows leaves the current one alone.
    if (cell.isValid()) QTableView::mousePressEvent(event);
}

void DataGrid::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_notice.isEmpty()) return;
    QTableView::mouseReleaseEvent(event);
    const QPersistentModelIndex pressed = std::exchange(m_pressed, {});
    if (event->button() == Qt::LeftButton && pressed.isValid() &&
        indexAt(event->position().toPoint()) == pressed)
        Q_EMIT click();
    Q_EMIT mouseUp(event->button(), event->globalPosition().toPoint());
}

void DataGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!m_notice.isEmpty()) return;
    m_pressed = QModelIndex();
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !cell.isValid()) return;
    setCurrentIndex(cell);
    Q_EMIT dblClick();
}

void DataGrid::mouseMoveEvent(QMouseEvent* event) {
    if (!m_notice.isEmpty()) return;
    // With the button down the toolkit would move the selection along; here it means a drag.
    m_pointer = event->position().toPoint();
    if (!(event->buttons() & Qt::LeftButton)) QTableView::mouseMoveEvent(event);
    Q_EMIT mouseMove(event->buttons());
}

void DataGrid::keyPressEvent(QKeyEvent* event) {
    if (!m_notice.isEmpty()) {
        event->ignore();
        return;
    }
    const int box = m_model->firstCheckColumn();
    if (event->key() != Qt::Key_Space || box < 0 || Row() == 0) {
        QTableView::keyPressEvent(event);
        return;
    }
    const int column = Col();
    setCurrentIndex(currentIndex().siblingAtColumn(box));
    Q_EMIT click();
    setCurrentIndex(currentIndex().siblingAtColumn(column));
}

bool DataGrid::eventFilter(QObject* watched, QEvent* event) {
    if (!m_notice.isEmpty()) return QTableView::eventFilter(watched, event);
    if (watched == horizontalHeader()->viewport() && event->type() == QEvent::MouseMove)
        Q_EMIT mouseMove(Qt::NoButton);
    if (watched == horizontalHeader()->viewport() && event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        Q_EMIT mouseUp(mouse->button(), mouse->globalPosition().toPoint());
    }
    return QTableView::eventFilter(watched, event);
}

std::vector<ItemAction> DataGrid::itemActions(const QModelIndex& item) {
    if (!m_notice.isEmpty()) return {};
    const auto here = [this, place = QPersistentModelIndex(item)](const std::function<void()>& act) {
        return [this, place, act] {
            setFocus(Qt::OtherFocusReason);
            setCurrentIndex(place);
            act();
        };
    };
    const auto pressed = here([this] { Q_EMIT click(); });
    const ItemAction menu{QAccessibleActionInterface::showMenuAction(), here([this] {
                              Q_EMIT mouseUp(Qt::RightButton,
                                             viewport()->mapToGlobal(visualRect(currentIndex()).center()));
                          })};
    if (m_model->isCheckColumn(item.column()))
        return {{QAccessibleActionInterface::toggleAction(), pressed}, menu};
    return {{QAccessibleActionInterface::pressAction(), pressed},
            {QStringLiteral("Edit"), here([this] { Q_EMIT dblClick(); })},
            menu};
}

void DataGrid::Drag() {
    if (!m_pressed.isValid() ||
        (m_pointer - m_pressedAt).manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressed = QModelIndex();
    QRect row = visualRect(currentIndex());
    row.setLeft(0);
    row.setRight(viewport()->width() - 1);
    auto* drag = new QDrag(this);
    drag->setMimeData(dragContent(Dragged::Row));
    drag->setPixmap(viewport()->grab(row.intersected(QRect(0, 0, 320, viewport()->height()))));
    drag->exec(Qt::MoveAction);
}

}  // namespace ui
