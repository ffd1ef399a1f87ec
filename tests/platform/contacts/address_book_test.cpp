// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/AddressBook.h"

#include <gtest/gtest.h>

#include <array>
#include <QDir>
#include <QTemporaryDir>

#include "platform/contacts/BookFixture.h"
#include "support/Vectors.h"

namespace address_book_test {

using contacts::AddressBook;
using contacts::Entry;
using contacts::PropertyTag;

namespace {

/// A home without mail client, and a folder for cards.
class AddressBookTest : public testing::Test {
  protected:
    QString cards(const QString& name) const { return m_cards.filePath(name); }
    AddressBook book() const { return {m_home.path(), m_cards.path()}; }

    AddressBook opened() const {
        AddressBook result = book();
        EXPECT_TRUE(result.open().ok());
        return result;
    }
    static Entry firstOf(const AddressBook& open) {
        std::array<Entry, 1> entry;
        EXPECT_EQ(open.entries(entry), 1);
        return entry[0];
    }

    QString mailClientBook() const {
        const QString profile = m_home.filePath(".thunderbird/x.default");
        EXPECT_TRUE(QDir().mkpath(profile));
        return profile + "/abook.sqlite";
    }

    static QByteArray card(const QByteArray& lines) {
        return "BEGIN:VCARD\nVERSION:3.0\n" + lines + "\nEND:VCARD\n";
    }

    /// A property of the first entry, through a buffer of 256.
    static QByteArray textOf(const AddressBook& open, PropertyTag tag) {
        const Entry entry = firstOf(open);
        std::array<char, 256> buffer{};
        return open.text(entry, tag, buffer) ? QByteArray(buffer.data()) : QByteArray("(none)");
    }

  private:
    QTemporaryDir m_home;
    QTemporaryDir m_cards;
};

}  // namespace

TEST_F(AddressBookTest, OpeningFailsWhereThereIsNoBook) {
    AddressBook empty = book();
    EXPECT_EQ(empty.open().code(), ErrorCode::FileNotFound);
    EXPECT_EQ(empty.entryCount(), 0);
}

TEST_F(AddressBookTest, FolderThatIsMissingIsNoBook) {
    AddressBook none(cards("manca"), cards("manca"));
    EXPECT_EQ(none.open().code(), ErrorCode::FileNotFound);
}

TEST_F(AddressBookTest, EveryTagReturnsItsProperty) {
    writeBytes(cards("a.vcf"),
               card("FN:Ada\nEMAIL:ada@example.it\nORG:Rossi\nADR;TYPE=home:;;Via 1;Roma;;00100;\n"
                    "TEL;TYPE=work:1\nTEL;TYPE=fax:2"));
    AddressBook open = opened();
    EXPECT_EQ(textOf(open, PropertyTag::EmailAddress), "ada@example.it");
    EXPECT_EQ(textOf(open, PropertyTag::DisplayName), "Ada");
    EXPECT_EQ(textOf(open, PropertyTag::CompanyName), "Rossi");
    EXPECT_EQ(textOf(open, PropertyTag::HomeAddressStreet), "Via 1");
    EXPECT_EQ(textOf(open, PropertyTag::HomeAddressPostalCode), "00100");
    EXPECT_EQ(textOf(open, PropertyTag::HomeAddressCity), "Roma");
    EXPECT_EQ(textOf(open, PropertyTag::BusinessTelephoneNumber), "1");
    EXPECT_EQ(textOf(open, PropertyTag::BusinessFaxNumber), "2");
    EXPECT_EQ(textOf(open, static_cast<PropertyTag>(0x30020000)), "(none)");
}

TEST_F(AddressBookTest, TextFillsTheWholeBuffer) {
    writeBytes(cards("a.vcf"), card("FN:Ada"));
    const AddressBook open = opened();
    const Entry entry = firstOf(open);
    std::array<char, 8> buffer;
    buffer.fill('x');
    EXPECT_TRUE(open.text(entry, PropertyTag::DisplayName, buffer));
    EXPECT_EQ(QByteArray(buffer.data(), 8), QByteArray("Ada\0\0\0\0\0", 8));
}

TEST_F(AddressBookTest, LongTextIsCutBeforeTheLastByte) {
    writeBytes(cards("a.vcf"), card("FN:" + QByteArray(300, 'n')));
    AddressBook open = opened();
    EXPECT_EQ(textOf(open, PropertyTag::DisplayName), QByteArray(255, 'n'));
}

TEST_F(AddressBookTest, TextIsOfTheCodePage) {
    writeBytes(cards("a.vcf"), card("FN:Perù € Ω"));
    AddressBook open = opened();
    EXPECT_EQ(textOf(open, PropertyTag::DisplayName), "Per\xF9 \x80 ?");
}

TEST_F(AddressBookTest, EmptyOrMissingPropertyHasNoValueAndLeavesTheBuffer) {
    writeBytes(cards("a.vcf"), card("FN:Ada\nORG:"));
    const AddressBook open = opened();
    const Entry entry = firstOf(open);
    std::array<char, 4> buffer{'a', 'b', 'c', 'd'};
    EXPECT_FALSE(open.text(entry, PropertyTag::CompanyName, buffer));
    EXPECT_FALSE(open.text(entry, PropertyTag::EmailAddress, buffer));
    EXPECT_EQ(QByteArray(buffer.data(), 4), "abcd");
}

TEST_F(AddressBookTest, TextEndsAtItsFirstNul) {
    writeBytes(cards("a.vcf"),
               card("FN;ENCODING=QUOTED-PRINTABLE:Ada=00coda\nORG;ENCODING=QUOTED-PRINTABLE:=00x"));
    AddressBook open = opened();
    EXPECT_EQ(textOf(open, PropertyTag::DisplayName), "Ada");
    EXPECT_EQ(textOf(open, PropertyTag::CompanyName), "(none)");
}

TEST_F(AddressBookTest, BufferOfNoSizeTakesNothing) {
    writeBytes(cards("a.vcf"), card("FN:Ada"));
    const AddressBook open = opened();
    const Entry entry = firstOf(open);
    EXPECT_FALSE(open.text(entry, PropertyTag::DisplayName, {}));
}

TEST_F(AddressBookTest, EntriesFillNoMoreThanTheArrayTakes) {
    writeBytes(cards("a.vcf"), card("FN:A") + card("FN:B") + card("FN:C"));
    AddressBook open = opened();
    EXPECT_EQ(open.entryCount(), 3);
    std::array<Entry, 2> two;
    EXPECT_EQ(open.entries(two), 2);
    std::array<Entry, 5> five;
    EXPECT_EQ(open.entries(five), 3);
    EXPECT_EQ(five[3].number, 0u);
}

TEST_F(AddressBookTest, FreedEntriesAndAClosedBookAnswerNoMore) {
    writeBytes(cards("a.vcf"), card("FN:A") + card("FN:B"));
    AddressBook open = opened();
    std::array<Entry, 2> entries;
    open.entries(entries);
    std::array<char, 10> buffer{};
    open.freeEntries(std::span(entries).first(1));
    EXPECT_FALSE(open.text(entries[0], PropertyTag::DisplayName, buffer));
    EXPECT_TRUE(open.text(entries[1], PropertyTag::DisplayName, buffer));
    open.close();
    EXPECT_EQ(open.entryCount(), 0);
    EXPECT_FALSE(open.text(entries[1], PropertyTag::DisplayName, buffer));
}

TEST_F(AddressBookTest, FilesComeInTheOrderOfTheirNames) {
    writeBytes(cards("b.ldif"), "dn: x\ncn: Bea\n");
    writeBytes(cards("c.VCF"), card("FN:Cleo"));
    writeBytes(cards("a.vcf"), card("FN:Ada"));
    writeBytes(cards("nota.txt"), card("FN:Nessuno"));
    AddressBook open = opened();
    std::array<Entry, 3> entries;
    ASSERT_EQ(open.entries(entries), 3);
    QByteArrayList names;
    std::array<char, 10> buffer{};
    for (const Entry& entry : entries) {
        EXPECT_TRUE(open.text(entry, PropertyTag::DisplayName, buffer));
        names.append(buffer.data());
    }
    EXPECT_EQ(names, (QByteArrayList{"Ada", "Bea", "Cleo"}));
}

TEST_F(AddressBookTest, MailClientComesBeforeFiles) {
    writeBytes(cards("a.vcf"), card("FN:File"));
    BookFixture client(mailClientBook());
    client.addCard("1", "FN:Cliente di posta");
    AddressBook open = opened();
    EXPECT_EQ(open.entryCount(), 1);
    EXPECT_EQ(textOf(open, PropertyTag::DisplayName), "Cliente di posta");
}

TEST_F(AddressBookTest, EmptyOrUnreadableBookLetsFilesCount) {
    writeBytes(cards("a.vcf"), card("FN:File"));
    AddressBook open = book();
    {
        const BookFixture client(mailClientBook());
        ASSERT_TRUE(open.open().ok());
        EXPECT_EQ(textOf(open, PropertyTag::DisplayName), "File");
    }
    writeBytes(mailClientBook(), QByteArray(3000, 'x'));
    ASSERT_TRUE(open.open().ok());
    EXPECT_EQ(textOf(open, PropertyTag::DisplayName), "File");
}

TEST_F(AddressBookTest, EmptyBookOpensAndAnUnreadableOneDoesNot) {
    AddressBook open = book();
    {
        const BookFixture client(mailClientBook());
        EXPECT_TRUE(open.open().ok());
        EXPECT_EQ(open.entryCount(), 0);
    }
    writeBytes(mailClientBook(), QByteArray(3000, 'x'));
    EXPECT_EQ(open.open().code(), ErrorCode::UnrecognizedFormat);
}

TEST_F(AddressBookTest, WhatIsNoOrdinaryFileCountsAsEmpty) {
    ASSERT_TRUE(QDir().mkdir(cards("cartella.vcf")));
    ASSERT_TRUE(QFile::link("/dev/zero", cards("infinito.vcf")));
    writeBytes(cards("vuoto.vcf"), "");
    QFile huge(cards("grande.vcf"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(2LL << 30));
    writeBytes(cards("z.vcf"), card("FN:Ada"));
    AddressBook open = opened();
    EXPECT_EQ(open.entryCount(), 1);
}

}  // namespace address_book_test
