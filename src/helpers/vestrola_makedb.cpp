// SPDX-License-Identifier: GPL-3.0-or-later
// vestrola_makedb FILE: writes the empty recipient database. The build makes the default data.mdb with it.
#include <cstdio>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/JetText.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: vestrola_makedb FILE\n");
        return 2;
    }
    const Status status = schema::CreaDatabase(argv[1]);
    if (!status.ok()) std::fprintf(stderr, "vestrola_makedb: %s\n", status.plainText().c_str());
    return status.ok() ? 0 : 1;
}
