// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/FileStamp.h"

#include <gtest/gtest.h>
#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

namespace file_stamp_test {

namespace {

using mail::FileStamp;

class FileStampTest : public testing::Test {
  protected:
    QString write(const QByteArray& content) {
        QFile file(m_folder.filePath("à.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TEST_F(FileStampTest, IsSizeAndTimeOfAnOrdinaryFile) {
    const QString path = write("abc");
    QFile file(path);
    const QDateTime changed = QDateTime::fromMSecsSinceEpoch(1700000000123);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(changed, QFile::FileModificationTime));
    const FileStamp stamp = FileStamp::of(path);
    EXPECT_TRUE(stamp.exists());
    EXPECT_EQ(stamp.size, 3);
    EXPECT_EQ(stamp.changedAtMs, 1700000000123);
    ASSERT_TRUE(QFile::link(path, m_folder.filePath("link")));
    EXPECT_EQ(FileStamp::of(m_folder.filePath("link")), stamp);
}

TEST_F(FileStampTest, IsNoneForAnythingElse) {
    const QString path = write("abc");
    for (const QString& other :
         {QString(), m_folder.path(), m_folder.filePath("missing"), path + QChar(0) + "x"})
        EXPECT_EQ(FileStamp::of(other), FileStamp());
}

}  // namespace

}  // namespace file_stamp_test
