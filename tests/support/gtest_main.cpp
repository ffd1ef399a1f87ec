// SPDX-License-Identifier: GPL-3.0-or-later
// Entry of every GoogleTest program: the parts under test may use Qt's event loop and application paths. The
// name of a source, without ".cpp", as the first argument leaves its tests only, unless a filter is given.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <QCoreApplication>
#include <string>

#include "platform/text/Language.h"

namespace {

/// The tests of a source in the form of a filter; empty where there are none.
std::string filterFor(const std::string& source) {
    std::string filter;
    const auto& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i) {
        const testing::TestSuite& suite = *all.GetTestSuite(i);
        for (int k = 0; k < suite.total_test_count(); ++k) {
            const testing::TestInfo& test = *suite.GetTestInfo(k);
            if (std::filesystem::path(test.file()).stem() != source) continue;
            filter += std::string(suite.name()) + '.' + test.name() + ':';
        }
    }
    return filter;
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    text::setLanguage(QStringLiteral("it"));
    if (argc > 1 && GTEST_FLAG_GET(filter) == "*") {
        const std::string filter = filterFor(argv[1]);
        if (filter.empty()) {
            std::fprintf(stderr, "no tests in a source of the name %s\n", argv[1]);
            return 2;
        }
        GTEST_FLAG_SET(filter, filter);
    }
    return RUN_ALL_TESTS();
}
