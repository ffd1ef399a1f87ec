// SPDX-License-Identifier: GPL-3.0-or-later
// The list of accepted messages: in memory, in the file, between processes.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/mail/AcceptedList.h"
#include "platform/mail/RunLock.h"
#include "support/FullDisk.h"
#include "support/Vectors.h"

namespace accepted_list_test {

using namespace mail;

namespace {

class AcceptedListTest : public testing::Test {
  protected:
    QTemporaryDir m_folder;
    QString m_data = m_folder.path() + "/";
    QString m_first = m_data + "Accettati1.imp";
    DatabaseFile m_database = makeDatabase("data.mdb");

    DatabaseFile makeDatabase(const QString& name) const {
        const QString path = m_data + name;
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("database");
        return DatabaseFile::at(path);
    }
    AcceptedList opened() const {
        AcceptedList list;
        list.open(m_data);
        return list;
    }
    AcceptedList reserved(qsizetype count = 4) const {
        AcceptedList list = opened();
        EXPECT_TRUE(list.reserve(m_database, count).ok());
        return list;
    }
    QStringList files() const { return QDir(m_data).entryList({"Accettati*"}, QDir::Files | QDir::System); }
    QByteArray fileOf(std::initializer_list<AcceptedEntry> entries) const {
        QByteArray octets = acceptedHead();
        for (const AcceptedEntry& entry : entries)
            octets += entry.bytes();
        return octets;
    }
};

TEST_F(AcceptedListTest, RemembersUntilMarked) {
    AcceptedList list;
    list.add(m_database, 7, "a@x.it");
    EXPECT_TRUE(list.holds(m_database, 7, "a@x.it"));
    EXPECT_FALSE(list.holds(m_database, 7, "A@x.it"));
    EXPECT_FALSE(list.holds(m_database, 8, "a@x.it"));
    list.remove(m_database, 7);
    EXPECT_FALSE(list.holds(m_database, 7, "a@x.it"));
}

TEST_F(AcceptedListTest, MakesNoFileBeforeARunNeedsOne) {
    AcceptedList list = opened();
    EXPECT_EQ(list.room(), 0);
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(list.reserve(m_database, 100).ok());
    EXPECT_GE(list.room(), 100);
    EXPECT_EQ(files(), QStringList("Accettati1.imp"));
    EXPECT_EQ(QFile::permissions(m_first) & 0x0077, 0);
    list.release();
    EXPECT_TRUE(files().isEmpty());
    EXPECT_EQ(list.room(), 0);
}

TEST_F(AcceptedListTest, RoomIsOnTheDiskWhenItIsReserved) {
    AcceptedList list = reserved(1000);
    struct stat known {};
    ASSERT_EQ(::stat(QFile::encodeName(m_first).constData(), &known), 0);
    EXPECT_GE(known.st_size, 1001 * AcceptedEntry::size);
    EXPECT_GE(known.st_blocks * 512, 1001 * AcceptedEntry::size);
}

TEST_F(AcceptedListTest, EachEntryTakesRoomAndFreesIt) {
    AcceptedList list = reserved(10);
    const qsizetype room = list.room();
    for (int number = 0; number < room; ++number)
        list.add(m_database, number, "a@x.it");
    EXPECT_EQ(list.room(), 0);
    list.add(m_database, 3, "a@x.it");  // is there already
    EXPECT_EQ(list.room(), 0);
    list.remove(m_database, 3);
    EXPECT_EQ(list.room(), 1);
    EXPECT_TRUE(list.reserve(m_database, 5).ok());
    EXPECT_GE(list.room(), 5);
}

TEST_F(AcceptedListTest, ReservesNoMoreThanTheBound) {
    AcceptedList list = reserved(10 * mostAccepted);
    EXPECT_EQ(list.room(), mostAccepted);
    EXPECT_EQ(QFileInfo(m_first).size(), (mostAccepted + 1) * AcceptedEntry::size);
}

TEST_F(AcceptedListTest, WhatAProcessThatIsGoneLeftIsTakenOver) {
    {
        AcceptedList list = reserved();
        list.add(m_database, 7, "a@x.it");
        list.add(m_database, 8, "b@x.it");
        list.remove(m_database, 7);
    }
    AcceptedList list = opened();
    EXPECT_FALSE(list.holds(m_database, 7, "a@x.it"));
    EXPECT_TRUE(list.holds(m_database, 8, "b@x.it"));
    list.remove(m_database, 8);
    list.release();
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(AcceptedListTest, FilesOfSeveralThatAreGoneBecomeOne) {
    {
        AcceptedList one = reserved();
        AcceptedList other = reserved();
        one.add(m_database, 7, "a@x.it");
        other.add(m_database, 8, "b@x.it");
        EXPECT_EQ(files().size(), 2);
    }
    AcceptedList list = opened();
    EXPECT_EQ(list.of(m_database).size(), 2);
    EXPECT_EQ(files().size(), 1);
    EXPECT_EQ(parseAccepted(bytesOf(m_data + files().first())).entries.size(), 2);
}

TEST_F(AcceptedListTest, ALivingProcessKeepsItsFileAndIsSeen) {
    AcceptedList one = reserved();
    one.add(m_database, 7, "a@x.it");
    AcceptedList other = opened();
    EXPECT_TRUE(other.holds(m_database, 7, "a@x.it"));
    EXPECT_EQ(files().size(), 1);
    // What the other process removes is removed.
    other.remove(m_database, 7);
    EXPECT_TRUE(parseAccepted(bytesOf(m_first)).entries.isEmpty());
    one.refresh();
    EXPECT_FALSE(one.holds(m_database, 7, "a@x.it"));
}

TEST_F(AcceptedListTest, AnEntryThatWasReplacedMeanwhileStays) {
    AcceptedList one = reserved();
    one.add(m_database, 7, "a@x.it");
    AcceptedList other = opened();
    one.remove(m_database, 7);
    one.add(m_database, 8, "b@x.it");
    other.remove(m_database, 7);
    one.refresh();
    EXPECT_TRUE(one.holds(m_database, 8, "b@x.it"));
}

TEST_F(AcceptedListTest, BelongsToThePathOrWhereTheFileWasMoved) {
    AcceptedList list = reserved();
    list.add(m_database, 7, "a@x.it");
    const QString away = m_data + "altrove.mdb";
    ASSERT_TRUE(QFile::rename(m_database.path, away));
    EXPECT_TRUE(list.holds(DatabaseFile::at(away), 7, "a@x.it"));
    EXPECT_TRUE(list.holds(DatabaseFile::at(m_database.path), 7, "a@x.it"));
    EXPECT_FALSE(list.holds(makeDatabase("altro.mdb"), 7, "a@x.it"));
    ASSERT_TRUE(QFile::copy(away, m_database.path));
    EXPECT_TRUE(list.holds(DatabaseFile::at(m_database.path), 7, "a@x.it"));
}

TEST_F(AcceptedListTest, AnAcceptanceWhileTheDatabaseIsAwayBelongsToTheFileOfTheSetUp) {
    AcceptedList list = reserved();
    const QString away = m_data + "altrove.mdb";
    ASSERT_TRUE(QFile::rename(m_database.path, away));
    list.add(DatabaseFile::at(m_database.path), 7, "a@x.it");
    EXPECT_TRUE(list.holds(DatabaseFile::at(away), 7, "a@x.it"));
}

TEST_F(AcceptedListTest, ADamagedFileIsPutAsideAndWhatIsSoundInItIsKept) {
    const auto sound = AcceptedEntry::of(m_database, 7, "a@x.it");
    QByteArray octets = fileOf({sound, sound, sound});
    octets[2 * AcceptedEntry::size + 20] = 'x';
    writeBytes(m_first, octets);
    AcceptedList list = opened();
    EXPECT_EQ(list.takeSetAside(), QStringList(m_first + ".scartato"));
    EXPECT_TRUE(list.takeSetAside().isEmpty());
    EXPECT_EQ(bytesOf(m_first + ".scartato"), octets);
    EXPECT_TRUE(list.reserve(m_database, 3).ok());
    EXPECT_TRUE(list.holds(m_database, 7, "a@x.it"));
    EXPECT_EQ(parseAccepted(bytesOf(m_first)).entries.size(), 1);
}

TEST_F(AcceptedListTest, AForeignFileOfThatNameIsPutAside) {
    writeBytes(m_first, "something else");
    AcceptedList list = reserved();
    EXPECT_EQ(list.takeSetAside(), QStringList(m_first + ".scartato"));
    EXPECT_TRUE(list.of(m_database).isEmpty());
    EXPECT_FALSE(parseAccepted(bytesOf(m_first)).damaged);
}

TEST_F(AcceptedListTest, LinksAndPipesOfThatNameAreLeftAlone) {
    const QString target = m_data + "bersaglio";
    writeBytes(target, "untouched");
    ASSERT_TRUE(QFile::link(target, m_first));
    ASSERT_EQ(::link(QFile::encodeName(target).constData(),
                     QFile::encodeName(m_data + "Accettati2.imp").constData()),
              0);
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_data + "Accettati3.imp").constData(), 0600), 0);
    ASSERT_TRUE(QDir(m_data).mkdir("Accettati4.imp"));
    AcceptedList list = reserved();
    list.add(m_database, 7, "a@x.it");
    EXPECT_EQ(bytesOf(target), "untouched");
    EXPECT_TRUE(QFile::exists(m_data + "Accettati5.imp"));
    EXPECT_TRUE(list.takeSetAside().isEmpty());
}

TEST_F(AcceptedListTest, AFolderThatCannotBeWrittenHasNoRoom) {
    AcceptedList list;
    list.open(m_data + "nessuna/");
    EXPECT_EQ(list.reserve(m_database, 3).code(), ErrorCode::PathAccess);
    EXPECT_EQ(list.room(), 0);
}

TEST_F(AcceptedListTest, AFullDiskLeavesTheRoomThatThereWas) {
    AcceptedList list = reserved(10);
    const qsizetype room = list.room();
    // A limit of the process simulates the full disk: reserving beyond it fails, too.
    std::optional<FullDisk> full(static_cast<rlim_t>(QFileInfo(m_first).size()));
    const Status failed = list.reserve(m_database, 1000);
    full.reset();
    EXPECT_EQ(failed.code(), ErrorCode::DeviceIo);
    EXPECT_EQ(list.room(), room);
    list.add(m_database, 7, "a@x.it");
    EXPECT_EQ(parseAccepted(bytesOf(m_first)).entries.size(), 1);
    EXPECT_FALSE(parseAccepted(bytesOf(m_first)).damaged);
}

TEST(ParseAccepted, EntriesAndDamageOfAnyOctets) {
    const auto entry = AcceptedEntry::of(DatabaseFile{"/a/b.mdb", 3, 4}, -5, "a@x.it");
    const QByteArray empty(AcceptedEntry::size, '\0');
    EXPECT_FALSE(parseAccepted({}).damaged);
    EXPECT_EQ(parseAccepted(acceptedHead()).room, 0);
    const auto read = parseAccepted(acceptedHead() + empty + entry.bytes());
    ASSERT_EQ(read.entries.size(), 1);
    EXPECT_EQ(read.entries[0].slot, 1);
    EXPECT_EQ(read.entries[0].entry, entry);
    EXPECT_EQ(read.room, 2);
    EXPECT_FALSE(read.damaged);
    EXPECT_TRUE(parseAccepted(acceptedHead() + entry.bytes().chopped(1)).damaged);
    EXPECT_TRUE(parseAccepted(acceptedHead().chopped(1)).damaged);
    EXPECT_TRUE(parseAccepted(empty).damaged);
    for (const qsizetype place : {0, 8, 40, 70, 127}) {
        QByteArray octets = acceptedHead() + entry.bytes() + entry.bytes();
        octets[AcceptedEntry::size + place] = static_cast<char>(octets[AcceptedEntry::size + place] ^ 1);
        EXPECT_TRUE(parseAccepted(octets).damaged) << place;
        EXPECT_EQ(parseAccepted(octets).entries.size(), 1) << place;
    }
}

TEST(RunLockTest, IsHadByOneAtATimeAndGoesWithTheFile) {
    QTemporaryDir folder;
    const QString path = folder.filePath("data.mdb");
    const QString away = folder.filePath("altrove.mdb");
    for (const QString& name : {path, folder.filePath("altro.mdb")}) {
        QFile file(name);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    RunLock one;
    RunLock other;
    EXPECT_TRUE(one.take(path));
    EXPECT_TRUE(one.take(path));
    EXPECT_FALSE(other.take(path));
    EXPECT_TRUE(other.take(folder.filePath("altro.mdb")));
    ASSERT_TRUE(QFile::rename(path, away));
    EXPECT_FALSE(other.take(away));
    one.release();
    EXPECT_TRUE(other.take(away));
    EXPECT_TRUE(one.take(path));  // there is none
}

}  // namespace

}  // namespace accepted_list_test
