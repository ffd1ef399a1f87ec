// SPDX-License-Identifier: GPL-3.0-or-later
// Mutated Jet files: each sample, and each sound file made here, with bytes, fields and pages changed, cut
// off or exchanged. Each is opened, read and changed, some by statements as well. None may crash the program,
// cost it more than ten seconds of processor time or more than 200 MiB, or keep it waiting; one that is
// refused stays unchanged.
//
//     torture_mutated SEED CASES
//
// A separate process plays the cases, so that a crash is counted and the next case follows.
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <fstream>
#include <iterator>
#include <random>

#include "fuzz/JetExercise.h"
#include "fuzz/MutatedJetFile.h"
#include "platform/jet/Database.h"
#include "torture/Tally.h"

namespace {

constexpr time_t longestSeconds = 10;  // of processor time: other work on the machine does not count
constexpr unsigned longestWait = 300;  // of any time
constexpr long mostKiB = 200 * 1024;
constexpr int casesPerProcess = 200;
constexpr size_t pageSize = 4096;

using Random = std::mt19937;

/// Shared memory in which the playing process leaves its state.
struct Shared {
    long next;     ///< case to be played
    long refused;  ///< files
    long changed;  ///< refused files that were written to
};

void writeField(std::string& file, size_t at, uint32_t value, size_t length) {
    for (size_t i = 0; i < length && at + i < file.size(); ++i)
        file[at + i] = static_cast<char>(value >> 8 * i);
}

void mutate(std::string& file, Random& random) {
    const size_t pages = std::max<size_t>(1, file.size() / pageSize);
    const auto somePage = [&] { return random() % pages * pageSize; };
    // half of them in the first bytes of a page, where its type, owner, counts and slots are
    const size_t at = somePage() + (random() % 2 ? random() % 64 : random() % pageSize);
    const uint32_t telling[] = {0,
                                1,
                                0x7F,
                                0x80,
                                0xFF,
                                0xFFF,
                                0x1000,
                                0x1FFF,
                                0x4000,
                                0x8000,
                                0xC000,
                                0xFFFF,
                                0x7FFFFFFF,
                                0xFFFFFFFF,
                                static_cast<uint32_t>(pages),
                                static_cast<uint32_t>(random() % pages),
                                static_cast<uint32_t>(random())};
    switch (random() % 12) {
        case 0:
            file.resize(random() % 4 ? somePage() : random() % (file.size() + 1));
            break;
        case 1:
            file.replace(somePage(), pageSize, std::string(file, somePage(), pageSize));
            break;
        case 2:
            file.replace(somePage(), pageSize, std::string(pageSize, random() % 2 ? '\0' : '\xFF'));
            break;
        case 3:
        case 4:
            writeField(file, at, 1u << random() % 8 ^ static_cast<uint8_t>(at < file.size() ? file[at] : 0),
                       1);
            break;
        default:
            writeField(file, at, telling[random() % std::size(telling)], size_t{1} << random() % 3);
    }
}

/// The file of a case: always the same for the same number.
std::string fileOf(unsigned seed, long number, const mutated::Files& files) {
    std::seed_seq both{seed, static_cast<unsigned>(number)};
    Random random(both);
    std::string file = files[static_cast<size_t>(number) % files.size()];
    for (unsigned left = 1 + random() % 8; left > 0 && !file.empty(); --left)
        mutate(file, random);
    return file;
}

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void playOne(unsigned seed, const mutated::Files& files, Shared& shared) {
    const std::string bytes = fileOf(seed, shared.next, files);
    const std::string name = mutated::fileName();
    mutated::removeFiles();
    std::ofstream(name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!exercise::walkAndChange(name)) {
        ++shared.refused;
        if (bytesOf(name) != bytes) ++shared.changed;
    } else if (shared.next % 8 == 0) {
        exercise::runStatements(name);
    }
    mutated::removeFiles();
}

/// Ends the process by a signal when a case takes too long.
void limitTime() {
    const itimerval limit{{}, {longestSeconds, 0}};
    ::setitimer(ITIMER_PROF, &limit, nullptr);
    ::alarm(longestWait);
}

[[noreturn]] void play(unsigned seed, long end, const mutated::Files& files, Shared& shared) {
    mutated::leaveOutSyncs();
    for (; shared.next < end; ++shared.next) {
        limitTime();
        playOne(seed, files, shared);
    }
    ::_exit(0);
}

}  // namespace

int main(int argc, char** argv) {
    const Wanted wanted(argc, argv);
    mutated::Files files = mutated::soundFiles();
    const mutated::Files samples = mutated::samples(UINTMAX_MAX);
    if (samples.empty()) std::fprintf(stderr, "the samples are not here: only files made here are mutated\n");
    files.insert(files.end(), samples.begin(), samples.end());
    mutated::removeFiles();
    void* memory = ::mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) return 2;
    auto& shared = *new (memory) Shared{};
    Tally tally;
    long mostUsed = 0;
    std::fflush(nullptr);
    while (shared.next < wanted.cases && tally.damaged < 20) {
        const pid_t child = ::fork();
        if (child == 0)
            play(wanted.seed, std::min<long>(wanted.cases, shared.next + casesPerProcess), files, shared);
        int status = 0;
        struct rusage used {};
        if (child < 0 || ::wait4(child, &status, 0, &used) != child) return 2;
        mostUsed = std::max(mostUsed, used.ru_maxrss);
        if (!sanitized && used.ru_maxrss > mostKiB) {
            ++tally.damaged;
            tally.tell("seed %u: %ld KiB were used between case %ld and case %ld", wanted.seed,
                       used.ru_maxrss, std::max(0L, shared.next - casesPerProcess), shared.next);
        }
        if (WIFEXITED(status) && WEXITSTATUS(status) == 0) continue;
        ++tally.damaged;
        const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
        tally.tell("seed %u, case %ld: %s", wanted.seed, shared.next,
                   signal == SIGPROF   ? "more than ten seconds"
                   : signal == SIGALRM ? "waits"
                                       : "ended the process");
        // kept for inspection, and for the corpus of fuzz_jet_open with FF before it
        const std::string bytes = fileOf(wanted.seed, shared.next, files);
        std::ofstream(
            "torture_mutated_" + std::to_string(wanted.seed) + "_" + std::to_string(shared.next) + ".mdb",
            std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        ++shared.next;
    }
    tally.cases = shared.next;
    tally.damaged += shared.changed;
    tally.survived = tally.cases - tally.damaged;
    tally.more = std::to_string(files.size()) + " files, " + std::to_string(shared.refused) +
                 " refused, at most " + std::to_string(mostUsed / 1024) + " MiB" +
                 (sanitized ? " (sanitized)" : "");
    return tally.report("mutated", wanted.seed);
}
