// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>

#include "modules/core/bError.h"
#include "platform/system/Clock.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

namespace error_log_test {

namespace {

class ErrorLog : public testing::Test {
  protected:
    void SetUp() override {
        sys::setProgramFolder(m_folder.path());
        QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
        sys::clock().now = [this] { return time; };
    }
    void TearDown() override {
        sys::setProgramFolder({});
        QLocale::setDefault(m_before);
        sys::clock() = sys::systemClock();
    }
    QString path() const { return m_folder.filePath(QStringLiteral("Error.txt")); }

    QDateTime time{QDate(2026, 3, 9), QTime(7, 5, 8)};

  private:
    QTemporaryDir m_folder;
    QLocale m_before;
};

}  // namespace

TEST_F(ErrorLog, ContainsOneLineWithTheTimeOfTheStart) {
    ScriviInizioLog();
    EXPECT_EQ(bytesOf(path()), QByteArray("Inizio applicazione: 09/03/26 07:05:08\r\n"));
}

TEST_F(ErrorLog, SecondStartLeavesASingleLineOfItsOwn) {
    ScriviInizioLog();
    time = time.addSecs(3600);
    ScriviInizioLog();
    EXPECT_EQ(bytesOf(path()), QByteArray("Inizio applicazione: 09/03/26 08:05:08\r\n"));
}

TEST_F(ErrorLog, ReadOnlyFileStaysAsItIs) {
    constexpr uid_t nobody = 65534;
    ScriviInizioLog();
    const QByteArray before = bytesOf(path());
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const QString folder = QFileInfo(path()).path();
    ASSERT_TRUE(
        QFile::setPermissions(folder, QFile::permissions(folder) | QFile::ReadOther | QFile::ExeOther));
    time = time.addSecs(3600);
    const bool root = geteuid() == 0;  // root may write everything, so the process becomes another user
    if (root) {
        ASSERT_EQ(seteuid(nobody), 0);
    }
    EXPECT_NO_THROW(ScriviInizioLog());
    if (root) {
        ASSERT_EQ(seteuid(0), 0);
    }
    EXPECT_EQ(bytesOf(path()), before);
}

TEST_F(ErrorLog, FileThatCannotBeWrittenIsIgnored) {
    ASSERT_TRUE(QDir().mkpath(path()));
    EXPECT_NO_THROW(ScriviInizioLog());
    sys::setProgramFolder(QStringLiteral("/nonexistent"));
    EXPECT_NO_THROW(ScriviInizioLog());
}

}  // namespace error_log_test
