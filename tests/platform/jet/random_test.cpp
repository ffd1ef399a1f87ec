// SPDX-License-Identifier: GPL-3.0-or-later
// Thousands of random changes from a seed, on a new file and on copies of real ones; afterwards a model in
// memory, two page checkers and another reader of the format must agree with the file.
#include <cstdlib>
#include <random>
#include <set>

#include "platform/jet/JetFixture.h"
#include "platform/jet/OutsideReaders.h"
#include "support/Repetitions.h"

namespace random_test {

using namespace jet;

class RandomTest : public JetTest {
  protected:
    static constexpr int changes = testing_support::repetitions(5000);
    static constexpr int perTransaction = 100;

    std::mt19937 random{20240229};

    int pick(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }

    std::string randomText(size_t units) {
        static const char* alphabet[] = {"a", "b", "Z", " ", "è",      "ò", "'", "€",
                                         "Ā", "ñ", "7", "&", "\u2013", "ß", "—"};
        std::string text;
        const bool plain = pick(3) > 0;
        const size_t length =
            pick(4) ? static_cast<size_t>(pick(static_cast<int>(std::min<size_t>(units, 40)) + 1))
                    : static_cast<size_t>(pick(static_cast<int>(units) + 1));
        for (size_t i = 0; i < length; ++i)
            text += plain ? std::string(1, static_cast<char>('a' + pick(26))) : alphabet[pick(15)];
        return text;
    }

    Value randomValue(const Column& column) {
        if (column.type != Type::YesNo && pick(5) == 0) return {};
        switch (column.type) {
            case Type::YesNo:
                return pick(2) == 0;
            case Type::Byte:
                return int64_t{pick(256)};
            case Type::Integer:
                return int64_t{pick(65536) - 32768};
            case Type::Long:
                return pick(2) ? int64_t{pick(2000)} : int64_t{static_cast<int32_t>(random())};
            case Type::Single:
                return static_cast<double>(static_cast<float>(pick(100000)) / 8);
            case Type::Double:
                return static_cast<double>(pick(1000000)) / 64;
            case Type::Currency:
                return Currency{static_cast<int64_t>(random()) - 1000000000};
            case Type::Date:
                return Date{static_cast<double>(pick(50000)) + static_cast<double>(pick(24)) / 24};
            case Type::Text:
                return randomText(column.length / 2u);
            case Type::Binary:
                return Bytes(static_cast<size_t>(pick(column.length / 2 + 1)),
                             static_cast<uint8_t>(pick(256)));
            case Type::Guid:
                return Bytes(16, static_cast<uint8_t>(pick(256)));
            default:
                return {};
        }
    }

    Row randomRow(const TableDefinition& definition) {
        Row row;
        for (const Column& column : definition.columns)
            row.push_back(column.autoNumber ? Value() : randomValue(column));
        return row;
    }

    // The memo and OLE values are not changed, so they may stay out of the comparison.
    static Rows shown(jet::Table& t) {
        Rows rows = rowsOf(t);
        for (auto& [id, row] : rows)
            for (size_t i = 0; i < row.size(); ++i)
                if (t.definition().columns[i].type == Type::Memo ||
                    t.definition().columns[i].type == Type::Ole)
                    row[i] = {};
        return rows;
    }

    // Refusals that random values may cause; the last one for characters in an indexed text.
    static bool isExpected(ErrorCode code) {
        return code == ErrorCode::DuplicateKey || code == ErrorCode::ValueRequired ||
               code == ErrorCode::RecordTooLarge || code == ErrorCode::NotSupported;
    }

    // One table and its expected content.
    struct Subject {
        Table& t;
        Rows model;
        bool rowsMayGo;                    ///< rows can be inserted and deleted
        std::vector<size_t> columns = {};  ///< that can be changed

        explicit Subject(Table& table) : t(table), model(shown(table)), rowsMayGo(table.writable().ok()) {
            for (size_t i = 0; i < t.definition().columns.size(); ++i)
                if (!t.definition().columns[i].autoNumber && t.updatable(std::span(&i, 1)).ok())
                    columns.push_back(i);
        }
    };

    void insertOne(Subject& subject) {
        const TableDefinition& definition = subject.t.definition();
        Row row = randomRow(definition);
        const auto id = subject.t.insert(row);
        if (!id.ok()) {
            EXPECT_TRUE(isExpected(id.status().code())) << jetTextOf(id);
            return;
        }
        for (size_t i = 0; i < row.size(); ++i)
            if (definition.columns[i].autoNumber) row[i] = subject.t.row(id.value()).value()->value(i);
        EXPECT_TRUE(subject.model.emplace(id.value(), std::move(row)).second)
            << "a living row's place was given again";
    }

    void changeOne(Subject& subject) {
        Rows& model = subject.model;
        const int what = !subject.rowsMayGo ? 60 : model.size() > 600 ? 60 + pick(40) : pick(100);
        if (subject.rowsMayGo && (what < 55 || model.empty())) return insertOne(subject);
        if (model.empty()) return;
        auto chosen = model.begin();
        std::advance(chosen, pick(static_cast<int>(model.size())));
        if (what >= 80) {
            EXPECT_OK(subject.t.erase(chosen->first));
            model.erase(chosen);
            return;
        }
        std::vector<std::pair<size_t, Value>> values;
        for (size_t i : subject.columns)
            if (pick(3) == 0) values.emplace_back(i, randomValue(subject.t.definition().columns[i]));
        const Status status = subject.t.update(chosen->first, values);
        if (!status.ok()) {
            EXPECT_TRUE(isExpected(status.code())) << jetTextOf(status);
            return;
        }
        for (auto& [i, value] : values)
            chosen->second[i] = value;
    }

    // A transaction of a hundred changes, which may be undone.
    void changeHundred(Database& database, Subject& subject) {
        ASSERT_TRUE(database.begin().ok());
        const Rows before = subject.model;
        for (int i = 0; i < perTransaction; ++i)
            changeOne(subject);
        if (pick(10) == 0) {
            database.rollback();
            subject.model = before;
        } else {
            EXPECT_OK(database.commit());
        }
    }

    static void expectAgreement(const std::string& file, Subject& subject) {
        ASSERT_TRUE(shown(subject.t) == subject.model) << "the file does not hold what was written";
        expectSoundForAll(file);
        if (const auto rows = mdbtoolsRows(file, subject.t.definition())) {
            EXPECT_EQ(firstDifference(engineRows(subject.t), *rows), "");
        }
    }

    void changeMuch(const std::string& file, Database& database, std::string_view name) {
        Subject subject(table(database, name));
        for (int done = 0; done < changes; done += perTransaction) {
            changeHundred(database, subject);
            if (done % 1000 == 0) expectSound(file);
            if (HasFailure()) return;
        }
        expectAgreement(file, subject);
    }

    struct Place {
        std::string file;
        std::string table;
    };
    // Every user's table of the copies in which something can be changed.
    std::vector<Place> changeablePlaces() {
        std::vector<Place> places;
        for (const std::string& name : samples()) {
            const std::string file = copyOf(name.c_str());
            if (isJet3(file)) continue;
            DatabasePtr database = open(file, optionsFor(name));
            for (const CatalogEntry& listed : database->catalog().value()) {
                if (listed.system || listed.kind != CatalogEntry::Kind::Local) continue;
                const Subject subject(table(*database, listed.name));
                if (subject.rowsMayGo || (!subject.columns.empty() && !subject.model.empty()))
                    places.push_back({name, listed.name});
            }
        }
        return places;
    }
    static int operations() {
        const char* wanted = std::getenv("VESTROLA_OPERATIONS");
        return wanted ? std::atoi(wanted) : testing_support::repetitions(20000);
    }
};

TEST_F(RandomTest, GeneratedFileStaysSoundAndReadable) {
    DatabasePtr database = create(path());
    changeMuch(path(), *database, "tb_destinatari");
    changeMuch(path(), *database, "tb_gruppi");
}

TEST_F(RandomTest, SmallCacheMakesNoDifference) {
    create(path()).reset();
    DatabasePtr database = open(path(), {.cachedPages = 6});
    changeMuch(path(), *database, "tb_destinatari");
}

// So many operations in all; VESTROLA_OPERATIONS in the environment asks for more. After each hundred
// both page checkers and the other reader of the format look at the file.
TEST_F(RandomTest, RealFilesStaySoundAndReadable) {
    const std::vector<Place> places = changeablePlaces();
    if (places.empty()) return;  // without samples
    EXPECT_GE(places.size(), 35u);
    std::set<std::string> files;
    for (int done = 0; done < operations(); done += perTransaction) {
        const Place& place = places[static_cast<size_t>(done / perTransaction) % places.size()];
        SCOPED_TRACE(place.file + " " + place.table);
        const std::string file = path(place.file.c_str());
        DatabasePtr database = open(file, optionsFor(place.file));
        Subject subject(table(*database, place.table));
        changeHundred(*database, subject);
        expectAgreement(file, subject);
        files.insert(place.file);
        if (HasFailure()) return;
    }
    std::printf("%d operations on %zu tables of %zu files\n", operations(), places.size(), files.size());
}

}  // namespace random_test
