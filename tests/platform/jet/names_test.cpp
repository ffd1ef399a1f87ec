// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Names.h"

#include <gtest/gtest.h>
#include <QString>

namespace names_test {

using namespace jet;

namespace {

std::string utf8(char16_t unit) {
    return QString(QChar(unit)).toStdString();
}

int sign(int order) {
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

}  // namespace

TEST(Names, CaseMakesNoDifference) {
    EXPECT_TRUE(sameName("tb_Gruppi", "TB_GRUPPI"));
    EXPECT_TRUE(sameName("Però è CITTÀ", "PERÒ È città"));
    EXPECT_TRUE(sameName("ΑΘΗΝΑ Москва", "αθηνα МОСКВА"));
    EXPECT_TRUE(sameName("", ""));
}

TEST(Names, EverythingElseMakesADifference) {
    EXPECT_FALSE(sameName("citta", "città"));
    EXPECT_FALSE(sameName("nome", "nome "));
    EXPECT_FALSE(sameName("nom", "nome"));
    EXPECT_FALSE(sameName("@", "`"));  // with the distance of a capital from its small letter
    EXPECT_FALSE(sameName("straße", "strasse"));
}

TEST(Names, OrderIsThatOfTheSmallLetters) {
    EXPECT_LT(compareNames("Zeta", "à"), 0);
    EXPECT_LT(compareNames("alfa", "BETA"), 0);
    EXPECT_GT(compareNames("B", "_"), 0);  // after the underscore come the small letters
    EXPECT_LT(compareNames("alfa", "alfa1"), 0);
    EXPECT_GT(compareNames("È2", "è1"), 0);
}

TEST(Names, EveryLetterFoldsAsInQt) {
    for (char32_t c = 1; c < 0x10000; ++c) {
        if (c >= 0xD800 && c < 0xE000) continue;
        const char16_t unit = static_cast<char16_t>(c);
        const char16_t folded = QChar(unit).toCaseFolded().unicode();
        ASSERT_TRUE(sameName(utf8(unit), utf8(folded))) << std::hex << static_cast<uint32_t>(c);
        const char16_t next = static_cast<char16_t>(c + 1);
        if (c + 1 >= 0xD800) continue;
        const QString left(QStringLiteral("tabella ") + QChar(unit));
        const QString right(QStringLiteral("Tabella ") + QChar(next));
        ASSERT_EQ(sign(compareNames(left.toStdString(), right.toStdString())),
                  sign(left.compare(right, Qt::CaseInsensitive)))
            << std::hex << static_cast<uint32_t>(c);
    }
}

}  // namespace names_test
