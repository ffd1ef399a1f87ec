// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/accounts/bBinary.h"

#include "support/Vectors.h"

namespace binary_test {

TEST(Binary, CodesTextsAsTheVectorsSay) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("account/coding.json"))) {
        const QString operation = vector[QLatin1String("op")].toString();
        const QString in = vector[QLatin1String("in")].toString();
        const QJsonValue out = vector[QLatin1String("out")];
        if (operation == QLatin1String("TestoInBit")) {
            EXPECT_EQ(TestoInBit(in), out.toString());
        } else if (operation == QLatin1String("BitInTesto")) {
            EXPECT_EQ(BitInTesto(in), out.toString());
        } else {
            ASSERT_EQ(operation, QStringLiteral("CodiceCarattere"));
            EXPECT_EQ(CodiceCarattere(in), out.toInt());
        }
    }
}

TEST(Binary, EachByteSurvivesWritingAndReading) {
    for (int code = 0; code < 256; ++code) {
        const QString digits = QStringLiteral("%1").arg(code, 8, 2, QLatin1Char('0'));
        EXPECT_EQ(TestoInBit(BitInTesto(digits)), digits);
    }
}

TEST(Binary, CharacterOutsideThePageIsReadBackAsCodeZero) {
    EXPECT_EQ(BitInTesto(TestoInBit(u"aЖb")), QStringView(u"a\0b", 3).toString());
    EXPECT_EQ(TestoInBit(u"\U0001F600"), QStringLiteral("00000000"));
}

TEST(Binary, LongTextTakesTimeInProportion) {
    const QString text(2'000'000, u'à');
    EXPECT_EQ(BitInTesto(TestoInBit(text)), text);
}

}  // namespace binary_test
