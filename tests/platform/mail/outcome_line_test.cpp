// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of the book of outcomes, sound and damaged.
#include <gtest/gtest.h>

#include "platform/mail/OutcomeBook.h"

namespace outcome_line_test {

using namespace mail;

namespace {

OutcomeLine line(qint64 number, OutcomeKind kind = OutcomeKind::Refused) {
    OutcomeLine made;
    made.time = QDateTime::fromString("2026-11-22T10:05:03.123Z", Qt::ISODateWithMs);
    made.number = number;
    made.address = QString("uno%1@x.it").arg(number);
    made.kind = kind;
    made.stage = DeliveryStage::Recipient;
    made.cause = DeliveryCause::Server;
    made.code = 550;
    made.status = "5.1.1";
    made.words = "5.1.1 no such user";
    return made;
}

OutcomeHead head(const QString& path = "/casa/data.mdb") {
    return {line(1).time, {path, 2049, 18446744073709551615U}, "mittente@x.it", "Offerta per :::nom:::"};
}

std::optional<OutcomeLine> again(const OutcomeLine& one) {
    return parseOutcomeLine(QByteArrayView(one.bytes()).chopped(1));
}

}  // namespace

TEST(OutcomeLine, ReadsWhatItWrote) {
    for (const auto kind :
         {OutcomeKind::Delivered, OutcomeKind::Refused, OutcomeKind::NoAnswer, OutcomeKind::NotSent}) {
        for (int stage = 0; stage <= int(DeliveryStage::Body); ++stage)
            for (int cause = 0; cause <= int(DeliveryCause::Program); ++cause) {
                OutcomeLine one = line(7, kind);
                one.stage = DeliveryStage(stage);
                one.cause = DeliveryCause(cause);
                EXPECT_EQ(again(one), one);
            }
    }
    OutcomeLine bare;
    bare.time = line(1).time;
    EXPECT_EQ(again(bare), bare);
    OutcomeLine odd = line(-2147483647);
    odd.address = "a\tb\n\"\\@x.it\u2028è";
    EXPECT_EQ(odd.bytes().count('\n'), 1);
    EXPECT_EQ(again(odd), odd);
}

TEST(OutcomeLine, HeadReadsWhatItWrote) {
    const auto read = parseOutcomeHead(QByteArrayView(head().bytes()).chopped(1));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->begun, head().begun);
    EXPECT_EQ(read->database.path, head().database.path);
    EXPECT_EQ(read->database.device, head().database.device);
    EXPECT_EQ(read->database.inode, head().database.inode);
    EXPECT_EQ(read->sender, head().sender);
    EXPECT_EQ(read->title, head().title);
}

TEST(OutcomeLine, LongTextsAreShortenedAndStillReadable) {
    OutcomeLine one = line(7);
    one.words = QString(50000, QChar(0x1));
    one.address = QString::fromUtf8("😀").repeated(40000);
    ASSERT_LT(one.bytes().size(), longestOutcomeLine);
    const auto read = again(one);
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->words.endsWith(u'…'));
    EXPECT_EQ(read->address.size(), 999);
    EXPECT_FALSE(read->address.at(997).isHighSurrogate());
}

TEST(OutcomeLine, WordsSteerNoDisplay) {
    OutcomeLine one = line(7);
    one.words = QStringLiteral("a\u202Eb\nc");
    EXPECT_EQ(again(one)->words, "a b c");
}

TEST(OutcomeLine, StatusIsThatOfTheReplysClass) {
    EXPECT_EQ(enhancedStatus(550, u"5.1.10 null MX"), "5.1.10");
    EXPECT_EQ(enhancedStatus(550, u"5.1.1"), "5.1.1");
    for (const char* text : {"2.1.1 x", "5.1 x", "5.1.1.1 x", "5.1.1000 x", "5..1 x", "55.1.1 x", "no 5.1.1",
                             "5.1.1- x", "", " 5.1.1 x", "5.1.١ x"})
        EXPECT_EQ(enhancedStatus(550, QString::fromUtf8(text)), "") << text;
}

TEST(OutcomeLine, DamagedLinesAreCountedAndLeftOut) {
    const QByteArray good = line(1).bytes();
    const QList<QByteArray> bad{
        "",
        "null",
        "[]",
        "{}",
        "{",
        "\xff\xfe",
        QByteArray(good).chopped(2),
        '[' + good.chopped(1) + ']',
        QByteArray(good).replace("rifiutato", "boh").chopped(1),
        QByteArray(good).replace("destinatario", "boh").chopped(1),
        QByteArray(good).replace("\"server\"", "7").chopped(1),
        QByteArray(good).replace("2026", "duemila").chopped(1),
        QByteArray(good).replace("\"numero\":1", "\"numero\":\"1\"").chopped(1),
        QByteArray(good).replace("\"numero\":1", "\"numero\":1.5").chopped(1),
        QByteArray(good).replace("550", "-1").chopped(1),
        QByteArray(good).replace("uno1", QByteArray(2000, 'x')).chopped(1),
        QByteArray(good).replace("no such", QByteArray(longestOutcomeLine, 'x')).chopped(1),
        QByteArray(5000, '['),
        QByteArray(good).replace("Vestrola", "").chopped(20) + '\0'};
    for (const QByteArray& one : bad) {
        const auto content = outcomes::parse(head().bytes() + one + '\n' + line(2).bytes());
        EXPECT_EQ(content.damaged, 1) << one.left(200).constData();
        ASSERT_EQ(content.rows.size(), 1) << one.left(200).constData();
        EXPECT_EQ(content.rows[0].line, line(2));
    }
}

TEST(OutcomeLine, LastLineOfANumberCounts) {
    const auto content = outcomes::parse(head().bytes() + line(1, OutcomeKind::NoAnswer).bytes() +
                                         line(2).bytes() + line(1, OutcomeKind::Delivered).bytes());
    ASSERT_EQ(content.rows.size(), 2);
    EXPECT_EQ(content.rows[0].line, line(2));
    EXPECT_EQ(content.rows[1].line, line(1, OutcomeKind::Delivered));
    EXPECT_FALSE(content.cutOff);
}

TEST(OutcomeLine, LinesWithoutANumberAllCount) {
    OutcomeLine nobody = line(1);
    nobody.number.reset();
    EXPECT_EQ(outcomes::parse(head().bytes() + nobody.bytes() + nobody.bytes()).rows.size(), 2);
}

TEST(OutcomeLine, SameNumberOfAnotherDatabaseIsAnother) {
    const auto content = outcomes::parse(line(1).bytes() + head().bytes() + line(1).bytes() +
                                         head("/b.mdb").bytes() + line(1).bytes());
    ASSERT_EQ(content.rows.size(), 3);
    EXPECT_EQ(content.rows[0].database, -1);
    EXPECT_EQ(content.databases[content.rows[1].database].path, "/casa/data.mdb");
    EXPECT_EQ(content.databases[content.rows[2].database].path, "/b.mdb");
}

TEST(OutcomeLine, FileThatWasCutAnywhereShowsItsWholeLines) {
    const QByteArray whole = head().bytes() + line(1).bytes() + line(2).bytes() + line(3).bytes();
    const qsizetype first = head().bytes().size() + line(1).bytes().size();
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const auto content = outcomes::parse(QByteArrayView(whole).first(size));
        const qsizetype lines = whole.first(size).count('\n');
        EXPECT_EQ(content.rows.size(), std::max<qsizetype>(lines - 1, 0)) << size;
        EXPECT_EQ(content.damaged, 0) << size;
        EXPECT_EQ(content.cutOff, size > 0 && whole.at(size - 1) != '\n') << size;
    }
    EXPECT_EQ(outcomes::parse(QByteArrayView(whole).sliced(first - 10)).damaged, 1);
}

}  // namespace outcome_line_test
