// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/VCardProperty.h"

#include <gtest/gtest.h>

#include "support/Vectors.h"

namespace vcard_property_test {

using contacts::readProperty;
using contacts::VCardStyle;

TEST(VCardProperty, LineWithoutColonHasNoName) {
    EXPECT_EQ(readProperty("FN", VCardStyle::New).name, "");
    EXPECT_EQ(readProperty("FN;X=\"a:b", VCardStyle::New).name, "");
    EXPECT_EQ(readProperty("", VCardStyle::New).name, "");
}

TEST(VCardProperty, TypesAreCapitalsFromEveryWayOfWriting) {
    EXPECT_EQ(readProperty("TEL;type=work,Voice:1", VCardStyle::New).types,
              (QByteArrayList{"WORK", "VOICE"}));
    EXPECT_EQ(readProperty("TEL;TYPE=work;TYPE=fax:1", VCardStyle::New).types,
              (QByteArrayList{"WORK", "FAX"}));
    EXPECT_EQ(readProperty("TEL;TYPE=\"work,fax\":1", VCardStyle::New).types,
              (QByteArrayList{"WORK", "FAX"}));
    EXPECT_EQ(readProperty("TEL;WORK;FAX:1", VCardStyle::Old).types, (QByteArrayList{"WORK", "FAX"}));
}

TEST(VCardProperty, RankOutsideOneToHundredDoesNotCount) {
    EXPECT_EQ(readProperty("EMAIL;PREF=7:a", VCardStyle::New).rank, 7);
    EXPECT_EQ(readProperty("EMAIL;PREF=0:a", VCardStyle::New).rank, 101);
    EXPECT_EQ(readProperty("EMAIL;PREF=101:a", VCardStyle::New).rank, 101);
    EXPECT_EQ(readProperty("EMAIL;PREF=x:a", VCardStyle::New).rank, 101);
}

TEST(VCardProperty, PartBeyondTheLastIsEmpty) {
    const auto property = readProperty("N:Rossi;Ada", VCardStyle::New);
    EXPECT_EQ(property.part(1), "Ada");
    EXPECT_EQ(property.part(2), "");
}

TEST(VCardProperty, TextKeepsUnescapedDividers) {
    EXPECT_EQ(readProperty("FN:Rossi; Ada", VCardStyle::New).text(), "Rossi; Ada");
}

TEST(VCardProperty, LineBreaksBecomeCarriageReturnAndLineFeed) {
    EXPECT_EQ(readProperty("FN;QUOTED-PRINTABLE:a=0Ab=0Dc=0D=0Ad", VCardStyle::Old).text(),
              "a\r\nb\r\nc\r\nd");
}

TEST(VCardProperty, BrokenQuotedPrintableIsReadWithoutHarm) {
    for (const QByteArray& value :
         {QByteArray("="), QByteArray("=E"), QByteArray("=ZZ"), QByteArray("a==")}) {
        EXPECT_EQ(readProperty("FN;QUOTED-PRINTABLE:" + value, VCardStyle::Old).name, "FN");
    }
}

}  // namespace vcard_property_test
