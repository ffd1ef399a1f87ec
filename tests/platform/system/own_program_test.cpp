// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OwnProgram.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QCoreApplication>
#include <QFileInfo>

#include "platform/system/CoreDumps.h"

namespace own_program_test {

TEST(OwnProgram, IsTheFileThatTheSystemRuns) {
    EXPECT_EQ(sys::programFile(), QCoreApplication::applicationFilePath());
    EXPECT_EQ(sys::applicationFolder(), QCoreApplication::applicationDirPath());
    EXPECT_TRUE(QFileInfo(sys::programFile()).isFile());
}

TEST(OwnProgram, StartsOthersInTheWayInWhichItWasStarted) {
    const QString other = QStringLiteral("/media/stick/vestrola-pst");
    const QString loader = QStringLiteral("/lib64/ld.so");
    EXPECT_EQ(sys::commandOf(other), QStringList{other});
    EXPECT_EQ(sys::commandOf(other, false, loader), QStringList{other});
    EXPECT_EQ(sys::commandOf(other, true, loader), QStringList({loader, other}));
}

TEST(OwnProgram, ThatNobodyMayLookIntoIsSoAgainAfterTheMeanwhile) {
    ASSERT_EQ(::prctl(PR_GET_DUMPABLE), 1);
    { const sys::CoreDumpsMeanwhile nothing; }
    EXPECT_EQ(::prctl(PR_GET_DUMPABLE), 1);
    sys::forbidCoreDumps();
    EXPECT_EQ(::prctl(PR_GET_DUMPABLE), 0);
    {
        const sys::CoreDumpsMeanwhile open;
        EXPECT_EQ(::prctl(PR_GET_DUMPABLE), 1);
    }
    EXPECT_EQ(::prctl(PR_GET_DUMPABLE), 0);
    ::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
}

}  // namespace own_program_test
