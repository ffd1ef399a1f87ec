// SPDX-License-Identifier: GPL-3.0-or-later
// A Jet file with anything in it: opened, walked, changed. Nothing may crash, hang or read outside its
// bounds.
#include <cstdint>

#include "fuzz/JetExercise.h"
#include "fuzz/MutatedJetFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    mutated::writeFile({data, size});
    (void)exercise::walkAndChange(mutated::fileName());
    mutated::removeFiles();
    return 0;
}
