// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DataGridPaint.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/ui/BodyLine.h"
#include "platform/ui/DataGrid.h"

namespace ui {

namespace {

constexpr int headHeight = 26;
constexpr int textMargin = 6;
constexpr int separatorInset = 4;
constexpr int currentMark = 2;  ///< below the heading of the current column
constexpr int currentRim = 2;   ///< round the match that was visited last

/// A cell with what is looked for, marked by its ground and, without colours, by the line below its text.
void markFound(QStyleOptionViewItem& cell) {
    const QColor ground(255, 230, 120);
    cell.font.setUnderline(true);
    cell.backgroundBrush = ground;
    cell.palette.setColor(QPalette::Text, Qt::black);
    cell.palette.setColor(QPalette::HighlightedText, Qt::black);
    cell.palette.setColor(QPalette::Highlight, ground.darker(115));
}

}  // namespace

DataGridHeader::DataGridHeader(DataGrid* grid) : QHeaderView(Qt::Horizontal, grid), m_grid(grid) {
    setSectionsMovable(false);
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(24);
}

QSize DataGridHeader::sizeHint() const {
    return {QHeaderView::sizeHint().width(), qMax(headHeight, fontMetrics().height() + 8)};
}

void DataGridHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    painter->save();
    painter->fillRect(rect, m_grid->fixedColor());
    const QAbstractItemModel* texts = model();
    QRect space = rect.adjusted(textMargin, 0, -textMargin, 0);
    if (m_grid->sorted() && m_grid->sorted()->column == logicalIndex) paintArrow(painter, space);
    const int alignment = texts->headerData(logicalIndex, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    const QString text = texts->headerData(logicalIndex, Qt::Horizontal, Qt::DisplayRole).toString();
    style()->drawItemText(painter, space, alignment, palette(), isEnabled(),
                          fontMetrics().elidedText(text, Qt::ElideRight, space.width()),
                          QPalette::WindowText);
    painter->setPen(m_grid->lineColor());
    painter->drawLine(rect.right(), rect.top() + separatorInset, rect.right(),
                      rect.bottom() - separatorInset);
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    if (m_grid->Row() > 0 && m_grid->Col() == logicalIndex)
        painter->fillRect(rect.left(), rect.bottom() - currentMark + 1, rect.width() - 1, currentMark,
                          palette().color(QPalette::WindowText));
    painter->restore();
}

/// At the right end of `space`, which is cut to what is left for the text.
void DataGridHeader::paintArrow(QPainter* painter, QRect& space) const {
    const int size = fontMetrics().height() / 2;
    if (space.width() < size) return;
    QRectF place(space.right() - size, space.center().y() - size / 4.0, size, size / 2.0);
    space.setRight(static_cast<int>(place.left()) - textMargin / 2);
    QPolygonF arrow{place.bottomLeft(), place.bottomRight(), QPointF(place.center().x(), place.top())};
    if (m_grid->sorted()->direction == Qt::DescendingOrder)
        arrow = QPolygonF{place.topLeft(), place.topRight(), QPointF(place.center().x(), place.bottom())};
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette().color(QPalette::WindowText));
    painter->drawPolygon(arrow);
    painter->restore();
}

void DataGridHeader::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    QRect behind = viewport()->rect();
    behind.setLeft(length() - offset());
    if (behind.isEmpty()) return;
    QPainter painter(viewport());
    painter.fillRect(behind, m_grid->fixedColor());
    painter.setPen(m_grid->lineColor());
    painter.drawLine(behind.bottomLeft(), behind.bottomRight());
}

DataGridDelegate::DataGridDelegate(DataGrid* grid) : QStyledItemDelegate(grid), m_grid(grid) {}

void DataGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.state &= ~QStyle::State_HasFocus;
    const bool found = m_grid->search().holds(index);
    if (found) markFound(cell);
    const bool box = cell.features & QStyleOptionViewItem::HasCheckIndicator;
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    QStyle* style = m_grid->style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, m_grid);
    if (box) {
        QStyleOptionButton indicator;
        indicator.palette = cell.palette;
        indicator.state =
            QStyle::State_Enabled | (cell.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
        const QSize size(style->pixelMetric(QStyle::PM_IndicatorWidth, &indicator, m_grid),
                         style->pixelMetric(QStyle::PM_IndicatorHeight, &indicator, m_grid));
        indicator.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, size, cell.rect);
        style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &indicator, painter, m_grid);
    }
    painter->save();
    if (found && index == m_grid->currentIndex()) {
        painter->setPen(QPen(cell.palette.color(QPalette::Text), currentRim));
        painter->drawRect(cell.rect.adjusted(1, 1, -currentRim, -currentRim));
    }
    painter->setPen(bodyLine(m_grid->lineColor()));
    painter->drawLine(cell.rect.bottomLeft(), cell.rect.bottomRight());
    painter->drawLine(cell.rect.topRight(), cell.rect.bottomRight());
    painter->restore();
}

bool DataGridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                 const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool cut = option.fontMetrics.horizontalAdvance(text) > option.rect.width() - 2 * textMargin;
    // In a tag, so that a text that looks like markup is shown as it is.
    QToolTip::showText(event->globalPos(), cut ? "<span>" + text.toHtmlEscaped() + "</span>" : QString(),
                       view);
    return true;
}

}  // namespace ui
