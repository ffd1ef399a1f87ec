// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/Ldif.h"

#include <gtest/gtest.h>

#include "platform/contacts/card_printer.h"

namespace ldif_test {

using contacts::readLdif;

TEST(Ldif, EachAttributeFeedsItsText) {
    const auto cards = readLdif(
        "version: 1\n\ndn: cn=Ada Forli,mail=ada@example.it\nobjectclass: top\nobjectclass: inetOrgPerson\n"
        "givenName: Ada\nsn: Forli\ncn: Ada Forli\nmail: ada@example.it\no: Bianchi S.p.A.\n"
        "street: Via Roma 2\nl: Milano\npostalCode: 20121\nmozillaHomeStreet: Via Casa 9\n"
        "mozillaHomeLocalityName: Roma\nmozillaHomePostalCode: 00100\ntelephoneNumber: 02 1\nhomePhone: 06 "
        "1\n"
        "facsimileTelephoneNumber: 02 2\n");
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_EQ(textsOf(cards.front()), (QStringList{"ada@example.it", "Ada Forli", "Bianchi S.p.A.",
                                                   "Via Casa 9", "00100", "Roma", "02 1", "02 2"}));
}

TEST(Ldif, Base64ValuesAreUtf8OrTheCodePage) {
    const auto cards = readLdif("dn: x\ncn:: " + QByteArray("Perù").toBase64() +
                                "\no:: " + QByteArray("Citt\xE0").toBase64() + "\n");
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_EQ(cards.front().displayName, "Perù");
    EXPECT_EQ(cards.front().companyName, "Città");
}

TEST(Ldif, FoldedLinesAreJoinedAlsoInsideBase64) {
    const auto cards = readLdif("dn: x\nmail: luca.molto.lun\n go@example.it\ncn:: UGV\r\n yw7k=\n");
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_EQ(cards.front().emailAddress, "luca.molto.lungo@example.it");
    EXPECT_EQ(cards.front().displayName, "Perù");
}

TEST(Ldif, CommentsAreSkippedWithTheirFoldedLines) {
    const auto cards = readLdif("# nota\n  mail: no@example.it\ndn: x\n# altro\nmail: si@example.it\n");
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_EQ(cards.front().emailAddress, "si@example.it");
}

TEST(Ldif, EmptyLinesDivideEntries) {
    const auto cards = readLdif("dn: a\nmail: a@example.it\n\n\n\r\ndn: b\nmail: b@example.it");
    ASSERT_EQ(cards.size(), 2u);
    EXPECT_EQ(cards[0].emailAddress, "a@example.it");
    EXPECT_EQ(cards[1].emailAddress, "b@example.it");
}

TEST(Ldif, GroupHasANameAndNoAddress) {
    for (const QByteArray& type : {QByteArray("groupOfNames"), QByteArray("groupOfUniqueNames")}) {
        const auto cards = readLdif("dn: cn=Lista\nobjectclass: top\nobjectclass: " + type +
                                    "\ncn: Lista\nmail: l@example.it\n");
        ASSERT_EQ(cards.size(), 1u);
        EXPECT_EQ(cards.front().displayName, "Lista");
        EXPECT_EQ(cards.front().emailAddress, "");
    }
}

TEST(Ldif, FirstOfSeveralValuesCounts) {
    EXPECT_EQ(readLdif("dn: x\nmail: a@example.it\nmail: b@example.it\n").front().emailAddress,
              "a@example.it");
}

TEST(Ldif, AttributeOptionsAndCaseMakeNoDifference) {
    EXPECT_EQ(readLdif("DN: x\nCN;lang-it: Ada\n").front().displayName, "Ada");
}

TEST(Ldif, NameComesFromItsPartsWhereThereIsNoOther) {
    EXPECT_EQ(readLdif("dn: x\ngivenName: Ada\nsn: Rossi\n").front().displayName, "Ada Rossi");
    EXPECT_EQ(readLdif("dn: x\ndisplayName: Ada R.\ncn: Ada Rossi\n").front().displayName, "Ada R.");
}

TEST(Ldif, PostalAddressIsDividedByDollars) {
    EXPECT_EQ(readLdif("dn: x\nhomePostalAddress: Via Casa 9$00100 Roma\n").front().homeStreet,
              "Via Casa 9\r\n00100 Roma");
}

TEST(Ldif, ValueOfALinkIsNotFetched) {
    const auto cards = readLdif("dn: x\ncn:< file:///etc/hostname\nmail: a@example.it\n");
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_EQ(cards.front().displayName, "");
}

TEST(Ldif, ChangesThatAddNothingAreNoEntries) {
    EXPECT_EQ(readLdif("dn: x\nchangetype: add\nmail: a@example.it\n").size(), 1u);
    EXPECT_TRUE(readLdif("dn: x\nchangetype: delete\n").empty());
    EXPECT_TRUE(readLdif("dn: x\nchangetype: modify\nreplace: mail\nmail: a@example.it\n").empty());
}

TEST(Ldif, FileWithoutEntriesHasNone) {
    EXPECT_TRUE(readLdif("").empty());
    EXPECT_TRUE(readLdif("version: 1\n").empty());
    EXPECT_TRUE(readLdif("\n\n\n").empty());
    EXPECT_TRUE(readLdif("righe senza senso\n").empty());
}

TEST(Ldif, MoreEntriesThanTheBoundAreNotTaken) {
    const auto count = static_cast<qsizetype>(contacts::mostCards) + 10;
    EXPECT_EQ(readLdif(QByteArray("mail: a\n\n").repeated(count)).size(), contacts::mostCards);
}

TEST(Ldif, VersionMayBeInTheFirstEntry) {
    EXPECT_EQ(readLdif("version: 1\ndn: x\nmail: a@example.it\n").front().emailAddress, "a@example.it");
}

}  // namespace ldif_test
