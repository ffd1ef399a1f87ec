// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Shell.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include "support/Vectors.h"

namespace shell_test {

namespace {

// Replaces the desktop's opener by one that notes its arguments.
class Shell : public testing::Test {
  protected:
    void SetUp() override {
        m_path = qgetenv("PATH");
        const QString opener = m_folder.filePath(QStringLiteral("xdg-open"));
        writeBytes(opener, "#!/bin/sh\necho \"$#:$1\" > \"" + QFile::encodeName(log()) + ".new\"\nmv \"" +
                               QFile::encodeName(log()) + ".new\" \"" + QFile::encodeName(log()) + "\"\n");
        ASSERT_TRUE(QFile::setPermissions(opener, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        qputenv("PATH", QFile::encodeName(m_folder.path()) + ":" + m_path);
    }
    void TearDown() override { qputenv("PATH", m_path); }

    QString log() const { return m_folder.filePath(QStringLiteral("log")); }
    QByteArray opened() const {
        QElapsedTimer timer;
        timer.start();
        while (!QFileInfo::exists(log()) && timer.elapsed() < 10000)
            QThread::msleep(5);
        return bytesOf(log());
    }

    QTemporaryDir m_folder;
    QByteArray m_path;
};

}  // namespace

TEST_F(Shell, HandsAWebAddressToTheDesktop) {
    ASSERT_TRUE(sys::openAddress(QStringLiteral("https://www.quintara.example/")).ok());
    EXPECT_EQ(opened(), QByteArray("1:https://www.quintara.example/\n"));
}

TEST_F(Shell, HandsAMailLinkToTheDesktop) {
    ASSERT_TRUE(sys::openAddress(QStringLiteral("mailto:info@quintara.example")).ok());
    EXPECT_EQ(opened(), QByteArray("1:mailto:info@quintara.example\n"));
}

TEST_F(Shell, RefusesWhatIsNoAddress) {
    for (const char* address : {"", "--version", "javascript:alert(1)", "/etc/passwd", "ftp://x/"}) {
        EXPECT_EQ(sys::openAddress(QLatin1String(address)).code(), ErrorCode::PathAccess) << address;
    }
}

TEST_F(Shell, ReportsThatThereIsNoOpener) {
    qputenv("PATH", "/nonexistent");
    EXPECT_EQ(sys::openAddress(QStringLiteral("https://www.quintara.example/")).code(),
              ErrorCode::PathAccess);
}

}  // namespace shell_test
