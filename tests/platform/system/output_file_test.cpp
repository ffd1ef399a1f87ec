// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OutputFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include "platform/system/FileModes.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

namespace output_file_test {

using sys::FileKind;
using sys::WriteMode;

namespace {

constexpr uid_t somebody = 65534;

struct OutputFile : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath("a");
    QString document = folder.filePath("documento");
    mode_t before = ::umask(022);

    void SetUp() override { writeBytes(document, "resta"); }
    void TearDown() override {
        ::umask(before);
        sys::setProgramFolder({});
    }

    static QByteArray name(const QString& file) { return QFile::encodeName(file); }
    static struct stat statOf(const QString& file) {
        struct stat found {};
        EXPECT_EQ(::lstat(name(file).constData(), &found), 0);
        return found;
    }
    static mode_t modeOf(const QString& file) { return statOf(file).st_mode & 0777U; }
    static Status write(const QString& file, WriteMode mode, FileKind kind, const QByteArray& bytes) {
        QFile out;
        if (Status status = sys::openForWriting(out, file, mode, kind); !status.ok()) return status;
        if (mode == WriteMode::Output) return sys::replaceContent(out, file, kind, bytes);
        EXPECT_EQ(out.write(bytes), bytes.size());
        out.close();
        return {};
    }
    bool give(const QString& file) const {
        return ::lchown(name(file).constData(), somebody, static_cast<gid_t>(-1)) == 0;
    }
};

const auto programKinds = testing::Values(FileKind::Own, FileKind::Secret);

struct OutputFileOfTheProgram : OutputFile, testing::WithParamInterface<FileKind> {};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Kinds, OutputFileOfTheProgram, programKinds);

TEST_P(OutputFileOfTheProgram, IsMadeForItsOwnerAlone) {
    ::umask(0);
    ASSERT_TRUE(write(path, WriteMode::Append, GetParam(), "uno").ok());
    ASSERT_TRUE(write(path, WriteMode::Append, GetParam(), "due").ok());
    EXPECT_EQ(bytesOf(path), "unodue");
    EXPECT_EQ(modeOf(path), 0600U);
    ASSERT_TRUE(write(path, WriteMode::Output, GetParam(), "tre").ok());
    EXPECT_EQ(bytesOf(path), "tre");
}

TEST_P(OutputFileOfTheProgram, TakesThePlaceOfALinkAndLeavesWhatItLeadsTo) {
    ASSERT_TRUE(QFile::link(document, path));
    EXPECT_EQ(write(path, WriteMode::Append, GetParam(), "mio").code(), ErrorCode::PathAccess);
    ASSERT_TRUE(write(path, WriteMode::Output, GetParam(), "mio").ok());
    EXPECT_EQ(bytesOf(document), "resta");
    EXPECT_TRUE(S_ISREG(statOf(path).st_mode));
    EXPECT_EQ(bytesOf(path), "mio");
    EXPECT_EQ(modeOf(path), 0600U);
}

TEST_P(OutputFileOfTheProgram, IsNotMadeThroughALinkThatLeadsNowhere) {
    const QString missing = folder.filePath("manca");
    ASSERT_TRUE(QFile::link(missing, path));
    EXPECT_FALSE(write(path, WriteMode::Append, GetParam(), "mio").ok());
    EXPECT_TRUE(write(path, WriteMode::Output, GetParam(), "mio").ok());
    EXPECT_FALSE(QFile::exists(missing));
}

TEST_P(OutputFileOfTheProgram, TakesThePlaceOfASecondNameAndLeavesTheFile) {
    ASSERT_EQ(::link(name(document).constData(), name(path).constData()), 0);
    EXPECT_EQ(write(path, WriteMode::Append, GetParam(), "mio").code(), ErrorCode::PathAccess);
    ASSERT_TRUE(write(path, WriteMode::Output, GetParam(), "mio").ok());
    EXPECT_EQ(bytesOf(document), "resta");
    EXPECT_EQ(bytesOf(path), "mio");
    EXPECT_EQ(statOf(document).st_nlink, 1U);
}

TEST_P(OutputFileOfTheProgram, IsAPlainFile) {
    ASSERT_EQ(::mkfifo(name(path).constData(), 0600), 0);
    EXPECT_EQ(write(path, WriteMode::Output, GetParam(), "mio").code(), ErrorCode::PathAccess);
    EXPECT_TRUE(S_ISFIFO(statOf(path).st_mode));
    EXPECT_EQ(write(folder.path(), WriteMode::Output, GetParam(), "mio").code(), ErrorCode::PathAccess);
    EXPECT_EQ(write("/dev/null", WriteMode::Output, GetParam(), "mio").code(), ErrorCode::PathAccess);
}

TEST_P(OutputFileOfTheProgram, IsNotMadeInAFolderThatIsAStrangersLink) {
    QDir(folder.path()).mkdir("vera");
    const QString linked = folder.filePath("data");
    ASSERT_TRUE(QFile::link(folder.filePath("vera"), linked));
    EXPECT_TRUE(write(linked + "/x", WriteMode::Output, GetParam(), "mio").ok());
    if (!give(linked)) GTEST_SKIP() << "only the administrator can give a link away";
    EXPECT_FALSE(write(linked + "/y", WriteMode::Output, GetParam(), "mio").ok());
    EXPECT_FALSE(QFile::exists(linked + "/y"));
}

TEST_F(OutputFile, ASecretOnlyGoesIntoAFileOfTheUser) {
    writeBytes(path, "altrui");
    ASSERT_EQ(::chmod(name(path).constData(), 0666), 0);
    if (!give(path)) GTEST_SKIP() << "only the administrator can give a file away";
    for (const WriteMode mode : {WriteMode::Append, WriteMode::Output}) {
        const Status status = write(path, mode, FileKind::Secret, "segreto");
        EXPECT_EQ(status.code(), ErrorCode::PathAccess);
        EXPECT_EQ(status.text(), "Il file appartiene a un altro utente");
    }
    EXPECT_EQ(bytesOf(path), "altrui");
    EXPECT_EQ(statOf(path).st_uid, somebody);
    EXPECT_TRUE(write(path, WriteMode::Append, FileKind::Own, "!").ok());
    EXPECT_EQ(bytesOf(path), "altrui!");
}

TEST_F(OutputFile, ASecretNarrowsTheFileBeforeItIsWritten) {
    writeBytes(path, {});
    ASSERT_EQ(::chmod(name(path).constData(), 0644), 0);
    QFile out;
    ASSERT_TRUE(sys::openForWriting(out, path, WriteMode::Append, FileKind::Secret).ok());
    EXPECT_EQ(modeOf(path), 0600U);
}

TEST_F(OutputFile, WhereTheDiskKeepsNoModesASecretIsWrittenAndItsOwnerStillCounts) {
    writeBytes(path, {});
    ASSERT_EQ(::chmod(name(path).constData(), 0755), 0);
    sys::diskKind() = [](int) { return 0x4d44L; };
    const auto back = qScopeGuard([] { sys::diskKind() = sys::systemDiskKind; });
    EXPECT_TRUE(write(path, WriteMode::Append, FileKind::Secret, "segreto").ok());
    EXPECT_EQ(bytesOf(path), "segreto");
    EXPECT_EQ(modeOf(path), 0755U) << "asked to keep a mode";
    if (!give(path)) GTEST_SKIP() << "only the administrator can give a file away";
    EXPECT_FALSE(write(path, WriteMode::Append, FileKind::Secret, "!").ok());
}

TEST_F(OutputFile, ADocumentFollowsTheUsersSettingsAndHisLinks) {
    ::umask(027);
    ASSERT_TRUE(write(path, WriteMode::Output, FileKind::Document, "mio").ok());
    EXPECT_EQ(modeOf(path), 0640U);
    const QString linked = folder.filePath("scorciatoia");
    ASSERT_TRUE(QFile::link(path, linked));
    ASSERT_TRUE(write(linked, WriteMode::Output, FileKind::Document, "nuovo").ok());
    EXPECT_EQ(bytesOf(path), "nuovo");
    if (!give(linked)) GTEST_SKIP() << "only the administrator can give a link away";
    EXPECT_FALSE(write(linked, WriteMode::Output, FileKind::Document, "rubato").ok());
    EXPECT_EQ(bytesOf(path), "nuovo");
}

TEST_F(OutputFile, APipeThatNobodyReadsDoesNotHang) {
    ASSERT_EQ(::mkfifo(name(path).constData(), 0600), 0);
    EXPECT_FALSE(write(path, WriteMode::Output, FileKind::Document, "mio").ok());
}

TEST_F(OutputFile, WhatTheUserNamesInTheDataFolderIsTheProgramsOwn) {
    sys::setProgramFolder(folder.path());
    QDir(folder.path()).mkpath("data/sotto");
    EXPECT_EQ(sys::kindByFolder(folder.filePath("data/m.mss")), FileKind::Own);
    EXPECT_EQ(sys::kindByFolder(folder.filePath("data/sotto/m.mss")), FileKind::Own);
    EXPECT_EQ(sys::kindByFolder(folder.filePath("m.mss")), FileKind::Document);
    EXPECT_EQ(sys::kindByFolder(folder.filePath("data2/m.mss")), FileKind::Document);
    EXPECT_EQ(sys::kindByFolder(QString()), FileKind::Document);
}

}  // namespace output_file_test
