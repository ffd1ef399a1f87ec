// SPDX-License-Identifier: GPL-3.0-or-later
// Opening: what is refused and how, and that reading leaves a file unchanged.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <bit>
#include <cerrno>
#include <random>
#include <set>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/DiskTrouble.h"
#include "platform/jet/EmptyDatabase.h"
#include "platform/jet/Header.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/JetText.h"
#include "platform/jet/OsFile.h"
#include "support/Repetitions.h"

namespace open_test {

using namespace jet;

class OpenTest : public JetTest {
  protected:
    // The file is refused with that error and a text, and unchanged.
    void expectRefused(ErrorCode code, const std::string& bytes) {
        writeBytes(path(), bytes);
        const auto outcome = Database::open(path());
        EXPECT_FAILS(code, outcome);
        EXPECT_FALSE(outcome.status().text().isEmpty());
        EXPECT_EQ(bytesOf(path()), bytes);
        EXPECT_FALSE(std::filesystem::exists(path() + "-journal"));
    }
    std::string emptyBytes() {
        std::string bytes;
        for (const Page& page : emptyDatabase(schema::TabelleNuove()))
            bytes.append(reinterpret_cast<const char*>(page.data()), pageSize);
        return bytes;
    }
    // The empty database with page 0 changed under its mask.
    template <class Change>
    std::string withHeader(Change&& change) {
        std::vector<Page> pages = emptyDatabase(schema::TabelleNuove());
        maskHeader(pages[0]);
        change(pages[0]);
        maskHeader(pages[0]);
        std::string bytes;
        for (const Page& page : pages)
            bytes.append(reinterpret_cast<const char*>(page.data()), pageSize);
        return bytes;
    }
    std::string withPassword(std::u16string_view password) {
        return withHeader([&](Page& page) {
            for (size_t i = 0; i < password.size(); ++i) {
                page[header::password + 2 * i] ^= static_cast<uint8_t>(password[i]);
                page[header::password + 2 * i + 1] ^= static_cast<uint8_t>(password[i] >> 8);
            }
        });
    }
};

TEST(DiskTrouble, EachKindHasWordsOfItsOwnAndAnyOtherItsNumber) {
    std::set<std::string> words;
    for (const int error : {ENOSPC, EDQUOT, EROFS, EACCES, EIO, EFBIG, ELOOP, EEXIST, EISDIR, ENOENT,
                            ENAMETOOLONG, EMFILE, ENOMEM, ENOLCK, ENODEV, EBUSY})
        words.insert(diskTrouble(error).sourceText());
    EXPECT_EQ(words.size(), 16u);
    for (const auto& [one, same] :
         {std::pair(EACCES, EPERM), std::pair(ENOENT, ENOTDIR), std::pair(EMFILE, ENFILE),
          std::pair(ENOLCK, EOPNOTSUPP), std::pair(ENODEV, ESTALE), std::pair(EBUSY, ETXTBSY)})
        EXPECT_EQ(diskTrouble(one).sourceText(), diskTrouble(same).sourceText());
    EXPECT_EQ(diskTrouble(EDOM).sourceText(), "errore di sistema " + std::to_string(EDOM));
}

TEST_F(OpenTest, MissingFileIsNotFound) {
    const auto outcome = Database::open(path());
    EXPECT_FAILS(ErrorCode::FileNotFound, outcome);
    EXPECT_TRUE(outcome.status().text().contains(QString::fromStdString(path())));
    EXPECT_FAILS(ErrorCode::FileNotFound, Database::open(path("nessuna/data.mdb")));
}

TEST_F(OpenTest, FolderAndPipeAreNoFiles) {
    EXPECT_FAILS(ErrorCode::PathAccess, Database::open(m_folder.path().toStdString()));
    ASSERT_EQ(::mkfifo(path("pipe.mdb").c_str(), 0600), 0);
    EXPECT_FAILS(ErrorCode::PathAccess, Database::open(path("pipe.mdb")));
}

TEST_F(OpenTest, UnreadableFileIsAnAccessFailure) {
    create(path()).reset();
    ASSERT_EQ(::chmod(path().c_str(), 0), 0);
    ASSERT_EQ(::chmod(path("").c_str(), 0755), 0);
    // A process that is not root's, to which everything is permitted.
    const pid_t child = ::fork();
    if (child == 0) {
        if (::getuid() == 0 && ::setuid(65534) != 0) ::_exit(2);
        ::_exit(Database::open(path()).status().code() == ErrorCode::PathAccess ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST_F(OpenTest, FileThatIsNoDatabaseIsNotRecognised) {
    expectRefused(ErrorCode::UnrecognizedFormat, "");
    expectRefused(ErrorCode::UnrecognizedFormat, "abc");
    expectRefused(ErrorCode::UnrecognizedFormat, std::string(100000, 'x'));
    expectRefused(ErrorCode::UnrecognizedFormat, std::string(8192, '\0'));
}

TEST_F(OpenTest, OtherAccessFormatsAreNamed) {
    std::string bytes = emptyBytes();
    bytes[header::version] = 2;
    expectRefused(ErrorCode::UnrecognizedFormat, bytes);
    bytes.replace(header::engineName, 15, "Standard ACE DB");
    expectRefused(ErrorCode::UnrecognizedFormat, bytes);
    EXPECT_TRUE(Database::open(path()).status().text().contains(QStringLiteral(".accdb")));
}

TEST_F(OpenTest, TruncatedFileIsDamagedWhereverItIsCut) {
    const std::string whole = emptyBytes();
    for (size_t length : {size_t{24}, size_t{100}, size_t{4095}})
        expectRefused(ErrorCode::DamagedDatabase, whole.substr(0, length));
    for (size_t length = 4096; length < whole.size(); length += 2048)
        expectRefused(ErrorCode::DamagedDatabase, whole.substr(0, length));
}

TEST_F(OpenTest, RoomReservedPastTheEndIsNoDamage) {
    std::string bytes = emptyBytes();
    // The map of free pages ends on page 1: pages 23 to 31 and some more are taken.
    bytes.replace(2 * 4096 - 64 + 23 / 8, 20, std::string(20, '\0'));
    writeBytes(path(), bytes);
    const DatabasePtr database = open(path());
    Table& recipients = table(*database);
    EXPECT_OK(database->begin());
    std::vector<RowId> ids;
    for (int i = 0; i < 20000; ++i)
        ids.push_back(insert(recipients, recipient(recipients, "Ditta")));
    EXPECT_OK(database->commit());
    EXPECT_OK(database->begin());
    for (const RowId id : ids)
        EXPECT_OK(recipients.erase(id));
    EXPECT_OK(database->commit());
    EXPECT_GT(bytesOf(path()).size(), size_t{4096} * (23 + 160));
    expectSoundForAll(path());
}

TEST_F(OpenTest, TableThatOwnsAPagePastTheEndReportsATruncatedFile) {
    std::string bytes = emptyBytes();
    bytes[2 * 4096 - 64 + 40 / 8] = '\0';
    for (const size_t map :
         {0, 1, 2}) {  // rows of tb_gruppi's map page, from the page's end: owned, room, index
        std::string changed = bytes;
        changed[18 * 4096 - 69 * (map + 1) + 5 + 40 / 8] = '\1';
        expectRefused(ErrorCode::DamagedDatabase, changed);
    }
}

TEST_F(OpenTest, PasswordIsAskedFor) {
    writeBytes(path(), withPassword(u"Segreta€"));
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(path()));
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(path(), {.password = "segreta€"}));
    const auto wrong = Database::open(path(), {.password = "sbagliata"});
    EXPECT_FALSE(wrong.status().text().contains(QStringLiteral("sbagliata")));
    EXPECT_OK(Database::open(path(), {.password = "Segreta€"}));
}

TEST_F(OpenTest, PasswordOfTwentyCharactersFillsItsField) {
    const std::string longest = "12345678901234567890";
    writeBytes(path(), withPassword(toUtf16(longest)));
    EXPECT_OK(Database::open(path(), {.password = longest}));
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(path(), {.password = longest.substr(0, 19)}));
}

TEST_F(OpenTest, PasswordGivenToAFileWithoutOneIsIgnored) {
    writeBytes(path(), emptyBytes());
    EXPECT_OK(Database::open(path(), {.password = "qualcosa"}));
}

TEST_F(OpenTest, EncodedFileIsReadAndWritten) {
    const uint32_t key = 0x12345678;
    std::string bytes = withHeader([&](Page& page) { store32(&page[header::pageKey], key); });
    for (size_t n = 1; n < bytes.size() / pageSize; ++n)
        codePage(key, static_cast<uint32_t>(n),
                 std::span(reinterpret_cast<uint8_t*>(bytes.data()) + n * pageSize, pageSize));
    writeBytes(path(), bytes);
    DatabasePtr database = open(path(), {.cachedPages = 6});  // pages are written ahead of the commit
    const auto addMany = [&] {
        EXPECT_OK(database->begin());
        for (int i = 0; i < 500; ++i)
            insert(table(*database), recipient(table(*database), "nome " + std::to_string(i)));
    };
    addMany();
    database->rollback();
    EXPECT_EQ(bytesOf(path()), bytes);
    addMany();
    EXPECT_OK(database->commit());
    database.reset();
    expectSoundForAll(path());
    EXPECT_EQ(bytesOf(path()).find("nome"), std::string::npos) << "a page stands in clear";
    database = open(path());
    EXPECT_EQ(rowsOf(table(*database)).size(), 500u);
}

TEST_F(OpenTest, ReadOnlyDatabaseRefusesEveryWrite) {
    create(path()).reset();
    const std::string before = bytesOf(path());
    DatabasePtr database = open(path(), {.readOnly = true});
    EXPECT_FAILS(ErrorCode::ReadOnlyDatabase, database->begin());
    EXPECT_FAILS(ErrorCode::ReadOnlyDatabase, table(*database).writable());
    EXPECT_FAILS(ErrorCode::ReadOnlyDatabase, table(*database).takeAutoNumber());
    EXPECT_EQ(bytesOf(path()), before);
}

TEST_F(OpenTest, CatalogueListsTablesAndMarksSystemOnes) {
    DatabasePtr database = create(path());
    const auto catalog = database->catalog();
    ASSERT_TRUE(catalog.ok());
    std::vector<std::string> system;
    std::vector<std::string> user;
    for (const CatalogEntry& entry : catalog.value()) {
        EXPECT_EQ(entry.kind, CatalogEntry::Kind::Local);
        (entry.system ? system : user).push_back(entry.name);
    }
    EXPECT_EQ(system,
              (std::vector<std::string>{"MSysACEs", "MSysObjects", "MSysQueries", "MSysRelationships"}));
    EXPECT_EQ(user, (std::vector<std::string>{"tb_destinatari", "tb_gruppi"}));
}

TEST_F(OpenTest, TableIsFoundWithoutRegardToCase) {
    DatabasePtr database = create(path());
    EXPECT_EQ(&table(*database, "TB_Gruppi"), &table(*database, "tb_gruppi"));
    EXPECT_FAILS(ErrorCode::TableNotFound, database->table("tb_altro"));
}

TEST_F(OpenTest, NewDatabaseReplacesNothing) {
    writeBytes(path(), "mio");
    EXPECT_FAILS(ErrorCode::PathAccess, schema::CreaDatabase(path()));
    EXPECT_EQ(bytesOf(path()), "mio");
    EXPECT_FAILS(ErrorCode::FileNotFound, schema::CreaDatabase(path("nessuna/data.mdb")));
}

TEST_F(OpenTest, ReadingDoesNotTouchTheFile) {
    create(path()).reset();
    const std::string before = bytesOf(path());
    const auto time = std::filesystem::last_write_time(path());
    {
        DatabasePtr database = open(path());
        rowsOf(table(*database));
        EXPECT_OK(database->begin());
        EXPECT_OK(database->commit());  // nothing was changed
    }
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_EQ(std::filesystem::last_write_time(path()), time);
}

// Any hostile file leads to an error or to rows, soon and without a crash.
class DamageTest : public OpenTest {
  protected:
    void SetUp() override { leaveUnsound(); }

    static constexpr int rows = 120;

    // Syncs would take nearly all the time.
    DamageTest() {
        setDiskHook([](const DiskStep& step) {
            const bool sync = step.kind == DiskStep::Kind::Sync || step.kind == DiskStep::Kind::SyncFolder;
            return sync ? DiskStep::Outcome::Skip : DiskStep::Outcome::Proceed;
        });
    }
    ~DamageTest() override { setDiskHook({}); }

    static uint8_t* raw(std::string& bytes, size_t at) {
        return reinterpret_cast<uint8_t*>(bytes.data()) + at;
    }
    static size_t slotAt(RowId id) { return id.page * pageSize + data::slots + 2 * size_t{id.slot}; }
    static size_t rowAt(std::string& bytes, RowId id) {
        return id.page * pageSize + (load16(raw(bytes, slotAt(id))) & data::offsetMask);
    }
    // Of the first data page.
    static RowId firstMovedRow(std::string& bytes) {
        for (RowId id{23, 0}; id.slot < data::maxSlots; ++id.slot)
            if ((load16(raw(bytes, slotAt(id))) & data::deleted) == data::pointer) return id;
        ADD_FAILURE() << "no moved row in the sample";
        return {};
    }

    std::string sample() {
        DatabasePtr database = create(path("sample.mdb"));
        Table& recipients = table(*database);
        EXPECT_OK(database->begin());
        std::vector<RowId> ids;
        ids.reserve(rows);
        for (int i = 0; i < rows; ++i)
            ids.push_back(insert(recipients, recipient(recipients, "nome " + std::to_string(i))));
        for (int i = 0; i < rows; i += 3) {
            const std::pair<size_t, Value> grow{12, std::string(150, 'x')};
            EXPECT_OK(recipients.update(ids[static_cast<size_t>(i)], std::span(&grow, 1)));
        }
        EXPECT_OK(database->commit());
        database.reset();
        return bytesOf(path("sample.mdb"));
    }

    // Uses the file in every way. Returns whether all of it succeeded.
    bool use() {
        auto database = Database::open(path());
        if (!database.ok()) return false;
        bool fine = true;
        const auto catalog = database.value()->catalog();
        if (!catalog.ok()) return false;
        for (const CatalogEntry& entry : catalog.value()) {
            auto found = database.value()->table(entry.name);
            if (!found.ok()) {
                fine = false;
                continue;
            }
            Table& t = *found.value();
            size_t seen = 0;
            std::vector<RowId> some;
            fine &= t.scan([&](RowId id, const RowView& view) {
                         for (size_t i = 0; i < t.definition().columns.size(); ++i)
                             (void)view.value(i);
                         if (some.size() < 3) some.push_back(id);
                         return ++seen < 100000;
                     }).ok();
            for (RowId id : some)
                for (size_t i = 0; i < t.definition().columns.size(); ++i)
                    fine &= t.value(id, i).ok();
            if (t.definition().longPrimaryKey()) fine &= t.findByPrimaryKey(5).ok();
        }
        fine &= write(*database.value());
        return fine;
    }
    bool write(Database& database) {
        auto found = database.table("tb_destinatari");
        if (!found.ok() || !database.begin().ok()) return false;
        Table& t = *found.value();
        bool fine = true;
        std::vector<RowId> some;
        (void)t.scan([&](RowId id, const RowView&) {
            some.push_back(id);
            return some.size() < 4;
        });
        if (t.definition().columns.size() == 22) {
            fine &= t.insert(recipient(t, "nuovo")).ok();
            for (RowId id : some) {
                const std::pair<size_t, Value> grow{13, std::string(250, 'y')};
                fine &= t.update(id, std::span(&grow, 1)).ok();
            }
            if (!some.empty()) fine &= t.erase(some.back()).ok();
        }
        return database.commit().ok() && fine;
    }
};

TEST_F(DamageTest, FlippedBytesNeverCrashOrHang) {
    const std::string whole = sample();
    writeBytes(path(), whole);
    ASSERT_TRUE(use());
    std::mt19937 random(20240611);
    int failures = 0;
    constexpr int rounds = testing_support::repetitions(3000);
    for (int round = 0; round < rounds; ++round) {
        std::string bytes = whole;
        const int flips = 1 + static_cast<int>(random() % 8);
        const size_t page = random() % (bytes.size() / 4096);
        for (int i = 0; i < flips; ++i) {
            // Mostly near the start of a page, where counts and pointers are.
            const size_t at = page * 4096 + (random() % 3 ? random() % 96 : random() % 4096);
            bytes[at] = static_cast<char>(random() % 4 ? random() : 0xFF);
        }
        writeBytes(path(), bytes);
        failures += use() ? 0 : 1;
    }
    EXPECT_GT(failures, rounds / 10) << "the damage was hardly met";
}

TEST_F(DamageTest, PagesThatTradePlacesNeverCrashOrHang) {
    const std::string whole = sample();
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        std::string bytes = whole;
        const size_t pages = bytes.size() / 4096;
        const size_t a = 1 + random() % (pages - 1);
        const size_t b = 1 + random() % (pages - 1);
        bytes.replace(a * 4096, 4096, whole, b * 4096, 4096);
        writeBytes(path(), bytes);
        use();
    }
}

TEST_F(DamageTest, DefinitionThatPointsToItselfIsDamaged) {
    std::string bytes = sample();
    bytes.replace(19 * 4096 + 4, 4, std::string("\x13\0\0\0", 4));
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, database->table("tb_destinatari"));
}

TEST_F(DamageTest, MovedRowThatPointsToItselfIsDamaged) {
    std::string bytes = sample();
    const RowId moved = firstMovedRow(bytes);
    const size_t at = rowAt(bytes, moved);
    bytes[at] = static_cast<char>(moved.slot);
    bytes[at + 1] = static_cast<char>(moved.page);
    bytes[at + 2] = bytes[at + 3] = 0;
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase,
                 table(*database).scan([](RowId, const RowView&) { return true; }));
}

TEST_F(DamageTest, BitOfASlotThatMeansNothingChangesNothing) {
    std::string bytes = sample();
    const RowId moved = firstMovedRow(bytes);
    const size_t at = rowAt(bytes, moved);
    const RowId body{load24(raw(bytes, at + 1)), static_cast<uint8_t>(bytes[at])};
    writeBytes(path(), bytes);
    const auto countRows = [&](Database& database) {
        size_t count = 0;
        EXPECT_OK(table(database).scan([&](RowId, const RowView&) { return ++count > 0; }));
        return count;
    };
    const size_t all = countRows(*open(path()));
    for (const RowId id : {moved, body})
        *raw(bytes, slotAt(id) + 1) |= 0x20;
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_EQ(countRows(*database), all);
    EXPECT_OK(database->begin());
    EXPECT_OK(table(*database).erase(moved));
    EXPECT_OK(database->commit());
    EXPECT_EQ(countRows(*database), all - 1);
    database.reset();
    EXPECT_EQ(checkJetFile(path()), std::vector<std::string>());
}

TEST_F(DamageTest, IndexThatGoesRoundInCirclesIsDamaged) {
    DatabasePtr database = create(path());
    EXPECT_OK(database->begin());
    for (int i = 0; i < 2000; ++i)
        insert(table(*database), recipient(table(*database), "x"));
    EXPECT_OK(database->commit());
    database.reset();
    std::string bytes = bytesOf(path());
    ASSERT_EQ(bytes[21 * 4096], 3) << "the root is no node";
    bytes.replace(21 * 4096 + 20, 4, std::string("\x15\0\0\0", 4));
    writeBytes(path(), bytes);
    database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).findByPrimaryKey(2000));
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).insert(recipient(table(*database), "y")));
    database->rollback();
    EXPECT_EQ(bytesOf(path()), bytes);
}

TEST_F(DamageTest, IndexOfAnotherTableRefusesChangesBeforeTheFileIsTouched) {
    std::string bytes = sample();
    bytes[21 * 4096 + 4] = 77;  // the index root belongs to another table
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).writable());
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).insert(recipient(table(*database), "y")));
    EXPECT_OK(database->commit());
    EXPECT_EQ(bytesOf(path()), bytes);
}

TEST_F(DamageTest, IndexWhoseKeysAreNotThoseOfItsRowsRefusesChanges) {
    std::string bytes = sample();
    const size_t leaf = 21 * 4096;
    ASSERT_EQ(bytes[leaf], LeafPage);
    bytes[leaf + 480 + 4] = static_cast<char>(bytes[leaf + 480 + 4] ^ 1);  // of the first key
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    const Status refused = table(*database).writable();
    EXPECT_FAILS(ErrorCode::NotSupported, refused);
    EXPECT_TRUE(refused.text().contains(QStringLiteral("PrimaryKey")));
}

TEST_F(DamageTest, FailureInTheMiddleOfAChangeUndoesTheTransaction) {
    std::string bytes = sample();
    bytes[20 * 4096 + 4096 - 2 * 69] = 7;  // an unknown form of the map of pages with room
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    Table& recipients = table(*database);
    std::vector<RowId> ids;
    EXPECT_OK(recipients.scan([&](RowId id, const RowView&) {
        ids.push_back(id);
        return true;
    }));
    EXPECT_OK(database->begin());
    const std::pair<size_t, Value> name{2, std::string("prima1")};  // as long as the one before
    EXPECT_OK(recipients.update(ids[0], std::span(&name, 1)));
    EXPECT_FAILS(ErrorCode::DamagedDatabase, recipients.insert(recipient(recipients, "y")));
    EXPECT_FAILS(ErrorCode::DamagedDatabase, recipients.update(ids[0], std::span(&name, 1)));
    EXPECT_FAILS(ErrorCode::DamagedDatabase, database->commit());
    EXPECT_FALSE(database->inTransaction());
    EXPECT_EQ(bytesOf(path()), bytes);
}

}  // namespace open_test
