// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/FileRiavvio.h"

#include <sys/stat.h>
#include <unistd.h>
#include <chrono>
#include <QDir>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <thread>

#include "modules/core/SenzaPermessi.h"
#include "platform/system/Clock.h"
#include "platform/system/FileModes.h"
#include "platform/system/OwnFile.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

namespace file_riavvio_test {

namespace {

class FileRiavvio : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("data")));
        sys::setProgramFolder(m_folder.path());
        sys::clock().now = [this] { return time; };
    }
    void TearDown() override {
        sys::setProgramFolder({});
        sys::clock() = sys::systemClock();
    }
    QString path(const QString& name = QStringLiteral("riavvio.imp")) const {
        return m_folder.filePath(QStringLiteral("data/") + name);
    }
    fileRiavvio::Stato state() const {
        return {4711, time, {-10, 20, 12000, 9000, 2}, QStringLiteral("/dati/è = uno.mdb"), {"K0", "K7"}};
    }

    QDateTime time{QDate(2026, 3, 9), QTime(7, 5, 8)};

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(FileRiavvio, WithoutAFileThereIsNothingAndNoFileIsLeft) {
    const fileRiavvio::Raccolto taken = fileRiavvio::Raccogli();
    EXPECT_FALSE(taken.stato);
    EXPECT_TRUE(taken.messaggio.isEmpty());
    EXPECT_TRUE(QDir(QFileInfo(path()).path()).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot));
}

TEST_F(FileRiavvio, StateAndMessageAreReadBackAsTheyWereWrittenInEitherOrder) {
    for (const bool stateFirst : {true, false}) {
        const bool leftFirst = !stateFirst || fileRiavvio::LasciaStato(state()).ok();
        ASSERT_TRUE(leftFirst && fileRiavvio::LasciaMessaggio("/posta/offerta.mss").ok());
        ASSERT_TRUE(stateFirst || fileRiavvio::LasciaStato(state()).ok());
        const fileRiavvio::Raccolto taken = fileRiavvio::Raccogli();
        EXPECT_EQ(taken.messaggio, "/posta/offerta.mss");
        ASSERT_TRUE(taken.stato);
        EXPECT_EQ(taken.stato->processo, 4711);
        EXPECT_EQ(taken.stato->ora, time);
        EXPECT_EQ(taken.stato->posizione, state().posizione);
        EXPECT_EQ(taken.stato->database, state().database);
        EXPECT_EQ(taken.stato->gruppi, state().gruppi);
        EXPECT_FALSE(QFile::exists(path())) << "it counts once";
    }
}

TEST_F(FileRiavvio, APathIsReadBackOctetByOctet) {
    for (const QByteArray& odd :
         {QByteArray("/a b/c.mss"), QByteArray("/a\r\nmessaggio=/b\n.mss"), QByteArray("/\xff\xfe%41=.mss"),
          QByteArray("/è/%00.mss"), "/" + QByteArray(4000, '\n')}) {
        ASSERT_TRUE(fileRiavvio::LasciaMessaggio(odd).ok());
        EXPECT_EQ(fileRiavvio::Raccogli().messaggio, odd);
        EXPECT_FALSE(QFile::exists(path()));
    }
}

TEST_F(FileRiavvio, EachStartTakesOneMessageInTheOrderInWhichTheyWereLeft) {
    for (const char* left : {"/uno", "/due", "/tre"})
        ASSERT_TRUE(fileRiavvio::LasciaMessaggio(left).ok());
    for (const char* left : {"/uno", "/due", "/tre", ""})
        EXPECT_EQ(fileRiavvio::Raccogli().messaggio, left);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(FileRiavvio, AMessageThatNoStartHasTakenForAMinuteDoesNotCount) {
    ASSERT_TRUE(fileRiavvio::LasciaMessaggio("/vecchio").ok());
    time = time.addSecs(30);
    ASSERT_TRUE(fileRiavvio::LasciaMessaggio("/nuovo").ok());
    time = time.addSecs(31);
    EXPECT_EQ(fileRiavvio::Raccogli().messaggio, "/nuovo");
    ASSERT_TRUE(fileRiavvio::LasciaMessaggio("/altro").ok());
    time = time.addSecs(61);
    EXPECT_EQ(fileRiavvio::Raccogli().messaggio, "");
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(FileRiavvio, OfAMadeUpFileOnlyAbsolutePathsOfPossibleLengthCount) {
    const QByteArray now = "2026-03-09T06:05:08Z";
    time = QDateTime(QDate(2026, 3, 9), QTime(6, 5, 8), Qt::UTC);
    for (const QByteArray& value :
         {now + " etc/passwd", now + " ", now, QByteArray("x /a"), QByteArray(" /a"), QByteArray(),
          now + " /a%00b", now + " /" + QByteArray(4096, 'a')}) {
        writeBytes(path(), "[Riavvio]\r\nmessaggio=" + value + "\r\nmessaggio=" + now + " /buono\r\n");
        EXPECT_EQ(fileRiavvio::Raccogli().messaggio, "/buono") << value.toStdString();
    }
}

TEST_F(FileRiavvio, ADamagedFileIsSetAsideAndDoesNotKeepAMessageFromComing) {
    for (const QByteArray& damaged :
         {QByteArray("altro"), QByteArray("[Riavvio]\r\n"), "[Riavvio]\r\n" + QByteArray(70000, 'x'),
          QByteArray("[Riavvio]\r\nprocesso=x\r\n")}) {
        writeBytes(path(), damaged);
        ASSERT_TRUE(fileRiavvio::LasciaMessaggio("/a").ok());
        EXPECT_EQ(bytesOf(path(QStringLiteral("riavvio.imp.rovinato"))), damaged);
        EXPECT_EQ(fileRiavvio::Raccogli().messaggio, "/a");
        ASSERT_TRUE(QFile::remove(path(QStringLiteral("riavvio.imp.rovinato"))));
    }
}

TEST_F(FileRiavvio, AFileOfAnotherUserOrOneThatOthersMayWriteDoesNotCount) {
    ASSERT_TRUE(fileRiavvio::LasciaMessaggio("/a").ok());
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0622), 0);
    EXPECT_EQ(fileRiavvio::Raccogli().messaggio, "");
    ASSERT_TRUE(fileRiavvio::LasciaMessaggio("/a").ok());
    if (::chown(QFile::encodeName(path()).constData(), 65534, static_cast<gid_t>(-1)) != 0)
        GTEST_SKIP() << "only the administrator can give a file away";
    EXPECT_EQ(fileRiavvio::Raccogli().messaggio, "");
}

TEST_F(FileRiavvio, NoMessageIsLostWhereSeveralAreLeftAtOnce) {
    constexpr int each = 8;
    const auto leave = [](const QByteArray& who) {
        for (int i = 0; i < each; ++i)
            EXPECT_TRUE(fileRiavvio::LasciaMessaggio("/" + who + QByteArray::number(i)).ok());
    };
    std::thread one(leave, "a");
    std::thread other(leave, "b");
    one.join();
    other.join();
    QByteArrayList taken;
    for (QByteArray path = fileRiavvio::Raccogli().messaggio; !path.isEmpty();
         path = fileRiavvio::Raccogli().messaggio)
        taken << path;
    EXPECT_EQ(taken.size(), 2 * each);
}

TEST_F(FileRiavvio, WhatDoesNotFitIsRefusedAndLeavesTheRest) {
    Status status;
    int left = 0;
    while ((status = fileRiavvio::LasciaMessaggio("/" + QByteArray(4000, '\xff'))).ok())
        ++left;
    EXPECT_EQ(status.code(), ErrorCode::Overflow);
    EXPECT_GT(left, 1);
    EXPECT_EQ(fileRiavvio::Raccogli().messaggio.size(), 4001);
}

TEST_F(FileRiavvio, ADiskThatKeepsNoModesIsReportedOnce) {
    EXPECT_TRUE(AvvisoSenzaPermessi().isEmpty());
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("senzapermessi.imp"))));
    sys::diskKind() = [](int) { return 0x4d44L; };
    const auto back = qScopeGuard([] { sys::diskKind() = sys::systemDiskKind; });
    EXPECT_TRUE(AvvisoSenzaPermessi().contains(QStringLiteral("permessi")));
    EXPECT_TRUE(AvvisoSenzaPermessi().isEmpty());
}

}  // namespace file_riavvio_test
