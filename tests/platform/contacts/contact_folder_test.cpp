// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/ContactFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <QThread>

#include "support/Vectors.h"

namespace contact_folder_test {

using contacts::findOutlookFile;
using contacts::readContactFolder;
using namespace std::chrono_literals;

namespace {

/// Replaces the helper by a shell script.
class HelperScript {
  public:
    explicit HelperScript(const QByteArray& script) {
        const QString path = m_folder.filePath("helper");
        writeBytes(path, "#!/bin/sh\n" + script);
        EXPECT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        contacts::setOutlookHelper(path);
    }
    ~HelperScript() { contacts::setOutlookHelper({}); }
    HelperScript(const HelperScript&) = delete;
    HelperScript& operator=(const HelperScript&) = delete;

    QString path(const QString& name) const { return m_folder.filePath(name); }

  private:
    QTemporaryDir m_folder;
};

constexpr const char* twoOfThree = R"(echo '{"count":3}'
echo '{"Email1Address":"a@example.it"}'
echo '{}'
)";

void setTime(const QString& path, int daysAgo) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        file.setFileTime(QDateTime::currentDateTime().addDays(-daysAgo), QFile::FileModificationTime));
}

/// A helper that crashes, hangs or prints rubbish after two of three entries leaves those two.
void expectTwoOfThree(const QByteArray& ending, std::chrono::milliseconds patience = 60s) {
    const HelperScript helper(twoOfThree + ending);
    const auto folder = readContactFolder("x.pst", patience);
    ASSERT_TRUE(folder.ok()) << folder.status().text().toStdString();
    EXPECT_EQ(folder.value().count, 3);
    ASSERT_EQ(folder.value().items.size(), 2u);
    ASSERT_TRUE(folder.value().items[0]);
    EXPECT_EQ(folder.value().items[0]->email1Address, "a@example.it");
    EXPECT_FALSE(folder.value().items[1]);
}

}  // namespace

TEST(ContactFolder, HelperIsGivenTheFile) {
    const HelperScript helper("echo '{\"count\":1}'\necho '{\"CompanyName\":\"'\"$1 $#\"'\"}'\n");
    const auto folder = readContactFolder("/tmp/nome con 'apici' $(x).pst");
    ASSERT_TRUE(folder.ok());
    EXPECT_EQ(folder.value().items[0]->companyName, "/tmp/nome con 'apici' $(x).pst 1");
}

TEST(ContactFolder, HelperThatEndsEarlyLeavesTheGoodEntries) {
    expectTwoOfThree("exit 0");
}

TEST(ContactFolder, HelperThatCrashesLeavesTheGoodEntries) {
    expectTwoOfThree("kill -SEGV $$");
}

TEST(ContactFolder, HelperThatHangsLeavesTheGoodEntries) {
    expectTwoOfThree("exec sleep 600", 5s);
}

TEST(ContactFolder, HelperThatTalksRubbishLeavesTheGoodEntries) {
    expectTwoOfThree("printf 'rubbish\\n'; echo '{\"Email1Address\":\"b@example.it\"}'");
    expectTwoOfThree("printf '{\"Email1Address\":\"b@exam'");
}

TEST(ContactFolder, HelperThatNeverStopsTalkingIsCutOff) {
    expectTwoOfThree("exec cat /dev/zero");
}

TEST(ContactFolder, HelperThatDoesNotReachTheFolderIsReportedSeparately) {
    contacts::setOutlookHelper("/manca/vestrola-pst");
    EXPECT_EQ(readContactFolder("x.pst").status().code(), ErrorCode::FileNotFound);
    {
        const HelperScript helper("exit 1");
        EXPECT_EQ(readContactFolder("x.pst").status().code(), ErrorCode::UnrecognizedFormat);
    }
    {
        const HelperScript helper("kill -SEGV $$");
        EXPECT_EQ(readContactFolder("x.pst").status().code(), ErrorCode::UnrecognizedFormat);
    }
    {
        const HelperScript helper("echo rubbish");
        EXPECT_EQ(readContactFolder("x.pst").status().code(), ErrorCode::UnrecognizedFormat);
    }
    {
        const HelperScript helper("exec sleep 600");
        EXPECT_EQ(readContactFolder("x.pst", 500ms).status().code(), ErrorCode::Timeout);
    }
}

TEST(ContactFolder, HelperThatHangsIsEnded) {
    const HelperScript helper("echo $$ > \"${0%/*}/pid\"\nexec sleep 600");
    EXPECT_FALSE(readContactFolder("x.pst", 5s).ok());
    const QByteArray pid = bytesOf(helper.path("pid")).trimmed();
    ASSERT_FALSE(pid.isEmpty());
    EXPECT_FALSE(QFileInfo::exists("/proc/" + pid));
}

TEST(ContactFolder, WhatTheHelperHasStartedEndsWithIt) {
    const HelperScript helper("sleep 600 & echo $! > \"${0%/*}/pid\"\necho '{\"count\":0}'\nwait");
    EXPECT_TRUE(readContactFolder("x.pst").ok());
    const QByteArray pid = bytesOf(helper.path("pid")).trimmed();
    ASSERT_FALSE(pid.isEmpty());
    for (int i = 0; i < 500 && QFileInfo::exists("/proc/" + pid); ++i) {
        // somebody has to reap it
        if (bytesOf("/proc/" + pid + "/stat").contains(") Z ")) return;
        QThread::msleep(10);
    }
    EXPECT_FALSE(QFileInfo::exists("/proc/" + pid));
}

TEST(ContactFolder, ReadingEndsWhenTheUserCancels) {
    const HelperScript helper(twoOfThree + QByteArray("exec sleep 600"));
    int asked = 0;
    const auto folder =
        readContactFolder("x.pst", 60s, [&](std::chrono::milliseconds) { return ++asked < 5; });
    EXPECT_EQ(folder.status().code(), ErrorCode::CancelSelected);
    EXPECT_EQ(asked, 5);
}

TEST(ContactFolder, WhatTheHelperSaysAsideIsNotRead) {
    expectTwoOfThree("echo '{\"Email1Address\":\"b@example.it\"}' >&2");
}

TEST(OutlookFile, LastChangedOneOfAllFoldersIsTaken) {
    const QTemporaryDir one, two;
    EXPECT_EQ(findOutlookFile({one.path(), two.path()}), "");
    for (const QString& path : {one.filePath("a.pst"), two.filePath("b.OST"), two.filePath("c.txt")}) {
        writeBytes(path, "x");
    }
    setTime(one.filePath("a.pst"), 5);
    setTime(two.filePath("b.OST"), 9);
    EXPECT_EQ(findOutlookFile({one.path(), two.path()}), one.filePath("a.pst"));
    setTime(two.filePath("b.OST"), 2);
    EXPECT_EQ(findOutlookFile({one.path(), two.path(), "/manca"}), two.filePath("b.OST"));
}

TEST(OutlookFile, FolderNamedLikeOneIsNotTaken) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir("a.pst"));
    EXPECT_EQ(findOutlookFile({folder.path()}), "");
}

}  // namespace contact_folder_test
