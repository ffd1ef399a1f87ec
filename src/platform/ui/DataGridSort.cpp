// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the rows on the screen.
#include <QHeaderView>

#include "platform/text/Folding.h"
#include "platform/text/Words.h"
#include "platform/ui/DataGrid.h"

namespace ui {

void DataGrid::sortBy(int column) {
    if (!m_notice.isEmpty() || column < 0 || column >= m_model->columnCount() || isColumnHidden(column))
        return;
    const bool again = m_sorted && m_sorted->column == column;
    if (again && m_sorted->direction == Qt::DescendingOrder) {
        forgetOrder();
        m_model->arrangeAsFilled();
        scrollTo(currentIndex());
    } else {
        m_sorted = Order{column, again ? Qt::DescendingOrder : Qt::AscendingOrder};
        m_model->describeHeading(column,
                                 again ? Words::tr("Ordine decrescente") : Words::tr("Ordine crescente"));
        startSort();
    }
    horizontalHeader()->viewport()->update();
    Q_EMIT orderChanged();
}

/// Rows that are equal in the column keep the order in which they are shown now.
void DataGrid::startSort() {
    const int column = m_sorted->column;
    const bool box = m_model->isCheckColumn(column);
    const auto textOf = [this, column, box, text = std::string()](uint32_t row, std::string& out) mutable {
        const int number = static_cast<int>(row) + 1;
        if (box) {
            out += m_model->isChecked(number, column) ? '0' : '1';  // the ticked ones come first
            return;
        }
        text.clear();
        m_model->appendText(number, column, text);
        text::appendFolded(text, out);
    };
    m_sorter = std::make_unique<RowSorter>(static_cast<uint32_t>(m_model->rowCount()),
                                           m_sorted->direction == Qt::DescendingOrder, textOf);
    m_sorting.start();
}

bool DataGrid::sortPart(const SlicedWork::Slice& slice) {
    if (!m_sorter->step([&] { return slice.over(); })) return true;
    const std::vector<uint32_t>& now = m_model->identities();
    std::vector<uint32_t> wanted(now.size());
    for (size_t place = 0; place < wanted.size(); ++place)
        wanted[place] = now[m_sorter->row(static_cast<uint32_t>(place))];
    m_sorter.reset();
    m_model->arrange(std::move(wanted));
    scrollTo(currentIndex());
    return false;
}

/// The rows are as they came.
void DataGrid::forgetOrder() {
    m_sorting.stop();
    m_sorter.reset();
    m_sorted.reset();
    m_model->describeHeading(-1, {});
}

void DataGrid::showFound(int row) {
    if (row < 1 || row >= Rows()) return;
    int column = 0;
    while (column < m_model->columnCount() &&
           (isColumnHidden(column) || !m_search->holds(m_model->index(row - 1, column))))
        ++column;
    setCurrentIndex(m_model->index(row - 1, column < m_model->columnCount() ? column : Col()));
    scrollTo(currentIndex());
}

}  // namespace ui
