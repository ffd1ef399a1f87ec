// SPDX-License-Identifier: GPL-3.0-or-later
// Rescue copies as files: what they contain, who may read and take them, what becomes of damaged and refused
// ones.
#include "modules/message/CopiaRecupero.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

namespace copia_recupero_test {

namespace {

class CopiaRecuperoTest : public testing::Test {
  protected:
    CopiaRecuperoTest() {
        QDir(m_folder.path()).mkdir("data");
        sys::setProgramFolder(m_folder.path());
    }
    ~CopiaRecuperoTest() override { sys::setProgramFolder({}); }

    static QString place() { return cartellaDati() + "recuperati"; }
    static QStringList files(const QString& suffix) {
        return QDir(place()).entryList({'*' + suffix}, QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    }
    static QString only(const QString& suffix) {
        const QStringList found = files(suffix);
        return found.size() == 1 ? place() + '/' + found[0] : QString();
    }
    static MessaggioRecuperato sample(const QString& subject = QStringLiteral("Łódź — ñ €")) {
        return {"offerta.mss", subject, "HI", {"/tmp/città.pdf"}, "<p>uno\r\ndue</p>", "<p>tre"};
    }
    /// A copy whose program has ended.
    static void leave(const MessaggioRecuperato& message) {
        CopiaRecupero copy;
        copy.Scrivi(message);
    }
    static std::vector<CopiaTrovata> offered() {
        QStringList damaged;
        auto found = CopiaTrovata::Cerca(damaged);
        EXPECT_EQ(damaged, QStringList());
        return found;
    }
    /// The result of taking a copy with these bytes.
    static void expectDamaged(const QByteArray& content) {
        leave(sample());
        const QString path = only(".copia");
        writeBytes(path, content);
        QStringList damaged;
        EXPECT_TRUE(CopiaTrovata::Cerca(damaged).empty());
        ASSERT_EQ(damaged.size(), 1);
        EXPECT_EQ(bytesOf(damaged[0]), content);
        EXPECT_EQ(files(".copia"), QStringList());
        EXPECT_EQ(files(".blocco"), QStringList());
        QFile::remove(damaged[0]);
    }

    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(CopiaRecuperoTest, NothingIsThereBeforeTheFirstCopy) {
    CopiaRecupero copy;
    EXPECT_FALSE(copy.Esiste());
    copy.Togli();
    EXPECT_FALSE(QDir(place()).exists());
    EXPECT_TRUE(offered().empty());
    EXPECT_FALSE(QDir(place()).exists());
}

TEST_F(CopiaRecuperoTest, ContainsEveryCharacterOfTheMessage) {
    MessaggioRecuperato message = sample();
    message.CorpoHTML = QString::fromUtf8("a\0b \n\r\t\"\\ \xF0\x9F\x8E\x84", 14);
    leave(message);
    const auto found = offered();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(found[0].Messaggio() == message);
    EXPECT_LT(found[0].Quando().secsTo(QDateTime::currentDateTime()), 60);
}

TEST_F(CopiaRecuperoTest, ASourceThatHasMovedIsNone) {
    MessaggioRecuperato message = sample();
    message.Origine.reset();
    leave(message);
    EXPECT_TRUE(offered().at(0).Messaggio() == message);
    message.Origine = "";
    leave(message);
    EXPECT_TRUE(offered().at(0).Messaggio().Origine || offered().at(1).Messaggio().Origine);
}

TEST_F(CopiaRecuperoTest, IsItsOwnersAlone) {
    leave(sample());
    struct stat file {};
    struct stat folder {};
    ASSERT_EQ(stat(QFile::encodeName(only(".copia")).constData(), &file), 0);
    ASSERT_EQ(stat(QFile::encodeName(place()).constData(), &folder), 0);
    EXPECT_EQ(file.st_mode & 0777U, 0600U);
    EXPECT_EQ(folder.st_mode & 0777U, 0700U);
}

TEST_F(CopiaRecuperoTest, IsOfferedOnlyWhenItsProgramHasEnded) {
    auto copy = std::make_unique<CopiaRecupero>();
    copy->Scrivi(sample());
    EXPECT_TRUE(offered().empty());
    copy->Scrivi(sample("altro"));
    EXPECT_TRUE(offered().empty());
    copy.reset();
    {
        const auto found = offered();
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].Messaggio().Oggetto, "altro");
        EXPECT_TRUE(offered().empty());  // another program, at the same moment
    }
    EXPECT_EQ(offered().size(), 1U);
}

TEST_F(CopiaRecuperoTest, EachDocumentHasItsOwn) {
    CopiaRecupero first;
    CopiaRecupero second;
    first.Scrivi(sample());
    second.Scrivi(sample());
    EXPECT_EQ(files(".copia").size(), 2);
    first.Togli();
    EXPECT_EQ(files(".copia").size(), 1);
    second.Togli();
    EXPECT_EQ(QDir(place()).entryList(QDir::Files), QStringList());
}

TEST_F(CopiaRecuperoTest, CanBeWrittenAgainAfterItWasRemoved) {
    CopiaRecupero copy;
    copy.Scrivi(sample());
    copy.Togli();
    EXPECT_FALSE(copy.Esiste());
    copy.Scrivi(sample());
    EXPECT_EQ(files(".copia").size(), 1);
}

TEST_F(CopiaRecuperoTest, TheOneThatTakesItOverContinuesWithTheSameFile) {
    leave(sample());
    const QString path = only(".copia");
    CopiaRecupero copy = offered().at(0).Prendi();
    EXPECT_TRUE(copy.Esiste());
    EXPECT_TRUE(offered().empty());
    copy.Scrivi(sample("dopo"));
    EXPECT_EQ(only(".copia"), path);
    copy.Togli();
    EXPECT_EQ(QDir(place()).entryList(QDir::Files), QStringList());
}

TEST_F(CopiaRecuperoTest, TheNewestIsOfferedFirst) {
    for (const char* subject : {"uno", "due", "tre"}) {
        leave(sample(subject));
        for (const QString& name : files(".copia")) {
            QFile file(place() + '/' + name);
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            file.setFileTime(file.fileTime(QFileDevice::FileModificationTime).addSecs(-100),
                             QFileDevice::FileModificationTime);
        }
    }
    const auto found = offered();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].Messaggio().Oggetto, "tre");
    EXPECT_EQ(found[2].Messaggio().Oggetto, "uno");
}

TEST_F(CopiaRecuperoTest, TheLastFiveRefusedOnesAreKept) {
    for (int i = 0; i < 7; ++i) {
        leave(sample(QString::number(i)));
        offered().at(0).MettiDaParte();
        EXPECT_TRUE(offered().empty());
        for (const QString& name : files(".rifiutata")) {
            QFile file(place() + '/' + name);
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            file.setFileTime(file.fileTime(QFileDevice::FileModificationTime).addSecs(-100),
                             QFileDevice::FileModificationTime);
        }
    }
    EXPECT_EQ(files(".rifiutata").size(), 5);
    QByteArray kept;
    for (const QString& name : files(".rifiutata"))
        kept += bytesOf(place() + '/' + name);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(kept.contains("\"oggetto\":\"" + QByteArray::number(i) + '"'), i >= 2) << i;
    EXPECT_EQ(files(".blocco"), QStringList());
}

TEST_F(CopiaRecuperoTest, ADamagedOneIsSetAsideAndNamed) {
    leave(sample());
    const QByteArray whole = bytesOf(only(".copia"));
    QFile::remove(only(".copia"));
    expectDamaged({});
    expectDamaged("non è una copia");
    for (qsizetype length = 0; length < whole.size(); ++length)
        expectDamaged(whole.left(length));
    for (qsizetype i = 0; i < whole.size(); i += 7) {
        QByteArray other = whole;
        other[i] = static_cast<char>(other[i] ^ 0x20);
        expectDamaged(other);
    }
}

TEST_F(CopiaRecuperoTest, TheLastFiveDamagedOnesAreKept) {
    for (int i = 0; i < 7; ++i) {
        leave(sample());
        writeBytes(only(".copia"), "x");
        QStringList damaged;
        EXPECT_TRUE(CopiaTrovata::Cerca(damaged).empty());
    }
    EXPECT_EQ(files(".danneggiata").size(), 5);
}

TEST_F(CopiaRecuperoTest, ALinkOrAFolderInItsPlaceIsLeftAlone) {
    leave(sample());
    const QString outside = m_folder.filePath("fuori");
    writeBytes(outside, "resta");
    ASSERT_TRUE(QFile::link(outside, place() + "/x.copia"));
    ASSERT_TRUE(QDir(place()).mkdir("y.copia"));
    EXPECT_EQ(offered().size(), 1U);
    EXPECT_EQ(bytesOf(outside), "resta");
}

TEST_F(CopiaRecuperoTest, AFolderThatIsALinkIsNotWrittenInto) {
    const QString outside = m_folder.filePath("altrove");
    QDir().mkdir(outside);
    ASSERT_TRUE(QFile::link(outside, place()));
    CopiaRecupero copy;
    EXPECT_THROW(copy.Scrivi(sample()), Fallimento);
    EXPECT_EQ(QDir(outside).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(CopiaRecuperoTest, AWriteThatFailsLeavesTheCopyBefore) {
    CopiaRecupero copy;
    copy.Scrivi(sample("prima"));
    const QByteArray before = bytesOf(only(".copia"));
    ASSERT_TRUE(QDir().mkdir(only(".copia") + ".nuovo"));  // nothing can be written aside
    EXPECT_THROW(copy.Scrivi(sample("dopo")), Fallimento);
    EXPECT_EQ(bytesOf(only(".copia")), before);
}

TEST(AttesaCopiaTest, IsASecondFromEachChangeButNotForEver) {
    EXPECT_EQ(AttesaCopia(0, 0), 1000);
    EXPECT_EQ(AttesaCopia(0, 4000), 1000);
    EXPECT_EQ(AttesaCopia(0, 4400), 600);
    EXPECT_EQ(AttesaCopia(0, 5000), 0);
    EXPECT_EQ(AttesaCopia(0, 3600000), 0);
}

TEST(AttesaCopiaTest, OfAnAlwaysChangingBodyOfMoreThanAMegabyteIsLonger) {
    constexpr qsizetype megabyte = 1024 * 1024;
    EXPECT_EQ(AttesaCopia(megabyte, 5000), 0);
    EXPECT_EQ(AttesaCopia(megabyte + 1, 0), 1000);
    EXPECT_EQ(AttesaCopia(megabyte + 1, 5000), 1000);
    EXPECT_EQ(AttesaCopia(megabyte + 1, 14400), 600);
    EXPECT_EQ(AttesaCopia(megabyte + 1, 15000), 0);
    EXPECT_EQ(AttesaCopia(megabyte + 1, 3600000), 0);
}

TEST_F(CopiaRecuperoTest, WhatAKillLeavesWithoutACopyIsCleared) {
    {
        CopiaRecupero copy;
        copy.Scrivi(sample());
        const QString path = only(".copia");
        ASSERT_TRUE(QFile::rename(path, path + ".nuovo"));
    }
    EXPECT_TRUE(offered().empty());
    EXPECT_EQ(QDir(place()).entryList(QDir::Files), QStringList());
}

}  // namespace copia_recupero_test
