// SPDX-License-Identifier: GPL-3.0-or-later
// Statements of every shape on every table of a Jet file with anything in it. Nothing may crash or hang.
#include <cstdint>

#include "fuzz/JetExercise.h"
#include "fuzz/MutatedJetFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    mutated::writeFile({data, size});
    exercise::runStatements(mutated::fileName());
    mutated::removeFiles();
    return 0;
}
