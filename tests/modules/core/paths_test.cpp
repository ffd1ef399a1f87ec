// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "modules/core/bImpostazioni.h"
#include "platform/system/ProgramFolder.h"

namespace paths_test {

TEST(Paths, EndInOneSeparatorSoThatNamesAreAppended) {
    sys::setProgramFolder(QStringLiteral("/opt/vestrola"));
    EXPECT_EQ(PercorsoApp(), QStringLiteral("/opt/vestrola/"));
    EXPECT_EQ(cartellaDati(), QStringLiteral("/opt/vestrola/data/"));
    sys::setProgramFolder(QStringLiteral("/opt/vestrola/"));
    EXPECT_EQ(PercorsoApp(), QStringLiteral("/opt/vestrola/"));
    sys::setProgramFolder(QStringLiteral("/"));
    EXPECT_EQ(PercorsoApp(), QStringLiteral("/"));
    sys::setProgramFolder({});
}

}  // namespace paths_test
