#include "platform/system/OwnProgram.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileInfo>

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

}  // namespace own_program_test
