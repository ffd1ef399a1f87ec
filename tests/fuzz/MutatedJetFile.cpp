// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/MutatedJetFile.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/Database.h"
#include "platform/jet/OsFile.h"
#include "support/JetTables.h"
#include "support/MemoryFolder.h"

namespace mutated {

std::string fileName() {
    static const std::string name = [] {
        QString folder = memoryFolderPattern();
        folder.truncate(folder.lastIndexOf(QLatin1Char('/')) + 1);
        return folder.toStdString() + "fuzz_jet." + std::to_string(::getpid()) + ".mdb";
    }();
    return name;
}

void removeFiles() {
    ::unlink(fileName().c_str());
    ::unlink((fileName() + "-journal").c_str());
}

namespace {

constexpr uintmax_t longestSample = 512 * 1024;

void require(bool fine) {
    if (!fine) std::abort();
}

// The disk is not tested here, and syncing would take nearly all the time.
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
    require(schema::CreaDatabase(fileName()).ok());
    {
        auto opened = jet::Database::open(fileName());
        require(opened.ok());
        jet::Database& database = *opened.value();
        jet::Table& names = *database.table("tb_gruppi").value();
        jet::Table& people = *database.table("tb_destinatari").value();
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
    const std::string file = fileName();
    const std::string name = "prova";
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

}  // namespace

const Files& soundFiles() {
    static const Files files{soundFile(0, 0), soundFile(3, 60), soundFile(1500, 2), richFile()};
    return files;
}

Files samples(uintmax_t longest) {
    std::vector<std::filesystem::path> paths;
    if (std::filesystem::exists(SHARED_DIR "/mdb"))
        for (const auto& entry : std::filesystem::directory_iterator(SHARED_DIR "/mdb"))
            if (entry.path().extension() == ".mdb" && entry.file_size() <= longest)
                paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    Files contents;
    for (const auto& path : paths)
        contents.push_back(contentOf(path.string()));
    return contents;
}

namespace {

const Files& sampleFiles() {
    static const Files files = [] {
        Files contents = samples(longestSample);
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

}  // namespace

void leaveOutSyncs() {
    jet::setDiskHook(withoutSync);
}

void writeFile(std::span<const uint8_t> input) {
    leaveOutSyncs();
    const std::string bytes = fileOf(input);
    removeFiles();
    std::ofstream(fileName(), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace mutated
