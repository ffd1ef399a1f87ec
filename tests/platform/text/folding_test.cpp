// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/text/Folding.h"

namespace folding_test {

using text::folded;

TEST(FoldingTest, CaseAndAccentsMakeNoDifference) {
    EXPECT_EQ(folded(u"PERÒ"), folded(u"pero"));
    EXPECT_EQ(folded(u"Città di Niccolò"), "citta di niccolo");
    EXPECT_EQ(folded(u"Müller"), "muller");
    EXPECT_EQ(folded(u"ÇA"), "ca");
}

TEST(FoldingTest, ACombiningAccentIsTheSame) {
    EXPECT_EQ(folded(u"e\u0300 vero"), folded(u"è vero"));
}

TEST(FoldingTest, FullWidthLettersAndLigaturesArePlainOnes) {
    EXPECT_EQ(folded(u"Ａｎｎａ"), "anna");
    EXPECT_EQ(folded(u"oﬃcina"), "officina");
    EXPECT_EQ(folded(u"Straße"), folded(u"STRASSE"));
}

TEST(FoldingTest, OtherScriptsFoldTheirCase) {
    EXPECT_EQ(folded(u"ΑΘΗΝΑ"), folded(u"Αθήνα"));
    EXPECT_EQ(folded(u"МОСКВА"), folded(u"москва"));
}

TEST(FoldingTest, OtherCharactersStay) {
    EXPECT_EQ(folded(u"a.b-c@x_1 €"), "a.b-c@x_1 €");
    EXPECT_EQ(folded(u""), "");
}

TEST(FoldingTest, InvalidBytesAreNoLetters) {
    std::string form = "<";
    text::appendFolded("A\xFF\xC3", form);
    EXPECT_EQ(form.substr(0, 2), "<a");
    EXPECT_EQ(form.find('\xFF'), std::string::npos);
}

// More different runs than are remembered.
TEST(FoldingTest, WhatIsForgottenIsFoldedAgain) {
    for (char16_t c = 0x4E00; c < 0x4E00 + 6000; ++c)
        EXPECT_EQ(folded(QString(QChar(c))), QString(QChar(c)).toStdString());
    EXPECT_EQ(folded(u"À"), "a");
}

}  // namespace folding_test
