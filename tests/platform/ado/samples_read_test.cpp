// SPDX-License-Identifier: GPL-3.0-or-later
// Every kind of SELECT on every table of databases made by other programs returns what mdbtools reads there.
#include <QDate>

#include "platform/ado/Samples.h"
#include "platform/jet/GeneralOrder.h"

namespace samples_read_test {

namespace {

using jet::Type;

class SamplesReadTest : public ado::Samples {
  protected:
    /// Compares two fields of a column in the database's order: Null, then values.
    static int compare(const ado::Value& left, const ado::Value& right) {
        if (left.isNull() || right.isNull()) return int{right.isNull()} - int{left.isNull()};
        if (left.type() == ado::Value::Type::Text)
            return jet::compareGeneral(std::get<std::string>(left.raw()), std::get<std::string>(right.raw()));
        const auto number = [](const ado::Value& value) -> double {
            const jet::Value raw = value.raw();
            if (const auto* date = std::get_if<jet::Date>(&raw)) return date->days;
            if (const auto* real = std::get_if<double>(&raw)) return *real;
            if (const auto* amount = std::get_if<jet::Currency>(&raw))
                return static_cast<double>(amount->tenThousandths);
            return static_cast<double>(value.toInteger().value());
        };
        return number(left) < number(right) ? -1 : number(left) > number(right);
    }
    static bool canSort(Type type) { return type != Type::Ole && type != Type::Binary; }

    /// A condition that selects rows with the value of `row` in that column, and the rows that it must
    /// select; nothing where no literal can express the value.
    struct Choice {
        QString condition;
        std::multiset<std::string> rows;
    };
    static std::optional<Choice> choice(const jet::TableDefinition& table,
                                        const std::vector<ComparableRow>& all, const Rows& read, size_t row,
                                        size_t column) {
        const ado::Value& wanted = read.values[row][column];
        const auto literal = literalOf(wanted);
        const Type type = table.columns[column].type;
        if (!literal || type == Type::Guid || type == Type::Numeric) return std::nullopt;
        Choice result{bracketed(table.columns[column].name) + QStringLiteral(" = ") + *literal, {}};
        for (const ComparableRow& other : all) {
            const bool same =
                wanted.type() == ado::Value::Type::Text
                    ? jet::compareGeneral(other[column], std::get<std::string>(wanted.raw())) == 0
                    : other[column] == read.rows[row][column];
            if (same) result.rows.insert(joined(other));
        }
        return result;
    }
    static std::optional<QString> literalOf(const ado::Value& value) {
        switch (value.type()) {
            case ado::Value::Type::YesNo:
                return value.toBool().value() ? QStringLiteral("True") : QStringLiteral("False");
            case ado::Value::Type::Integer:
                return QString::number(value.toInteger().value());
            case ado::Value::Type::Text: {
                const auto text = std::get<std::string>(value.raw());
                // mdbtools prints an empty text, Null and an unknown character alike
                if (text.empty() || text.find('?') != std::string::npos ||
                    text.find('\0') != std::string::npos)
                    return std::nullopt;
                return quoted(text);
            }
            case ado::Value::Type::Date: {
                const double days = std::get<jet::Date>(value.raw()).days;
                if (days != std::floor(days) || days < 2) return std::nullopt;
                const QDate date = QDate(1899, 12, 30).addDays(static_cast<qint64>(days));
                return date.toString(QStringLiteral("#MM/dd/yyyy#"));
            }
            default:
                return std::nullopt;
        }
    }
};

}  // namespace

TEST_F(SamplesReadTest, EveryTableIsReadWholeAndInEveryOrder) {
    size_t tablesRead = 0;
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.name.toStdString());
        for (const jet::TableDefinition& table : tables(sample)) {
            SCOPED_TRACE(table.name);
            const auto expected = mdbtoolsTable(sample.path.toStdString(), table);
            if (!expected) return;
            const auto lines = linesOf(*expected);
            const QString select = QStringLiteral("SELECT * FROM ") + bracketed(table.name);
            EXPECT_EQ(firstDifference(read(sample, table, select + QStringLiteral(" ;")).lines(), lines), "");
            for (size_t i = 0; i < table.columns.size(); ++i) {
                if (!canSort(table.columns[i].type)) continue;
                for (const char* direction : {"ASC", "DESC"}) {
                    const Rows rows =
                        read(sample, table,
                             QStringLiteral("%1 ORDER BY %2 %3;")
                                 .arg(select, bracketed(table.columns[i].name), QLatin1String(direction)));
                    EXPECT_EQ(firstDifference(rows.lines(), lines), "");
                    const int sign = *direction == 'A' ? 1 : -1;
                    for (size_t row = 1; row < rows.values.size(); ++row)
                        EXPECT_LE(sign * compare(rows.values[row - 1][i], rows.values[row][i]), 0)
                            << table.columns[i].name << ' ' << direction << ' ' << row;
                }
            }
            ++tablesRead;
        }
    }
    if (QFile::exists(QStringLiteral(SHARED_DIR "/mdb"))) {
        EXPECT_GT(tablesRead, 100u);
    }
}

TEST_F(SamplesReadTest, ConditionsChooseTheRowsWithTheValue) {
    size_t chosen = 0;
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.name.toStdString());
        for (const jet::TableDefinition& table : tables(sample)) {
            SCOPED_TRACE(table.name);
            const auto expected = mdbtoolsTable(sample.path.toStdString(), table);
            if (!expected) return;
            const QString select = QStringLiteral("SELECT * FROM ") + bracketed(table.name);
            const Rows all = read(sample, table, select);
            if (all.rows.empty()) continue;
            for (size_t i = 0; i < table.columns.size(); ++i) {
                std::set<size_t> asked = {0, all.rows.size() / 2, all.rows.size() - 1};
                for (const size_t row : asked) {
                    const auto wanted = choice(table, *expected, all, row, i);
                    if (!wanted) continue;
                    const QString order = bracketed(table.columns[table.columns.size() - 1 - i].name);
                    for (const QString& statement :
                         {select + QStringLiteral(" WHERE ") + wanted->condition + QStringLiteral(" ;"),
                          select + QStringLiteral(" WHERE ") + wanted->condition +
                              QStringLiteral(" ORDER BY ") + order + QStringLiteral(" ASC;")})
                        EXPECT_EQ(firstDifference(read(sample, table, statement).lines(), wanted->rows), "")
                            << statement.toStdString();
                    ++chosen;
                }
            }
        }
    }
    if (QFile::exists(QStringLiteral(SHARED_DIR "/mdb"))) {
        EXPECT_GT(chosen, 500u);
    }
}

TEST_F(SamplesReadTest, EveryFieldHasTheTextThatAnImportNeeds) {
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.name.toStdString());
        for (const jet::TableDefinition& table : tables(sample)) {
            const Rows rows = read(sample, table, QStringLiteral("SELECT * FROM ") + bracketed(table.name));
            for (const auto& row : rows.values)
                for (size_t i = 0; i < row.size(); ++i) {
                    const Type type = table.columns[i].type;
                    const auto text = row[i].toText(QLocale(QLocale::Italian, QLocale::Italy));
                    const ErrorCode expected = row[i].isNull() ? ErrorCode::InvalidNull
                                               : canSort(type) ? ErrorCode::None
                                                               : ErrorCode::TypeMismatch;
                    EXPECT_EQ(text.status().code(), expected) << table.name << ' ' << table.columns[i].name;
                }
        }
    }
}

TEST_F(SamplesReadTest, GuidsAndDecimalsAreReadAsTheyAreWritten) {
    for (const Sample& sample : samples()) {
        if (sample.name == QLatin1String("jk-fixedNumericTestV2000.mdb")) {
            const auto table = tables(sample).at(0);
            const Rows rows = read(sample, table, QStringLiteral("SELECT * FROM [test] ;"));
            ASSERT_EQ(rows.values.size(), 1u);
            QStringList texts;
            for (const ado::Value& value : rows.values[0])
                texts << value.toTextOrEmpty();
            EXPECT_EQ(texts.join(u'|').toStdString(), "some data|1|0|0|4|-1|1");
        }
        if (sample.name == QLatin1String("jk-testIndexCodesV1997.mdb"))
            for (const auto& table : tables(sample))
                if (table.name == "Table13") {
                    const Rows rows = read(sample, table,
                                           QStringLiteral("SELECT * FROM Table13 WHERE data = "
                                                          "'{8E39276A-BCA8-4AC4-891E-49911D8438DD}'"));
                    ASSERT_EQ(rows.values.size(), 1u);
                    EXPECT_EQ(rows.values[0][0].toTextOrEmpty().toStdString(), "row0");
                }
    }
}

// The tables that a user may choose: neither system tables nor those of other files.
TEST_F(SamplesReadTest, TheCatalogueDistinguishesTablesFromLinksQueriesAndSystemTables) {
    std::map<ado::Catalog::Kind, int> seen;
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.name.toStdString());
        ado::Connection connection;
        ASSERT_TRUE(connection.open(sample.connection).ok());
        ado::Catalog catalog;
        catalog.setActiveConnection(connection);
        const auto entries = catalog.tables();
        ASSERT_TRUE(entries.ok());
        QString last;
        for (const auto& entry : entries.value()) {
            ++seen[entry.kind];
            EXPECT_LE(last.compare(entry.name, Qt::CaseInsensitive), 0) << entry.name.toStdString();
            last = entry.name;
            const bool system = entry.name.startsWith(QLatin1String("MSys"), Qt::CaseInsensitive);
            if (system) {
                EXPECT_EQ(entry.kind, ado::Catalog::Kind::SystemTable) << entry.name.toStdString();
            }
            const bool local =
                entry.kind == ado::Catalog::Kind::Table || entry.kind == ado::Catalog::Kind::SystemTable;
            EXPECT_EQ(catalog.columns(entry.name).ok(), local) << entry.name.toStdString();
            if (local && !system) continue;
            ado::Recordset rows;
            ASSERT_TRUE(rows.setActiveConnection(connection).ok());
            rows.setSource(QStringLiteral("SELECT * FROM [%1] ;").arg(entry.name));
            EXPECT_EQ(rows.open().code(), ErrorCode::NotSupported) << entry.name.toStdString();
        }
    }
    if (!seen.empty()) {
        EXPECT_EQ(seen.size(), 4u);
    }
}

}  // namespace samples_read_test
