// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>

#include "support/TestClass.h"

namespace {

std::map<std::string, testing_support::RunClass>& classes() {
    static std::map<std::string, testing_support::RunClass> all;
    return all;
}

}  // namespace

testing_support::TestClass::TestClass(const char* source, RunClass run) {
    classes()[std::filesystem::path(source).stem().string()] = run;
}

int main(int argc, char** argv) {
    const auto found = argc > 1 ? classes().find(argv[1]) : classes().end();
    if (found == classes().end()) {
        std::fprintf(stderr, "the first argument is one of:\n");
        for (const auto& [source, run] : classes())
            std::fprintf(stderr, "  %s\n", source.c_str());
        return 2;
    }
    argv[1] = argv[0];
    return found->second(argc - 1, argv + 1);
}
