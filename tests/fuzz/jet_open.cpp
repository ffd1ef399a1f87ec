// A Jet file with anything in it: opened, walked, changed. Nothing may crash, hang or read outside its
// bounds.
//
// Input: one byte that chooses a sound file, then patches of four bytes (page, u16 offset, value) that are
// put over it; so most inputs come far. Below 80 the file is one made here; from 80 on it is a sample of the
// shared folder, where that is at hand. First byte FF: the rest is the file itself.
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "platform/jet/Database.h"
#include "platform/jet/OsFile.h"
#include "support/JetTables.h"

namespace {

using Files = std::vector<std::string>;

// Bounds what one input may cost; a loop in the file would run into the time limit before.
constexpr size_t mostRows = 20000;
constexpr size_t mostChanged = 4;
constexpr uintmax_t longestSample = 512 * 1024;

std::string fileName() {
    static const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("fuzz_jet_open." + std::to_string(::getpid()) + ".mdb");
    return path.string();
}

void removeFiles() {
    ::unlink(fileName().c_str());
    ::unlink((fileName() + "-journal").c_str());
}

void require(bool fine) {
    if (!fine) std::abort();
}

// The disk is no part of what is tried here, and syncing it would take nearly all the time.
jet::DiskStep::Outcome withoutSync(const jet::DiskStep& step) {
    const bool sync = step.kind == jet::DiskStep::Kind::Sync || step.kind == jet::DiskStep::Kind::SyncFolder;
    return sync ? jet::DiskStep::Outcome::Skip : jet::DiskStep::Outcome::Proceed;
}

std::string contentOf(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// A file with `groups` groups and `recipients` recipients, some of them moved.
std::string soundFile(int groups, int recipients) {
    removeFiles();
    require(jet::createEmptyDatabase(QString::fromStdString(fileName())).ok());
    {
        auto opened = jet::Database::open(QString::fromStdString(fileName()));
        require(opened.ok());
        jet::Database& database = *opened.value();
        jet::Table& names = *database.table(u"tb_gruppi").value();
        jet::Table& people = *database.table(u"tb_destinatari").value();
        require(database.begin().ok());
        for (int i = 0; i < groups; ++i)
            require(names.insert(std::vector<jet::Value>{{}, int64_t{0}, std::string("gruppo")}).ok());
        for (int i = 0; i < recipients; ++i) {
            std::vector<jet::Value> row(people.definition().columns.size());
            row[2] = "nome " + std::to_string(i);
            const auto id = people.insert(row);
            require(id.ok());
            const std::pair<size_t, jet::Value> grow{12, std::string(static_cast<size_t>(i % 3 * 90), 'x')};
            require(people.update(id.value(), std::span(&grow, 1)).ok());
        }
        require(database.commit().ok());
    }
    return contentOf(fileName());
}

// A table with keys of many kinds, with properties, with memo values in all three places.
std::string richFile() {
    (void)soundFile(1, 1);
    using jet::Type;
    const QString file = QString::fromStdString(fileName());
    const QString name = QStringLiteral("prova");
    jettables::addTable(
        file, "prova",
        {{"testo", Type::Text, 50},
         {"data", Type::Date},
         {"guid", Type::Guid},
         {"si", Type::YesNo},
         {"euro", Type::Currency},
         {"nota", Type::Memo},
         {"oggetto", Type::Ole}},
        {{{{0, true}, {1, false}}, 0x80}, {{{2, false}}, 0x82}, {{{4, true}}, 0x81}, {{{3, true}}, 0x80}});
    std::vector<jet::RowId> ids;
    {
        auto opened = jet::Database::open(file);
        jet::Table& table = *opened.value()->table(name).value();
        require(opened.value()->begin().ok());
        for (int i = 0; i < 400; ++i) {
            const auto id = table.insert(std::vector<jet::Value>{"nome " + std::to_string(i * 7 % 100),
                                                                 jet::Date{i / 3.0},
                                                                 jet::Bytes(16, static_cast<uint8_t>(i)),
                                                                 i % 2 == 0,
                                                                 jet::Currency{i * 10000},
                                                                 {},
                                                                 {}});
            require(id.ok());
            ids.push_back(id.value());
        }
        require(opened.value()->commit().ok());
    }
    for (const auto place : {jettables::Place::InRow, jettables::Place::OneRow, jettables::Place::Chain})
        for (const size_t column : {size_t{5}, size_t{6}})
            jettables::setLongValue(file, name, ids[static_cast<size_t>(place)], column,
                                    jet::Bytes(place == jettables::Place::Chain ? 9000 : 100, 'm'), place);
    return contentOf(fileName());
}

const Files& soundFiles() {
    static const Files files{soundFile(0, 0), soundFile(3, 60), soundFile(1500, 2), richFile()};
    return files;
}

const Files& sampleFiles() {
    static const Files files = [] {
        std::vector<std::filesystem::path> paths;
        if (std::filesystem::exists(SHARED_DIR "/mdb"))
            for (const auto& entry : std::filesystem::directory_iterator(SHARED_DIR "/mdb"))
                if (entry.path().extension() == ".mdb" && entry.file_size() <= longestSample)
                    paths.push_back(entry.path());
        std::sort(paths.begin(), paths.end());
        Files contents;
        for (const auto& path : paths)
            contents.push_back(contentOf(path.string()));
        if (contents.empty()) std::printf("the samples are not here: inputs over them are skipped\n");
        return contents;
    }();
    return files;
}

std::string fileOf(std::span<const uint8_t> input) {
    if (input.empty()) return {};
    if (input[0] == 0xFF) return {input.begin() + 1, input.end()};
    const bool sample = input[0] >= 0x80;
    const Files& files = sample ? sampleFiles() : soundFiles();
    if (files.empty()) return {};
    std::string file = files[input[0] % 0x80 % files.size()];
    for (input = input.subspan(1); input.size() >= 4; input = input.subspan(4)) {
        const size_t at = input[0] * size_t{4096} + (input[1] | input[2] << 8) % 4096;
        if (at < file.size()) file[at] = static_cast<char>(input[3]);
    }
    return file;
}

// Something that fits a column.
jet::Value someValue(const jet::Column& column, size_t length) {
    switch (column.type) {
        case jet::Type::Text:
            return std::string(std::min<size_t>(length, column.length / 2u), 'x');
        case jet::Type::YesNo:
            return length % 2 == 0;
        case jet::Type::Byte:
        case jet::Type::Integer:
        case jet::Type::Long:
            return static_cast<int64_t>(length % 100);
        case jet::Type::Single:
        case jet::Type::Double:
            return static_cast<double>(length) / 8;
        case jet::Type::Date:
            return jet::Date{static_cast<double>(length)};
        case jet::Type::Currency:
            return jet::Currency{static_cast<int64_t>(length)};
        case jet::Type::Guid:
            return jet::Bytes(16, static_cast<uint8_t>(length));
        case jet::Type::Binary:
            return jet::Bytes(column.fixed ? column.length : std::min<size_t>(length, column.length), 1);
        default:
            return {};
    }
}

void readAll(jet::Table& table, std::vector<jet::RowId>& some) {
    const size_t columns = table.definition().columns.size();
    size_t seen = 0;
    std::string text;
    (void)table.scan([&](jet::RowId id, const jet::RowView& row) {
        for (size_t i = 0; i < columns; ++i) {
            (void)row.value(i);
            (void)row.integer(i);
            text.clear();
            (void)row.text(i, text);
        }
        if (some.size() < mostChanged) some.push_back(id);
        return ++seen < mostRows;
    });
    for (jet::RowId id : some)
        for (size_t i = 0; i < columns; ++i)
            (void)table.value(id, i);
    for (int32_t key : {-1, 0, 1, 40})
        (void)table.findByPrimaryKey(key);
}

void changeSome(jet::Database& database, jet::Table& table, const std::vector<jet::RowId>& some) {
    if (!database.begin().ok()) return;
    const auto& columns = table.definition().columns;
    (void)table.takeAutoNumber();
    std::vector<jet::Value> row(columns.size());
    for (size_t i = 0; i < columns.size(); ++i)
        if (!columns[i].autoNumber) row[i] = someValue(columns[i], 5);
    (void)table.insert(row);
    for (jet::RowId id : some) {
        for (size_t i = 0; i < columns.size(); ++i) {
            const std::pair<size_t, jet::Value> grow{i, someValue(columns[i], 300)};
            (void)table.update(id, std::span(&grow, 1));
        }
    }
    for (jet::RowId id : some)
        (void)table.erase(id);
    (void)database.commit();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    jet::setDiskHook(withoutSync);
    const std::string bytes = fileOf({data, size});
    removeFiles();
    std::ofstream(fileName(), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    const jet::Database::Options options{.password = QStringLiteral("password")};  // that of a sample
    if (auto opened = jet::Database::open(QString::fromStdString(fileName()), options); opened.ok()) {
        jet::Database& database = *opened.value();
        if (const auto catalog = database.catalog(); catalog.ok())
            for (const jet::CatalogEntry& entry : catalog.value()) {
                const auto table = database.table(entry.name);
                if (!table.ok()) continue;
                std::vector<jet::RowId> some;
                readAll(*table.value(), some);
                changeSome(database, *table.value(), some);
            }
    }
    removeFiles();
    return 0;
}
