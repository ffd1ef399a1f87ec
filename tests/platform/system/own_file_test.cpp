// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OwnFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include "platform/system/FileModes.h"
#include "support/Vectors.h"

namespace own_file_test {

namespace {

struct OwnFileTest : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath("a");

    void link(const QString& target) const { ASSERT_TRUE(QFile::link(target, path)); }
};

}  // namespace

TEST_F(OwnFileTest, AFileIsReplacedWholeAndForItsOwnerOnly) {
    ASSERT_TRUE(sys::replaceOwnFile(path, "uno").ok());
    ASSERT_TRUE(sys::replaceOwnFile(path, QByteArray(300'000, 'x')).ok());
    EXPECT_EQ(sys::readOwnFile(path, 300'000).value(), QByteArray(300'000, 'x'));
    struct stat found {};
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777U, 0600U);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"a"});
}

TEST_F(OwnFileTest, ALinkIsReplacedAndNotFollowed) {
    const QString target = folder.filePath("altro");
    writeBytes(target, "resta");
    link(target);
    EXPECT_FALSE(sys::readOwnFile(path, 100).ok());
    ASSERT_TRUE(sys::replaceOwnFile(path, "mio").ok());
    EXPECT_EQ(bytesOf(target), "resta");
    EXPECT_EQ(sys::readOwnFile(path, 100).value(), "mio");
}

TEST_F(OwnFileTest, ReadingIsBounded) {
    ASSERT_TRUE(sys::replaceOwnFile(path, "1234").ok());
    EXPECT_EQ(sys::readOwnFile(path, 4).value(), "1234");
    EXPECT_EQ(sys::readOwnFile(path, 3).status().code(), ErrorCode::Overflow);
    EXPECT_EQ(sys::readOwnFile(folder.filePath("manca"), 3).status().code(), ErrorCode::FileNotFound);
    EXPECT_FALSE(sys::readOwnFile(folder.path(), 3).ok());
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.filePath("tubo")).constData(), 0600), 0);
    EXPECT_FALSE(sys::readOwnFile(folder.filePath("tubo"), 3).ok());
}

TEST_F(OwnFileTest, AShortFileTakesNoRoomForItsBound) {
    ASSERT_TRUE(sys::replaceOwnFile(path, "1234").ok());
    const QByteArray bytes = sys::readOwnFile(path, 64 << 20).value();
    EXPECT_EQ(bytes, "1234");
    EXPECT_LT(bytes.capacity(), 1024);
    EXPECT_EQ(sys::readOwnFilePart(path, 2, 64 << 20).value(), "34");
    EXPECT_EQ(sys::readOwnFilePart(path, 9, 64 << 20).value(), "");
}

TEST_F(OwnFileTest, AFolderThatIsALinkIsRefusedWhereItIsAStrangers) {
    QDir(folder.path()).mkdir("vera");
    link(folder.filePath("vera"));
    EXPECT_FALSE(sys::makeOwnFolder(path).ok());
    EXPECT_TRUE(sys::replaceOwnFile(path + "/mio", "y").ok());
    EXPECT_EQ(sys::readOwnFile(path + "/mio", 1).value(), "y");
    ASSERT_TRUE(QFile::remove(path + "/mio"));
    if (::lchown(QFile::encodeName(path).constData(), 65534, static_cast<gid_t>(-1)) != 0)
        GTEST_SKIP() << "only the administrator can give a link away";
    EXPECT_FALSE(sys::replaceOwnFile(path + "/x", "y").ok());
    sys::FileLock lock;
    EXPECT_FALSE(lock.take(path + "/x").ok());
    EXPECT_TRUE(sys::makeOwnFolder(folder.filePath("vera")).ok());
    EXPECT_TRUE(sys::makeOwnFolder(folder.filePath("nuova")).ok());
    EXPECT_EQ(QDir(folder.filePath("vera")).entryList(QDir::Files), QStringList());
}

TEST_F(OwnFileTest, ALockLastsAsLongAsItsObject) {
    sys::FileLock other;
    {
        sys::FileLock lock;
        ASSERT_TRUE(lock.take(path).ok());
        EXPECT_EQ(other.take(path).code(), ErrorCode::FileInUse);
        sys::FileLock moved = std::move(lock);
        EXPECT_EQ(other.take(path).code(), ErrorCode::FileInUse);
    }
    ASSERT_TRUE(other.take(path).ok());
    other.remove();
    EXPECT_FALSE(other.held());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(OwnFileTest, ALockEndsWithAKilledProcess) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        sys::FileLock lock;
        const char done = lock.take(path).ok() ? 'y' : 'n';
        if (write(ready[1], &done, 1) == 1) pause();
        _exit(1);
    }
    char done = 0;
    ASSERT_EQ(read(ready[0], &done, 1), 1);
    EXPECT_EQ(done, 'y');
    sys::FileLock lock;
    EXPECT_EQ(lock.take(path).code(), ErrorCode::FileInUse);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(lock.take(path).ok());
    close(ready[0]);
    close(ready[1]);
}

TEST_F(OwnFileTest, WhereTheDiskKeepsNoModesASecretIsReadAndItsOwnerStillCounts) {
    ASSERT_TRUE(sys::replaceOwnFile(path, "chiave").ok());
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0777), 0);
    ASSERT_FALSE(sys::readGuardedFile(path, 6).ok());
    const auto back = qScopeGuard([] { sys::diskKind() = sys::systemDiskKind; });
    for (const long kind : {0x4d44L, 0x2011BAB0L}) {
        sys::diskKind() = [kind](int) { return kind; };
        EXPECT_FALSE(sys::keepsModes(folder.path()));
        EXPECT_EQ(sys::readGuardedFile(path, 6).value(), "chiave");
    }
    if (::chown(QFile::encodeName(path).constData(), 65534, static_cast<gid_t>(-1)) != 0)
        GTEST_SKIP() << "only the administrator can give a file away";
    EXPECT_FALSE(sys::readGuardedFile(path, 6).ok());
}

TEST_F(OwnFileTest, TheDiskOfTheseTestsKeepsModesAndOneThatIsNotThereCountsAsOneThatDoes) {
    EXPECT_TRUE(sys::keepsModes(folder.path()));
    EXPECT_TRUE(sys::keepsModes(folder.filePath("manca")));
}

TEST_F(OwnFileTest, ASecretIsReadWhereOnlyItsOwnerCan) {
    ASSERT_TRUE(sys::replaceOwnFile(path, "chiave").ok());
    EXPECT_EQ(sys::readGuardedFile(path, 6).value(), "chiave");
    EXPECT_EQ(sys::readGuardedFile(path, 5).status().code(), ErrorCode::Overflow);
    EXPECT_EQ(sys::readGuardedFile(folder.filePath("manca"), 5).status().code(), ErrorCode::FileNotFound);
    for (const mode_t wide : {0640, 0604, 0620, 0602}) {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), wide), 0);
        const Status status = sys::readGuardedFile(path, 6).status();
        EXPECT_EQ(status.code(), ErrorCode::PathAccess);
        EXPECT_TRUE(status.text().contains(path) && status.text().contains("600"));
    }
    EXPECT_FALSE(sys::readGuardedFile(path, 6, sys::Others::Read).ok());
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    EXPECT_TRUE(sys::readGuardedFile(path, 6, sys::Others::Read).ok());
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0400), 0);
    const QString linked = folder.filePath("collegamento");
    ASSERT_TRUE(QFile::link(path, linked));
    EXPECT_EQ(sys::readGuardedFile(linked, 6).value(), "chiave");
    if (::lchown(QFile::encodeName(linked).constData(), 65534, static_cast<gid_t>(-1)) != 0)
        GTEST_SKIP() << "only the administrator can give a link away";
    EXPECT_FALSE(sys::readGuardedFile(linked, 6).ok());
    ASSERT_EQ(::chown(QFile::encodeName(path).constData(), 65534, static_cast<gid_t>(-1)), 0);
    EXPECT_FALSE(sys::readGuardedFile(path, 6).ok());
}

}  // namespace own_file_test
