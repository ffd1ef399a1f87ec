// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/TextFile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/Vectors.h"

namespace text_file_test {

using text::Encoding;
using text::LineEnds;
using text::LineReader;

namespace {

class TextFile : public testing::Test {
  protected:
    QString path(const QString& name = QStringLiteral("file.txt")) const { return m_folder.filePath(name); }

    QStringList linesOf(const QByteArray& bytes, LineEnds ends, Encoding encoding = Encoding::Ansi) const {
        writeBytes(path(), bytes);
        LineReader reader;
        EXPECT_TRUE(reader.open(path(), ends, encoding).ok());
        QStringList lines;
        QString line;
        while (reader.nextLine(line))
            lines += line;
        EXPECT_TRUE(reader.status().ok());
        EXPECT_TRUE(reader.atEnd());
        return lines;
    }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(TextFile, LoneLineFeedStaysInTheLineWhereOnlyCarriageReturnCounts) {
    EXPECT_EQ(linesOf("a\nb\r\nc\rd\n\re", LineEnds::CarriageReturn), QStringList({"a\nb", "c", "d\n", "e"}));
}

TEST_F(TextFile, EveryLineEndCountsWhereAnyDoes) {
    EXPECT_EQ(linesOf("a\nb\r\nc\rd\n\re", LineEnds::Any), QStringList({"a", "b", "c", "d", "", "e"}));
}

TEST_F(TextFile, FinalLineEndBeginsNoFurtherLine) {
    for (const QByteArray& bytes : {QByteArray("a\r\nb\r\n"), QByteArray("a\r\nb"), QByteArray("a\rb\r")}) {
        EXPECT_EQ(linesOf(bytes, LineEnds::CarriageReturn), QStringList({"a", "b"}));
    }
    EXPECT_EQ(linesOf("a\r\n\r\n", LineEnds::Any), QStringList({"a", ""}));
}

TEST_F(TextFile, EmptyFileHasNoLine) {
    EXPECT_TRUE(linesOf("", LineEnds::Any).isEmpty());
}

TEST_F(TextFile, NulAndHighBytesAreCharacters) {
    EXPECT_EQ(linesOf(QByteArray("a\0b\x80\x81", 5), LineEnds::Any),
              QStringList(QStringView(u"a\0b€\u0081", 5).toString()));
}

TEST_F(TextFile, LineEndAcrossABlockBorderIsOne) {
    for (int length = 64 * 1024 - 2; length <= 64 * 1024 + 1; ++length) {
        const QStringList lines = linesOf(QByteArray(length, 'x') + "\r\ny", LineEnds::CarriageReturn);
        ASSERT_EQ(lines.size(), 2) << length;
        EXPECT_EQ(lines[0].size(), length);
        EXPECT_EQ(lines[1], QStringLiteral("y"));
    }
}

TEST_F(TextFile, WholeFileOfUtf8IsReadAsSuchWithOrWithoutAMark) {
    const QStringList expected{"Perù;a@x.it", "łódź €"};
    for (const QByteArray& mark : {QByteArray(), QByteArray("\xef\xbb\xbf")})
        EXPECT_EQ(
            linesOf(mark + QString("Perù;a@x.it\r\nłódź €").toUtf8(), LineEnds::Any, Encoding::Detected),
            expected);
}

TEST_F(TextFile, OneWrongByteAnywhereMakesTheWholeFileWindows1252) {
    const QByteArray filler(200 * 1024, '\n');
    for (const char* wrong : {"\xe0", "\xc3(", "\xed\xa0\x80", "\xc0\x80", "\xff"}) {
        const QStringList lines =
            linesOf("\xc3\xb9" + filler + "x" + wrong, LineEnds::Any, Encoding::Detected);
        EXPECT_EQ(lines.constFirst(), "Ã¹") << wrong;
        EXPECT_EQ(lines.size(), filler.size() + 1);
    }
    EXPECT_EQ(linesOf("\xef\xbb\xbf\xe0", LineEnds::Any, Encoding::Detected), QStringList("ï»¿à"));
}

TEST_F(TextFile, ACharacterOfUtf8AcrossABlockBorderIsOne) {
    for (int length = 64 * 1024 - 4; length <= 64 * 1024; ++length) {
        const QStringList lines =
            linesOf(QByteArray(length, 'x') + "\xf0\x9f\x98\x80\ny", LineEnds::Any, Encoding::Detected);
        ASSERT_EQ(lines.size(), 2) << length;
        EXPECT_EQ(lines[0].sliced(length), QString::fromUtf8("\xf0\x9f\x98\x80"));
    }
}

TEST_F(TextFile, Utf16WithAMarkIsReadInBothByteOrders) {
    const QString content = "Perù;a@x.it\r\n\n" + QString::fromUtf8("\xf0\x9f\x98\x80") + '\r';
    QByteArray little("\xff\xfe");
    QByteArray big("\xfe\xff");
    for (const QChar unit : content) {
        little += QByteArray(1, static_cast<char>(unit.cell())) + static_cast<char>(unit.row());
        big += QByteArray(1, static_cast<char>(unit.row())) + static_cast<char>(unit.cell());
    }
    const QStringList expected{"Perù;a@x.it", "", QString::fromUtf8("\xf0\x9f\x98\x80")};
    EXPECT_EQ(linesOf(little, LineEnds::Any, Encoding::Detected), expected);
    EXPECT_EQ(linesOf(big, LineEnds::Any, Encoding::Detected), expected);
    EXPECT_EQ(linesOf(big + "x", LineEnds::Any, Encoding::Detected), expected) << "half a unit at the end";
    EXPECT_TRUE(linesOf("\xff\xfe", LineEnds::Any, Encoding::Detected).isEmpty());
}

TEST_F(TextFile, APairOfUtf16AcrossABlockBorderIsOneCharacter) {
    for (int units = 32 * 1024 - 3; units <= 32 * 1024; ++units) {
        QByteArray bytes("\xff\xfe");
        for (int i = 0; i < units; ++i)
            bytes += QByteArray("x\0", 2);
        bytes += QByteArray("\x3d\xd8\x00\xde\n\0y\0", 8);
        const QStringList lines = linesOf(bytes, LineEnds::Any, Encoding::Detected);
        ASSERT_EQ(lines.size(), 2) << units;
        EXPECT_EQ(lines[0].sliced(units), QString::fromUtf8("\xf0\x9f\x98\x80"));
    }
}

TEST_F(TextFile, NulIsLeftOutWhereTheEncodingIsFoundOut) {
    EXPECT_EQ(linesOf(QByteArray("a\0b\n\0\nc\xe0\0", 9), LineEnds::Any, Encoding::Detected),
              QStringList({"ab", "", "cà"}));
}

TEST_F(TextFile, EachOpeningDetectsItAgain) {
    writeBytes(path("8"), "\xc3\xb9");
    writeBytes(path("16"), QByteArray("\xff\xfe\xf9\0", 4));
    LineReader reader;
    QString line;
    for (const auto& [name, encoding, expected] :
         {std::tuple("16", Encoding::Detected, "ù"), std::tuple("8", Encoding::Detected, "ù"),
          std::tuple("8", Encoding::Ansi, "Ã¹"), std::tuple("16", Encoding::Detected, "ù")}) {
        ASSERT_TRUE(reader.open(path(name), LineEnds::Any, encoding).ok());
        ASSERT_TRUE(reader.nextLine(line));
        EXPECT_EQ(line, QString(expected));
    }
}

TEST_F(TextFile, ReadingPastTheEndFailsAndKeepsTheLine) {
    writeBytes(path(), "a\r\n");
    LineReader reader;
    ASSERT_TRUE(reader.open(path(), LineEnds::Any).ok());
    QString line;
    EXPECT_TRUE(reader.readLine(line).ok());
    EXPECT_EQ(reader.readLine(line).code(), ErrorCode::InputPastEnd);
    EXPECT_EQ(line, QStringLiteral("a"));
}

TEST_F(TextFile, LineBeyondTheLimitEndsTheReading) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(LineReader::longestLine + 1));
    file.close();
    LineReader reader;
    ASSERT_TRUE(reader.open(path(), LineEnds::Any).ok());
    QString line = QStringLiteral("before");
    EXPECT_EQ(reader.readLine(line).code(), ErrorCode::DeviceIo);
    EXPECT_EQ(line, QStringLiteral("before"));
    EXPECT_TRUE(reader.atEnd());
}

TEST_F(TextFile, OnlyAnOrdinaryFileCanBeOpened) {
    LineReader reader;
    EXPECT_EQ(reader.open(path(QStringLiteral("missing")), LineEnds::Any).code(), ErrorCode::FileNotFound);
    EXPECT_EQ(reader.open(QString(), LineEnds::Any).code(), ErrorCode::FileNotFound);
    EXPECT_EQ(reader.open(QFileInfo(path()).path(), LineEnds::Any).code(), ErrorCode::PathAccess);
    EXPECT_EQ(reader.open(QStringLiteral("/dev/zero"), LineEnds::Any).code(), ErrorCode::PathAccess);
    ASSERT_EQ(mkfifo(QFile::encodeName(path(QStringLiteral("pipe"))).constData(), 0600), 0);
    EXPECT_EQ(reader.open(path(QStringLiteral("pipe")), LineEnds::Any).code(), ErrorCode::PathAccess);
    QString line;
    EXPECT_TRUE(reader.atEnd());
    EXPECT_FALSE(reader.nextLine(line));
}

}  // namespace text_file_test
