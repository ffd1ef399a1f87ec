#include "platform/ui/DataGridPaint.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/ui/DataGrid.h"
#include "platform/ui/DataGridColors.h"

namespace ui {

namespace {

constexpr int headHeight = 26;
constexpr int textMargin = 6;
constexpr int separatorInset = 4;

}  // namespace

DataGridHeader::DataGridHeader(DataGrid* grid) : QHeaderView(Qt::Horizontal, grid), m_grid(grid) {
    setSectionsMovable(false);
    setSectionsClickable(false);
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
    const QRect space = rect.adjusted(textMargin, 0, -textMargin, 0);
    const int alignment = texts->headerData(logicalIndex, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    const QString text = texts->headerData(logicalIndex, Qt::Horizontal, Qt::DisplayRole).toString();
    style()->drawItemText(painter, space, alignment, palette(), isEnabled(),
                          fontMetrics().elidedText(text, Qt::ElideRight, space.width()),
                          QPalette::WindowText);
    painter->setPen(m_grid->lineColor());
    painter->drawLine(rect.right(), rect.top() + separatorInset, rect.right(),
                      rect.bottom() - separatorInset);
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
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
