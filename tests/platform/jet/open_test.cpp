// SPDX-License-Identifier: GPL-3.0-or-later
// Opening: what is refused and how, and that reading leaves a file unchanged.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <set>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/DiskTrouble.h"
#include "platform/jet/EmptyDatabase.h"
#include "platform/jet/Header.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/JetText.h"

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

}  // namespace open_test
