// SPDX-License-Identifier: GPL-3.0-or-later
// A journal beside a database to which it does not belong: the database is unchanged, and the journal is
// kept.
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/xattr.h>

#include "platform/jet/FileRights.h"
#include "platform/jet/Format.h"
#include "platform/jet/JournalFixture.h"
#include "platform/jet/JournalFormat.h"

namespace binding_test {

class BindingTest : public JournalTest {
  protected:
    // A database of another history: its bytes.
    std::string otherDatabase(int rows, const std::string& name) {
        DatabasePtr database = create(path("altro.mdb"));
        EXPECT_OK(database->begin());
        for (int i = 0; i < rows; ++i)
            insert(table(*database), recipient(table(*database), name));
        EXPECT_OK(database->commit());
        database.reset();
        std::string bytes = bytesOf(path("altro.mdb"));
        std::filesystem::remove(path("altro.mdb"));
        return bytes;
    }
    // The state before with one name changed: of equal length, and equal but for a few pages.
    std::string backup() {
        writeBytes(path("altro.mdb"), before);
        DatabasePtr database = open(path("altro.mdb"));
        const std::pair<size_t, Value> name{2, std::string("come era ieri")};
        const RowId id = rowsOf(table(*database)).begin()->first;
        EXPECT_OK(database->begin());
        EXPECT_OK(table(*database).update(id, std::span(&name, 1)));
        EXPECT_OK(database->commit());
        database.reset();
        std::string bytes = bytesOf(path("altro.mdb"));
        std::filesystem::remove(path("altro.mdb"));
        EXPECT_EQ(bytes.size(), before.size());
        return bytes;
    }
    void expectKept(const std::string& database, const std::string& journalBytes) {
        DatabasePtr opened = open(path());
        EXPECT_OK(opened->table("tb_destinatari"));
        opened.reset();
        EXPECT_TRUE(bytesOf(path()) == database) << "the database was changed";
        EXPECT_EQ(setAside(), std::vector<std::string>{"data.mdb-journal.scartato"});
        EXPECT_TRUE(bytesOf(path("data.mdb-journal.scartato")) == journalBytes);
        ASSERT_EQ(notices.size(), 1u);
        EXPECT_NE(notices[0].find("data.mdb-journal.scartato"), std::string::npos);
        EXPECT_FALSE(OsFile::exists(journal()));
    }
    // Opening fails, with a text that names the journal, and nothing is changed.
    void expectRefused() {
        const bool folder = std::filesystem::is_directory(journal());
        const std::string journalBytes = folder ? "" : bytesOf(journal());
        for (const bool readOnly : {false, true}) {
            const auto outcome = Database::open(path(), {.readOnly = readOnly});
            EXPECT_FAILS(ErrorCode::PathAccess, outcome);
            EXPECT_TRUE(outcome.status().text().contains(QString::fromStdString(journal())));
        }
        EXPECT_EQ(bytesOf(path()), before);
        if (!folder) {
            EXPECT_EQ(bytesOf(journal()), journalBytes);
        }
        EXPECT_TRUE(setAside().empty());
    }
};

TEST_F(BindingTest, OtherDatabaseCopiedOverACrashedNameStaysAsItIs) {
    for (const int rows : {3, 80, 2000}) {
        const std::string other = otherDatabase(rows, "altra");
        writeBytes(path(), before);
        crash();
        const std::string hot = bytesOf(journal());
        writeBytes(path(), other);
        expectKept(other, hot);
        std::filesystem::remove(path("data.mdb-journal.scartato"));
        notices.clear();
    }
}

TEST_F(BindingTest, OtherDatabaseRenamedOverACrashedNameStaysAsItIs) {
    const std::string other = otherDatabase(200, "altra");
    crash();
    const std::string hot = bytesOf(journal());
    writeBytes(path("copia.mdb"), other);
    std::filesystem::rename(path("copia.mdb"), path());
    expectKept(other, hot);
}

TEST_F(BindingTest, BackupOfTheSameLengthIsNotMixedWithOldPages) {
    const std::string yesterday = backup();
    crash();
    const std::string hot = bytesOf(journal());
    writeBytes(path(), yesterday);
    expectKept(yesterday, hot);
}

TEST_F(BindingTest, BackupOfTheVeryStateBeforeFits) {
    crash();
    writeBytes(path(), before);
    EXPECT_FALSE(isAfter());
    EXPECT_TRUE(notices.empty());
}

TEST_F(BindingTest, OneChangedSectorIsEnough) {
    leaveUnsound();
    crash();
    const std::string crashed = bytesOf(path());
    const std::string hot = bytesOf(journal());
    std::string spoilt = crashed;
    // A page that the change has written.
    size_t at = 0;
    while (crashed[at] == before[at])
        ++at;
    spoilt[at] = static_cast<char>(spoilt[at] ^ 0x55);
    writeBytes(path(), spoilt);
    const auto outcome = Database::open(path());
    EXPECT_TRUE(bytesOf(path()) == spoilt);
    EXPECT_EQ(setAside(), std::vector<std::string>{"data.mdb-journal.scartato"});
    EXPECT_TRUE(bytesOf(path("data.mdb-journal.scartato")) == hot);
    EXPECT_EQ(notices.size(), 1u);
}

TEST_F(BindingTest, SectorsThatNeverReachedTheDiskFit) {
    crash();
    const std::string crashed = bytesOf(path());
    const std::string hot = bytesOf(journal());
    ASSERT_GT(crashed.size(), before.size());
    unsigned turn = 0;
    for (const size_t kept : {crashed.size(), crashed.size() - 5000, before.size() + 700, before.size()}) {
        std::string torn = crashed.substr(0, kept);
        for (size_t at = 0; at < torn.size(); at += 512, turn = turn * 1103515245u + 12345u) {
            if (turn >> 16 & 1) continue;
            for (size_t i = at; i < std::min(at + 512, torn.size()); ++i)
                torn[i] = i < before.size() ? before[i] : '\0';
        }
        writeBytes(path(), torn);
        writeBytes(journal(), hot);
        EXPECT_FALSE(isAfter()) << kept;
    }
}

TEST_F(BindingTest, SetAsideJournalsAreAllKept) {
    const std::string other = otherDatabase(5, "altra");
    std::vector<std::string> journals;
    for (int i = 0; i < 3; ++i) {
        writeBytes(path(), before);
        crash();
        journals.push_back(bytesOf(journal()));
        writeBytes(path(), other);
        EXPECT_OK(Database::open(path()));
    }
    EXPECT_EQ(setAside(),
              (std::vector<std::string>{"data.mdb-journal.scartato", "data.mdb-journal.scartato-2",
                                        "data.mdb-journal.scartato-3"}));
    EXPECT_TRUE(bytesOf(path("data.mdb-journal.scartato")) == journals[0]);
    EXPECT_TRUE(bytesOf(path("data.mdb-journal.scartato-3")) == journals[2]);
    EXPECT_EQ(notices.size(), 3u);
}

TEST_F(BindingTest, OpenDatabaseWorksWhenItsFileWasReplacedAfterACrash) {
    DatabasePtr database = open(path());
    const std::string other = otherDatabase(7, "altra");
    crash();
    writeBytes(path(), other);
    EXPECT_OK(database->begin());
    EXPECT_OK(database->refresh());
    insert(table(*database), recipient(table(*database), "x"));
    EXPECT_OK(database->commit());
    EXPECT_EQ(rowsOf(table(*database)).size(), 8u);
    EXPECT_EQ(setAside().size(), 1u);
    EXPECT_TRUE(database->roomReserved());
}

TEST_F(BindingTest, PlantedBytesNeverCutTheDatabase) {
    const std::string page0 = before.substr(0, pageSize);
    journal::Header header{1, 7, 0};
    Page first;
    std::copy(page0.begin(), page0.end(), first.begin());
    header.firstPage = journal::digest(first, header.nonce);
    const auto asText = [](std::span<const uint8_t> bytes) {
        return std::string(bytes.begin(), bytes.end());
    };
    const std::string onePage = asText(journal::encode(header));
    header.pages = static_cast<uint32_t>(before.size() / pageSize);
    const std::string noRecords = asText(journal::encode(header));
    // A record of page 0, and one of a page past the end.
    std::vector<uint8_t> record;
    journal::appendOriginal(record, journal::recordsStart, header.nonce, 0, Page{});
    const std::string pageZero = noRecords + asText(record);
    record.clear();
    journal::appendOriginal(record, journal::recordsStart, header.nonce, header.pages + 3, Page{});
    const std::string pageBehind = noRecords + asText(record);
    for (const std::string& planted :
         {std::string("VJOURNAL") + std::string("\0\x10\0\0\1\0\0\0", 8) + std::string(16, 'x'),
          std::string(32, 'x'), std::string("V"), onePage, onePage.substr(0, 32), pageZero, pageBehind}) {
        writeBytes(journal(), planted);
        expectKept(before, planted);
        std::filesystem::remove(path("data.mdb-journal.scartato"));
        notices.clear();
    }
    writeBytes(journal(), noRecords);
    EXPECT_FALSE(isAfter());
}

TEST_F(BindingTest, LinksAndFoldersAreNoJournals) {
    crash();
    const std::string hot = bytesOf(journal());
    std::filesystem::remove(journal());
    writeBytes(path(), before);
    writeBytes(path("altrove"), hot);

    std::filesystem::create_symlink(path("altrove"), journal());
    expectRefused();
    std::filesystem::remove(journal());
    std::filesystem::create_symlink(path("nessuno"), journal());
    expectRefused();
    EXPECT_FALSE(OsFile::exists(path("nessuno")));
    std::filesystem::remove(journal());
    std::filesystem::create_hard_link(path("altrove"), journal());
    expectRefused();
    std::filesystem::remove(journal());
    std::filesystem::create_directory(journal());
    expectRefused();
    std::filesystem::remove(journal());
    EXPECT_EQ(bytesOf(path("altrove")), hot);
    EXPECT_OK(Database::open(path()));
}

TEST_F(BindingTest, JournalOfSomebodyWhoMayNotWriteTheDatabaseIsNotTouched) {
    // The rule itself is tested for any user in isTrusted(); here it is tested with a real file of somebody
    // else.
    if (::geteuid() != 0) GTEST_SKIP() << "only the administrator can give a file away";
    crash();
    const std::string crashed = bytesOf(path());
    const std::string hot = bytesOf(journal());
    std::filesystem::permissions(path(), std::filesystem::perms(0644));
    ASSERT_EQ(::chown(journal().c_str(), 54321, 54321), 0);
    for (const bool readOnly : {false, true}) {
        const auto outcome = Database::open(path(), {.readOnly = readOnly});
        EXPECT_FAILS(ErrorCode::PathAccess, outcome);
        EXPECT_TRUE(outcome.status().text().contains(QString::fromStdString(journal())));
    }
    EXPECT_EQ(bytesOf(path()), crashed);
    EXPECT_EQ(bytesOf(journal()), hot);
    EXPECT_TRUE(setAside().empty());
    std::filesystem::permissions(path(), std::filesystem::perms(0666));
    EXPECT_FALSE(isAfter());
}

// Rights of a user 12345 over a file or, as a default, over what is made in a folder (acl(5), version 2)
static std::string accessList() {
    std::string list{2, 0, 0, 0};
    const auto add = [&](uint16_t kind, uint16_t rights, uint32_t whose) {
        list.append(reinterpret_cast<const char*>(&kind), sizeof kind);
        list.append(reinterpret_cast<const char*>(&rights), sizeof rights);
        list.append(reinterpret_cast<const char*>(&whose), sizeof whose);
    };
    constexpr uint32_t nobodyNamed = 0xFFFFFFFF;
    add(1, 6, nobodyNamed);   // the owner
    add(2, 6, 12345);         // the user
    add(4, 6, nobodyNamed);   // the group
    add(16, 6, nobodyNamed);  // the mask of these two
    add(32, 0, nobodyNamed);  // others
    return list;
}

static std::string accessListOf(const std::string& file) {
    std::string list(1000, 0);
    const ssize_t size = ::getxattr(file.c_str(), "system.posix_acl_access", list.data(), list.size());
    list.resize(size < 0 ? 0 : static_cast<size_t>(size));
    return list;
}

TEST_F(BindingTest, JournalHasNoRightsThatComeOnlyFromItsFolder) {
    const std::string folder = path("") + "condivisa", database = folder + "/d.mdb", list = accessList();
    std::filesystem::create_directory(folder);
    if (::setxattr(folder.c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the file system knows no access lists";
    const jet::OsFile file(database, jet::OsFile::Access::Create);
    ASSERT_EQ(::removexattr(database.c_str(), "system.posix_acl_access"), 0);
    ASSERT_EQ(::chmod(database.c_str(), 0660), 0);
    jet::OsFile made(database + "-journal", jet::OsFile::Access::Create, jet::OsFile::Links::Refuse);
    made.takeRights(file);
    EXPECT_EQ(made.rights().mode, 0660u);
    EXPECT_EQ(accessListOf(made.path()), "");
    ASSERT_EQ(::setxattr(database.c_str(), "system.posix_acl_access", list.data(), list.size(), 0), 0);
    made.takeRights(file);
    EXPECT_EQ(accessListOf(made.path()), list);
}

TEST_F(BindingTest, WhoseJournalIsTrusted) {
    const FileRights database{.owner = 1000, .group = 50000, .mode = 0644, .links = 1, .regular = true};
    const auto journalOf = [](uint32_t owner) {
        return FileRights{.owner = owner, .group = 9, .mode = 0600, .links = 1, .regular = true};
    };
    constexpr uint32_t ours = 2000;
    EXPECT_TRUE(isTrusted(journalOf(1000), database, ours));
    EXPECT_TRUE(isTrusted(journalOf(ours), database, ours));
    EXPECT_TRUE(isTrusted(journalOf(0), database, ours));
    EXPECT_FALSE(isTrusted(journalOf(54321), database, ours));
    FileRights open = database;
    open.mode = 0646;
    EXPECT_TRUE(isTrusted(journalOf(54321), open, ours));
    open.mode = 0664;
    EXPECT_FALSE(isTrusted(journalOf(54321), open, ours)) << "not a member of the group";
    FileRights linked = journalOf(1000);
    linked.links = 2;
    EXPECT_FALSE(isTrusted(linked, database, ours));
    FileRights folder = journalOf(1000);
    folder.regular = false;
    EXPECT_FALSE(isTrusted(folder, database, ours));
}

TEST_F(BindingTest, JournalBesideAMissingFileIsKeptAndReported) {
    crash();
    const std::string hot = bytesOf(journal());
    std::filesystem::rename(path(), path("altrove.mdb"));
    const auto outcome = Database::open(path());
    EXPECT_FAILS(ErrorCode::FileNotFound, outcome);
    EXPECT_TRUE(outcome.status().text().contains(QString::fromStdString(journal())));
    EXPECT_EQ(bytesOf(journal()), hot);
    std::filesystem::rename(path("altrove.mdb"), path());
    EXPECT_FALSE(isAfter());
    std::filesystem::remove(path());
    EXPECT_FALSE(Database::open(path()).status().text().contains(QStringLiteral("-journal")));
}

TEST_F(BindingTest, CopyOntoACrashedNameSetsItsJournalAside) {
    DatabasePtr source = create(path("fonte.mdb"));
    EXPECT_OK(source->begin());
    insert(table(*source), recipient(table(*source), "dalla fonte"));
    EXPECT_OK(source->commit());
    const std::string wanted = bytesOf(path("fonte.mdb"));
    crash();
    const std::string hot = bytesOf(journal());
    std::filesystem::permissions(path(), std::filesystem::perms(0640));
    EXPECT_OK(source->copyTo(path()));
    EXPECT_EQ(std::filesystem::status(path()).permissions(), std::filesystem::perms(0640));
    EXPECT_FALSE(OsFile::exists(journal()));
    expectKept(wanted, hot);
}

TEST_F(BindingTest, DeathAtAnyStepOfACopyLeavesTheOldOrTheNewFile) {
    create(path("fonte.mdb")).reset();
    const std::string wanted = bytesOf(path("fonte.mdb"));
    crash();
    const std::string crashed = bytesOf(path());
    const std::string hot = bytesOf(journal());
    bool wasNew = false;
    for (int k = 0;; ++k) {
        writeBytes(path(), crashed);
        writeBytes(journal(), hot);
        const pid_t child = ::fork();
        if (child == 0) {
            DatabasePtr source = open(path("fonte.mdb"), {.readOnly = true});
            int step = 0;
            setDiskHook([&](const DiskStep&) {
                if (step++ == k) ::_exit(9);
                return DiskStep::Outcome::Proceed;
            });
            ::_exit(source->copyTo(path()).ok() ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_OK(Database::open(path()));
        const bool isNew = bytesOf(path()) == wanted;
        EXPECT_TRUE(isNew || bytesOf(path()) == before) << k;
        EXPECT_FALSE(wasNew && !isNew);
        EXPECT_EQ(setAside().size(), isNew ? 1u : 0u) << k;
        std::filesystem::remove(path("data.mdb-journal.scartato"));
        wasNew = isNew;
        if (WEXITSTATUS(status) == 0) break;
        ASSERT_EQ(WEXITSTATUS(status), 9);
    }
    EXPECT_TRUE(wasNew);
}

TEST_F(BindingTest, FailureOfAnyStepOfACopyLeavesNoHalfFile) {
    DatabasePtr source = create(path("fonte.mdb"));
    const std::string wanted = bytesOf(path("fonte.mdb"));
    for (const auto outcome : {DiskStep::Outcome::Fail, DiskStep::Outcome::Full, DiskStep::Outcome::Half}) {
        bool reachedEnd = false;
        for (int k = 0; !reachedEnd; ++k) {
            writeBytes(path(), before);
            int step = 0;
            setDiskHook([&](const DiskStep&) { return step++ == k ? outcome : DiskStep::Outcome::Proceed; });
            const Status status = source->copyTo(path());
            setDiskHook({});
            reachedEnd = step <= k;
            EXPECT_EQ(status.ok(), reachedEnd);
            EXPECT_TRUE(bytesOf(path()) == wanted || (!status.ok() && bytesOf(path()) == before)) << k;
            for (const auto& entry : std::filesystem::directory_iterator(m_folder.path().toStdString()))
                EXPECT_NE(entry.path().extension(), ".tmp") << "a part of a copy was left";
        }
    }
}

TEST_F(BindingTest, CopyKeepsAwayFromATargetInUse) {
    DatabasePtr source = create(path("fonte.mdb"));
    source->setLockWait({.limit = std::chrono::milliseconds(50)});
    DatabasePtr target = open(path());
    EXPECT_OK(target->begin());
    EXPECT_FAILS(ErrorCode::FileInUse, source->copyTo(path()));
    target->rollback();
    {
        const ReadScope scope(*target);
        EXPECT_FAILS(ErrorCode::FileInUse, source->copyTo(path()));
    }
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_OK(source->copyTo(path()));
    EXPECT_TRUE(target->refresh().value());
    EXPECT_EQ(rowsOf(table(*target)).size(), 0u);
    EXPECT_OK(target->begin());
    insert(table(*target), recipient(table(*target), "x"));
    EXPECT_OK(target->commit());
    EXPECT_EQ(rowsOf(table(*target)).size(), 1u);
}

TEST_F(BindingTest, OpenFileItselfIsNoTargetOfACopy) {
    DatabasePtr source = open(path());
    EXPECT_FAILS(ErrorCode::PathAccess, source->copyTo(path()));
    std::filesystem::create_symlink(path(), path("altro-nome.mdb"));
    EXPECT_FAILS(ErrorCode::PathAccess, source->copyTo(path("altro-nome.mdb")));
    std::filesystem::create_hard_link(path(), path("terzo-nome.mdb"));
    EXPECT_FAILS(ErrorCode::PathAccess, source->copyTo(path("terzo-nome.mdb")));
    EXPECT_EQ(bytesOf(path()), before);
}

}  // namespace binding_test
