// A Jet file with anything in it: opened, walked, changed. Nothing may crash, hang or read outside its
// bounds.
//
// Input: one byte that chooses a sound file made by the engine, then patches of four bytes (page, u16 offset,
// value) that are put over it; so most inputs come far. First byte FF: the rest is the file itself.
#include <unistd.h>

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

namespace {

using Files = std::vector<std::string>;

// Bounds what one input may cost; a loop in the file would run into the time limit before.
constexpr size_t mostRows = 20000;
constexpr size_t mostChanged = 4;

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
    std::ifstream in(fileName(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

const Files& soundFiles() {
    static const Files files{soundFile(0, 0), soundFile(3, 60), soundFile(1500, 2)};
    return files;
}

std::string fileOf(std::span<const uint8_t> input) {
    if (input.empty()) return {};
    if (input[0] == 0xFF) return {input.begin() + 1, input.end()};
    std::string file = soundFiles()[input[0] % soundFiles().size()];
    for (input = input.subspan(1); input.size() >= 4; input = input.subspan(4)) {
        const size_t at = input[0] * size_t{4096} + (input[1] | input[2] << 8) % 4096;
        if (at < file.size()) file[at] = static_cast<char>(input[3]);
    }
    return file;
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
        if (columns[i].type == jet::Type::Text) row[i] = std::string("prova");
    (void)table.insert(row);
    for (jet::RowId id : some) {
        for (size_t i = 0; i < columns.size(); ++i) {
            if (columns[i].type != jet::Type::Text) continue;
            const std::pair<size_t, jet::Value> grow{i, std::string(columns[i].length / 2u, 'x')};
            (void)table.update(id, std::span(&grow, 1));
        }
    }
    if (!some.empty()) (void)table.erase(some.back());
    (void)database.commit();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    jet::setDiskHook(withoutSync);
    const std::string bytes = fileOf({data, size});
    removeFiles();
    std::ofstream(fileName(), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (auto opened = jet::Database::open(QString::fromStdString(fileName())); opened.ok()) {
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
