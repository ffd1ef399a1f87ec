// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/HelperOutput.h"

#include <gtest/gtest.h>

#include "support/Vectors.h"

namespace helper_output_test {

namespace {

constexpr const char* ada = R"({"Email1Address":"ada@example.it","LastNameAndFirstName":"Rossi, Ada"})"
                            "\n";

std::optional<contacts::ContactFolder> readWhole(const QByteArray& output) {
    contacts::HelperOutput reader;
    reader.take(output);
    return std::move(reader).folder();
}

}  // namespace

TEST(HelperOutput, CountAndEntries) {
    const auto folder = readWhole(
        "{\"count\":2}\n"
        R"({"Email1Address":"a","CompanyName":"b","LastNameAndFirstName":"c","BusinessAddress":"d\r\ne",)"
        R"("BusinessAddressPostalCode":"f","BusinessAddressCity":"g","BusinessTelephoneNumber":"h",)"
        R"("BusinessFaxNumber":"ù"})"
        "\n{}\n");
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->count, 2);
    ASSERT_EQ(folder->items.size(), 2u);
    ASSERT_TRUE(folder->items[0]);
    EXPECT_EQ(folder->items[0]->email1Address, "a");
    EXPECT_EQ(folder->items[0]->companyName, "b");
    EXPECT_EQ(folder->items[0]->lastNameAndFirstName, "c");
    EXPECT_EQ(folder->items[0]->businessAddress, "d\r\ne");
    EXPECT_EQ(folder->items[0]->businessAddressPostalCode, "f");
    EXPECT_EQ(folder->items[0]->businessAddressCity, "g");
    EXPECT_EQ(folder->items[0]->businessTelephoneNumber, "h");
    EXPECT_EQ(folder->items[0]->businessFaxNumber, "ù");
    EXPECT_FALSE(folder->items[1]);
}

TEST(HelperOutput, NothingOrRubbishInsteadOfTheCountIsNoFolder) {
    for (const QByteArray& output :
         {QByteArray(), QByteArray("\n"), QByteArray("rubbish\n"), QByteArray("{}\n"),
          QByteArray("{\"count\":-1}\n"), QByteArray("{\"count\":\"3\"}\n"), QByteArray("{\"count\":1.5}\n"),
          QByteArray("{\"count\":1e30}\n"), QByteArray("[1]\n"), QByteArray("{\"count\":3}"), QByteArray(ada),
          QByteArray(100, '\0')}) {
        EXPECT_FALSE(readWhole(output)) << output.constData();
    }
}

TEST(HelperOutput, RubbishEndsTheListAfterTheGoodEntries) {
    for (const char* rubbish :
         {"rubbish\n", "\n", "[]\n", "{\"Email1Address\":\"b@exam", "\xFF\xFE\n", "12\n"}) {
        const auto folder = readWhole(QByteArray("{\"count\":3}\n") + ada + rubbish + ada);
        ASSERT_TRUE(folder);
        EXPECT_EQ(folder->count, 3);
        EXPECT_EQ(folder->items.size(), 1u) << rubbish;
    }
}

TEST(HelperOutput, EntriesBeyondTheCountAreNotTaken) {
    const auto folder = readWhole(QByteArray("{\"count\":1}\n") + ada + ada);
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->items.size(), 1u);
}

TEST(HelperOutput, ValueThatIsNoTextIsEmpty) {
    const auto folder = readWhole("{\"count\":1}\n{\"Email1Address\":5,\"CompanyName\":null}\n");
    ASSERT_TRUE(folder);
    ASSERT_TRUE(folder->items[0]);
    EXPECT_EQ(folder->items[0]->email1Address, "");
}

TEST(HelperOutput, EntryAboveTheBoundEndsTheList) {
    const QByteArray huge = "{\"CompanyName\":\"" + QByteArray(contacts::longestEntry, 'x') + "\"}\n";
    const auto folder = readWhole(QByteArray("{\"count\":3}\n") + ada + huge + ada);
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->items.size(), 1u);
}

TEST(HelperOutput, DeepNestingIsRubbish) {
    const auto folder = readWhole("{\"count\":3}\n" + QByteArray("{\"a\":").repeated(100000) + '\n');
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->items.size(), 0U);
}

}  // namespace helper_output_test
