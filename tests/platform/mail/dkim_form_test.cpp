// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DkimForm.h"

#include <gtest/gtest.h>

#include <random>

namespace dkim_form_test {

namespace {

QByteArray relaxed(const QByteArrayList& pieces) {
    QByteArray out;
    mail::RelaxedBody body([&out](QByteArrayView octets) { out += octets; });
    for (const QByteArray& piece : pieces)
        body.add(piece);
    return out;
}

QByteArray relaxedField(QByteArrayView field) {
    QByteArray out = "before\r\n";
    mail::appendRelaxedField(out, field);
    EXPECT_TRUE(out.startsWith("before\r\n"));
    return out.mid(8);
}

/// The rules one after the other, each over the whole text.
QByteArray plainlyRelaxed(QByteArray text) {
    text.replace('\t', ' ');
    while (text.contains("  "))
        text.replace("  ", " ");
    while (text.contains(" \r\n"))
        text.replace(" \r\n", "\r\n");
    if (text.endsWith(' ')) text.chop(1);
    if (!text.isEmpty() && !text.endsWith("\r\n")) text += "\r\n";
    while (text.endsWith("\r\n\r\n"))
        text.chop(2);
    return text == "\r\n" ? QByteArray() : text;
}

// RFC 6376 3.4.5
TEST(DkimForm, IsThatOfTheExamples) {
    EXPECT_EQ(relaxedField("A: X"), "a:X");
    EXPECT_EQ(relaxedField("B : Y\t\r\n\tZ  "), "b:Y Z");
    EXPECT_EQ(relaxed({" C \r\nD \t E\r\n\r\n\r\n"}), " C\r\nD E\r\n");
}

TEST(DkimForm, OfAFieldHasNoEndsAndNoBlanksAround) {
    EXPECT_EQ(relaxedField("Subject:"), "subject:");
    EXPECT_EQ(relaxedField("SUBJECT: \t \r\n "), "subject:");
    EXPECT_EQ(relaxedField("Subject:a:b"), "subject:a:b");
    EXPECT_EQ(relaxedField("X:\r\n one\r\n  two"), "x:one two");
}

TEST(DkimForm, OfABodyWithoutALineIsEmpty) {
    for (const char* body : {"", "\r\n", "\r\n\r\n", " \t\r\n \r\n", " "})
        EXPECT_EQ(relaxed({body}), "") << body;
    EXPECT_EQ(relaxed({}), "");
    EXPECT_EQ(relaxed({"a"}), "a\r\n");
    EXPECT_EQ(relaxed({"a  "}), "a\r\n");
}

TEST(DkimForm, OfABodyIsTheSameInPieces) {
    EXPECT_EQ(relaxed({"a\r\n\r\n", "\r\n", "b\r\n", "\r\n"}), "a\r\n\r\n\r\nb\r\n");
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        QByteArrayList pieces;
        const unsigned lines = random() % 12;
        for (unsigned line = 0; line < lines; ++line) {
            QByteArray text;
            // Long lines too, most of them plain, since the octets are read in groups
            const unsigned kinds = random() % 2 ? 6 : 40;
            for (unsigned i = random() % (random() % 2 ? 7 : 50); i > 0; --i) {
                const unsigned kind = random() % kinds;
                text += kind < 6 ? "ab \t=\xC3"[kind] : 'x';
            }
            text += "\r\n";
            if (pieces.isEmpty() || random() % 2)
                pieces += text;
            else
                pieces.last() += text;
        }
        ASSERT_EQ(relaxed(pieces), plainlyRelaxed(pieces.join()))
            << pieces.join().toPercentEncoding().constData();
    }
}

}  // namespace

}  // namespace dkim_form_test
