// SPDX-License-Identifier: GPL-3.0-or-later
// Room of deleted rows is used again: files do not grow by importing and deleting.
#include <random>

#include "platform/jet/Format.h"
#include "platform/jet/JetFixture.h"
#include "support/JetTables.h"
#include "support/Repetitions.h"

namespace room_test {

using namespace jet;

class RoomTest : public JetTest {
  protected:
    static constexpr int rounds = 6;

    RoomTest() : database(create(path())) {}

    Table& recipients() { return table(*database); }
    // A recipient whose row takes about so many bytes.
    Row ofLength(size_t bytes) {
        Row row(recipients().definition().columns.size());
        row[1] = int64_t{1};
        constexpr size_t fixedPart = 64;
        size_t left = bytes > fixedPart ? (bytes - fixedPart) / 2 : 1;
        for (size_t column : {5, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}) {
            std::string text;
            for (size_t i = 0; i < std::min<size_t>(left, 255); ++i)
                text += "ж";  // two bytes in every form
            left -= std::min<size_t>(left, 255);
            row[column] = text;
            if (left == 0) break;
        }
        return row;
    }
    template <class Length>
    void insertRows(int count, Length length) {
        EXPECT_OK(database->begin());
        for (int i = 0; i < count; ++i)
            m_ids.push_back(insert(recipients(), ofLength(length())));
        EXPECT_OK(database->commit());
    }
    template <class Which>
    void deleteRows(Which which) {
        EXPECT_OK(database->begin());
        std::erase_if(m_ids, [&](RowId id) {
            if (!which()) return false;
            EXPECT_OK(recipients().erase(id));
            return true;
        });
        EXPECT_OK(database->commit());
    }
    void reopen() {
        database.reset();
        database = open(path());
    }
    size_t size() const { return std::filesystem::file_size(path()); }
    // Size after the last round divided by that after the first. Each round inserts rows and deletes some.
    template <class Length, class Which>
    double growth(int count, Length length, Which which, bool reopened) {
        size_t first = 0;
        for (int round = 0; round < rounds; ++round) {
            insertRows(count - static_cast<int>(m_ids.size()), length);
            if (round == 0) first = size();
            deleteRows(which);
            if (reopened) reopen();
        }
        insertRows(count - static_cast<int>(m_ids.size()), length);
        const double grown = static_cast<double>(size()) / static_cast<double>(first);
        std::printf("[ ROOM     ] %zu bytes at first, %.2f times as much after %d rounds\n", first, grown,
                    rounds);
        database.reset();
        expectSoundForAll(path());
        return grown;
    }

    DatabasePtr database;

  private:
    std::vector<RowId> m_ids;
};

// Lengths of rows, and whether the file is opened again after each round.
struct Lengths {
    size_t least;
    size_t most;
    bool reopened;
};

class RowLengthTest : public RoomTest, public ::testing::WithParamInterface<Lengths> {
  protected:
    static auto length() {
        return [random = std::mt19937(7)]() mutable {
            return GetParam().least + random() % (GetParam().most - GetParam().least + 1);
        };
    }
    // Enough rows for some hundred pages.
    static int count() {
        const auto length = static_cast<int>(GetParam().least + GetParam().most) / 2;
        return testing_support::repetitions(std::min(4000, 800000 / length));
    }
};

TEST_P(RowLengthTest, ImportAndDeletionOfEverything) {
    EXPECT_LT(growth(
                  count(), length(), [] { return true; }, GetParam().reopened),
              1.3);
}

TEST_P(RowLengthTest, ImportAndDeletionOfAnyHalf) {
    std::mt19937 random(11);
    EXPECT_LT(growth(
                  count(), length(), [&] { return random() % 2 == 0; }, GetParam().reopened),
              1.3);
}

static std::vector<Lengths> allLengths() {
    std::vector<Lengths> all;
    for (const size_t bytes : {70, 150, 300, 500, 700, 1200, 2000, 4000})
        all.push_back({bytes, bytes, false});
    for (const bool reopened : {false, true}) {
        all.push_back({300, 700, reopened});
        all.push_back({70, 4000, reopened});
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(Lengths, RowLengthTest, ::testing::ValuesIn(allLengths()), [](const auto& test) {
    return std::to_string(test.param.least) + "To" + std::to_string(test.param.most) +
           (test.param.reopened ? "Reopened" : "");
});

}  // namespace room_test
