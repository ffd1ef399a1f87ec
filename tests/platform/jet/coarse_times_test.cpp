// SPDX-License-Identifier: GPL-3.0-or-later
// Disks that keep the time of a change in steps, FAT in steps of two seconds: another program's change is
// seen all the same. The system's calls for times are replaced in this test program, and do as such a disk
// does while `step` is not 0.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/jet/JetFixture.h"

namespace coarse_times_test {

using namespace jet;

int64_t step = 0;  // nanoseconds

timespec kept(timespec time) {
    if (step == 0 || time.tv_nsec == UTIME_OMIT) return time;
    const int64_t ns = time.tv_sec * int64_t{1000000000} + time.tv_nsec;
    const int64_t rounded = ns - ns % step;
    return {rounded / 1000000000, rounded % 1000000000};
}

}  // namespace coarse_times_test

extern "C" int futimens(int file, const timespec times[2]) noexcept {
    const timespec rounded[2] = {coarse_times_test::kept(times[0]), coarse_times_test::kept(times[1])};
    return static_cast<int>(::syscall(SYS_utimensat, file, nullptr, rounded, 0));
}

extern "C" int fstat(int file, struct stat* found) noexcept {
    const int result = ::fstatat(file, "", found, AT_EMPTY_PATH);
    if (result == 0) found->st_mtim = coarse_times_test::kept(found->st_mtim);
    return result;
}

namespace coarse_times_test {

class CoarseTimesTest : public JetTest, public ::testing::WithParamInterface<int64_t> {
  protected:
    CoarseTimesTest() { create(path()).reset(); }
    void SetUp() override { step = GetParam(); }
    void TearDown() override {
        step = 0;
        JetTest::TearDown();
    }
    static void add(Database& database, const char* name) {
        EXPECT_TRUE(database.begin().ok());
        insert(table(database), recipient(table(database), name));
        EXPECT_TRUE(database.commit().ok());
    }
    int64_t changed() const {
        struct stat now {};
        EXPECT_EQ(::stat(path().c_str(), &now), 0);
        const timespec time = kept(now.st_mtim);
        return time.tv_sec * int64_t{1000000000} + time.tv_nsec;
    }
};

// All changes of a test fall into one or two steps of the disk's clock, and leave the file's size as it is.
TEST_P(CoarseTimesTest, SeesEachChangeOfAnotherProgram) {
    const DatabasePtr ours = open(path());
    const DatabasePtr theirs = open(path());
    add(*theirs, "uno");
    for (int i = 0; i < 5; ++i) {
        const Rows before = rowsOf(table(*ours));
        add(*theirs, "altro");
        EXPECT_EQ(rowsOf(table(*ours)).size(), before.size() + 1);
    }
    EXPECT_EQ(rowsOf(table(*ours)), rowsOf(table(*theirs)));
}

TEST_P(CoarseTimesTest, LosesNoRowWhereTwoProgramsWriteInTurns) {
    const DatabasePtr ours = open(path());
    const DatabasePtr theirs = open(path());
    for (int i = 0; i < 5; ++i) {
        add(*ours, "nostro");
        add(*theirs, "loro");
    }
    EXPECT_EQ(rowsOf(table(*open(path()))).size(), 10u);
}

TEST_P(CoarseTimesTest, StampsNoTwoStatesAlike) {
    const DatabasePtr database = open(path());
    std::set<int64_t> stamps{changed()};
    for (size_t i = 0; i < 5; ++i) {
        add(*database, "uno");
        EXPECT_GT(changed(), *stamps.rbegin());
        stamps.insert(changed());
    }
}

INSTANTIATE_TEST_SUITE_P(Steps, CoarseTimesTest,
                         ::testing::Values(int64_t{1}, int64_t{10'000'000}, int64_t{1'000'000'000},
                                           int64_t{2'000'000'000}));

}  // namespace coarse_times_test
