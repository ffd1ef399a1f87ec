// Thousands of random changes from a seed, on a new file and on copies of real ones; afterwards a model in
// memory, two page checkers and another reader of the format must agree with the file.
#include <random>

#include "jet/JetFixture.h"
#include "jet/OutsideReaders.h"

using namespace jet;

class RandomTest : public JetTest {
  protected:
    static constexpr int changes = 5000;
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

    static bool isExpected(ErrorCode code) {
        return code == ErrorCode::DuplicateKey || code == ErrorCode::ValueRequired ||
               code == ErrorCode::RecordTooLarge;
    }

    void changeOne(jet::Table& t, Rows& model) {
        const TableDefinition& definition = t.definition();
        const int what = model.size() > 600 ? 60 + pick(40) : pick(100);
        if (what < 55 || model.empty()) {
            Row row = randomRow(definition);
            const auto id = t.insert(row);
            if (!id.ok()) {
                EXPECT_TRUE(isExpected(id.status().code())) << jetTextOf(id);
                return;
            }
            for (size_t i = 0; i < row.size(); ++i)
                if (definition.columns[i].autoNumber) row[i] = t.row(id.value()).value()->value(i);
            EXPECT_TRUE(model.emplace(id.value(), std::move(row)).second)
                << "a living row's place was given again";
            return;
        }
        auto chosen = model.begin();
        std::advance(chosen, pick(static_cast<int>(model.size())));
        if (what >= 80) {
            EXPECT_OK(t.erase(chosen->first));
            model.erase(chosen);
            return;
        }
        std::vector<std::pair<size_t, Value>> values;
        for (size_t i = 0; i < definition.columns.size(); ++i) {
            const Column& column = definition.columns[i];
            if (column.autoNumber || column.type == Type::Memo || column.type == Type::Ole || pick(3))
                continue;
            values.emplace_back(i, randomValue(column));
        }
        const Status status = t.update(chosen->first, values);
        if (!status.ok()) {
            EXPECT_TRUE(isExpected(status.code())) << jetTextOf(status);
            return;
        }
        for (auto& [i, value] : values)
            chosen->second[i] = value;
    }

    void changeMuch(const QString& file, jet::Database& database, QStringView name) {
        jet::Table& t = table(database, name);
        Rows model = shown(t);
        for (int done = 0; done < changes;) {
            ASSERT_TRUE(database.begin().ok());
            const Rows before = model;
            for (int i = 0; i < perTransaction; ++i, ++done)
                changeOne(t, model);
            if (pick(10) == 0) {
                database.rollback();
                model = before;
            } else {
                EXPECT_OK(database.commit());
            }
            if (done % 1000 == 0) {
                ASSERT_TRUE(shown(t) == model) << "the file does not hold what was written";
                expectSound(file);
            }
            if (HasFailure()) return;
        }
        ASSERT_TRUE(shown(t) == model) << "the file does not hold what was written";
        if (const auto rows = mdbtoolsRows(file, t.definition())) {
            EXPECT_EQ(firstDifference(engineRows(t), *rows), "");
        }
    }
};

TEST_F(RandomTest, GeneratedFileStaysSoundAndReadable) {
    DatabasePtr database = create(path());
    changeMuch(path(), *database, u"tb_destinatari");
    changeMuch(path(), *database, u"tb_gruppi");
    expectSoundForAll(path());
}

TEST_F(RandomTest, SmallCacheMakesNoDifference) {
    create(path()).reset();
    DatabasePtr database = open(path(), {.cachedPages = 6});
    changeMuch(path(), *database, u"tb_destinatari");
    expectSoundForAll(path());
}

TEST_F(RandomTest, RealFilesWithoutTextIndexStaySoundAndReadable) {
    if (!std::filesystem::exists(SHARED_DIR "/mdb")) {
        std::printf("[ SAMPLES  ] the samples are not here: this test was skipped\n");
        return;
    }
    int tables = 0;
    for (const auto& entry : std::filesystem::directory_iterator(SHARED_DIR "/mdb")) {
        if (entry.path().extension() != ".mdb") continue;
        SCOPED_TRACE(entry.path().filename());
        const QString file = path(entry.path().filename().c_str());
        std::filesystem::copy_file(entry.path(), local(file));
        std::filesystem::permissions(local(file), std::filesystem::perms(0644));
        const bool hasPassword = local(file).find("with-password") != std::string::npos;
        auto opened =
            Database::open(file, {.password = hasPassword ? QStringLiteral("password") : QString()});
        if (!opened.ok()) {  // only the older format is refused
            EXPECT_FAILS(ErrorCode::UnrecognizedFormat, opened);
            continue;
        }
        Database& database = *opened.value();
        for (const CatalogEntry& listed : database.catalog().value()) {
            if (listed.system || listed.kind != CatalogEntry::Kind::Local) continue;
            if (!table(database, listed.name).writable().ok()) continue;
            SCOPED_TRACE(listed.name.toStdString());
            changeMuch(file, database, listed.name);
            ++tables;
        }
        expectSoundForAll(file);
        if (HasFailure()) return;
    }
    EXPECT_GE(tables, 20);
}
