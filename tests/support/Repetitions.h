// SPDX-License-Identifier: GPL-3.0-or-later
// How often a test repeats what is made at random or in bulk.
#pragma once

namespace testing_support {

/// `all`, and a fifth of it in the build with sanitizers. That build looks for faults of the memory, which
/// the first repetitions meet as well, and needs ten times as long for each; the release build plays all of
/// them.
constexpr int repetitions(int all) {
#ifdef VESTROLA_SANITIZED
    return (all + 4) / 5;
#else
    return all;
#endif
}

/// From one numbered step that a test plays to the next.
constexpr int stride = 1000 / repetitions(1000);

}  // namespace testing_support
