// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/TextWriter.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/FullDisk.h"
#include "support/Vectors.h"

namespace text_writer_test {

using sys::FileKind;
using sys::WriteMode;

namespace {

class TextWriter : public testing::Test {
  protected:
    QString path(const QString& name = QStringLiteral("file.txt")) const { return m_folder.filePath(name); }
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }
    static QByteArray name(const QString& file) { return QFile::encodeName(file); }
    static struct stat statOf(const QString& file) {
        struct stat found {};
        EXPECT_EQ(::lstat(name(file).constData(), &found), 0);
        return found;
    }
    static Status write(const QString& file, FileKind kind, QStringView line) {
        sys::TextWriter writer;
        EXPECT_TRUE(writer.open(file, WriteMode::Output, kind).ok());
        EXPECT_TRUE(writer.print(line).ok());
        return writer.close();
    }

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

TEST_F(TextWriter, FileThatCannotBeWrittenWholeStaysAsItWas) {
    for (const FileKind kind : {FileKind::Document, FileKind::Own, FileKind::Secret}) {
        writeBytes(path(), "what was there before");
        const FullDisk full(10);
        EXPECT_EQ(write(path(), kind, u"what is to come instead").code(), ErrorCode::DeviceIo);
        EXPECT_EQ(bytesOf(path()), QByteArray("what was there before"));
        EXPECT_EQ(files(), QStringList("file.txt"));
    }
}

TEST_F(TextWriter, NewFileThatCannotBeWrittenWholeIsEmpty) {
    const FullDisk full(10);
    EXPECT_FALSE(write(path(), FileKind::Document, u"what is to come").ok());
    EXPECT_EQ(bytesOf(path()), QByteArray());
    EXPECT_EQ(files(), QStringList("file.txt"));
}

TEST_F(TextWriter, WhatIsNotClosedIsNotWritten) {
    writeBytes(path(), "before");
    for (const WriteMode mode : {WriteMode::Output, WriteMode::Append}) {
        sys::TextWriter writer;
        ASSERT_TRUE(writer.open(path(), mode, FileKind::Secret).ok());
        EXPECT_TRUE(writer.print(u"half of it").ok());
    }
    EXPECT_EQ(bytesOf(path()), QByteArray("before"));
}

TEST_F(TextWriter, LineThatDoesNotFitLeavesNoPartAtTheEnd) {
    writeBytes(path(), "first\r\n");
    sys::TextWriter writer;
    ASSERT_TRUE(writer.open(path(), WriteMode::Append, FileKind::Secret).ok());
    EXPECT_TRUE(writer.print(u"second").ok());
    {
        const FullDisk full(10);
        EXPECT_EQ(writer.close().code(), ErrorCode::DeviceIo);
    }
    EXPECT_EQ(bytesOf(path()), QByteArray("first\r\n"));
    ASSERT_TRUE(writer.open(path(), WriteMode::Append, FileKind::Secret).ok());
    EXPECT_TRUE(writer.print(u"third").ok());
    EXPECT_TRUE(writer.close().ok());
    EXPECT_EQ(bytesOf(path()), QByteArray("first\r\nthird\r\n"));
}

TEST_F(TextWriter, ModeOfTheFileStays) {
    writeBytes(path(), "before");
    ASSERT_EQ(::chmod(name(path()).constData(), 0664), 0);
    EXPECT_TRUE(write(path(), FileKind::Document, u"x").ok());
    EXPECT_EQ(statOf(path()).st_mode & 07777U, 0664U);
    EXPECT_EQ(bytesOf(path()), QByteArray("x\r\n"));
}

TEST_F(TextWriter, DocumentIsWrittenThroughALinkThatStays) {
    writeBytes(path(), "before");
    const QString link = path(QStringLiteral("link.txt"));
    ASSERT_TRUE(QFile::link(path(), link));
    EXPECT_TRUE(write(link, FileKind::Document, u"x").ok());
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(bytesOf(path()), QByteArray("x\r\n"));
}

TEST_F(TextWriter, DocumentWithTwoNamesKeepsBoth) {
    writeBytes(path(), "before");
    const QString second = path(QStringLiteral("second.txt"));
    ASSERT_EQ(::link(name(path()).constData(), name(second).constData()), 0);
    EXPECT_TRUE(write(path(), FileKind::Document, u"x").ok());
    EXPECT_EQ(bytesOf(second), QByteArray("x\r\n"));
    EXPECT_EQ(statOf(path()).st_ino, statOf(second).st_ino);
}

TEST_F(TextWriter, FileBesideWhichNoneCanBeMadeIsWrittenInPlace) {
    // The longest name that there is: one with more letters cannot be made.
    const QString longest = path(QString(255, u'x'));
    writeBytes(longest, "a text that was longer before");
    EXPECT_TRUE(write(longest, FileKind::Document, u"x").ok());
    EXPECT_EQ(bytesOf(longest), QByteArray("x\r\n"));
}

}  // namespace text_writer_test
