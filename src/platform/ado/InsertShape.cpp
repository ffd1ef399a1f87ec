// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/InsertShape.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "platform/ado/SqlTokens.h"

namespace ado {

namespace {

using namespace std::string_view_literals;

/// ASCII letters without regard to case, as SQLite compares names.
bool sameName(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

/// Reads literals from the start of a text. What it does not know is left to the reader of all statements.
class Literals {
  public:
    explicit Literals(std::string_view text) : m_text(text) {}

    bool take(char sign) {
        skipBlanks();
        if (m_text.empty() || m_text.front() != sign) return false;
        m_text.remove_prefix(1);
        return true;
    }
    bool atEnd() {
        skipBlanks();
        return m_text.empty();
    }
    bool takeValue(jet::Value& value) {
        skipBlanks();
        return take('\'') ? takeText(value.emplace<std::string>()) : takeWord(value);
    }

  private:
    void skipBlanks() {
        while (!m_text.empty() && isBlank(m_text.front()))
            m_text.remove_prefix(1);
    }
    /// After the opening quote.
    bool takeText(std::string& text) {
        for (;;) {
            const size_t quote = m_text.find('\'');
            if (quote == m_text.npos) return false;
            text.append(m_text.substr(0, quote));
            m_text.remove_prefix(quote + 1);
            if (m_text.empty() || m_text.front() != '\'') return true;
            text += '\'';  // doubled
            m_text.remove_prefix(1);
        }
    }
    bool takeWord(jet::Value& value) {
        const auto end = std::find_if(m_text.begin(), m_text.end(),
                                      [](char c) { return isBlank(c) || c == ',' || c == ')'; });
        const std::string_view word(m_text.begin(), end);
        m_text.remove_prefix(word.size());
        if (sameName(word, "NULL"sv)) return true;
        if (sameName(word, "TRUE"sv) || sameName(word, "FALSE"sv)) {
            value = int64_t{sameName(word, "TRUE"sv) ? -1 : 0};
            return true;
        }
        int64_t number = 0;
        const char* const last = word.data() + word.size();
        const auto read = std::from_chars(word.data(), last, number);
        if (word.starts_with('-') || read.ec != std::errc() || read.ptr != last) return false;
        value = number;
        return true;
    }

    std::string_view m_text;
};

}  // namespace

std::optional<InsertShape> InsertShape::of(const StatementText& statement,
                                           const jet::TableDefinition& table) {
    if (!statement.row || statement.row->start.isEmpty()) return std::nullopt;
    InsertShape shape;
    shape.m_table = statement.table;
    shape.m_start = statement.row->start;
    shape.m_columns = table.columns.size();
    for (const std::string& name : statement.row->columns) {
        const auto named = [&](const jet::Column& column) { return sameName(column.name, name); };
        const auto found = std::find_if(table.columns.begin(), table.columns.end(), named);
        if (found == table.columns.end() ||
            std::find_if(found + 1, table.columns.end(), named) != table.columns.end())
            return std::nullopt;
        const auto position = static_cast<size_t>(found - table.columns.begin());
        if (std::ranges::find(shape.m_positions, position) != shape.m_positions.end()) return std::nullopt;
        shape.m_positions.push_back(position);
    }
    return shape;
}

std::optional<std::vector<jet::Value>> InsertShape::row(const QString& text) const {
    if (text.size() > longestStatement) return std::nullopt;
    const QByteArray sql = text.toUtf8();
    if (!sql.startsWith(m_start) || sql.contains('\0')) return std::nullopt;
    Literals literals(std::string_view(sql.constData(), static_cast<size_t>(sql.size()))
                          .substr(static_cast<size_t>(m_start.size())));
    std::vector<jet::Value> values(m_columns);
    char before = '(';
    for (const size_t position : m_positions) {
        if (!literals.take(before) || !literals.takeValue(values[position])) return std::nullopt;
        before = ',';
    }
    if (!literals.take(')')) return std::nullopt;
    (void)literals.take(';');
    return literals.atEnd() ? std::optional(std::move(values)) : std::nullopt;
}

}  // namespace ado
