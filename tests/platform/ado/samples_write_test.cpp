// SPDX-License-Identifier: GPL-3.0-or-later
// INSERT, UPDATE and DELETE of every shape on every table of databases made by other programs: mdbtools reads
// the expected rows afterwards and the page checker finds nothing; or the statement is refused and the file
// is unchanged.
#include "platform/ado/Samples.h"
#include "support/JetChecker.h"

namespace samples_write_test {

namespace {

using jet::Type;

class SamplesWriteTest : public ado::Samples {
  protected:
    static std::string bytesOf(const Sample& sample) {
        QFile file(sample.path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }
    static std::vector<ComparableRow> outside(const Sample& sample, const jet::TableDefinition& table) {
        return mdbtoolsTable(sample.path.toStdString(), table).value();
    }
    /// The rows as lines, without auto-numbers where rows are added.
    std::multiset<std::string> compared(const jet::TableDefinition& table,
                                        std::vector<ComparableRow> rows) const {
        for (ComparableRow& row : rows)
            for (size_t i = 0; i < row.size(); ++i)
                if (numbersDiffer && table.columns[i].autoNumber) row[i].clear();
        return linesOf(rows);
    }
    static void expectSound(const Sample& sample) {
        if (sample.old) return;
        EXPECT_EQ(checkJetFile(sample.path.toStdString()), std::vector<std::string>());
    }

    /// Runs a statement that must leave `expected` in the table, or be refused with the file
    /// unchanged.
    void check(const Sample& sample, const jet::TableDefinition& table, const QString& statement,
               const std::vector<ComparableRow>& expected) {
        const std::string before = bytesOf(sample);
        const auto result = run(sample, statement);
        if (!result.ok()) {
            const ErrorCode code = result.status().code();
            const bool understood = code == ErrorCode::NotSupported || code == ErrorCode::ReadOnlyDatabase ||
                                    code == ErrorCode::DuplicateKey || code == ErrorCode::ValueRequired ||
                                    code == ErrorCode::FieldTooSmall;
            EXPECT_TRUE(understood) << statement.toStdString() << ": " << ado::words(result.status());
            EXPECT_TRUE(bytesOf(sample) == before) << statement.toStdString();
            ++refused;
            return;
        }
        ++done;
        const auto lines = compared(table, expected);
        EXPECT_EQ(firstDifference(compared(table, outside(sample, table)), lines), "")
            << statement.toStdString();
        const Rows own = read(sample, table, QStringLiteral("SELECT * FROM ") + bracketed(table.name));
        EXPECT_EQ(firstDifference(compared(table, own.rows), lines), "") << statement.toStdString();
    }

    /// A literal for a column and its value; nothing for what a statement cannot write.
    struct Given {
        const char* literal;
        jet::Value value;
    };
    static std::optional<Given> given(const jet::Column& column) {
        if (column.autoNumber) return std::nullopt;
        switch (column.type) {
            case Type::YesNo:
                return Given{"True", true};
            case Type::Byte:
                return Given{"200", int64_t{200}};
            case Type::Integer:
                return Given{"-12345", int64_t{-12345}};
            case Type::Long:
                return Given{"1234567", int64_t{1234567}};
            case Type::Currency:
                return Given{"-12.3456", jet::Currency{-123456}};
            case Type::Single:
                return Given{"1.5", 1.5};
            case Type::Double:
                return Given{"-0.25", -0.25};
            case Type::Date:
                return Given{"#02/29/2004 18:00#", jet::Date{38046.75}};
            case Type::Text:
                return column.length >= 6 ? Given{"'D''O'", std::string("D'O")}
                                          : Given{"'z'", std::string("z")};
            default:
                return std::nullopt;
        }
    }

    /// The number in the middle of a column, empty where there is none.
    static std::string numberToChoose(const std::vector<ComparableRow>& rows, size_t column) {
        if (rows.empty()) return {};
        const std::string number = rows[rows.size() / 2][column];
        return number.find_first_not_of("-0123456789") == std::string::npos ? number : "";
    }

    /// Visits each table that mdbtools reads, in a fresh copy of its sample, which must be sound afterwards.
    template <class Walk>
    void onEachTable(const Walk& walk) {
        for (const Sample& sample : samples()) {
            SCOPED_TRACE(sample.name.toStdString());
            for (const jet::TableDefinition& table : tables(sample)) {
                SCOPED_TRACE(table.name);
                if (!mdbtoolsTable(sample.path.toStdString(), table)) return;
                renew(sample);
                walk(sample, table);
                expectSound(sample);
            }
        }
    }
    /// Where the samples are present, there were more statements of both kinds.
    void expectEnough(int leastDone, int leastRefused) const {
        if (!QFile::exists(QStringLiteral(SHARED_DIR "/mdb"))) return;
        EXPECT_GT(done, leastDone);
        EXPECT_GT(refused, leastRefused);
    }

    bool numbersDiffer = false;
    int done = 0;
    int refused = 0;
};

}  // namespace

TEST_F(SamplesWriteTest, InsertsAndCopiesOfRows) {
    numbersDiffer = true;
    onEachTable([this](const Sample& sample, const jet::TableDefinition& table) {
        QStringList names;
        QStringList literals;
        for (const jet::Column& column : table.columns)
            if (const auto value = given(column)) {
                names << bracketed(column.name);
                literals << QLatin1String(value->literal);
            }
        if (names.isEmpty()) return;
        const ComparableRow added = comparableRow(table, [&](size_t i) -> jet::Value {
            if (const auto value = given(table.columns[i])) return value->value;
            return table.columns[i].type == Type::YesNo ? jet::Value(false) : jet::Value();
        });
        auto expected = outside(sample, table);
        expected.push_back(added);
        check(sample, table,
              QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) ")
                  .arg(bracketed(table.name), names.join(QLatin1String(", ")),
                       literals.join(QLatin1String(", "))),
              expected);
        // A copy has what the statement names and Null elsewhere.
        expected = outside(sample, table);
        for (size_t row = 0, count = expected.size(); row < count; ++row) {
            ComparableRow copy = expected[row];
            for (size_t i = 0; i < copy.size(); ++i)
                if (!given(table.columns[i])) copy[i] = added[i];
            expected.push_back(copy);
        }
        check(sample, table,
              QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %1 ;")
                  .arg(bracketed(table.name), names.join(QLatin1String(", "))),
              expected);
    });
    expectEnough(20, 20);
}

TEST_F(SamplesWriteTest, UpdatesOfOneColumnInAllRowsAndInChosenOnes) {
    onEachTable([this](const Sample& sample, const jet::TableDefinition& table) {
        for (size_t i = 0; i < table.columns.size(); ++i) {
            const auto value = given(table.columns[i]);
            if (!value) continue;
            const std::string wanted = comparableRow(table, [&](size_t) { return value->value; })[i];
            const QString set = QStringLiteral("UPDATE %1 SET %2 = %3")
                                    .arg(bracketed(table.name), bracketed(table.columns[i].name),
                                         QLatin1String(value->literal));
            for (size_t k = 0; k < table.columns.size(); ++k) {
                if (k == i || table.columns[k].type != Type::Long) continue;
                auto expected = outside(sample, table);
                const std::string number = numberToChoose(expected, k);
                if (number.empty()) continue;
                for (ComparableRow& row : expected)
                    if (row[k] == number) row[i] = wanted;
                check(sample, table,
                      QStringLiteral("%1 WHERE %2 = %3 ;")
                          .arg(set, bracketed(table.columns[k].name), QString::fromStdString(number)),
                      expected);
                break;
            }
            auto expected = outside(sample, table);
            for (ComparableRow& row : expected)
                row[i] = wanted;
            check(sample, table, set + QLatin1Char(';'), expected);
            if (sample.old) break;  // all are refused
        }
    });
    expectEnough(100, 20);
}

TEST_F(SamplesWriteTest, DeletesOfChosenRowsAndOfAll) {
    onEachTable([this](const Sample& sample, const jet::TableDefinition& table) {
        for (size_t k = 0; k < table.columns.size(); ++k) {
            if (table.columns[k].type != Type::Long) continue;
            auto expected = outside(sample, table);
            const std::string number = numberToChoose(expected, k);
            if (number.empty()) continue;
            std::erase_if(expected, [&](const ComparableRow& row) { return row[k] == number; });
            check(sample, table,
                  QStringLiteral("DELETE FROM %1 WHERE %2 = %3 ;")
                      .arg(bracketed(table.name), bracketed(table.columns[k].name),
                           QString::fromStdString(number)),
                  expected);
        }
        check(sample, table, QStringLiteral("DELETE FROM ") + bracketed(table.name), {});
    });
    expectEnough(40, 20);
}

// A row that is added through a recordset: its number is known before it is posted and is in the file.
TEST_F(SamplesWriteTest, NewRowsThroughARecordset) {
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.name.toStdString());
        for (const jet::TableDefinition& table : tables(sample)) {
            SCOPED_TRACE(table.name);
            const auto key = table.longPrimaryKey();
            if (!key || !table.columns[*key].autoNumber) continue;
            renew(sample);
            const std::string before = bytesOf(sample);
            ado::Recordset rows;
            ASSERT_TRUE(rows.setActiveConnection(sample.connection).ok());
            rows.setCursorType(ado::CursorType::Static);
            rows.setLockType(ado::LockType::Optimistic);
            rows.setSource(QStringLiteral("SELECT * FROM %1;").arg(bracketed(table.name)));
            ASSERT_TRUE(rows.open().ok());
            if (const Status status = rows.addNew(); !status.ok()) {
                EXPECT_TRUE(status.code() == ErrorCode::NotSupported ||
                            status.code() == ErrorCode::ReadOnlyDatabase)
                    << ado::words(status);
                EXPECT_TRUE(bytesOf(sample) == before);
                ++refused;
                continue;
            }
            const qint64 number =
                rows.value(QString::fromStdString(table.columns[*key].name)).value().toInteger().value();
            for (const jet::Column& column : table.columns)
                if (const auto value = given(column)) {
                    EXPECT_TRUE(
                        rows.setValue(QString::fromStdString(column.name), ado::Value(value->value)).ok());
                }
            const Status status = rows.update();
            EXPECT_TRUE(status.ok()) << ado::words(status);
            rows.close();
            const auto after = mdbtoolsTable(sample.path.toStdString(), table);
            if (!after) return;
            const std::string text = std::to_string(number);
            EXPECT_EQ(std::count_if(after->begin(), after->end(),
                                    [&](const ComparableRow& row) { return row[*key] == text; }),
                      1);
            expectSound(sample);
            ++done;
        }
    }
    if (QFile::exists(QStringLiteral(SHARED_DIR "/mdb"))) {
        EXPECT_GT(done, 5);
    }
}

}  // namespace samples_write_test
