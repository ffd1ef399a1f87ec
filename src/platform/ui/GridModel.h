// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>
#include <string>
#include <vector>

#include "platform/ado/Snapshot.h"

namespace ui {

/// A DataGrid's model: a snapshot of rows, with the few cells that were written by hand over it. Rows and
/// columns are numbered as the grid numbers them: row 0 is the heading row (which the toolkit's own row
/// numbers leave out), column 0 the fixed leading column. Numbers that do not exist have an empty text and
/// are otherwise ignored.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Takes over new rows. The columns are those of the table, in its order, after the leading one, headed
    /// by their names.
    void setSnapshot(ado::Snapshot rows);
    /// Empties all cells and headings.
    void clearTexts();
    void truncate(int rows);
    void removeGridRow(int row);
    /// Shows a row in another font; 0 for none.
    void markRow(int row);
    void moveGridColumn(int from, int to);
    /// Shows the rows in another order; `identities` are all those of identities(). Current, selected and
    /// marked rows stay what they are. The next fill has its own order again.
    void arrange(std::vector<uint32_t> identities);
    /// The order in which the rows came.
    void arrangeAsFilled();
    /// The identities of the rows, in the order in which they are shown.
    const std::vector<uint32_t>& identities() const { return m_rows.identities(); }

    int gridRows() const { return static_cast<int>(m_rows.size()) + 1; }
    QString text(int row, int column) const;
    void setText(int row, int column, const QString& text);
    /// Appends a cell's text to `out`, in UTF-8; for walks over many rows.
    void appendText(int row, int column, std::string& out) const;
    /// The column whose texts name the rows to assistive programs; without one, or without a text, the rows'
    /// numbers do.
    void setNameColumn(int column) { m_nameColumn = column; }
    /// What assistive programs say of one heading besides its text; -1 for none.
    void describeHeading(int column, const QString& description);
    /// Columns of yes/no are shown as check boxes.
    bool isCheckColumn(int column) const;
    /// -1 when there is none.
    int firstCheckColumn() const;
    bool isChecked(int row, int column) const;
    /// Which column this was before columns were moved.
    int sourceColumn(int column) const { return m_order[static_cast<size_t>(column)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    bool exists(int row, int column) const;
    quint64 cell(int row, int column) const;
    ado::Value value(int row, int column) const;

    ado::Snapshot m_rows;
    bool m_blank = false;      ///< clearTexts() was called since the last fill
    std::vector<int> m_order;  ///< source column at each position
    QStringList m_headings;    ///< by source column
    QHash<quint64, QString> m_written;
    std::vector<uint32_t> m_filled;  ///< the order in which the rows came; empty while it is shown
    int m_nameColumn = 0;
    int m_describedColumn = -1;
    QString m_description;
    QPersistentModelIndex m_marked;  ///< any cell of the row
};

}  // namespace ui
