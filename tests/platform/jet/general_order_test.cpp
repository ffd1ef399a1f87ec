// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/GeneralOrder.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <filesystem>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/jet/Database.h"
#include "platform/Status.h"

namespace general_order_test {

namespace {

std::string key(const QString& text, bool ascending = true) {
    std::string bytes;
    return jet::appendIndexKey(bytes, text.toStdString(), ascending) ? bytes
                                                                     : std::string("unknown character");
}

std::string unhex(const QString& hex) {
    return QByteArray::fromHex(hex.toLatin1()).toStdString();
}

int compare(const char* left, const char* right) {
    return jet::compareGeneral(left, right);
}

/// The entries of one index as in its leaf pages: key without the row's identity, and that
/// identity.
class LeafWalk {
  public:
    explicit LeafWalk(const std::string& path) {
        QFile file(QString::fromStdString(path));
        if (file.open(QIODevice::ReadOnly)) m_bytes = file.readAll();
    }

    std::vector<std::pair<std::string, jet::RowId>> entries(uint32_t root) const {
        std::vector<std::pair<std::string, jet::RowId>> result;
        uint32_t page = root;
        while (byte(page, 0) == 3)  // down the first child of each node
            page = childOfFirstEntry(page);
        for (; page != 0; page = number(page, 16))
            for (const std::string& entry : wholeEntries(page)) {
                const auto at = [&](size_t back) { return static_cast<uint8_t>(entry[entry.size() - back]); };
                const uint32_t rowPage =
                    static_cast<uint32_t>(at(4)) << 16 | static_cast<uint32_t>(at(3)) << 8 | at(2);
                result.emplace_back(entry.substr(0, entry.size() - 4), jet::RowId{rowPage, at(1)});
            }
        return result;
    }

  private:
    uint8_t byte(uint32_t page, qsizetype offset) const {
        return static_cast<uint8_t>(m_bytes[static_cast<qsizetype>(page) * 4096 + offset]);
    }
    uint32_t number(uint32_t page, qsizetype offset) const {
        uint32_t value = 0;
        for (int i = 3; i >= 0; --i)
            value = value << 8 | byte(page, offset + i);
        return value;
    }
    std::vector<std::string> wholeEntries(uint32_t page) const {
        std::vector<std::string> entries;
        const size_t prefix = byte(page, 24) | static_cast<size_t>(byte(page, 25)) << 8;
        int start = 0;
        for (int bit = 0; bit < 453 * 8; ++bit) {
            if ((byte(page, 27 + bit / 8) >> bit % 8 & 1) == 0) continue;
            std::string entry;
            if (!entries.empty()) entry = entries.front().substr(0, prefix);
            for (int i = start; i < bit; ++i)
                entry.push_back(static_cast<char>(byte(page, 480 + i)));
            entries.push_back(entry);
            start = bit;
        }
        return entries;
    }
    uint32_t childOfFirstEntry(uint32_t page) const {
        const auto entries = wholeEntries(page);
        if (entries.empty()) return number(page, 20);
        const std::string child = entries.front().substr(entries.front().size() - 4);
        uint32_t value = 0;
        for (const char c : child)
            value = value << 8 | static_cast<uint8_t>(c);
        return value;
    }

    QByteArray m_bytes;
};

struct RealFileCount {
    int indexes = 0;
    int keys = 0;
};

/// Compares every text index of a real file with the keys made from its rows.
RealFileCount compareIndexes(const std::string& path) {
    RealFileCount count;
    auto database = jet::Database::open(path, {.readOnly = true});
    EXPECT_TRUE(database.ok()) << database.status().text().toStdString();
    if (!database.ok()) return count;
    const LeafWalk leaves(path);
    const auto catalog = database.value()->catalog();
    EXPECT_TRUE(catalog.ok());
    for (const jet::CatalogEntry& entry : catalog.value()) {
        if (entry.kind != jet::CatalogEntry::Kind::Local) continue;
        auto table = database.value()->table(entry.name);
        if (!table.ok()) continue;
        const jet::TableDefinition definition = table.value()->definition();
        for (const jet::Index& index : definition.indexes) {
            if (index.parts.size() != 1) continue;
            const auto column =
                std::find_if(definition.columns.begin(), definition.columns.end(),
                             [&](const auto& c) { return c.number == index.parts[0].column; });
            if (column == definition.columns.end() || column->type != jet::Type::Text) continue;
            ++count.indexes;
            std::string previous;
            for (const auto& [expected, id] : leaves.entries(index.rootPage)) {
                const auto row = table.value()->row(id);
                EXPECT_TRUE(row.ok() && row.value());
                if (!row.ok() || !row.value()) continue;
                std::string text;
                std::string made(1, '\0');  // the key of Null
                if (row.value()->text(static_cast<size_t>(column - definition.columns.begin()), text)) {
                    if (text.find("\u00df") != std::string::npos)
                        continue;  // real files differ in its positions
                    made.clear();
                    if (!jet::appendIndexKey(made, text, index.parts[0].ascending)) continue;
                    if (!previous.empty()) {
                        EXPECT_LE(jet::compareGeneral(previous, text), 0) << previous << " " << text;
                    }
                    previous = text;
                }
                EXPECT_EQ(made, expected) << entry.name << ": " << text;
                ++count.keys;
            }
        }
    }
    return count;
}

void testRealFile(const char* name, int leastKeys) {
    const std::string path = std::string(SHARED_DIR "/mdb/") + name;
    if (!std::filesystem::exists(path)) {
        std::printf("skipped: the sample file %s is not at hand\n", name);
        return;
    }
    const RealFileCount count = compareIndexes(path);
    EXPECT_GT(count.indexes, 0);
    EXPECT_GE(count.keys, leastKeys);
}

}  // namespace

TEST(GeneralOrder, KeysAgreeByteForByteWithThoseOfIndexes) {
    QFile file(QStringLiteral(TEST_DATA_DIR "/jet/text-keys.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    int compared = 0;
    for (const QJsonValue& item :
         QJsonDocument::fromJson(file.readAll()).object()[QLatin1String("vectors")].toArray()) {
        const QJsonObject vector = item.toObject();
        if (!vector[QLatin1String("text")].isString() || !vector[QLatin1String("matches_table")].toBool())
            continue;
        const QString text = vector[QLatin1String("text")].toString();
        EXPECT_EQ(key(text), unhex(vector[QLatin1String("ascending")].toString())) << text.toStdString();
        if (vector.contains(QLatin1String("descending"))) {
            const QString descending = vector[QLatin1String("descending")].toString();
            EXPECT_EQ(key(text, false), unhex(descending)) << text.toStdString();
        }
        ++compared;
    }
    EXPECT_GE(compared, 54);
}

TEST(GeneralOrder, CharactersWithoutKnownWeightCannotBeIndexed) {
    std::string bytes = "x";
    EXPECT_FALSE(jet::appendIndexKey(bytes, "\u041c\u0438\u0440"));
    EXPECT_EQ(bytes, "x");
}

TEST(GeneralOrder, CaseMakesNoDifference) {
    EXPECT_EQ(compare("Rossi", "ROSSI"), 0);
    EXPECT_EQ(compare("\u00e0", "\u00c0"), 0);
}

TEST(GeneralOrder, AccentsCountAfterAllBaseLetters) {
    EXPECT_LT(compare("pero", "per\u00f2"), 0);
    EXPECT_LT(compare("per\u00f2", "perone"), 0);
    EXPECT_LT(compare("peron", "per\u00f2ne"), 0);
}

TEST(GeneralOrder, HyphensAndApostrophesCountLast) {
    EXPECT_LT(compare("dangelo", "d'angelo"), 0);
    EXPECT_LT(compare("d'angelo", "d'angels"), 0);
    EXPECT_LT(compare("coop", "co-op"), 0);
}

TEST(GeneralOrder, TrailingBlanksMakeNoDifference) {
    EXPECT_EQ(compare("fine", "fine   "), 0);
    EXPECT_EQ(compare("", "  "), 0);
    EXPECT_NE(compare(" fine", "fine"), 0);
}

TEST(GeneralOrder, DigitsSortBeforeLettersAndBlanksBeforeBoth) {
    EXPECT_LT(compare(" a", "1"), 0);
    EXPECT_LT(compare("1", "a"), 0);
    EXPECT_LT(compare("10", "9"), 0);
}

TEST(GeneralOrder, UnknownCharactersFollowAllOthersByCodePoint) {
    EXPECT_LT(compare("zz", "\u041c"), 0);
    EXPECT_LT(compare("\u0410", "\u041c"), 0);
    EXPECT_LT(compare("\u041c", "\U0001f600"), 0);
    EXPECT_EQ(compare("\u041c", "\u041c"), 0);
}

TEST(GeneralOrder, BytesThatAreNoUtf8CountAsReplacements) {
    EXPECT_EQ(compare("a\xff", "a\xfe"), 0);
    EXPECT_GT(compare("a\xc3", "az"), 0);
    EXPECT_EQ(compare("\xe2\x82", "\xf0\x9f"), 0);
}

TEST(GeneralOrder, AKeyIsNeverTheBeginningOfAnother) {
    const std::vector<std::string> texts = {"",       "a",       "ab", "a'",  "a-b",  "\u00e0", "\u00e0b",
                                            "\u041c", "a\u041c", "''", "a b", "\x01", "\u00e6", "ae"};
    for (const std::string& left : texts)
        for (const std::string& right : texts) {
            if (left == right) continue;
            std::string leftKey;
            std::string rightKey;
            jet::appendSortKey(leftKey, left);
            jet::appendSortKey(rightKey, right);
            EXPECT_FALSE(leftKey != rightKey && rightKey.starts_with(leftKey)) << left << " " << right;
            EXPECT_EQ(leftKey.find('\0'), leftKey.size() - 1) << left;
        }
}

TEST(GeneralOrder, IndexKeysContainTheFirst255Characters) {
    const QString longText = QString(255, QLatin1Char('a'));
    EXPECT_EQ(key(longText), key(longText + QLatin1Char('b')));
    EXPECT_NE(jet::compareGeneral(longText.toStdString(), longText.toStdString() + "b"), 0);
}

TEST(GeneralOrder, AgreesWithTheIndexOfEveryLatin1Character) {
    testRealFile("jk-testUnicodeCompV2003.mdb", 5);
}

TEST(GeneralOrder, AgreesWithTheIndexesOfNorthwind) {
    testRealFile("nw-Northwind-b.mdb", 1000);
}

}  // namespace general_order_test
