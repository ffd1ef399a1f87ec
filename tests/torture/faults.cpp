// SPDX-License-Identifier: GPL-3.0-or-later
// Faults below the page file: writes and syncs that fail or are cut short, a full disk, power that fails with
// what was not synced kept, dropped or torn, also during the recovery from an earlier fault. After each of
// them the file is, byte by byte, as before the transaction or as after it.
//
//     torture_faults SEED CASES
#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <QTemporaryDir>

#include "platform/jet/Database.h"
#include "platform/Status.h"
#include "support/JetChecker.h"
#include "support/MemoryFolder.h"
#include "support/PowerDisk.h"
#include "torture/RandomChanges.h"
#include "torture/Tally.h"

namespace {

using jet::Database;
using jet::DiskStep;
using Outcome = DiskStep::Outcome;

constexpr int faultsPerTransaction = 25;
constexpr int transactionsPerFile = 16;

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void writeBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// One transaction, and faults in it.
class Scene {
  public:
    Scene(std::string path, std::string before, unsigned seed, changes::Random& random, Tally& tally)
        : m_path(std::move(path)),
          m_before(std::move(before)),
          m_seed(seed),
          m_random(random),
          m_tally(tally) {
        // Few pages in memory: some are written ahead of the commit.
        if (m_random() % 2) m_options.cachedPages = 4 + m_random() % 12;
    }

    /// Records what the transaction does to the file. False when the file it leaves is not sound.
    bool learn() {
        place({m_before, {}, false});
        Status status;
        m_steps = power::recordSteps([&] { status = run(); });
        m_after = bytesOf(m_path);
        const std::vector<std::string> findings = checkJetFile(m_path);
        if (status.ok() && findings.empty()) return true;
        ++m_tally.damaged;
        m_tally.tell("transaction %u: %s", m_seed,
                     findings.empty() ? status.text().toStdString().c_str() : findings.front().c_str());
        return false;
    }
    const std::string& after() const { return m_after; }
    long endedBefore = 0;
    long endedAfter = 0;

    void playOne() {
        ++m_tally.cases;
        const long wrong = m_tally.damaged + m_tally.lost;
        if (m_random() % 2)
            playFailingSteps();
        else
            playPowerFailure();
        if (m_tally.damaged + m_tally.lost == wrong) ++m_tally.survived;
    }

  private:
    enum class State { Before, After, Neither };

    Status run() const { return changes::runTransaction(m_path, m_seed, 40, m_options); }

    void place(const power::Disk& disk) const {
        writeBytes(m_path, disk.data);
        if (disk.journalThere)
            writeBytes(m_path + "-journal", disk.journal);
        else
            std::filesystem::remove(m_path + "-journal");
    }
    power::Disk lying() const {
        const std::string journal = m_path + "-journal";
        const bool there = std::filesystem::exists(journal);
        return {bytesOf(m_path), there ? bytesOf(journal) : std::string(), there};
    }
    // What the next process that opens the file finds.
    State settle() {
        std::string told;
        if (const auto opened = Database::open(m_path); !opened.ok())
            told = opened.status().text().toStdString();
        const std::string now = bytesOf(m_path);
        const bool aside = std::filesystem::exists(m_path + "-journal.scartato");
        if (told.empty() && !aside && now == m_after) {
            ++endedAfter;
            return State::After;
        }
        if (told.empty() && !aside && now == m_before) {
            ++endedBefore;
            return State::Before;
        }
        ++m_tally.damaged;
        m_tally.tell("transaction %u, case %ld: %s", m_seed, m_tally.cases,
                     aside           ? "the journal was set aside"
                     : !told.empty() ? told.c_str()
                                     : "neither the state before nor the one after");
        std::filesystem::remove(m_path + "-journal.scartato");
        return State::Neither;
    }
    void expectPromise(bool promised, State state) {
        if (state == State::Neither || m_before == m_after) return;
        if (promised == (state == State::After)) return;
        ++m_tally.lost;
        m_tally.tell("transaction %u, case %ld: %s", m_seed, m_tally.cases,
                     promised ? "success was told and the change is not there"
                              : "failure was told and the change is there");
    }

    // A random step; half of them around the moment of the commit.
    size_t someStep() const {
        const size_t all = m_steps.size() + 1;
        const size_t last = std::min<size_t>(10, all);
        return m_random() % 2 ? m_random() % all : all - 1 - m_random() % last;
    }
    // From a random step on, steps fail: once, now and then, or permanently; also those of the recovery.
    void playFailingSteps() {
        place({m_before, {}, false});
        const size_t first = someStep();
        const auto outcome = std::array{Outcome::Fail, Outcome::Half, Outcome::Full}[m_random() % 3];
        const unsigned more = std::array{0u, 2u, 1u}[m_random() % 3];  // every so many fail; 0: none
        changes::Random luck(m_seed ^ static_cast<unsigned>(m_tally.cases));
        size_t step = 0;
        const auto failing = [&](const DiskStep&) {
            const size_t now = step++;
            const bool fails = now == first || (now > first && more != 0 && luck() % more == 0);
            return fails ? outcome : Outcome::Proceed;
        };
        jet::setDiskHook(failing);
        const bool promised = run().ok();
        if (m_random() % 4 == 0) {
            step = first;
            (void)Database::open(m_path);  // recovers, and fails in it
        }
        jet::setDiskHook({});
        expectPromise(promised, settle());
    }

    // Power fails in the transaction, then up to three times during the recovery.
    void playPowerFailure() {
        const size_t end = someStep();
        place(power::afterPowerFailure({m_before, {}, false}, m_steps, end, m_random));
        bool before = false;  // once recovered, it stays so
        for (int times = static_cast<int>(m_random() % 4); times > 0; --times) {
            const power::Disk crashed = lying();
            const auto steps = power::recordSteps([&] { (void)Database::open(m_path); });
            before = before || bytesOf(m_path) == m_before;
            const size_t recoveryEnd = m_random() % (steps.size() + 1);
            place(power::afterPowerFailure(crashed, steps, recoveryEnd, m_random));
        }
        const State state = settle();
        if (end == m_steps.size()) return expectPromise(true, state);
        if (before) expectPromise(false, state);
    }

    std::string m_path;
    std::string m_before;
    std::string m_after;
    unsigned m_seed;
    changes::Random& m_random;
    Tally& m_tally;
    Database::Options m_options;
    std::vector<power::Recorded> m_steps;
};

}  // namespace

int main(int argc, char** argv) {
    const Wanted wanted(argc, argv);
    const QTemporaryDir folder(memoryFolderPattern());
    const std::string path = folder.filePath(QStringLiteral("data.mdb")).toStdString();
    changes::Random random(wanted.seed);
    Tally tally;
    long before = 0;
    long after = 0;
    while (tally.cases < wanted.cases && tally.damaged + tally.lost < 20) {
        std::filesystem::remove(path);
        changes::makeDatabase(path, static_cast<unsigned>(random()), 300);
        std::string bytes = bytesOf(path);
        for (int i = 0; i < transactionsPerFile && tally.cases < wanted.cases; ++i) {
            Scene scene(path, bytes, static_cast<unsigned>(random()), random, tally);
            if (!scene.learn()) break;
            for (int k = 0; k < faultsPerTransaction && tally.cases < wanted.cases; ++k)
                scene.playOne();
            before += scene.endedBefore;
            after += scene.endedAfter;
            bytes = scene.after();
        }
    }
    tally.more = std::to_string(before) + " as before, " + std::to_string(after) + " as after";
    return tally.report("faults", wanted.seed);
}
