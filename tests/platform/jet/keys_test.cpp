// SPDX-License-Identifier: GPL-3.0-or-later
// Keys of index entries: each one in a file made by other programs is made again from its row.
#include "platform/jet/Catalog.h"
#include "platform/jet/DefinitionReader.h"
#include "platform/jet/Failure.h"
#include "platform/jet/GeneralOrder.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/JetText.h"
#include "platform/jet/Key.h"
#include "platform/jet/RowStore.h"
#include "support/Vectors.h"

namespace keys_test {

using namespace jet;

class KeysTest : public JetTest {
  protected:
    struct Entry {
        Bytes key;
        RowId row;
    };

    static void collect(PageFile& file, const TableDefinition& table, uint32_t number,
                        std::vector<Entry>& entries) {
        const IndexPage page(*file.page(number), number, table.page);
        for (size_t i = 0; i < page.count(); ++i) {
            if (!page.leaf) {
                collect(file, table, page.child(i), entries);
                continue;
            }
            const auto whole = page.keyAndRow(i);
            const uint8_t* row = whole.data() + whole.size() - 4;
            entries.push_back({{whole.begin(), whole.end() - 4}, {load24Big(row), row[3]}});
        }
        if (!page.leaf && page.tail != 0) collect(file, table, page.tail, entries);
    }

    static bool hasText(const TableDefinition& table, const Index& index) {
        return std::any_of(index.parts.begin(), index.parts.end(), [&](const Index::Part& part) {
            return std::any_of(table.columns.begin(), table.columns.end(), [&](const Column& column) {
                return column.number == part.column && column.type == Type::Text;
            });
        });
    }

    // Counts by kind of index, to verify how much was compared.
    struct Counts {
        size_t keys = 0;
        size_t text = 0;
        size_t ligatures = 0;  ///< with a letter that counts as two places
        size_t unknown = 0;    ///< with characters outside the table
    };

    static void compareIndex(PageFile& file, const TableDefinition& table, const Index& index,
                             Counts& counts) {
        std::vector<Entry> entries;
        collect(file, table, index.rootPage, entries);
        for (const Entry& entry : entries) {
            const auto stored = RowStore(file, table).find(entry.row);
            ASSERT_TRUE(stored.has_value());
            const FieldOf field = [&](const Column& column) {
                return storedField(table, column, stored->bytes);
            };
            EXPECT_TRUE(isIndexed(table, index, field));
            const std::vector<Bytes> keys = possibleKeys(table, index, field);
            if (keys.empty()) {
                ++counts.unknown;
                continue;
            }
            ++counts.keys;
            counts.text += hasText(table, index);
            counts.ligatures += keys.size() > 1;
            EXPECT_TRUE(std::find(keys.begin(), keys.end(), entry.key) != keys.end())
                << "row " << entry.row.page << "/" << int(entry.row.slot);
        }
    }

    static Counts compareFile(const std::string& path) {
        Counts counts;
        PageFile file(path, true, {});
        const Reading reading(file);
        for (const CatalogEntry& entry : readCatalog(file)) {
            if (entry.kind != CatalogEntry::Kind::Local) continue;
            SCOPED_TRACE(entry.name);
            const TableDefinition table =
                parseDefinition(readDefinition(file, entry.definitionPage), entry.name, entry.definitionPage,
                                file.header().jet3);
            for (const Index& index : table.indexes) {
                SCOPED_TRACE(index.name);
                // The order of texts in Access 97 is another one.
                if (table.jet3 && hasText(table, index)) continue;
                EXPECT_TRUE(whyNotKept(table, index).empty());
                compareIndex(file, table, index, counts);
            }
        }
        return counts;
    }
};

TEST_F(KeysTest, EveryKeyOfTheRealFilesComesOutOfItsRow) {
    Counts all;
    for (const std::string& name : samples()) {
        SCOPED_TRACE(name);
        const Counts counts = compareFile(sample(name.c_str()));
        all.keys += counts.keys;
        all.text += counts.text;
        all.ligatures += counts.ligatures;
        all.unknown += counts.unknown;
        if (HasFailure()) return;
    }
    if (samples().empty()) return;
    std::printf("%zu keys, %zu with text, %zu with ligatures; %zu of characters outside the table\n",
                all.keys, all.text, all.ligatures, all.unknown);
    EXPECT_GT(all.keys, 30000u);
    EXPECT_GT(all.text, 3000u);
    EXPECT_GE(all.ligatures, 2u);
    EXPECT_LE(all.unknown, 3u);
}

// Key of one value in an index on one column.
class OneKeyTest : public KeysTest {
  protected:
    OneKeyTest() {
        Column column;
        column.name = "campo";
        column.generalOrder = true;
        column.length = 510;
        definition.columns.push_back(column);
        Index index;
        index.name = "chiave";
        index.parts.push_back({0, true});
        definition.indexes.push_back(index);
    }
    Index& index() { return definition.indexes[0]; }
    Column& column() { return definition.columns[0]; }

    Bytes keyOf(Type type, bool ascending, const std::optional<Bytes>& stored) {
        column().type = type;
        index().parts[0].ascending = ascending;
        return keyToWrite(definition, index(), [&](const Column&) {
            return stored ? StoredField{false, *stored} : StoredField();
        });
    }
    Bytes textKey(const std::u16string& text, bool ascending = true) {
        Bytes stored;
        for (const char16_t unit : text) {
            stored.push_back(static_cast<uint8_t>(unit));
            stored.push_back(static_cast<uint8_t>(unit >> 8));
        }
        return keyOf(Type::Text, ascending, stored);
    }
    static QJsonArray charactersOfTheTable() {
        return jsonOf(QStringLiteral("jet/general-weights.json"))[u"characters"].toArray();
    }
    static Bytes fromHex(const QString& hex) {
        const QByteArray bytes = QByteArray::fromHex(hex.toLatin1());
        return {bytes.begin(), bytes.end()};
    }

    TableDefinition definition;
};

TEST_F(OneKeyTest, EveryTypeHasTheKeysOfTheVectors) {
    static const std::map<QString, Type> types{
        {QStringLiteral("yes/no"), Type::YesNo},      {QStringLiteral("byte"), Type::Byte},
        {QStringLiteral("integer"), Type::Integer},   {QStringLiteral("long"), Type::Long},
        {QStringLiteral("currency"), Type::Currency}, {QStringLiteral("single"), Type::Single},
        {QStringLiteral("double"), Type::Double},     {QStringLiteral("date"), Type::Date},
        {QStringLiteral("GUID"), Type::Guid},         {QStringLiteral("binary"), Type::Binary}};
    std::set<Type> met;
    for (const QJsonValue entry : vectorsOf(QStringLiteral("jet/other-keys.json"))) {
        const QJsonObject vector = entry.toObject();
        const Type type = types.at(vector[u"type"].toString());
        met.insert(type);
        const QJsonValue stored = vector[u"stored"];
        std::optional<Bytes> bytes;
        if (type == Type::YesNo) {
            if (vector[u"value"].toBool()) bytes = Bytes();
        } else if (!stored.isNull() && !stored.isUndefined()) {
            bytes = fromHex(stored.toString());
        }
        EXPECT_EQ(keyOf(type, vector[u"order"].toString() == u"asc", bytes),
                  fromHex(vector[u"key"].toString()))
            << QJsonDocument(vector).toJson().toStdString();
    }
    EXPECT_EQ(met.size(), types.size());
}

TEST_F(OneKeyTest, TextsOfTheTableHaveKeys) {
    for (const char16_t* text :
         {u"", u"a", u"L'Aquila", u"Perù-Bolivia", u"ÿ \u00a0", u"10 €", u"L\u2019Aquila", u"\u0160koda",
          u"a\u2013b", u"Żukowski", u"Dvořák", u"\u201cnome\u201d \u2026", u"Ditta\u2122"})
        EXPECT_NO_THROW(textKey(text)) << QString::fromUtf16(text).toStdString();
}

TEST_F(OneKeyTest, EveryCharacterOfTheVectorsHasItsKey) {
    size_t characters = 0;
    for (const QJsonValue entry : charactersOfTheTable()) {
        const QJsonObject vector = entry.toObject();
        const auto code = static_cast<char16_t>(vector[u"code"].toString().toInt(nullptr, 16));
        // Between two letters: their weights, and two places for what follows.
        Bytes expected{0x7F, 0x4A};
        const Bytes main = fromHex(vector[u"main"].toString());
        const Bytes accent = fromHex(vector[u"accent"].toString());
        const Bytes special = fromHex(vector[u"special"].toString());
        expected.insert(expected.end(), main.begin(), main.end());
        expected.insert(expected.end(), {0x4C, 0x01});
        if (!accent.empty()) expected.insert(expected.end(), {0x02, accent[0]});
        if (!special.empty())
            expected.insert(expected.end(), {0x01, 0x01, 0x01, 0x80, 7 + 4, 0x06, special[0]});
        expected.push_back(0);
        EXPECT_EQ(textKey(std::u16string(u"a") + code + u"b"), expected) << static_cast<int>(code);
        ++characters;
    }
    EXPECT_EQ(characters, 548u);
}

TEST_F(OneKeyTest, KeysRiseAsTheTextsAreSorted) {
    std::vector<std::u16string> texts;
    for (const QJsonValue entry : charactersOfTheTable()) {
        const auto code = static_cast<char16_t>(entry.toObject()[u"code"].toString().toInt(nullptr, 16));
        if (code == 0xDF || code == 0x20) continue;
        texts.push_back(std::u16string(u"a") + code + u"b");
        texts.push_back(std::u16string(1, code));
    }
    const auto sorted = [](const std::u16string& a, const std::u16string& b) {
        return compareGeneral(toUtf8(a), toUtf8(b)) < 0;
    };
    std::sort(texts.begin(), texts.end(), sorted);
    for (size_t i = 1; i < texts.size(); ++i)
        EXPECT_EQ(sorted(texts[i - 1], texts[i]), textKey(texts[i - 1]) < textKey(texts[i]));
}

TEST_F(OneKeyTest, OtherCharactersAreRefusedByName) {
    const std::pair<const char16_t*, const char16_t*> refusals[] = {
        {u"Миp", u"\"М\" (U+041C)"},
        {u"a\u4e2d", u"\"\u4e2d\" (U+4E2D)"},
        {u"\U0001F600", u"\"\U0001F600\" (U+01F600)"},
        {u"Straße-Nord", u"\"ß\" (U+00DF)"},
        {u"Œuvre d'été", u"\"Œ\" (U+0152)"}};
    for (const auto& [text, name] : refusals) {
        try {
            textKey(text);
            ADD_FAILURE() << QString::fromUtf16(text).toStdString();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.status.code(), ErrorCode::NotSupported);
            EXPECT_NE(failure.status.text().indexOf(QString::fromUtf16(name)), -1)
                << failure.status.text().toStdString();
        }
    }
}

TEST_F(OneKeyTest, LigatureIsTakenWhereItsPlacesMakeNoDifference) {
    EXPECT_NO_THROW(textKey(u"Straße"));
    EXPECT_NO_THROW(textKey(u"Müller-Straße"));
    EXPECT_THROW(textKey(u"Straße-Nord"), Failure);
    EXPECT_THROW(textKey(u"Großmärkte"), Failure);
    EXPECT_THROW(textKey(u"Æro Là"), Failure);
}

TEST_F(OneKeyTest, TrailingBlanksAndCaseAreNotInTheKey) {
    EXPECT_EQ(textKey(u"Rossi  "), textKey(u"rOSSI"));
    EXPECT_NE(textKey(u"Rossi"), textKey(u" Rossi"));
}

TEST_F(OneKeyTest, UnknownOrderOfTextIsRefused) {
    column().type = Type::Text;
    EXPECT_TRUE(whyNotKept(definition, index()).empty());
    column().generalOrder = false;
    EXPECT_FALSE(whyNotKept(definition, index()).empty());
    column().type = Type::Numeric;
    EXPECT_FALSE(whyNotKept(definition, index()).empty());
    column().type = static_cast<Type>(17);
    EXPECT_FALSE(whyNotKept(definition, index()).empty());
}

TEST_F(OneKeyTest, DescendingTextAndBinaryHaveToBeShownByTheFile) {
    for (const auto& [type, needed] : {std::pair(Type::Text, true), std::pair(Type::Binary, true),
                                       std::pair(Type::Long, false), std::pair(Type::Guid, false)}) {
        column().type = type;
        index().parts[0].ascending = false;
        EXPECT_EQ(needsProof(definition, index()), needed);
        index().parts[0].ascending = true;
        EXPECT_FALSE(needsProof(definition, index()));
    }
}

TEST_F(OneKeyTest, OverlongKeyIsRefused) {
    definition.columns.resize(4, column());
    for (uint16_t i = 0; i < 4; ++i) {
        definition.columns[i].type = Type::Text;
        definition.columns[i].number = i;
    }
    index().parts = {{0, true}, {1, true}, {2, true}, {3, true}};
    const Bytes stored(510, 'a');
    EXPECT_THROW(keyToWrite(definition, index(),
                            [&](const Column&) {
                                return StoredField{false, stored};
                            }),
                 Failure);
}

}  // namespace keys_test
