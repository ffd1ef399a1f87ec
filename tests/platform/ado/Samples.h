// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <map>

#include "platform/ado/TestDatabase.h"
#include "platform/jet/OutsideReaders.h"
#include "support/MemoryFolder.h"

namespace ado {

/// Copies of databases made by other programs, with their tables. Without the samples, which are outside the
/// sources, every loop is empty and a note is printed.
class Samples : public ::testing::Test {
  protected:
    struct Sample {
        QString name;
        QString path;  ///< of the copy
        QString connection;
        bool old;  ///< Access 97
    };

    void TearDown() override { closeAll(); }

    /// Fresh copies of all samples.
    std::vector<Sample> samples() {
        const QDir folder(QStringLiteral(SHARED_DIR "/mdb"));
        std::vector<Sample> all;
        for (const QString& name : folder.entryList({QStringLiteral("*.mdb")}, QDir::Files)) {
            Sample sample{name, m_folder.filePath(name), {}, false};
            renew(sample);
            sample.connection = connectionTo(sample.path);
            if (name.contains(QLatin1String("with-password")))
                sample.connection += QStringLiteral(";;Jet OLEDB:Database Password=password");
            QFile file(sample.path);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            sample.old = file.read(0x15).back() == 0;
            all.push_back(sample);
        }
        if (all.empty()) std::printf("[ SAMPLES  ] the samples are not here: skipped\n");
        return all;
    }
    /// Restores the copy.
    static void renew(const Sample& sample) {
        closeAll();
        QFile::remove(sample.path);
        EXPECT_TRUE(QFile::copy(QStringLiteral(SHARED_DIR "/mdb/") + sample.name, sample.path));
        EXPECT_TRUE(QFile::setPermissions(sample.path, QFile::ReadOwner | QFile::WriteOwner));
    }
    /// Local tables of the user's.
    static std::vector<jet::TableDefinition> tables(const Sample& sample) {
        Connection connection;
        EXPECT_TRUE(connection.open(sample.connection).ok()) << sample.name.toStdString();
        Catalog catalog;
        catalog.setActiveConnection(connection);
        const auto entries = catalog.tables();
        EXPECT_TRUE(entries.ok()) << words(entries.status());
        jet::Database::Options options;
        options.password = "password";
        auto database = jet::Database::open(sample.path.toStdString(), options);
        EXPECT_TRUE(database.ok()) << words(database.status());
        std::vector<jet::TableDefinition> definitions;
        for (const auto& entry : entries.value())
            if (entry.kind == Catalog::Kind::Table)
                definitions.push_back(
                    database.value()->table(entry.name.toStdString()).value()->definition());
        return definitions;
    }

    struct Rows {
        std::vector<ComparableRow> rows;
        std::vector<std::vector<Value>> values;
        std::multiset<std::string> lines() const {
            std::multiset<std::string> all;
            for (const ComparableRow& row : rows)
                all.insert(joined(row));
            return all;
        }
    };
    /// All rows of a `SELECT * FROM` that table.
    static Rows read(const Sample& sample, const jet::TableDefinition& table, const QString& statement) {
        Rows result;
        Recordset rows;
        EXPECT_TRUE(rows.setActiveConnection(sample.connection).ok());
        rows.setSource(statement);
        const Status status = rows.open();
        EXPECT_TRUE(status.ok()) << statement.toStdString() << ": " << words(status);
        if (!status.ok()) return result;
        EXPECT_EQ(static_cast<size_t>(rows.fieldCount()), table.columns.size());
        while (!rows.isEof()) {
            std::vector<Value> values;
            for (int i = 0; i < rows.fieldCount(); ++i) {
                const auto value = rows.value(i);
                EXPECT_TRUE(value.ok()) << words(value.status());
                values.push_back(value.ok() ? value.value() : Value());
            }
            result.rows.push_back(comparableRow(table, [&](size_t i) { return values[i].raw(); }));
            result.values.push_back(std::move(values));
            EXPECT_TRUE(rows.moveNext().ok());
        }
        return result;
    }
    static std::multiset<std::string> linesOf(const std::vector<ComparableRow>& rows) {
        std::multiset<std::string> lines;
        for (const ComparableRow& row : rows)
            lines.insert(joined(row));
        return lines;
    }
    static Result<qint64> run(const Sample& sample, const QString& statement) {
        Command command;
        if (Status status = command.setActiveConnection(sample.connection); !status.ok()) return status;
        command.setCommandText(statement);
        command.setCommandTimeout(0);
        return command.execute();
    }
    static QString bracketed(const std::string& name) { return QString::fromStdString('[' + name + ']'); }
    static QString quoted(const std::string& text) {
        return QLatin1Char('\'') + QString::fromStdString(text).replace(u'\'', QLatin1String("''")) +
               QLatin1Char('\'');
    }

  private:
    QTemporaryDir m_folder{memoryFolderPattern()};
};

}  // namespace ado
