// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace ui {

class DataGrid;

/// The flat headings of a DataGrid.
class DataGridHeader : public QHeaderView {
    Q_OBJECT

  public:
    explicit DataGridHeader(DataGrid* grid);
    QSize sizeHint() const override;

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintArrow(QPainter* painter, QRect& space) const;

    DataGrid* m_grid;
};

/// The cells of a DataGrid: texts, centred check boxes, lines; a cut text is shown in full by a tool tip.
class DataGridDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit DataGridDelegate(DataGrid* grid);
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    DataGrid* m_grid;
};

}  // namespace ui
