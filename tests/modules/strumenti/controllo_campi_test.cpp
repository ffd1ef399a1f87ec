// SPDX-License-Identifier: GPL-3.0-or-later
// The check of the selection's values for the placeholders that a message uses.
#include "modules/strumenti/ControlloCampi.h"

#include <gtest/gtest.h>

#include "modules/core/Fallimento.h"
#include "support/SampleFolder.h"

namespace controllo_campi_test {

using namespace testing_support;
using namespace std::chrono_literals;

namespace {

TestiMessaggio body(const QString& html, const QString& subject = {}) {
    return {html, {}, subject, {}};
}

std::size_t place(const QString& column) {
    for (std::size_t i = 0; i < numeroSegnaposto; ++i)
        if (colonneSegnaposto[i] == column) return i;
    return numeroSegnaposto;
}

ControlloCampi checked(const TestiMessaggio& texts) {
    ControlloCampi check(UsiDi(texts));
    while (check.Avanza(1ms)) {
    }
    return check;
}

ControlloCampi::Campo field(const ControlloCampi& check, const QString& column) {
    return check.campi()[place(column)];
}

}  // namespace

TEST(UsiDi, distinguishesTextFromAttributesAndTheSubject) {
    const UsiSegnaposto uses =
        UsiDi(body("<p>:::nom:::</p><a href=\"https://x.it/?c=:::cap:::\">:::nom:::</a>", ":::rgs:::"));
    EXPECT_TRUE(uses[place("nom")].inTesto);
    EXPECT_FALSE(uses[place("nom")].inAttributo);
    EXPECT_TRUE(uses[place("cap")].inAttributo);
    EXPECT_FALSE(uses[place("cap")].inTesto);
    EXPECT_TRUE(uses[place("rgs")].altrove);
    EXPECT_FALSE(uses[place("email")].alcuno());
}

TEST(CambiaHtml, onlyWhatReadsAsMarkupChangesIt) {
    const UsoSegnaposto text{.inTesto = true}, attribute{.inAttributo = true}, subject{.altrove = true};
    EXPECT_TRUE(CambiaHtml(u"<b>Rossi", text));
    EXPECT_TRUE(CambiaHtml(u"a</p>", text));
    EXPECT_TRUE(CambiaHtml(u"R&amp;D", text));
    EXPECT_TRUE(CambiaHtml(u"&#60;", text));
    EXPECT_FALSE(CambiaHtml(u"Rossi & C.", text));
    EXPECT_FALSE(CambiaHtml(u"3 < 5", text));
    EXPECT_FALSE(CambiaHtml(u"Bar \"Sport\"", text));
    EXPECT_TRUE(CambiaHtml(u"Bar \"Sport\"", attribute));
    EXPECT_FALSE(CambiaHtml(u"<b>", attribute));
    EXPECT_FALSE(CambiaHtml(u"<b>&lt;\"", subject));
}

TEST(ControlloCampi, countsNullAndEmptyValuesApartAndNamesTheFirstRowInRunOrder) {
    SampleFolder folder;
    folder.addRecipients({{{"rgs", "C"}, {"email", "c@x.it"}, {"nom", "   "}},
                          {{"rgs", "A"}, {"email", "a@x.it"}, {"nom", "Anna"}},
                          {{"rgs", "B"}, {"email", "b@x.it"}, {"nom", QString()}},
                          {{"rgs", "0"}, {"email", "d@x.it"}, {"nom", QString()}, {"sel", "0"}}});
    const ControlloCampi check = checked(body("<p>:::nom:::</p>"));
    EXPECT_EQ(check.righe(), 3);
    EXPECT_EQ(field(check, "nom").nulli, 1);
    EXPECT_EQ(field(check, "nom").vuoti, 1);
    EXPECT_EQ(field(check, "nom").primoVuoto, 1);
}

TEST(ControlloCampi, columnsThatTheMessageDoesNotUseAreNotCounted) {
    SampleFolder folder;
    folder.addRecipient({{"rgs", "A"}, {"email", "a@x.it"}, {"cap", QString()}});
    const ControlloCampi check = checked(body("<p>:::rgs:::</p>"));
    EXPECT_EQ(field(check, "cap").nulli, 0);
    EXPECT_EQ(field(check, "rgs").nulli + field(check, "rgs").vuoti, 0);
}

TEST(ControlloCampi, countsValuesThatChangeTheHtml) {
    SampleFolder folder;
    folder.addRecipients({{{"rgs", "A"}, {"email", "a@x.it"}}, {{"rgs", "B<script>"}, {"email", "b@x.it"}}});
    const ControlloCampi check = checked(body("<p>:::rgs:::</p>"));
    EXPECT_EQ(field(check, "rgs").html, 1);
    EXPECT_EQ(field(check, "rgs").primoHtml, 1);
}

TEST(ControlloCampi, aSelectionOfNobodyEndsAtOnce) {
    SampleFolder folder;
    ControlloCampi check(UsiDi(body(":::nom:::")));
    EXPECT_FALSE(check.Avanza(1ms));
    EXPECT_EQ(check.righe(), 0);
}

TEST(ControlloCampi, continuesWhereASliceEnded) {
    SampleFolder folder;
    QList<SampleFolder::Columns> rows;
    for (int i = 0; i < 500; ++i)
        rows.append({{"rgs", QString::number(i)}, {"email", "a@x.it"}, {"nom", QString()}});
    folder.addRecipients(rows);
    ControlloCampi check(UsiDi(body(":::nom:::")));
    int slices = 1;
    while (check.Avanza(0ms))
        ++slices;
    EXPECT_GT(slices, 1);
    EXPECT_EQ(field(check, "nom").nulli, 500);
}

TEST(ControlloCampi, failsWithoutADatabase) {
    SampleFolder folder;
    folder.hideDatabase();
    EXPECT_THROW(ControlloCampi(UsiDi(body(":::nom:::"))), Fallimento);
}

}  // namespace controllo_campi_test
