// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "platform/ui/SlicedWork.h"

namespace ui {

class DataGrid;

/// A search for the rows of a DataGrid with a text in a visible column, without regard to case and
/// accents (text/Folding.h), in slices. It starts again when the grid changes.
class GridSearch : public QObject {
    Q_OBJECT

  public:
    explicit GridSearch(DataGrid& grid);

    /// What to look for; with an empty text every row counts (with `checkedOnly`), or none.
    void start(const QString& text, bool checkedOnly);
    void stop();

    bool underWay() const { return m_work.underWay(); }
    /// The rows found so far, by the grid's numbers, in rising order.
    const std::vector<int>& rows() const { return m_rows; }
    /// The next row found after (or before) that one; 0 where there is none so far.
    int after(int row) const;
    int before(int row) const;
    /// Whether a cell is one of those that have the text.
    bool holds(const QModelIndex& cell) const;

  Q_SIGNALS:
    /// More rows were searched, or all: underWay() says.
    void progressed();

  private:
    void restart();
    bool search(const SlicedWork::Slice& slice);
    bool matches(int row);
    bool isSearched(int column) const;

    DataGrid& m_grid;
    SlicedWork m_work;
    std::string m_wanted;  ///< folded
    bool m_checkedOnly = false;
    bool m_active = false;
    std::vector<int> m_columns;
    int m_checkColumn = -1;
    int m_next = 1;
    std::vector<int> m_rows;
    std::string m_text;
    std::string m_folded;
};

}  // namespace ui
