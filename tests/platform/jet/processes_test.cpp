// SPDX-License-Identifier: GPL-3.0-or-later
// Four processes that change one file at the same time. None of their statements may be lost, and the file
// must be sound at the end. VESTROLA_SECONDS=60 in the environment makes them run for that long.
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <random>
#include <set>

#include "platform/jet/JetFixture.h"

namespace processes_test {

using namespace jet;

class ProcessesTest : public JetTest {
  protected:
    static constexpr int writers = 4;
    static constexpr int transactions = 60;  // of each, when no time is given
    static constexpr size_t mostRows = 300;  // of each

    // Runs `work` in so many processes at once; its result is their exit code.
    static void runAll(int count, const std::function<int(int)>& work) {
        std::vector<pid_t> children;
        for (int i = 0; i < count; ++i) {
            const pid_t child = ::fork();
            if (child == 0) ::_exit(work(i));
            children.push_back(child);
        }
        for (const pid_t child : children) {
            int status = -1;
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            EXPECT_TRUE(WIFEXITED(status));
            EXPECT_EQ(WEXITSTATUS(status), 0);
        }
    }
    static bool goesOn(int done, std::chrono::steady_clock::time_point start) {
        const char* seconds = std::getenv("VESTROLA_SECONDS");
        if (!seconds) return done < transactions;
        return std::chrono::steady_clock::now() - start < std::chrono::seconds(std::atoi(seconds));
    }

    // One process: its own rows are those of its own group. It must find again what it wrote, in every
    // transaction.
    class Writer {
      public:
        Writer(const std::string& file, int number)
            : m_number(number), m_random(static_cast<unsigned>(number + 1)) {
            m_database = open(file, {.cachedPages = number % 2 ? 4u : 8192u});
        }
        // Zero, or the number of the check that failed.
        int run() {
            const auto start = std::chrono::steady_clock::now();
            for (int done = 0; goesOn(done, start); ++done) {
                if (!m_database->refresh().ok() || !m_database->begin().ok()) return 2;
                const std::map<RowId, std::string> before = m_rows;
                for (int i = pick(8) + 1; i > 0; --i)
                    if (!changeOne()) return 3;
                if (pick(10) == 0) {
                    m_database->rollback();
                    m_rows = before;
                } else if (!m_database->commit().ok()) {
                    return 4;
                }
                if (!findsItsRows()) return 5;
            }
            return 0;
        }

      private:
        int pick(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
        Table& recipients() { return table(*m_database); }

        bool changeOne() {
            const std::string name(static_cast<size_t>(pick(70)), static_cast<char>('a' + pick(26)));
            const int what = m_rows.size() > mostRows ? 60 + pick(40) : pick(100);
            if (what < 60 || m_rows.empty()) {
                Row row = recipient(recipients(), name);
                row[1] = int64_t{m_number};
                const auto id = recipients().insert(row);
                return id.ok() && m_rows.emplace(id.value(), name).second;
            }
            auto chosen = m_rows.begin();
            std::advance(chosen, pick(static_cast<int>(m_rows.size())));
            if (what < 80) {
                const std::pair<size_t, Value> change{2, name};
                if (!recipients().update(chosen->first, std::span(&change, 1)).ok()) return false;
                chosen->second = name;
                return true;
            }
            if (!recipients().erase(chosen->first).ok()) return false;
            m_rows.erase(chosen);
            return true;
        }
        bool findsItsRows() {
            std::map<RowId, std::string> found;
            const Status status = recipients().scan([&](RowId id, const RowView& row) {
                if (row.integer(1) == m_number) row.text(2, found[id]);
                return true;
            });
            return status.ok() && found == m_rows;
        }

        int m_number;
        std::mt19937 m_random;
        DatabasePtr m_database;
        std::map<RowId, std::string> m_rows;
    };
};

TEST_F(ProcessesTest, FourWritersLoseNothingAndLeaveASoundFile) {
    create(path()).reset();
    runAll(writers, [&](int number) { return Writer(path(), number).run(); });
    expectSoundForAll(path());
    std::set<int64_t> numbers;
    DatabasePtr database = open(path());
    for (const auto& [id, row] : rowsOf(table(*database)))
        EXPECT_TRUE(numbers.insert(std::get<int64_t>(row[0])).second) << "a number was given twice";
    std::printf("%zu recipients at the end\n", numbers.size());
}

TEST_F(ProcessesTest, EveryStatementOfEveryWriterIsThereAtTheEnd) {
    create(path()).reset();
    constexpr int rows = 40;
    runAll(writers, [&](int number) {
        for (int i = 0; i < rows; ++i) {
            // Opened again each time, as by programs that start and end.
            auto database = Database::open(path(), {.lockWait = {.limit = std::chrono::seconds(30)}});
            if (!database.ok() || !database.value()->begin().ok()) return 1;
            Table& t = table(*database.value());
            if (!t.insert(recipient(t, std::to_string(number) + "/" + std::to_string(i))).ok()) return 2;
            if (!database.value()->commit().ok()) return 3;
        }
        return 0;
    });
    std::set<std::string> names;
    DatabasePtr database = open(path());
    for (const auto& [id, row] : rowsOf(table(*database)))
        names.insert(std::get<std::string>(row[2]));
    EXPECT_EQ(names.size(), size_t{writers} * rows);
    expectSoundForAll(path());
}

TEST_F(ProcessesTest, WritersThatAreKilledLeaveASoundFile) {
    create(path()).reset();
    for (int round = 0; round < 20; ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            DatabasePtr database = open(path(), {.cachedPages = 4});
            for (;;) {
                if (!database->begin().ok()) ::_exit(1);
                for (int i = 0; i < 50; ++i)
                    insert(table(*database), recipient(table(*database), "x"));
                if (!database->commit().ok()) ::_exit(1);
            }
        }
        ::usleep(static_cast<useconds_t>(3000 + round * 1700));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        DatabasePtr database = open(path());
        EXPECT_EQ(rowsOf(table(*database)).size() % 50, 0u) << "half a transaction was seen";
        expectSound(path());
    }
}

}  // namespace processes_test
