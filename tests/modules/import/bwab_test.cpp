// SPDX-License-Identifier: GPL-3.0-or-later
// How an entry of the address book becomes a row.
#include "modules/import/bWab.h"

#include <QTemporaryDir>

#include "support/Vectors.h"

namespace bwab_test {

using namespace destinatario;
using namespace schema;

namespace {

/// The contact from an address book of one card.
std::optional<Valori> readCard(const QByteArray& lines) {
    const QTemporaryDir folder;
    writeBytes(folder.filePath("a.vcf"), "BEGIN:VCARD\nVERSION:3.0\n" + lines + "\nEND:VCARD\n");
    contacts::AddressBook book(folder.path(), folder.path());
    EXPECT_TRUE(book.open().ok());
    std::array<contacts::Entry, 1> entry;
    EXPECT_EQ(book.entries(entry), 1);
    return LeggiVoceWab(book, entry[0]);
}

}  // namespace

TEST(AddressBookEntry, NulsAreCutAtTheEndOnly) {
    EXPECT_EQ(TagliaNulli(QString("a") + QChar(0) + "b" + QString(3, QChar(0))),
              QString("a") + QChar(0) + "b");
    EXPECT_EQ(TagliaNulli(QString(5, QChar(0))), "");
    EXPECT_EQ(TagliaNulli("a "), "a ");
    EXPECT_EQ(TagliaNulli(""), "");
}

TEST(AddressBookEntry, PrivateAddressAndBusinessNumbersFeedTheirColumns) {
    const auto values = readCard(
        "EMAIL:ada@example.it\nFN:Ada Rossi\nORG:Rossi Srl\n"
        "ADR;TYPE=work:;;Via Lavoro 2;Cesena;FC;47521;Italia\n"
        "ADR;TYPE=home:;;Via Casa 1;Forlì;FC;47121;Italia\n"
        "TEL;TYPE=home:0543 1\nTEL;TYPE=work:0543 2\nTEL;TYPE=work,fax:0543 3");
    ASSERT_TRUE(values);
    EXPECT_EQ((*values)[email], "ada@example.it");
    EXPECT_EQ((*values)[nom], "Ada Rossi");
    EXPECT_EQ((*values)[rgs], "Rossi Srl");
    EXPECT_EQ((*values)[ind], "Via Casa 1");
    EXPECT_EQ((*values)[cap], "47121");
    EXPECT_EQ((*values)[loc], "Forlì");
    EXPECT_EQ((*values)[tel], "0543 2");
    EXPECT_EQ((*values)[fax], "0543 3");
    for (const Campo column :
         {piva, prov, campo1, campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9})
        EXPECT_EQ((*values)[column], "") << column;
}

TEST(AddressBookEntry, ShortValueAfterALongOneKeepsNothingOfIt) {
    const auto values = readCard("EMAIL:un.indirizzo.lungo@example.it\nFN:Ada\nORG:Rossi");
    ASSERT_TRUE(values);
    EXPECT_EQ((*values)[nom], "Ada");
    EXPECT_EQ((*values)[rgs], "Rossi");
}

TEST(AddressBookEntry, MissingValueIsEmptyAndNotTheOneBefore) {
    const auto values = readCard("EMAIL:ada@example.it\nFN:Ada");
    ASSERT_TRUE(values);
    for (const Campo column : {rgs, piva, ind, cap, loc, prov, tel, fax, campo1, campo9})
        EXPECT_EQ((*values)[column], "") << column;
}

TEST(AddressBookEntry, ValueOfExactlyTheLimitIsKeptWhole) {
    EXPECT_EQ((*readCard("EMAIL:a@b.it\nFN:" + QByteArray(70, 'n')))[nom].size(), 70);
    EXPECT_EQ((*readCard("EMAIL:a@b.it\nFN:" + QByteArray(71, 'n')))[nom].size(), 70);
}

TEST(AddressBookEntry, QuoteInAnAddressVanishesBeforeTheTest) {
    EXPECT_EQ((*readCard("EMAIL:d'angelo@example.it"))[email], "dangelo@example.it");
}

TEST(AddressBookEntry, EntryWithoutAddressIsRefused) {
    EXPECT_FALSE(readCard("FN:Ada"));
    EXPECT_FALSE(readCard("FN:Ada\nEMAIL:ada@example.museum"));
}

}  // namespace bwab_test
