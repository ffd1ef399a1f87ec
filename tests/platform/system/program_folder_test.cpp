// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/Vectors.h"

namespace program_folder_test {

namespace {

class ProgramFolder : public testing::Test {
  protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void makeTemplates() const {
        ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("templates/data/oauth"))));
        writeBytes(path(QStringLiteral("templates/data/oauth/providers.json")), "{}");
        writeBytes(path(QStringLiteral("templates/LANG.lng")), "lang");
        writeBytes(path(QStringLiteral("templates/data/Account.imp")), "");
        writeBytes(path(QStringLiteral("templates/data/pathDBase.imp")), "header\r\nXXX\r\n");
    }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(ProgramFolder, IsTheProgramsOwnFolderWhereThatCanBeWritten) {
    const QString application = path(QStringLiteral("portable/bin"));
    ASSERT_TRUE(QDir().mkpath(application));
    EXPECT_EQ(sys::chooseProgramFolder(application, path(QStringLiteral("home"))), application);
}

TEST_F(ProgramFolder, IsTheUsersOwnFolderForAnInstalledCopyAndForAFolderThatIsNotThere) {
    const QString application = path(QStringLiteral("usr/bin"));
    ASSERT_TRUE(QDir().mkpath(application));
    ASSERT_TRUE(QDir().mkpath(sys::installedTemplates(application)));
    const QString user = path(QStringLiteral("home/vestrola"));
    EXPECT_EQ(sys::chooseProgramFolder(application, path(QStringLiteral("home"))), user);
    EXPECT_EQ(sys::chooseProgramFolder(path(QStringLiteral("nowhere")), path(QStringLiteral("home"))), user);
}

TEST_F(ProgramFolder, TheTemplatesOfAPortableCopyLieBesideIt) {
    makeTemplates();
    EXPECT_EQ(sys::templatesOf(path(QStringLiteral("."))), path(QStringLiteral("./templates")));
    const QString application = path(QStringLiteral("usr/bin"));
    EXPECT_EQ(sys::templatesOf(application), sys::installedTemplates(application));
}

TEST_F(ProgramFolder, FirstStartFillsItForItsOwnerAlone) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    ASSERT_TRUE(sys::fillProgramFolder(folder, path(QStringLiteral("templates"))).ok());
    EXPECT_EQ(bytesOf(folder + QStringLiteral("/LANG.lng")), QByteArray("lang"));
    EXPECT_EQ(bytesOf(folder + QStringLiteral("/data/pathDBase.imp")), QByteArray("header\r\nXXX\r\n"));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    for (const char* name : {"", "/LANG.lng", "/data", "/data/Account.imp"}) {
        EXPECT_EQ(QFile::permissions(folder + QLatin1String(name)) & others, QFile::Permissions()) << name;
    }
    EXPECT_TRUE(QFile::permissions(folder + QStringLiteral("/data/Account.imp")) & QFile::WriteOwner);
}

TEST_F(ProgramFolder, LaterStartsLeaveItAlone) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    ASSERT_TRUE(sys::fillProgramFolder(folder, path(QStringLiteral("templates"))).ok());
    writeBytes(folder + QStringLiteral("/data/Account.imp"), "mine");
    ASSERT_TRUE(QFile::remove(folder + QStringLiteral("/data/pathDBase.imp")));
    ASSERT_TRUE(sys::fillProgramFolder(folder, path(QStringLiteral("templates"))).ok());
    EXPECT_EQ(bytesOf(folder + QStringLiteral("/data/Account.imp")), QByteArray("mine"));
    EXPECT_FALSE(QFileInfo::exists(folder + QStringLiteral("/data/pathDBase.imp")));
}

TEST_F(ProgramFolder, ProvidersAreInstalledWhereTheyAreMissingAndThenLeftAlone) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    const QString templates = path(QStringLiteral("templates"));
    const QString providers = folder + QStringLiteral("/data/oauth/providers.json");
    ASSERT_TRUE(sys::restoreProviders(folder, templates).ok());
    EXPECT_FALSE(QFileInfo::exists(folder + QStringLiteral("/data")));
    ASSERT_TRUE(sys::fillProgramFolder(folder, templates).ok());
    ASSERT_TRUE(sys::restoreProviders(folder, templates).ok());
    EXPECT_EQ(bytesOf(providers), QByteArray("{}"));
    EXPECT_FALSE(QFile::permissions(folder + QStringLiteral("/data/oauth")) & QFile::ReadOther);
    writeBytes(providers, "mine");
    ASSERT_TRUE(sys::restoreProviders(folder, templates).ok());
    EXPECT_EQ(bytesOf(providers), QByteArray("mine"));
}

TEST_F(ProgramFolder, InterruptedFirstStartIsMadeGood) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/data.nuova")));
    writeBytes(folder + QStringLiteral("/data.nuova/Account.imp"), "torn");
    ASSERT_TRUE(sys::fillProgramFolder(folder, path(QStringLiteral("templates"))).ok());
    EXPECT_EQ(bytesOf(folder + QStringLiteral("/data/Account.imp")), QByteArray());
    EXPECT_FALSE(QFileInfo::exists(folder + QStringLiteral("/data.nuova")));
}

TEST_F(ProgramFolder, LinkInTheWayOfAFirstStartLosesNothingOfWhatItLeadsTo) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    const QString documents = path(QStringLiteral("documenti"));
    ASSERT_TRUE(QDir().mkpath(folder) && QDir().mkpath(documents));
    writeBytes(documents + QStringLiteral("/lettera"), "resta");
    ASSERT_TRUE(QFile::link(documents, folder + QStringLiteral("/data.nuova")));
    ASSERT_TRUE(sys::fillProgramFolder(folder, path(QStringLiteral("templates"))).ok());
    EXPECT_EQ(QDir(documents).entryList(QDir::Files), QStringList{"lettera"});
    EXPECT_TRUE(QFileInfo(folder + QStringLiteral("/data")).isDir());
    EXPECT_FALSE(QFileInfo(folder + QStringLiteral("/data")).isSymLink());
}

TEST_F(ProgramFolder, UpgradeRenewsTheTextsOfAnEarlierInstallation) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    const QString templates = path(QStringLiteral("templates"));
    ASSERT_TRUE(sys::fillProgramFolder(folder, templates).ok());
    ASSERT_TRUE(sys::renewTexts(folder, templates).ok());
    writeBytes(templates + QStringLiteral("/LANG.lng"), "newer");
    ASSERT_TRUE(sys::renewTexts(folder, templates).ok());
    EXPECT_EQ(bytesOf(folder + QStringLiteral("/LANG.lng")), QByteArray("newer"));
    writeBytes(templates + QStringLiteral("/LANG.lng"), "newest");
    ASSERT_TRUE(sys::renewTexts(folder, templates).ok());
    EXPECT_EQ(bytesOf(folder + QStringLiteral("/LANG.lng")), QByteArray("newest"));
}

TEST_F(ProgramFolder, UpgradeLeavesTextsThatTheUserChangedOrTookAway) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    const QString templates = path(QStringLiteral("templates"));
    ASSERT_TRUE(sys::fillProgramFolder(folder, templates).ok());
    ASSERT_TRUE(sys::renewTexts(folder, templates).ok());
    writeBytes(templates + QStringLiteral("/LANG.lng"), "newer");
    writeBytes(folder + QStringLiteral("/LANG.lng"), "mine");
    ASSERT_TRUE(sys::renewTexts(folder, templates).ok());
    EXPECT_EQ(bytesOf(folder + QStringLiteral("/LANG.lng")), QByteArray("mine"));
    ASSERT_TRUE(QFile::remove(folder + QStringLiteral("/LANG.lng")));
    ASSERT_TRUE(sys::renewTexts(folder, templates).ok());
    EXPECT_FALSE(QFileInfo::exists(folder + QStringLiteral("/LANG.lng")));
}

TEST_F(ProgramFolder, MissingTextsAreInstalledAgainAndOthersStay) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    const QString templates = path(QStringLiteral("templates"));
    const QString texts = folder + QStringLiteral("/LANG.lng");
    ASSERT_TRUE(sys::fillProgramFolder(folder, templates).ok());
    const QByteArray installed = bytesOf(texts);
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(QFile::remove(texts));
        ASSERT_TRUE(sys::restoreTexts(folder, templates).ok());
        EXPECT_EQ(bytesOf(texts), installed);
    }
    writeBytes(texts, "mine");
    ASSERT_TRUE(sys::restoreTexts(folder, templates).ok());
    EXPECT_EQ(bytesOf(texts), QByteArray("mine"));
    ASSERT_TRUE(QFile::remove(texts));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("gone")), texts));
    ASSERT_TRUE(sys::restoreTexts(folder, templates).ok());
    EXPECT_FALSE(QFileInfo::exists(path(QStringLiteral("gone")))) << "a link was followed";
    EXPECT_TRUE(sys::restoreTexts(folder, path(QStringLiteral("nowhere"))).ok());
}

TEST_F(ProgramFolder, RenewalReportsWhereItCannotWrite) {
    makeTemplates();
    const QString folder = path(QStringLiteral("home/vestrola"));
    ASSERT_TRUE(QDir().mkpath(folder));
    writeBytes(folder + QStringLiteral("/LANG.lng"), "lang");
    const Status status = sys::renewTexts(folder, path(QStringLiteral("templates")));
    EXPECT_EQ(status.code(), ErrorCode::PathAccess) << "there is no folder for the note";
    EXPECT_TRUE(sys::renewTexts(folder, path(QStringLiteral("nowhere"))).ok());
}

TEST_F(ProgramFolder, FillingReportsWhereItCannotWrite) {
    makeTemplates();
    writeBytes(path(QStringLiteral("file")), "");
    const Status status =
        sys::fillProgramFolder(path(QStringLiteral("file/vestrola")), path(QStringLiteral("templates")));
    EXPECT_EQ(status.code(), ErrorCode::PathAccess);
    EXPECT_TRUE(status.text().contains(QStringLiteral("vestrola")));
}

TEST_F(ProgramFolder, EndsInASlashAndCanBeReplaced) {
    sys::setProgramFolder(QStringLiteral("/tmp/x"));
    EXPECT_EQ(sys::programFolder(), QStringLiteral("/tmp/x/"));
    sys::setProgramFolder(QStringLiteral("/"));
    EXPECT_EQ(sys::programFolder(), QStringLiteral("/"));
    sys::setProgramFolder({});
    qputenv("VESTROLA_FOLDER", QFile::encodeName(path(QStringLiteral("elsewhere"))));
    EXPECT_EQ(sys::programFolder(), path(QStringLiteral("elsewhere/")));
    qunsetenv("VESTROLA_FOLDER");
    EXPECT_EQ(sys::programFolder(), path(QStringLiteral("elsewhere/"))) << "decided once";
    sys::setProgramFolder({});
    EXPECT_EQ(sys::programFolder(), QCoreApplication::applicationDirPath() + u'/');
    sys::setProgramFolder({});
}

}  // namespace program_folder_test
