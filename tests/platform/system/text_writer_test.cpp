#include "platform/system/TextWriter.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include "support/Vectors.h"

namespace text_writer_test {

using sys::FileKind;
using sys::WriteMode;

namespace {

class TextWriter : public testing::Test {
  protected:
    QString path(const QString& name = QStringLiteral("file.txt")) const { return m_folder.filePath(name); }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(TextWriter, WriterEndsEachLineWithCarriageReturnAndLineFeed) {
    sys::TextWriter writer;
    ASSERT_TRUE(writer.open(path(), WriteMode::Output, FileKind::Document).ok());
    EXPECT_TRUE(writer.print(u"Perché € Ω").ok());
    EXPECT_TRUE(writer.print(u"").ok());
    EXPECT_TRUE(writer.close().ok());
    EXPECT_EQ(bytesOf(path()), QByteArray("Perch\xe9 \x80 ?\r\n\r\n"));
}

TEST_F(TextWriter, OutputEmptiesAndAppendContinues) {
    writeBytes(path(), "old");
    sys::TextWriter writer;
    ASSERT_TRUE(writer.open(path(), WriteMode::Append, FileKind::Document).ok());
    EXPECT_TRUE(writer.print(u"er").ok());
    EXPECT_TRUE(writer.close().ok());
    EXPECT_EQ(bytesOf(path()), QByteArray("older\r\n"));
    ASSERT_TRUE(writer.open(path(), WriteMode::Output, FileKind::Document).ok());
    EXPECT_TRUE(writer.close().ok());
    EXPECT_EQ(bytesOf(path()), QByteArray());
}

TEST_F(TextWriter, WriterReportsWhereItCannotWrite) {
    sys::TextWriter writer;
    EXPECT_EQ(writer.open(path(QStringLiteral("missing/file")), WriteMode::Output, FileKind::Document).code(),
              ErrorCode::PathAccess);
    EXPECT_EQ(writer.print(u"x").code(), ErrorCode::DeviceIo);
    EXPECT_EQ(writer.close().code(), ErrorCode::DeviceIo);
}

TEST_F(TextWriter, FullDiskIsReportedAtTheLatestWhenClosing) {
    ASSERT_TRUE(QFileInfo::exists(QStringLiteral("/dev/full")));
    sys::TextWriter writer;
    ASSERT_TRUE(writer.open(QStringLiteral("/dev/full"), WriteMode::Output, FileKind::Document).ok());
    const bool printed = writer.print(u"x").ok();
    const bool closed = writer.close().ok();
    EXPECT_FALSE(printed && closed);
}

}  // namespace text_writer_test
