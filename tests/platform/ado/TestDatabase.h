// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "modules/store/NuovoDatabase.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Command.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/jet/Database.h"
#include "support/JetChecker.h"

namespace ado {

inline QString connectionTo(const QString& path) {
    return QStringLiteral("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = ") + path;
}

inline std::string words(const Status& status) {
    return status.text().toStdString();
}

/// A fresh recipient list for each test.
class TestDatabase : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_folder.isValid());
        path = m_folder.filePath(QStringLiteral("lista di prova.mdb"));
        const Status status = schema::CreaDatabase(path.toStdString());
        ASSERT_TRUE(status.ok()) << words(status);
        connection = connectionTo(path);
    }
    /// Verifies at the end of each test that what the engine has written is sound.
    void TearDown() override {
        closeAll();
        if (!m_unsound && !HasFailure() && QFile::exists(path)) {
            EXPECT_EQ(checkJetFile(path.toStdString()), std::vector<std::string>());
        }
    }
    /// For a test that damages the file itself.
    void leaveUnsound() { m_unsound = true; }

    QString inFolder(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    Result<qint64> tryRun(const QString& statement, int timeout = 0) const {
        Command command;
        if (Status status = command.setActiveConnection(connection); !status.ok()) return status;
        command.setCommandText(statement);
        command.setCommandTimeout(timeout);
        return command.execute();
    }
    /// Runs a statement that must succeed; returns the number of rows it affected.
    qint64 run(const QString& statement) const {
        const Result<qint64> rows = tryRun(statement);
        EXPECT_TRUE(rows.ok()) << statement.toStdString() << ": " << words(rows.status());
        return rows.ok() ? rows.value() : -1;
    }
    qint64 run(const char* statement) const { return run(QString::fromUtf8(statement)); }
    ErrorCode failure(const char* statement) const {
        return tryRun(QString::fromUtf8(statement)).status().code();
    }

    Recordset open(const QString& statement, CursorType cursor = CursorType::Static,
                   LockType lock = LockType::Optimistic) const {
        Recordset rows;
        Status status = rows.setActiveConnection(connection);
        EXPECT_TRUE(status.ok()) << words(status);
        rows.setCursorType(cursor);
        rows.setCursorLocation(CursorLocation::Server);
        rows.setLockType(lock);
        rows.setSource(statement);
        status = rows.open();
        EXPECT_TRUE(status.ok()) << statement.toStdString() << ": " << words(status);
        return rows;
    }
    Recordset open(const char* statement) const { return open(QString::fromUtf8(statement)); }

    /// One column of a SELECT, as texts joined by "|"; Null as "(null)".
    std::string column(const char* statement, const char* name) const {
        Recordset rows = open(statement);
        QStringList texts;
        while (rows.isOpen() && !rows.isEof()) {
            const Result<Value> value = rows.value(QString::fromUtf8(name));
            EXPECT_TRUE(value.ok()) << words(value.status());
            if (!value.ok()) break;
            texts << (value.value().isNull() ? QStringLiteral("(null)")
                                             : value.value().toTextOrEmpty(QLocale::c()));
            EXPECT_TRUE(rows.moveNext().ok());
        }
        return texts.join(QLatin1Char('|')).toStdString();
    }

    QString path;
    QString connection;

  private:
    QTemporaryDir m_folder;
    bool m_unsound = false;
};

}  // namespace ado
