// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <QTableView>
#include <vector>

#include "platform/ui/DataControl.h"
#include "platform/ui/GridModel.h"
#include "platform/ui/GridSearch.h"
#include "platform/ui/RowSorter.h"
#include "platform/ui/SlicedWork.h"

namespace ui {

struct ItemAction;

/// A grid that is filled by a data control and shows a snapshot of the rows; what is written into it changes
/// the screen only.
///
/// Row 0 is the heading row, column 0 a fixed leading column; the columns of the table follow in its order.
/// Whole rows are selected, but there is a current column as well. After a fill the first row is the current
/// one. Widths belong to the table's columns: they go along when a column is moved, and stay from fill to
/// fill.
class DataGrid : public QTableView {
    Q_OBJECT

  public:
    explicit DataGrid(QWidget* parent = nullptr);

    void setDataSource(DataControl* source);

    /// Number of rows, the heading row included.
    int Rows() const { return m_model->gridRows(); }
    /// Drops the rows after; a number above Rows() changes nothing.
    void setRows(int rows) { m_model->truncate(rows); }
    /// The current cell. Row 0 when there is none.
    int Row() const { return currentIndex().row() + 1; }
    int Col() const { return qMax(0, currentIndex().column()); }
    /// Text of a cell; a yes/no reads as text too. What does not exist is empty and cannot be set.
    QString TextMatrix(int row, int column) const { return m_model->text(row, column); }
    void setTextMatrix(int row, int column, const QString& text) { m_model->setText(row, column, text); }
    /// Of the current cell: 1 checked, 2 unchecked.
    int CellChecked() const { return m_model->isChecked(Row(), Col()) ? 1 : 2; }
    void setCellChecked(int state);
    /// Empties all cells, the headings included.
    void Clear() { m_model->clearTexts(); }
    void RemoveItem(int row) { m_model->removeGridRow(row); }
    /// Shows a row as one that is to move, and the one before as usual again; 0 for none. A fill forgets it.
    void markRow(int row) { m_model->markRow(row); }
    /// In pixels; 0 hides the column.
    void setColWidth(int column, int width);
    /// Widths of all columns in the table's order, the leading one first; for use before the first fill.
    void setColWidths(std::vector<int> widths) { m_widths = std::move(widths); }
    /// Moves a column; those between move up by one.
    void setColPosition(int column, int position);

    /// Sorts the rows that are shown by a column, without regard to case and accents, in slices: nothing is
    /// read and nothing written. The first call sorts upwards, the next one for the same column downwards,
    /// the third brings the order of the fill back, and so does each fill. A click on a heading does the
    /// same.
    void sortBy(int column);
    /// The column and direction of the heading's arrow; none while the rows are as they came.
    struct Order {
        int column;
        Qt::SortOrder direction;
    };
    const std::optional<Order>& sorted() const { return m_sorted; }
    bool isSorting() const { return m_sorting.underWay(); }

    /// The search that marks what it finds in the cells.
    GridSearch& search() { return *m_search; }
    /// The column of the check boxes; -1 for none.
    int checkColumn() const { return m_model->firstCheckColumn(); }
    bool isChecked(int row) const { return m_model->isChecked(row, checkColumn()); }
    void appendText(int row, int column, std::string& out) const { m_model->appendText(row, column, out); }
    /// Makes a row the current one, and its first cell that was found the current cell.
    void showFound(int row);

    /// The column whose texts name the rows to assistive programs.
    void setRowNameColumn(int column) { m_model->setNameColumn(column); }

    /// Lines under and between the headings; those between the cells are a lighter shade of it.
    void setLineColor(const QColor& color);
    /// Ground of the headings.
    void setFixedColor(const QColor& color);
    void setBackColor(const QColor& color);
    void setAlternateBackColor(const QColor& color);
    const QColor& lineColor() const { return m_lineColor; }
    const QColor& fixedColor() const { return m_fixedColor; }
    /// Painted in the middle while there is no row.
    void setEmptyText(const QString& text);
    const QString& EmptyText() const { return m_emptyText; }
    /// Covers the rows, which are neither seen nor reached by mouse or key meanwhile; until the next
    /// fill, or until it is empty.
    void setNotice(const QString& text);
    const QString& Notice() const { return m_notice; }
    /// Makes the row with that text in a column the current one; false where there is none.
    bool setCurrentRow(int column, const QString& text);

    /// Drags the current row, to be called from mouseMove while the left button is down. It returns at once
    /// unless the button went down on a row and the pointer has come far enough since; then when the drag is
    /// over.
    void Drag();

    /// A check box is toggled as by a click; any other cell is chosen, or opened as by a double click; each
    /// has the menu of the right button.
    std::vector<ItemAction> itemActions(const QModelIndex& item);

    void initViewItemOption(QStyleOptionViewItem* option) const override;

  Q_SIGNALS:
    /// The user, or sortBy(), asked for another order; sorted() says which.
    void orderChanged();
    /// The rows were filled; the columns are in the table's order again.
    void afterDataRefresh();
    /// A cell was clicked with the left button, or the space bar asks to click the check box of the current
    /// row.
    void click();
    /// Follows the click of the first of the two presses.
    void dblClick();
    /// Over the headings no button counts as down.
    void mouseMove(Qt::MouseButtons buttons);
    void mouseUp(Qt::MouseButton button, const QPoint& globalPosition);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void fill(ado::Snapshot& rows);
    void applyWidths();
    void applyFont();
    void setRole(QPalette::ColorRole role, const QColor& color);
    void paintSentence();
    bool sortPart(const SlicedWork::Slice& slice);
    void forgetOrder();
    void startSort();

    GridModel* m_model;
    GridSearch* m_search = nullptr;
    SlicedWork m_sorting;
    std::unique_ptr<RowSorter> m_sorter;
    std::optional<Order> m_sorted;
    std::vector<int> m_widths;  ///< by the table's columns
    bool m_applyingWidths = false;
    QColor m_lineColor;
    QColor m_fixedColor;
    QString m_emptyText;
    QString m_notice;
    QPersistentModelIndex m_pressed;
    QPoint m_pressedAt;
    QPoint m_pointer;
};

}  // namespace ui
