// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/AnsiCodec.h"

#include <gtest/gtest.h>

#include "platform/text/Blanks.h"
#include "support/Vectors.h"

namespace ansi_codec_test {

TEST(AnsiCodec, EveryByteIsRestoredFromItsCharacter) {
    for (int code = 0; code < 256; ++code) {
        const QByteArray byte(1, static_cast<char>(code));
        EXPECT_EQ(text::toAnsi(text::fromAnsi(byte)), byte) << code;
    }
}

TEST(AnsiCodec, UndefinedBytesAreTheControlCharactersOfTheirNumber) {
    for (const int code : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(text::ansiCharacter(static_cast<std::uint8_t>(code)), code);
        EXPECT_EQ(text::ansiCode(static_cast<char32_t>(code)), code);
    }
}

TEST(AnsiCodec, KnowsTheCharactersOfTheCodePage) {
    EXPECT_EQ(text::toAnsi(u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"),
              QByteArray::fromHex("8082838485868788898a8b8c8e9192939495969798999a9b9c9e9f"));
    EXPECT_EQ(text::toAnsi(u"àèìòùÀÈÌÒÙÿ"), QByteArray::fromHex("e0e8ecf2f9c0c8ccd2d9ff"));
}

TEST(AnsiCodec, CharacterOutsideThePageBecomesOneQuestionMark) {
    EXPECT_EQ(text::toAnsi(u"Čapek Ω 日 \U0001F600 \u0080"), QByteArray("?apek ? ? ? ?"));
    EXPECT_EQ(text::toAnsi(QStringView(QString(QChar(0xD83D)))), QByteArray("?"));
    EXPECT_FALSE(text::ansiCode(0x1F600).has_value());
}

TEST(Blanks, OnlyTheBlankAtTheEndsIsTaken) {
    EXPECT_EQ(text::trimBlanks(u"  a b  ").toString(), QStringLiteral("a b"));
    EXPECT_EQ(text::trimBlanks(u"\t a\u00A0 ").toString(), QStringLiteral("\t a\u00A0"));
    EXPECT_TRUE(text::trimBlanks(u"   ").isEmpty());
    EXPECT_TRUE(text::trimBlanks(u"").isEmpty());
}

TEST(AnsiCodec, NamesWhatTheCodePageDoesNotContain) {
    EXPECT_EQ(text::outsideAnsi(u"perché € \u0081"), QStringList());
    EXPECT_EQ(text::outsideAnsi(u"Łódź Ł \U0001F384"), (QStringList{"Ł", "ź", "\U0001F384"}));
    EXPECT_EQ(text::outsideAnsi({}), QStringList());
}

}  // namespace ansi_codec_test
