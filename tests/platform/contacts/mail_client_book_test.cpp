// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/MailClientBook.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <thread>

#include "platform/contacts/BookFixture.h"
#include "platform/contacts/card_printer.h"

namespace mail_client_book_test {

using contacts::findMailClientBook;
using contacts::readMailClientBook;

namespace {

QStringList namesIn(const QString& path) {
    const auto cards = readMailClientBook(path);
    EXPECT_TRUE(cards.ok()) << cards.status().text().toStdString();
    QStringList names;
    if (cards.ok()) {
        for (const auto& card : cards.value())
            names.append(card.displayName);
    }
    return names;
}

void setTime(const QString& path, int daysAgo) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        file.setFileTime(QDateTime::currentDateTime().addDays(-daysAgo), QFile::FileModificationTime));
}

}  // namespace

TEST(MailClientBook, CardsComeInTheOrderInWhichTheyWereAdded) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"));
    book.addCard("z", "FN:Zoe\nEMAIL:zoe@example.it");
    book.addCard("a", "FN:Ada\nEMAIL:ada@example.it");
    EXPECT_EQ(namesIn(book.path()), (QStringList{"Zoe", "Ada"}));
}

TEST(MailClientBook, ListIsAnEntryWithoutAddress) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"));
    book.addCard("a", "FN:Ada\nEMAIL:ada@example.it");
    book.run("INSERT INTO lists VALUES ('l', 'Clienti', '', '')");
    book.run("INSERT INTO list_cards VALUES ('l', 'a')");
    const auto cards = readMailClientBook(book.path());
    ASSERT_TRUE(cards.ok());
    ASSERT_EQ(cards.value().size(), 2u);
    EXPECT_EQ(cards.value()[1].displayName, "Clienti");
    EXPECT_EQ(cards.value()[1].emailAddress, "");
}

TEST(MailClientBook, CardOfAnOlderVersionIsReadFromItsProperties) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"));
    const QList<QStringList> properties{{"PrimaryEmail", "ada@example.it"},
                                        {"DisplayName", "Ada Perù"},
                                        {"Company", "Città"},
                                        {"HomeAddress", "Via Casa 9"},
                                        {"HomeZipCode", "00100"},
                                        {"HomeCity", "Roma"},
                                        {"WorkPhone", "02 1"},
                                        {"FaxNumber", "02 2"},
                                        {"WorkAddress", "Via Roma 2"}};
    for (const QStringList& property : properties)
        book.addProperty("a", property[0], property[1]);
    const auto cards = readMailClientBook(book.path());
    ASSERT_TRUE(cards.ok());
    ASSERT_EQ(cards.value().size(), 1u);
    EXPECT_EQ(textsOf(cards.value().front()), (QStringList{"ada@example.it", "Ada Perù", "Città",
                                                           "Via Casa 9", "00100", "Roma", "02 1", "02 2"}));
}

TEST(MailClientBook, CardComesBeforeSinglePropertiesWhateverTheirOrder) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"));
    book.addProperty("a", "DisplayName", "prima");
    book.addCard("a", "FN:Ada\nEMAIL:ada@example.it");
    book.addProperty("a", "PrimaryEmail", "altro@example.it");
    const auto cards = readMailClientBook(book.path());
    ASSERT_TRUE(cards.ok());
    ASSERT_EQ(cards.value().size(), 1u);
    EXPECT_EQ(cards.value().front().displayName, "Ada");
    EXPECT_EQ(cards.value().front().emailAddress, "ada@example.it");
}

TEST(MailClientBook, WhatIsInTheWriteAheadLogCounts) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"), "WAL");
    book.addCard("a", "FN:Ada\nEMAIL:ada@example.it");
    ASSERT_GT(QFileInfo(book.path() + "-wal").size(), 0);
    EXPECT_EQ(namesIn(book.path()), QStringList{"Ada"});
    book.addCard("b", "FN:Bea\nEMAIL:bea@example.it");
    EXPECT_EQ(namesIn(book.path()), (QStringList{"Ada", "Bea"}));
}

TEST(MailClientBook, BookThatItsOwnerHasLockedIsRead) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"), "WAL");
    book.addCard("a", "FN:Ada\nEMAIL:ada@example.it");
    book.run("PRAGMA locking_mode=EXCLUSIVE");
    book.run("BEGIN EXCLUSIVE");
    book.addCard("b", "FN:Non confermata\nEMAIL:bea@example.it");
    EXPECT_EQ(namesIn(book.path()), QStringList{"Ada"});
}

TEST(MailClientBook, ReadingLeavesTheFolderAsItWas) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"), "WAL");
    book.addCard("a", "FN:Ada\nEMAIL:ada@example.it");
    const QByteArray before = bytesOf(book.path()), log = bytesOf(book.path() + "-wal");
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    EXPECT_EQ(namesIn(book.path()), QStringList{"Ada"});
    EXPECT_EQ(bytesOf(book.path()), before);
    EXPECT_EQ(bytesOf(book.path() + "-wal"), log);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), files);
}

TEST(MailClientBook, HotJournalIsRolledBackInTheCopy) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"), "DELETE");
    for (int i = 0; i < 300; ++i) {
        book.addCard(QString::number(i), QString("FN:Ada\nNOTE:%1").arg(QString(1000, 'x')));
    }
    book.run("PRAGMA cache_size=2");
    book.run("PRAGMA cache_spill=ON");
    book.run("BEGIN");
    book.run("DELETE FROM properties");
    ASSERT_GT(QFileInfo(book.path() + "-journal").size(), 0);
    EXPECT_EQ(namesIn(book.path()).size(), 300);
}

TEST(MailClientBook, WhatIsNoBookIsReportedAndNotRead) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("abook.sqlite");
    EXPECT_EQ(readMailClientBook(path).status().code(), ErrorCode::FileNotFound);
    EXPECT_EQ(readMailClientBook(folder.path()).status().code(), ErrorCode::FileNotFound);
    writeBytes(path, QByteArray(5000, 'x'));
    EXPECT_EQ(readMailClientBook(path).status().code(), ErrorCode::UnrecognizedFormat);
    writeBytes(path, "");
    EXPECT_EQ(readMailClientBook(path).status().code(), ErrorCode::UnrecognizedFormat);
}

TEST(MailClientBook, WhatIsTooLargeOrCannotBeReadIsReported) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("abook.sqlite");
    writeBytes(path, "SQLite format 3");
    ASSERT_TRUE(QFile::resize(path, 2LL << 30));
    EXPECT_EQ(readMailClientBook(path).status().code(), ErrorCode::UnrecognizedFormat);
    ASSERT_TRUE(QFile::remove(path) && QFile::link("/proc/self/mem", path));
    EXPECT_FALSE(readMailClientBook(path).ok());
    ASSERT_TRUE(QFile::remove(path) && QFile::link("/dev/zero", path));
    EXPECT_EQ(readMailClientBook(path).status().code(), ErrorCode::FileNotFound);
}

// What is read is a state that the book really had, or a failure is reported.
TEST(MailClientBook, BookThatIsWrittenToMeanwhileIsNeverReadInPieces) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("abook.sqlite");
    BookFixture book(path, "WAL");
    book.run("PRAGMA wal_autocheckpoint=20");
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        for (int i = 0; !stop; ++i) {
            book.addCard(QString::number(i), QString("FN:N%1\nNOTE:%2").arg(i).arg(QString(500, 'x')));
            std::this_thread::sleep_for(std::chrono::milliseconds(i % 40 == 39 ? 60 : 1));
        }
    });
    for (int reading = 0; reading < 8; ++reading) {
        const auto cards = readMailClientBook(path);
        EXPECT_TRUE(cards.ok() || cards.status().code() == ErrorCode::PathAccess);
        if (!cards.ok()) continue;
        for (std::size_t i = 0; i < cards.value().size(); ++i)
            ASSERT_EQ(cards.value()[i].displayName, QString("N%1").arg(i));
    }
    stop = true;
    writer.join();
    EXPECT_FALSE(namesIn(path).isEmpty());
}

TEST(MailClientBook, DamagedPagesNeverHarm) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"), "DELETE");
    for (int i = 0; i < 50; ++i)
        book.addCard(QString::number(i), "FN:Ada\nEMAIL:ada@example.it");
    const QByteArray good = bytesOf(book.path());
    const QString path = folder.filePath("damaged.sqlite");
    unsigned seed = 1;
    int refused = 0;
    for (int variant = 0; variant < 200; ++variant) {
        QByteArray bytes = good;
        for (int i = 0; i < 20; ++i) {
            seed = seed * 1103515245u + 12345u;
            bytes[static_cast<qsizetype>((seed >> 4) % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(seed >> 24);
        }
        writeBytes(path, bytes);
        const auto cards = readMailClientBook(path);
        if (cards.ok()) {
            EXPECT_LE(cards.value().size(), 1000u);
        } else {
            ++refused;
        }
    }
    EXPECT_GT(refused, 0);
}

TEST(MailClientBook, TableThatComputesWithoutEndIsGivenUp) {
    const QTemporaryDir folder;
    BookFixture book(folder.filePath("abook.sqlite"), "DELETE");
    book.run("DROP TABLE properties");
    book.run(
        "CREATE VIEW properties AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
        "SELECT 'a' AS card, 'x' AS name, 'y' AS value, i AS rowid FROM n");
    EXPECT_EQ(readMailClientBook(book.path()).status().code(), ErrorCode::UnrecognizedFormat);
}

TEST(MailClientBook, LastChangedBookOfAllProfilesIsTheUsersOwn) {
    const QTemporaryDir home;
    EXPECT_EQ(findMailClientBook(home.path()), "");
    QStringList books;
    for (const char* profile :
         {".thunderbird/aaa.default", ".thunderbird/bbb.default-release", ".icedove/ccc"}) {
        ASSERT_TRUE(QDir(home.path()).mkpath(profile));
        books.append(home.filePath(profile) + "/abook.sqlite");
        writeBytes(books.last(), "x");
        setTime(books.last(), 10);
    }
    setTime(books[1], 3);
    EXPECT_EQ(findMailClientBook(home.path()), books[1]);
    writeBytes(books[2] + "-wal", "x");
    EXPECT_EQ(findMailClientBook(home.path()), books[2]);
}

TEST(MailClientBook, BookOfTheRealProgram) {
    const QString path = SHARED_DIR "/addressbook/abook.sqlite";
    if (!QFile::exists(path)) {
        GTEST_SKIP() << "the sample address book is not here";
    }
    const auto cards = readMailClientBook(path);
    ASSERT_TRUE(cards.ok());
    ASSERT_EQ(cards.value().size(), 5u);
    EXPECT_EQ(textsOf(cards.value()[0]),
              (QStringList{"n.davola@example.it", "Niccolò D'Àvola", "Società Perù & C.", "Via Casa 3",
                           "47121", "Forlì", "0921 1", "0921 2"}));
    EXPECT_EQ(textsOf(cards.value()[1]),
              (QStringList{"", "Senza indirizzo", "Niente S.p.A.", "", "", "", "", ""}));
    EXPECT_EQ(textsOf(cards.value()[2]),
              (QStringList{"ada@example.museum", "Ada Rossi", "", "", "", "", "", ""}));
    EXPECT_EQ(textsOf(cards.value()[3]), (QStringList{"jose@example.it", "José Perù", "Città", "Via Casa 9",
                                                      "00100", "Roma", "0543 1", "0543 2"}));
    EXPECT_EQ(cards.value()[4].emailAddress, "");
}

}  // namespace mail_client_book_test
