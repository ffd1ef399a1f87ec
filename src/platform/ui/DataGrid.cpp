// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DataGrid.h"

#include <cassert>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>

#include "platform/ui/DataGridPaint.h"
#include "platform/ui/ItemViewAccess.h"

namespace ui {

namespace {

constexpr int lineHeight = 24;
constexpr int designWidth = 100;

}  // namespace

DataGrid::DataGrid(QWidget* parent)
    : QTableView(parent),
      m_model(new GridModel(this)),
      m_sorting([this](const SlicedWork::Slice& slice) { return sortPart(slice); }) {
    installItemViewAccess<DataGrid, QAccessible::Table>();
    setHorizontalHeader(new DataGridHeader(this));
    setModel(m_model);
    m_search = new GridSearch(*this);
    setItemDelegate(new DataGridDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    viewport()->setMouseTracking(true);
    horizontalHeader()->viewport()->setMouseTracking(true);
    horizontalHeader()->viewport()->installEventFilter(this);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!m_applyingWidths && width > 0)
            m_widths[static_cast<size_t>(m_model->sourceColumn(column))] = width;
    });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, horizontalHeader()->viewport(),
            qOverload<>(&QWidget::update));
    // Whatever changes the rows makes a sort under way meaningless; a fill has its own order.
    connect(m_model, &QAbstractItemModel::modelReset, this, &DataGrid::forgetOrder);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, [this] {
        if (m_sorting.underWay()) startSort();
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) { sortBy(column); });
    m_lineColor = palette().color(QPalette::Mid);
    m_fixedColor = palette().color(QPalette::Window);
    applyFont();
}

void DataGrid::setDataSource(DataControl* source) {
    connect(source, &DataControl::refreshed, this, &DataGrid::fill);
}

void DataGrid::fill(ado::Snapshot& rows) {
    const int column = Col();
    setNotice({});
    m_model->setSnapshot(std::move(rows));
    m_widths.resize(static_cast<size_t>(m_model->columnCount()), designWidth);
    applyWidths();
    Q_EMIT afterDataRefresh();
    int current = column;
    while (current < m_model->columnCount() && isColumnHidden(current))
        ++current;
    setCurrentIndex(m_model->index(0, current));
    assert(Row() == (Rows() > 1 && current < m_model->columnCount() ? 1 : 0));
    assert(!m_sorted && !isSorting());
    scrollToTop();
}

void DataGrid::setCellChecked(int state) {
    if (m_model->isCheckColumn(Col()))
        setTextMatrix(Row(), Col(), state == 1 ? QStringLiteral("True") : QStringLiteral("False"));
}

void DataGrid::setColWidth(int column, int width) {
    if (column < 0 || column >= m_model->columnCount()) return;
    m_widths[static_cast<size_t>(m_model->sourceColumn(column))] = width;
    applyWidths();
}

void DataGrid::setColPosition(int column, int position) {
    m_model->moveGridColumn(column, position);
    applyWidths();
}

void DataGrid::applyWidths() {
    assert(!m_applyingWidths && m_widths.size() >= static_cast<size_t>(m_model->columnCount()));
    const QScopedValueRollback applying(m_applyingWidths, true);
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const int width = m_widths[static_cast<size_t>(m_model->sourceColumn(column))];
        setColumnHidden(column, width <= 0);
        if (width > 0) setColumnWidth(column, width);
    }
}

void DataGrid::applyFont() {
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(qMax(lineHeight, fontMetrics().height() + 6));
}

void DataGrid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) applyFont();
}

void DataGrid::setLineColor(const QColor& color) {
    m_lineColor = color;
    update();
}

void DataGrid::setFixedColor(const QColor& color) {
    m_fixedColor = color;
    update();
}

void DataGrid::setRole(QPalette::ColorRole role, const QColor& color) {
    QPalette changed = palette();
    changed.setColor(role, color);
    setPalette(changed);
}

void DataGrid::setBackColor(const QColor& color) {
    setRole(QPalette::Base, color);
}

void DataGrid::setAlternateBackColor(const QColor& color) {
    setRole(QPalette::AlternateBase, color);
}

void DataGrid::setEmptyText(const QString& text) {
    m_emptyText = text;
    viewport()->update();
}

void DataGrid::setNotice(const QString& text) {
    m_notice = text;
    setAccessibleDescription(text);
    viewport()->update();
}

bool DataGrid::setCurrentRow(int column, const QString& text) {
    for (int row = 1; row < Rows(); ++row) {
        if (TextMatrix(row, column) != text) continue;
        setCurrentIndex(m_model->index(row - 1, Col()));
        return true;
    }
    return false;
}

void DataGrid::initViewItemOption(QStyleOptionViewItem* option) const {
    QTableView::initViewItemOption(option);
    // Without the keyboard focus the current row keeps a shade only.
    if (!hasFocus()) option->state &= ~QStyle::State_Active;
}

void DataGrid::paintEvent(QPaintEvent* event) {
    if (m_notice.isEmpty()) QTableView::paintEvent(event);
    if (Rows() == 1 || !m_notice.isEmpty()) paintSentence();
}

void DataGrid::paintSentence() {
    QPainter painter(viewport());
    if (!m_notice.isEmpty()) painter.fillRect(viewport()->rect(), palette().base());
    painter.setPen(palette().color(m_notice.isEmpty() ? QPalette::PlaceholderText : QPalette::Text));
    painter.drawText(viewport()->rect().adjusted(12, 0, -12, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     m_notice.isEmpty() ? m_emptyText : m_notice);
    if (!hasFocus()) return;
    QStyleOptionFocusRect rim;
    rim.initFrom(this);
    rim.rect = viewport()->rect();
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rim, &painter, this);
}

}  // namespace ui
