#include "platform/text/TextFile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/Vectors.h"

using text::FileAccess;
using text::LineEnds;
using text::LineReader;
using text::TextWriter;
using text::WriteMode;

namespace {

class TextFile : public testing::Test {
  protected:
    QString path(const QString& name = QStringLiteral("file.txt")) const { return m_folder.filePath(name); }

    QStringList linesOf(const QByteArray& bytes, LineEnds ends) const {
        writeBytes(path(), bytes);
        LineReader reader;
        EXPECT_TRUE(reader.open(path(), ends).ok());
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

TEST_F(TextFile, WriterEndsEachLineWithCarriageReturnAndLineFeed) {
    TextWriter writer;
    ASSERT_TRUE(writer.open(path(), WriteMode::Output).ok());
    EXPECT_TRUE(writer.print(u"Perché € Ω").ok());
    EXPECT_TRUE(writer.print(u"").ok());
    EXPECT_TRUE(writer.close().ok());
    EXPECT_EQ(bytesOf(path()), QByteArray("Perch\xe9 \x80 ?\r\n\r\n"));
}

TEST_F(TextFile, OutputEmptiesAndAppendGoesOn) {
    writeBytes(path(), "old");
    TextWriter writer;
    ASSERT_TRUE(writer.open(path(), WriteMode::Append).ok());
    EXPECT_TRUE(writer.print(u"er").ok());
    EXPECT_TRUE(writer.close().ok());
    EXPECT_EQ(bytesOf(path()), QByteArray("older\r\n"));
    ASSERT_TRUE(writer.open(path(), WriteMode::Output).ok());
    EXPECT_TRUE(writer.close().ok());
    EXPECT_EQ(bytesOf(path()), QByteArray());
}

TEST_F(TextFile, WriterTellsWhereItCannotWrite) {
    TextWriter writer;
    EXPECT_EQ(writer.open(path(QStringLiteral("missing/file")), WriteMode::Output).code(),
              ErrorCode::PathAccess);
    EXPECT_EQ(writer.print(u"x").code(), ErrorCode::DeviceIo);
    EXPECT_EQ(writer.close().code(), ErrorCode::DeviceIo);
}

TEST_F(TextFile, FullDiskIsToldAtTheLatestWhenClosing) {
    ASSERT_TRUE(QFileInfo::exists(QStringLiteral("/dev/full")));
    TextWriter writer;
    ASSERT_TRUE(writer.open(QStringLiteral("/dev/full"), WriteMode::Output).ok());
    const bool printed = writer.print(u"x").ok();
    const bool closed = writer.close().ok();
    EXPECT_FALSE(printed && closed);
}

TEST_F(TextFile, OwnerOnlyFileIsClosedToOthers) {
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    TextWriter writer;
    ASSERT_TRUE(writer.open(path(), WriteMode::Append, FileAccess::OwnerOnly).ok());
    EXPECT_EQ(QFile::permissions(path()) & others, QFile::Permissions());
    ASSERT_TRUE(writer.close().ok());
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::permissions(path()) | QFile::ReadOther));
    ASSERT_TRUE(writer.open(path(), WriteMode::Output, FileAccess::OwnerOnly).ok());
    EXPECT_EQ(QFile::permissions(path()) & others, QFile::Permissions());
}
