// SPDX-License-Identifier: GPL-3.0-or-later
// Three writers and a reader, each a process; again and again one of them is killed and started
// again. VESTROLA_KILLS in the environment says how often, VESTROLA_SEED from which seed.
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <random>

#include "platform/jet/JetFixture.h"

namespace kills_test {

using namespace jet;

class KillsTest : public JetTest {
  protected:
    static constexpr int writers = 3;
    static constexpr int64_t window = 20;  // rows that each writer keeps

    std::string log(int number) const { return path() + ".log" + std::to_string(number); }
    // How many statements of that writer have returned.
    int64_t returned(int number) const {
        int64_t count = 0;
        const int fd = ::open(log(number).c_str(), O_RDONLY);
        if (fd >= 0 && ::pread(fd, &count, sizeof count, 0) != sizeof count) count = 0;
        ::close(fd);
        return count;
    }
    // Each writer's rows have its number and rising ones; the last so many are there, never half a statement.
    // The greatest number of each writer, or nothing when that is not so.
    static std::optional<std::map<int, int64_t>> lastNumbers(Database& database) {
        std::map<int, std::vector<int64_t>> found;
        const Status status = table(database).scan([&](RowId, const RowView& row) {
            std::string number;
            row.text(2, number);
            found[static_cast<int>(row.integer(1))].push_back(std::stoll(number));
            return true;
        });
        if (!status.ok()) return std::nullopt;
        std::map<int, int64_t> last;
        for (auto& [writer, numbers] : found) {
            std::sort(numbers.begin(), numbers.end());
            last[writer] = numbers.back();
            const int64_t first = std::max<int64_t>(1, numbers.back() - window + 1);
            for (size_t i = 0; i < numbers.size(); ++i)
                if (numbers[i] != first + static_cast<int64_t>(i)) return std::nullopt;
            if (static_cast<int64_t>(numbers.size()) != numbers.back() - first + 1) return std::nullopt;
        }
        return last;
    }
    static Database::Options patient(int number) {
        return {.lockWait = {.limit = std::chrono::seconds(60)}, .cachedPages = number % 2 ? 4u : 8192u};
    }
    static RowId rowOf(Database& database, int writer, int64_t number) {
        for (const auto& [id, row] : rowsOf(table(database)))
            if (row[1] == Value(int64_t{writer}) && row[2] == Value(std::to_string(number))) return id;
        throw std::runtime_error("a row is missing");
    }

    // Runs until it is killed; ends by itself only when a check fails.
    int write(int number) const {
        DatabasePtr database = open(path(), patient(number));
        auto last = lastNumbers(*database);
        if (!last) return 2;
        int64_t n = (*last)[number];
        const int64_t told = returned(number);
        if (n < told || n > told + 1) return 3;  // at most the one that was in progress
        const int fd = ::open(log(number).c_str(), O_WRONLY | O_CREAT, 0600);
        for (;; ++n) {
            if (::pwrite(fd, &n, sizeof n, 0) != sizeof n) return 8;
            if (!database->begin().ok() || !database->refresh().ok()) return 4;
            Row row = recipient(table(*database), std::to_string(n + 1));
            row[1] = int64_t{number};
            if (!table(*database).insert(row).ok()) return 5;
            if (n >= window && !table(*database).erase(rowOf(*database, number, n + 1 - window)).ok())
                return 6;
            if (!database->commit().ok()) return 7;
        }
    }
    int read() const {
        DatabasePtr database = open(path(), patient(0));
        std::map<int, int64_t> before;
        for (;;) {
            if (!database->refresh().ok()) return 2;
            const auto now = lastNumbers(*database);
            if (!now) return 3;
            for (const auto& [writer, number] : before)
                if (now->at(writer) < number) return 4;
            before = *now;
            ::usleep(2000);
        }
    }
    pid_t start(int number) const {
        const pid_t child = ::fork();
        if (child != 0) return child;
        int code = 1;
        try {
            code = number < writers ? write(number) : read();
        } catch (...) {
        }
        ::_exit(code);
    }
};

TEST_F(KillsTest, EveryStatementThatReturnedIsInTheFile) {
    create(path()).reset();
    const char* wanted = std::getenv("VESTROLA_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 40;
    const char* seed = std::getenv("VESTROLA_SEED");
    std::mt19937 random(seed ? static_cast<unsigned>(std::strtoul(seed, nullptr, 10)) : 12);
    std::vector<pid_t> children;
    for (int i = 0; i <= writers; ++i)
        children.push_back(start(i));
    bool met = true;
    const auto end = [&](int number) {
        ::kill(children[number], SIGKILL);
        int status = 0;
        EXPECT_EQ(::waitpid(children[number], &status, 0), children[number]);
        EXPECT_TRUE(WIFSIGNALED(status)) << "process " << number << " ended with " << WEXITSTATUS(status);
        met = met && WIFSIGNALED(status);
    };
    const auto returnedByAll = [&] {
        int64_t all = 0;
        for (int i = 0; i < writers; ++i)
            all += returned(i);
        return all;
    };
    for (int i = 0; i < kills && met; ++i) {
        // On a busy machine no statement would return in the time alone, and each kill would meet a
        // beginning.
        const int64_t least = returnedByAll() + random() % 4;
        for (int waits = 0; waits < 2000 && returnedByAll() < least; ++waits)
            ::usleep(1000);
        ::usleep(static_cast<useconds_t>(random() % 60000));
        const int number = static_cast<int>(random() % (writers + 1));
        end(number);
        children[number] = start(number);
    }
    for (int i = 0; i <= writers; ++i)
        end(i);
    DatabasePtr database = open(path());
    const auto last = lastNumbers(*database);
    ASSERT_TRUE(last);
    int64_t statements = 0;
    for (int i = 0; i < writers; ++i) {
        const int64_t told = returned(i);
        statements += told;
        const auto found = last->find(i);
        const int64_t n = found == last->end() ? 0 : found->second;
        EXPECT_TRUE(n == told || n == told + 1) << "writer " << i << ": " << told << " returned, " << n;
    }
    std::printf("%d kills, %lld statements returned\n", kills, static_cast<long long>(statements));
    database.reset();
    expectSoundForAll(path());
    EXPECT_FALSE(std::filesystem::exists(path() + "-journal.scartato"));
}

}  // namespace kills_test
