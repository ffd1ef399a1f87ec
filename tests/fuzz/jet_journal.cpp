// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the journal of a database that was left in the middle of a change: opening rolls it back or
// sets it aside. Nothing may crash or hang, and the database is as it was found or as before the change.
//
// The first byte of an input: bit 0, the checksums of header and records are corrected afterwards, so
// that the mutation gets past them; bit 1, what follows are patches of five bytes (u24 offset, how to change,
// value) over the journal that belongs to the file, else it is the journal itself.
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "fuzz/MutatedJetFile.h"
#include "platform/jet/Database.h"
#include "platform/jet/JournalFormat.h"
#include "platform/jet/Notices.h"
#include "platform/jet/OsFile.h"

namespace {

using jet::DiskStep;

std::string contentOf(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void write(const std::string& name, const std::string& bytes) {
    std::ofstream(name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void require(bool fine) {
    if (!fine) std::abort();
}

struct Crash {
    std::string before;
    std::string after;
    std::string journal;
};

size_t recordLength(const uint8_t* record) {
    return jet::load32(record) == 1 ? jet::journal::originalLength : jet::journal::announcementLength;
}

size_t endOfRecords(const std::string& journal) {
    const auto* data = reinterpret_cast<const uint8_t*>(journal.data());
    size_t at = jet::journal::recordsStart;
    while (at + jet::journal::announcementLength <= journal.size() && jet::load32(data + at) != 0)
        at += recordLength(data + at);
    return std::min(at, journal.size());
}

// Two states of a file, and the journal that leads from the second to the first.
Crash makeCrash() {
    const std::string file = mutated::fileName();
    const uint8_t first = 0;
    mutated::writeFile({&first, 1});
    Crash crash{contentOf(file), {}, {}};
    {
        auto opened = jet::Database::open(file);
        require(opened.ok());
        auto table = opened.value()->table("tb_destinatari");
        require(table.ok() && opened.value()->begin().ok());
        for (int i = 0; i < 12; ++i) {
            std::vector<jet::Value> row(table.value()->definition().columns.size());
            row[2] = std::string(70, 'x');
            require(table.value()->insert(row).ok());
        }
        jet::setDiskHook([&](const DiskStep& step) {
            const bool sync = step.kind == DiskStep::Kind::Sync;
            if (sync && step.path == file) {
                crash.after = contentOf(file);
                crash.journal = contentOf(file + "-journal");
            }
            return sync || step.kind == DiskStep::Kind::SyncFolder ? DiskStep::Outcome::Skip
                                                                   : DiskStep::Outcome::Proceed;
        });
        require(opened.value()->commit().ok());
        jet::setDiskHook([](const DiskStep& step) {
            const bool sync = step.kind == DiskStep::Kind::Sync || step.kind == DiskStep::Kind::SyncFolder;
            return sync ? DiskStep::Outcome::Skip : DiskStep::Outcome::Proceed;
        });
    }
    // What follows the records is ignored. The last one may end in zeros.
    crash.journal.resize(endOfRecords(crash.journal));
    require(!crash.journal.empty() && crash.after != crash.before);
    return crash;
}

std::string patched(std::string bytes, std::span<const uint8_t> patches) {
    for (; patches.size() >= 5; patches = patches.subspan(5)) {
        const size_t at = static_cast<size_t>(patches[0] | patches[1] << 8 | patches[2] << 16);
        if (patches[3] == 0xFF) bytes.resize(std::min(bytes.size(), at));
        if (at < bytes.size()) bytes[at] = static_cast<char>(patches[4]);
    }
    return bytes;
}

// Corrects the checksums, as far as the lengths of the records are known.
void seal(std::string& bytes) {
    using namespace jet;
    auto* data = reinterpret_cast<uint8_t*>(bytes.data());
    if (bytes.size() < journal::recordsStart) return;
    store64(data + 32, journal::digest({data, 32}, 0));
    const uint64_t nonce = load64(data + 16);
    for (size_t at = journal::recordsStart; at + journal::announcementLength <= bytes.size();) {
        const size_t length = recordLength(data + at);
        if (at + length > bytes.size()) return;
        store64(data + at + length - 8, journal::digest({data + at, length - 8}, nonce + at));
        at += length;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const Crash crash = makeCrash();
    if (size == 0) return 0;
    jet::setNoticeHandler([](const Phrase&) {});
    const std::span<const uint8_t> rest(data + 1, size - 1);
    std::string journal = data[0] & 2 ? patched(crash.journal, rest) : std::string(rest.begin(), rest.end());
    const bool sealed = data[0] & 1;
    if (sealed) seal(journal);
    const std::string file = mutated::fileName();
    write(file, crash.after);
    write(file + "-journal", journal);
    (void)jet::Database::open(file);
    const std::string now = contentOf(file);
    if (sealed)
        require(now.size() >= crash.before.size());
    else
        require(now == crash.after || now == crash.before);
    if (journal == crash.journal) require(now == crash.before);
    ::unlink((file + "-journal.scartato").c_str());
    mutated::removeFiles();
    return 0;
}
