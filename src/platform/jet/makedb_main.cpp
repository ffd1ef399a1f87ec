// vestrola_makedb FILE: writes the empty recipient database. The build makes the default data.mdb with it.
#include <cstdio>

#include "platform/jet/Database.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: vestrola_makedb FILE\n");
        return 2;
    }
    const Status status = jet::createEmptyDatabase(QString::fromLocal8Bit(argv[1]));
    if (!status.ok()) std::fprintf(stderr, "vestrola_makedb: %s\n", qPrintable(status.text()));
    return status.ok() ? 0 : 1;
}
