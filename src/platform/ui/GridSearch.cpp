// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/GridSearch.h"

#include <algorithm>

#include "platform/text/Folding.h"
#include "platform/ui/DataGrid.h"

namespace ui {

GridSearch::GridSearch(DataGrid& grid)
    : QObject(&grid), m_grid(grid), m_work([this](const SlicedWork::Slice& slice) { return search(slice); }) {
    const QAbstractItemModel* model = grid.model();
    connect(model, &QAbstractItemModel::modelReset, this, &GridSearch::restart);
    connect(model, &QAbstractItemModel::layoutChanged, this, &GridSearch::restart);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &GridSearch::restart);
    connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex&, const QModelIndex&, const QList<int>& roles) {
                if (roles.isEmpty()) restart();
            });
}

void GridSearch::start(const QString& text, bool checkedOnly) {
    m_wanted = text::folded(text);
    m_checkedOnly = checkedOnly;
    m_active = !m_wanted.empty() || checkedOnly;
    restart();
}

void GridSearch::stop() {
    m_active = false;
    restart();
}

void GridSearch::restart() {
    m_rows.clear();
    m_next = 1;
    m_work.stop();
    m_grid.viewport()->update();
    if (m_active) m_work.start();
}

bool GridSearch::isSearched(int column) const {
    return !m_grid.isColumnHidden(column) && column != m_checkColumn;
}

bool GridSearch::search(const SlicedWork::Slice& slice) {
    constexpr int rowsBetweenLooks = 32;
    if (m_next == 1) {
        m_checkColumn = m_grid.checkColumn();
        m_columns.clear();
        for (int column = 0; column < m_grid.model()->columnCount(); ++column)
            if (isSearched(column)) m_columns.push_back(column);
    }
    const int end = m_grid.Rows();
    for (; m_next < end; ++m_next) {
        if (m_next % rowsBetweenLooks == 0 && slice.over()) break;
        if (matches(m_next)) m_rows.push_back(m_next);
    }
    const bool more = m_next < end;
    // A receiver of the last part has to find the work done.
    if (more) m_work.start();
    Q_EMIT progressed();
    return false;
}

bool GridSearch::matches(int row) {
    if (m_checkedOnly && !m_grid.isChecked(row)) return false;
    if (m_wanted.empty()) return true;
    m_text.clear();
    for (const int column : m_columns) {
        m_grid.appendText(row, column, m_text);
        m_text += '\n';  // in no text that is typed
    }
    m_folded.clear();
    text::appendFolded(m_text, m_folded);
    return m_folded.find(m_wanted) != std::string::npos;
}

int GridSearch::after(int row) const {
    const auto found = std::upper_bound(m_rows.begin(), m_rows.end(), row);
    return found == m_rows.end() ? 0 : *found;
}

int GridSearch::before(int row) const {
    const auto found = std::lower_bound(m_rows.begin(), m_rows.end(), row);
    return found == m_rows.begin() ? 0 : *std::prev(found);
}

bool GridSearch::holds(const QModelIndex& cell) const {
    if (!m_active || m_wanted.empty() || cell.column() == m_grid.checkColumn()) return false;
    if (m_checkedOnly && !m_grid.isChecked(cell.row() + 1)) return false;
    return text::folded(m_grid.TextMatrix(cell.row() + 1, cell.column())).find(m_wanted) != std::string::npos;
}

}  // namespace ui
