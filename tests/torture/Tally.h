// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

/// Whether this is a build under AddressSanitizer, whose memory is no measure of the program's.
#if defined(VESTROLA_SANITIZED)
inline constexpr bool sanitized = true;
#else
inline constexpr bool sanitized = false;
#endif

/// The result of a torture campaign. Its program is called with a seed and a number of cases; the same seed
/// always plays the same cases.
struct Tally {
    long cases = 0;         ///< that were played
    long survived = 0;      ///< faults after which everything was as promised
    long lost = 0;          ///< rows or changes that were promised and are not there
    long damaged = 0;       ///< files with a contradiction, wrong answers
    long duplicates = 0;    ///< that no fault explains
    std::string more = {};  ///< printed beside the figures

    /// Prints what went wrong, with what is needed to repeat it.
    template <class... Words>
    void tell(const char* format, Words... words) const {
        std::fprintf(stderr, format, words...);
        std::fputc('\n', stderr);
    }
    /// Prints the figures as one line of JSON, which torture.py adds up. Returns the exit status.
    int report(const char* campaign, unsigned seed) const {
        std::printf(
            "{\"campaign\": \"%s\", \"seed\": %u, \"cases\": %ld, \"survived\": %ld, \"lost\": %ld, "
            "\"damaged\": %ld, \"duplicates\": %ld, \"more\": \"%s\"}\n",
            campaign, seed, cases, survived, lost, damaged, duplicates, more.c_str());
        return cases > 0 && lost + damaged + duplicates == 0 ? 0 : 1;
    }
};

/// Seed and number of cases from the command line.
struct Wanted {
    enum class Cases { DependOnEarlierOnes, StandAlone };

    unsigned seed;
    int cases;
    int first = 0;  ///< number of the first case; another than 0 only where cases stand alone

    Wanted(int argc, char** argv, Cases kind = Cases::DependOnEarlierOnes) {
        const bool alone = kind == Cases::StandAlone;
        if (argc != 3 && !(alone && argc == 4)) {
            std::fprintf(stderr, "usage: %s SEED CASES%s\n", argv[0], alone ? " [FIRST]" : "");
            std::exit(2);
        }
        seed = static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10));
        cases = std::atoi(argv[2]);
        if (argc == 4) first = std::atoi(argv[3]);
    }
};
