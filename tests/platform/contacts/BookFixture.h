// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QString>

/// An address book as the mail client keeps it, open as long as the object lives.
class BookFixture {
  public:
    explicit BookFixture(const QString& path, const QString& journalMode = "DELETE") : m_path(path) {
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_database), SQLITE_OK);
        run("PRAGMA journal_mode=" + journalMode);
        run("PRAGMA synchronous=OFF");
        run("CREATE TABLE properties (card TEXT, name TEXT, value TEXT)");
        run("CREATE TABLE lists (uid TEXT PRIMARY KEY, name TEXT, nickName TEXT, description TEXT)");
        run("CREATE TABLE list_cards (list TEXT, card TEXT, PRIMARY KEY(list, card))");
    }
    ~BookFixture() { sqlite3_close(m_database); }
    BookFixture(const BookFixture&) = delete;
    BookFixture& operator=(const BookFixture&) = delete;

    const QString& path() const { return m_path; }

    void run(const QString& statement) {
        EXPECT_EQ(sqlite3_exec(m_database, statement.toUtf8().constData(), nullptr, nullptr, nullptr),
                  SQLITE_OK)
            << sqlite3_errmsg(m_database);
    }

    void addProperty(const QString& card, const QString& name, const QString& value) {
        const auto quoted = [](QString text) { return "'" + text.replace('\'', "''") + "'"; };
        run("INSERT INTO properties VALUES (" + quoted(card) + ", " + quoted(name) + ", " + quoted(value) +
            ")");
    }

    void addCard(const QString& card, const QString& lines) {
        addProperty(card, "_vCard", "BEGIN:VCARD\nVERSION:4.0\n" + lines + "\nEND:VCARD\n");
    }

  private:
    QString m_path;
    sqlite3* m_database = nullptr;
};
