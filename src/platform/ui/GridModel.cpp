// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/GridModel.h"

#include <algorithm>
#include <cassert>
#include <map>
#include <numeric>
#include <QFont>
#include <utility>

namespace ui {

namespace {

/// For asserts: equal for the same numbers in any order, and hardly ever for others.
[[maybe_unused]] uint64_t sumOf(const std::vector<uint32_t>& numbers) {
    constexpr uint64_t odd = 0x9E3779B97F4A7C15;
    return std::accumulate(numbers.begin(), numbers.end(), uint64_t{numbers.size()},
                           [](uint64_t sum, uint32_t number) {
                               const uint64_t mixed = (number + odd) * odd;
                               return sum + (mixed ^ mixed >> 29) * odd;
                           });
}

}  // namespace

void GridModel::setSnapshot(ado::Snapshot rows) {
    beginResetModel();
    m_rows = std::move(rows);
    m_blank = false;
    m_written.clear();
    m_filled.clear();
    m_headings = {QString()};
    for (const jet::Column& column : m_rows.columns())
        m_headings << QString::fromStdString(column.name);
    m_order.resize(static_cast<size_t>(m_headings.size()));
    std::iota(m_order.begin(), m_order.end(), 0);
    endResetModel();
}

void GridModel::clearTexts() {
    beginResetModel();
    m_blank = true;
    m_written.clear();
    for (QString& heading : m_headings)
        heading.clear();
    endResetModel();
}

void GridModel::truncate(int rows) {
    if (rows < 1 || rows >= gridRows()) return;
    beginResetModel();
    while (gridRows() > rows)
        m_rows.remove(m_rows.size() - 1);
    if (m_rows.size() == 0) m_rows.clear();
    m_filled.clear();
    endResetModel();
}

void GridModel::removeGridRow(int row) {
    if (row < 1 || row >= gridRows()) return;
    beginRemoveRows({}, row - 1, row - 1);
    std::erase(m_filled, m_rows.identity(static_cast<size_t>(row - 1)));
    m_rows.remove(static_cast<size_t>(row - 1));
    assert(m_filled.empty() || m_filled.size() == m_rows.size());
    endRemoveRows();
}

void GridModel::markRow(int row) {
    const QPersistentModelIndex before = std::exchange(m_marked, index(row - 1, 0));
    for (const QPersistentModelIndex& changed : {before, m_marked})
        if (changed.isValid())
            Q_EMIT dataChanged(changed, index(changed.row(), columnCount() - 1), {Qt::FontRole});
}

void GridModel::moveGridColumn(int from, int to) {
    if (from == to || !exists(0, from) || !exists(0, to)) return;
    // The position before which the column ends up, as the toolkit counts it.
    beginMoveColumns({}, from, from, {}, to > from ? to + 1 : to);
    const int source = m_order[static_cast<size_t>(from)];
    m_order.erase(m_order.begin() + from);
    m_order.insert(m_order.begin() + to, source);
    endMoveColumns();
}

void GridModel::arrange(std::vector<uint32_t> identities) {
    assert(sumOf(identities) == sumOf(m_rows.identities()));
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::map<int, uint32_t> rowsBefore;
    for (const QModelIndex& kept : before)
        rowsBefore[kept.row()] = m_rows.identity(static_cast<size_t>(kept.row()));
    if (m_filled.empty()) m_filled = m_rows.identities();
    m_rows.arrange(std::move(identities));
    std::map<int, int> rowsNow;
    for (const auto& [row, identity] : rowsBefore)
        rowsNow[row] =
            static_cast<int>(std::find(m_rows.identities().begin(), m_rows.identities().end(), identity) -
                             m_rows.identities().begin());
    QModelIndexList now;
    now.reserve(before.size());
    for (const QModelIndex& kept : before)
        now << index(rowsNow.at(kept.row()), kept.column());
    changePersistentIndexList(before, now);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void GridModel::describeHeading(int column, const QString& description) {
    m_describedColumn = column;
    m_description = description;
}

void GridModel::arrangeAsFilled() {
    if (m_filled.empty()) return;
    arrange(m_filled);
    m_filled.clear();
}

bool GridModel::exists(int row, int column) const {
    return row >= 0 && row < gridRows() && column >= 0 && column < columnCount();
}

quint64 GridModel::cell(int row, int column) const {
    return quint64{m_rows.identity(static_cast<size_t>(row - 1))} << 16 |
           static_cast<quint64>(sourceColumn(column));
}

ado::Value GridModel::value(int row, int column) const {
    const int source = sourceColumn(column);
    if (m_blank || source == 0) return {};
    return m_rows.value(static_cast<size_t>(row - 1), static_cast<size_t>(source - 1));
}

QString GridModel::text(int row, int column) const {
    if (!exists(row, column)) return {};
    if (row == 0) return m_headings[sourceColumn(column)];
    const auto written = m_written.constFind(cell(row, column));
    return written != m_written.constEnd() ? *written : value(row, column).toTextOrEmpty();
}

void GridModel::appendText(int row, int column, std::string& out) const {
    const int source = sourceColumn(column);
    if (m_written.isEmpty() && !m_blank && source > 0) {
        m_rows.appendText(static_cast<size_t>(row - 1), static_cast<size_t>(source - 1), out);
    } else {
        out += text(row, column).toStdString();
    }
}

void GridModel::setText(int row, int column, const QString& text) {
    if (!exists(row, column)) return;
    if (row == 0) {
        m_headings[sourceColumn(column)] = text;
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
        return;
    }
    m_written[cell(row, column)] = text;
    const QModelIndex place = index(row - 1, column);
    Q_EMIT dataChanged(place, place);
}

bool GridModel::isCheckColumn(int column) const {
    if (!exists(0, column) || sourceColumn(column) == 0) return false;
    return m_rows.columns()[static_cast<size_t>(sourceColumn(column) - 1)].type == jet::Type::YesNo;
}

int GridModel::firstCheckColumn() const {
    for (int column = 0; column < columnCount(); ++column)
        if (isCheckColumn(column)) return column;
    return -1;
}

bool GridModel::isChecked(int row, int column) const {
    if (row < 1 || !exists(row, column)) return false;
    const auto written = m_written.constFind(cell(row, column));
    const auto yes = (written != m_written.constEnd() ? ado::Value(*written) : value(row, column)).toBool();
    return yes.ok() && yes.value();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : gridRows() - 1;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_order.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const int row = index.row() + 1;
    const int column = index.column();
    const bool box = isCheckColumn(column);
    switch (role) {
        case Qt::DisplayRole:
            return box ? QString() : text(row, column);
        case Qt::CheckStateRole:
            if (!box) return {};
            return isChecked(row, column) ? Qt::Checked : Qt::Unchecked;
        case Qt::FontRole: {
            if (!m_marked.isValid() || m_marked.row() != index.row()) return {};
            QFont marked;
            marked.setItalic(true);
            return marked;
        }
        case Qt::AccessibleTextRole:
            return box ? text(0, column) : text(row, column);
        default:
            return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        if (role != Qt::DisplayRole) return {};
        const QString name = m_nameColumn > 0 ? text(section + 1, m_nameColumn) : QString();
        return name.isEmpty() ? QVariant(section + 1) : QVariant(name);
    }
    if (role == Qt::DisplayRole) return text(0, section);
    if (role == Qt::AccessibleDescriptionRole && section == m_describedColumn) return m_description;
    if (role != Qt::TextAlignmentRole) return {};
    return static_cast<int>(Qt::AlignVCenter | (isCheckColumn(section) ? Qt::AlignHCenter : Qt::AlignLeft));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return isCheckColumn(index.column()) ? plain | Qt::ItemIsUserCheckable : plain;
}

}  // namespace ui
