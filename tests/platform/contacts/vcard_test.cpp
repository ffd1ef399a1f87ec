// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/VCard.h"

#include <gtest/gtest.h>

#include "platform/contacts/card_printer.h"

namespace vcard_test {

using contacts::Card;
using contacts::readVCards;

namespace {

/// The one card with these properties.
Card cardWith(const QByteArray& lines, const QByteArray& version = "3.0") {
    const auto cards = readVCards("BEGIN:VCARD\r\nVERSION:" + version + "\r\n" + lines + "\r\nEND:VCARD\r\n");
    EXPECT_EQ(cards.size(), 1u);
    return cards.empty() ? Card() : cards.front();
}

}  // namespace

TEST(VCard, EachPropertyFeedsItsText) {
    const Card card = cardWith(
        "FN:José Perù\r\nORG:Città;Ufficio\r\nEMAIL:jose@example.it\r\n"
        "ADR;TYPE=work:;;Via Roma 2;Forlì;FC;47121;Italia\r\nADR;TYPE=home:;;Via Casa "
        "9;Roma;RM;00100;Italia\r\n"
        "TEL;TYPE=home:06 1\r\nTEL;TYPE=work:0543 1\r\nTEL;TYPE=work,fax:0543 2",
        "4.0");
    EXPECT_EQ(textsOf(card), (QStringList{"jose@example.it", "José Perù", "Città", "Via Casa 9", "00100",
                                          "Roma", "0543 1", "0543 2"}));
}

TEST(VCard, WorkAddressAloneIsNoHomeAddress) {
    const Card card = cardWith("ADR;TYPE=WORK:;;Via Roma 2;Forlì;FC;47121;Italia");
    EXPECT_EQ(card.homeStreet, "");
    EXPECT_EQ(card.homeCity, "");
}

TEST(VCard, CardWithoutFormattedNameIsNamedByItsParts) {
    EXPECT_EQ(cardWith("N:Rossi;Ada;;;").displayName, "Ada Rossi");
    EXPECT_EQ(cardWith("N:Rossi;;;;").displayName, "Rossi");
    EXPECT_EQ(cardWith("FN: \r\nN:Rossi;Ada").displayName, "Ada Rossi");
}

TEST(VCard, PreferredAddressComesFirst) {
    EXPECT_EQ(cardWith("EMAIL:a@example.it\r\nEMAIL;TYPE=pref:b@example.it").emailAddress, "b@example.it");
    EXPECT_EQ(cardWith("EMAIL:a@example.it\r\nEMAIL;INTERNET;PREF:b@example.it", "2.1").emailAddress,
              "b@example.it");
    EXPECT_EQ(cardWith("EMAIL;PREF=20:a@example.it\r\nEMAIL;PREF=3:b@example.it", "4.0").emailAddress,
              "b@example.it");
    EXPECT_EQ(cardWith("EMAIL:a@example.it\r\nEMAIL:b@example.it").emailAddress, "a@example.it");
}

TEST(VCard, LinkBecomesItsAddressOrNumber) {
    EXPECT_EQ(cardWith("EMAIL;VALUE=uri:mailto:ada@example.it", "4.0").emailAddress, "ada@example.it");
    EXPECT_EQ(cardWith("TEL;VALUE=uri;TYPE=\"voice,work\":tel:+39-0543-1;ext=7", "4.0").businessTelephone,
              "+39-0543-1");
}

TEST(VCard, FaxOfNoPlaceCountsUnlessOneOfWorkIsThere) {
    EXPECT_EQ(cardWith("TEL;TYPE=fax:1").businessFax, "1");
    EXPECT_EQ(cardWith("TEL;TYPE=fax:1\r\nTEL;TYPE=work,fax:2").businessFax, "2");
    EXPECT_EQ(cardWith("TEL;TYPE=home,fax:1").businessFax, "");
    EXPECT_EQ(cardWith("TEL;TYPE=work,fax:1").businessTelephone, "");
}

TEST(VCard, GroupHasANameAndNoAddress) {
    const Card list =
        cardWith("KIND:group\r\nFN:Lista\r\nEMAIL:lista@example.it\r\nMEMBER:urn:uuid:1", "4.0");
    EXPECT_EQ(list.displayName, "Lista");
    EXPECT_EQ(list.emailAddress, "");
    EXPECT_EQ(cardWith("X-ADDRESSBOOKSERVER-KIND:group\r\nEMAIL:l@example.it").emailAddress, "");
}

TEST(VCard, FoldedLinesAreJoined) {
    EXPECT_EQ(cardWith("EMAIL:luca.molto.lun\r\n go@exam\r\n\tple.it").emailAddress,
              "luca.molto.lungo@example.it");
    EXPECT_EQ(cardWith("N:Lungo;Lu\n ca;;;").displayName, "Luca Lungo");
}

TEST(VCard, FoldOfTheOldFormKeepsItsBlank) {
    EXPECT_EQ(cardWith("FN:Anna\r\n Bianchi", "2.1").displayName, "Anna Bianchi");
    EXPECT_EQ(cardWith("FN:Anna\r\n Bianchi", "3.0").displayName, "AnnaBianchi");
}

TEST(VCard, FoldInsideACharacterOfUtf8IsHealed) {
    EXPECT_EQ(cardWith("FN:Per\xC3\r\n \xB9").displayName, "Perù");
}

TEST(VCard, QuotedPrintableRunsOverSoftLineBreaks) {
    const Card card = cardWith(
        "ADR;HOME;CHARSET=windows-1252;ENCODING=QUOTED-PRINTABLE:;;Via dell'Unit=E0=0D=0A=\r\n "
        "3;Forl=EC;FC;=\r\n"
        "47121;Italia\r\nTEL;WORK;VOICE:0543 3",
        "2.1");
    EXPECT_EQ(card.homeStreet, "Via dell'Unità\r\n 3");
    EXPECT_EQ(card.homeCity, "Forlì");
    EXPECT_EQ(card.homePostalCode, "47121");
    EXPECT_EQ(card.businessTelephone, "0543 3");
}

TEST(VCard, CharacterSets) {
    EXPECT_EQ(cardWith("ORG;CHARSET=windows-1252;ENCODING=QUOTED-PRINTABLE:Citt=E0 =80", "2.1").companyName,
              "Città €");
    EXPECT_EQ(cardWith("ORG;CHARSET=ISO-8859-15;QUOTED-PRINTABLE:Citt=E0 =A4", "2.1").companyName, "Città €");
    EXPECT_EQ(cardWith("ORG;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:Citt=C3=A0", "2.1").companyName, "Città");
    EXPECT_EQ(cardWith("ORG;CHARSET=no-such-set:Citt\xE0", "2.1").companyName, "Città");
    EXPECT_EQ(cardWith("ORG:Citt\xE0", "2.1").companyName, "Città");
    EXPECT_EQ(cardWith("ORG:Città", "3.0").companyName, "Città");
}

TEST(VCard, Base64) {
    EXPECT_EQ(cardWith("FN;ENCODING=b:" + QByteArray("Perché").toBase64()).displayName, "Perché");
    EXPECT_EQ(cardWith("FN;BASE64:" + QByteArray("Perché").toBase64(), "2.1").displayName, "Perché");
}

TEST(VCard, EscapesOfTheNewForm) {
    EXPECT_EQ(cardWith(R"(ORG:"Virgolette" \; punto e virgola\n riga)").companyName,
              "\"Virgolette\" ; punto e virgola\r\n riga");
    EXPECT_EQ(cardWith(R"(FN:a\,b\\c\Nd)").displayName, "a,b\\c\r\nd");
    EXPECT_EQ(cardWith(R"(FN:end\)").displayName, "end\\");
}

TEST(VCard, OldFormEscapesOnlyDividers) {
    EXPECT_EQ(cardWith(R"(ORG:Rossi\; figli;Ufficio)", "2.1").companyName, "Rossi; figli");
    EXPECT_EQ(cardWith(R"(ORG:C:\new)", "2.1").companyName, R"(C:\new)");
}

TEST(VCard, GroupPrefixAndCaseMakeNoDifference) {
    EXPECT_EQ(cardWith("item1.email;type=Internet:a@example.it").emailAddress, "a@example.it");
    EXPECT_EQ(readVCards("begin:vcard\nversion:3.0\nfn:Ada\nend:vcard\n").front().displayName, "Ada");
}

TEST(VCard, QuotedParameterMayContainDividers) {
    EXPECT_EQ(cardWith("EMAIL;X-A=\"a:b;c\":a@example.it", "4.0").emailAddress, "a@example.it");
}

TEST(VCard, LineEndsOfEveryKind) {
    for (const QByteArray& end : {QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r")}) {
        const auto cards = readVCards("BEGIN:VCARD" + end + "FN:Ada" + end + "EMAIL:ada@example.it" + end +
                                      "END:VCARD" + end);
        ASSERT_EQ(cards.size(), 1u);
        EXPECT_EQ(cards.front().emailAddress, "ada@example.it");
    }
}

TEST(VCard, ByteOrderMarks) {
    const QString file = "BEGIN:VCARD\r\nFN:Perù\r\nEND:VCARD\r\n";
    QByteArray little("\xFF\xFE"), big("\xFE\xFF");
    for (const QChar c : file) {
        little.append(static_cast<char>(c.unicode() & 0xFF)).append(static_cast<char>(c.unicode() >> 8));
        big.append(static_cast<char>(c.unicode() >> 8)).append(static_cast<char>(c.unicode() & 0xFF));
    }
    for (const QByteArray& bytes : {"\xEF\xBB\xBF" + file.toUtf8(), little, big}) {
        const auto cards = readVCards(bytes);
        ASSERT_EQ(cards.size(), 1u);
        EXPECT_EQ(cards.front().displayName, "Perù");
    }
}

TEST(VCard, CardWithoutItsEndCountsAsFarAsItGoes) {
    const auto cards = readVCards("BEGIN:VCARD\nFN:Ada\nBEGIN:VCARD\nFN:Eva\nEMAIL:eva@exa");
    ASSERT_EQ(cards.size(), 2u);
    EXPECT_EQ(cards[0].displayName, "Ada");
    EXPECT_EQ(cards[1].emailAddress, "eva@exa");
}

TEST(VCard, CardInsideACardIsSkipped) {
    const auto cards = readVCards(
        "BEGIN:VCARD\nVERSION:2.1\nFN:Capo\nAGENT:\nBEGIN:VCARD\nFN:Segretaria\nEMAIL:s@example.it\nEND:"
        "VCARD\n"
        "EMAIL:capo@example.it\nEND:VCARD\n");
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_EQ(cards.front().displayName, "Capo");
    EXPECT_EQ(cards.front().emailAddress, "capo@example.it");
}

TEST(VCard, FileWithoutCardsHasNone) {
    EXPECT_TRUE(readVCards("").empty());
    EXPECT_TRUE(readVCards("END:VCARD\nFN:Ada\n").empty());
    EXPECT_TRUE(readVCards(QByteArray(10000, '\0')).empty());
}

TEST(VCard, MoreCardsThanTheBoundAreNotTaken) {
    const auto count = static_cast<qsizetype>(contacts::mostCards) + 10;
    EXPECT_EQ(readVCards(QByteArray("BEGIN:VCARD\n").repeated(count)).size(), contacts::mostCards);
}

TEST(VCard, CardsOfOtherPrograms) {
    const QString path = SHARED_DIR "/addressbook/cards.vcf";
    if (!QFile::exists(path)) {
        GTEST_SKIP() << "the sample cards are not here";
    }
    const auto cards = readVCards(bytesOf(path));
    ASSERT_EQ(cards.size(), 5u);
    EXPECT_EQ(textsOf(cards[0]), (QStringList{"n.davola@example.it", "Niccolò D'Àvola", "Società Perù", "",
                                              "", "", "0921 1", "0921 2"}));
    EXPECT_EQ(textsOf(cards[1]), (QStringList{"ada@example.it", "Ada Forlì", "Qualità S.p.A.", "", "", "",
                                              "+39-0543-1", "0543 2"}));
    EXPECT_EQ(textsOf(cards[2]),
              (QStringList{"jose@example.it", "José Perù", "Città €", "", "", "", "0543 3", "0543 4"}));
    EXPECT_EQ(textsOf(cards[3]), (QStringList{"", "Lista", "", "", "", "", "", ""}));
    EXPECT_EQ(cards[4].emailAddress, "luca.molto.lungo@example.it");
    EXPECT_EQ(readVCards(bytesOf(SHARED_DIR "/addressbook/v21_raw.vcf")).front().companyName, "Città");
}

}  // namespace vcard_test
