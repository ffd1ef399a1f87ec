// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of a Jet file: header, texts, keys, values, and the empty database.
#include <algorithm>
#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <random>

#include "platform/jet/EmptyDatabase.h"
#include "platform/jet/Failure.h"
#include "platform/jet/Header.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/JetText.h"
#include "platform/jet/Key.h"
#include "platform/jet/ValueCodec.h"

namespace format_test {

using namespace jet;

namespace {

std::string sha256(const std::vector<Page>& pages) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const Page& page : pages)
        hash.addData(QByteArray(reinterpret_cast<const char*>(page.data()), pageSize));
    return hash.result().toHex().toStdString();
}

std::string decoded(const Bytes& stored) {
    std::string text;
    appendUtf8(stored, text);
    return text;
}

Bytes encoded(const std::string& utf8, bool compress = true) {
    return encodeText(toUtf16(utf8), compress).value();
}

Column textColumn(uint16_t characters) {
    Column column;
    column.name = "nota";
    column.type = Type::Text;
    column.length = static_cast<uint16_t>(2 * characters);
    column.compressed = true;
    return column;
}

Column columnOf(Type type) {
    Column column;
    column.name = "campo";
    column.type = type;
    column.fixed = true;
    return column;
}

ErrorCode codeOf(const Column& column, const Value& value) {
    try {
        (void)encodeValue(column, value);
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.status.plainText().find(column.name) != std::string::npos)
            << jetTextOf(failure.status);
        return failure.status.code();
    }
    return ErrorCode::None;
}

}  // namespace

TEST(EmptyDatabase, SystemTablesAloneHaveTheKnownBytes) {
    EXPECT_EQ(sha256(emptyDatabase({})), "f27ecc8b0bc0756e131ba5c647c3fdd30d335a22bcd302d785c297a881f7f70d");
}

TEST(MakeDatabase, ProgramWritesTheDefaultFileAndReplacesNothing) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("data.mdb"));
    const QString program = QStringLiteral(TEST_BIN_DIR "/src/helpers/vestrola_makedb");
    EXPECT_EQ(QProcess::execute(program, {file}), 0);
    QFile made(file);
    ASSERT_TRUE(made.open(QIODevice::ReadOnly));
    const QByteArray bytes = made.readAll();
    EXPECT_EQ(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex(),
              "b1c55eb849af1f66c8dd237aa4565266530dc0c678c4cf2c2be1f901b59777f7");
    EXPECT_EQ(QProcess::execute(program, {file}), 1);
    EXPECT_EQ(QProcess::execute(program, {}), 2);
}

TEST(MakeDatabase, ProgramNeedsNoQt) {
    QFile program(QStringLiteral(TEST_BIN_DIR "/src/helpers/vestrola_makedb"));
    ASSERT_TRUE(program.open(QIODevice::ReadOnly));
    const QByteArray bytes = program.readAll();
    EXPECT_TRUE(bytes.contains("libc.so"));
    EXPECT_FALSE(bytes.contains("libQt"));
}

TEST(Header, MaskIsItsOwnInverse) {
    Page page = emptyDatabase({})[0];
    const Page before = page;
    maskHeader(page);
    EXPECT_NE(page, before);
    maskHeader(page);
    EXPECT_EQ(page, before);
}

TEST(Header, EmptyDatabaseHasNoPasswordAndClearPages) {
    const Header header = parseHeader(emptyDatabase({})[0]);
    EXPECT_TRUE(header.password.empty());
    EXPECT_EQ(header.pageKey, 0u);
}

TEST(JetText, AsciiIsStoredInOneByteEach) {
    EXPECT_EQ(encoded("Roma"), (Bytes{0xFF, 0xFE, 'R', 'o', 'm', 'a'}));
    EXPECT_EQ(decoded({0xFF, 0xFE, 'R', 'o', 'm', 'a'}), "Roma");
}

TEST(JetText, TextOfTwoCharactersGainsNothingAndStaysPlain) {
    EXPECT_EQ(encoded("MI"), (Bytes{'M', 0, 'I', 0}));
}

TEST(JetText, ColumnWithoutTheFlagStaysPlain) {
    EXPECT_EQ(encoded("Roma", false).size(), 8u);
}

TEST(JetText, MoreThan1024CharactersAreNotCompressed) {
    EXPECT_EQ(encoded(std::string(1024, 'x')).size(), 1026u);
    EXPECT_EQ(encoded(std::string(1025, 'x')).size(), 2050u);
}

TEST(JetText, RoundTripsKeepEveryCharacter) {
    for (const std::string text : {"", "a", "perché città già", "100 €", "emoji 😀 in mezzo", "Āā Ā",
                                   "\u4E00\u0100", "L'Aquila-est", "tab\tfine", "\u00FF\u00FE"})
        for (const bool compress : {false, true})
            EXPECT_EQ(decoded(encoded(text, compress)), text);
    const std::string withZero("a\0bcd", 5);
    EXPECT_EQ(decoded(encoded(withZero)), withZero);
}

TEST(JetText, SurrogatePairIsTwoUnitsAndFourUtf8Bytes) {
    EXPECT_EQ(toUtf16("😀"), u"\xD83D\xDE00");
    EXPECT_EQ(encoded("😀"), (Bytes{0x3D, 0xD8, 0x00, 0xDE}));
}

TEST(JetText, LoneSurrogateBecomesTheReplacementCharacter) {
    EXPECT_EQ(decoded({0x3D, 0xD8}), "\uFFFD");
    EXPECT_EQ(decoded({0x00, 0xDE, 'a', 0}), "\uFFFDa");
    EXPECT_EQ(decoded({'a', 0, 'b'}), "a\uFFFD");
}

TEST(JetText, ZeroByteSwitchesToTwoByteModeAndBack) {
    EXPECT_EQ(decoded({0xFF, 0xFE, 'a', 0, 0xAC, 0x20, 0, 'b'}), "a€b");
    EXPECT_EQ(decoded({0xFF, 0xFE, 'a', 0, 0xAC, 0x20}), "a€");
    EXPECT_EQ(decoded({0xFF, 0xFE, 0xE8}), "è");
}

TEST(JetText, ByteOrderMarkAtTheStartIsKept) {
    EXPECT_EQ(decoded(encoded("\uFEFFciao")), "\uFEFFciao");
    EXPECT_FALSE(encodeText(u"\xFEFF\x0100", true).has_value());
}

TEST(Text, AsciiIsCompressedAsAnyOtherText) {
    std::mt19937 random(5);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (auto left = random() % 40; left > 0; --left)
            text += static_cast<char>(random() % 50 ? 1 + random() % 0x7F : random());
        const auto compressed = compressAscii(text);
        const auto any = encodeText(toUtf16(text), true);
        const bool ascii = std::ranges::all_of(text, [](char c) { return c > 0; });
        ASSERT_EQ(compressed.has_value(), ascii && text.size() > 2) << text;
        if (compressed) {
            ASSERT_EQ(compressed, any) << text;
        }
    }
    EXPECT_TRUE(compressAscii(std::string(1024, 'a')));
    EXPECT_FALSE(compressAscii(std::string(1025, 'a')));
}

TEST(Text, EachCharacterKeepsItsPlaceBesideLongAscii) {
    for (const std::string_view odd : {"\xC3\xA8", "\xE2\x98\x83", "\xF0\x9F\x98\x80"})
        for (size_t before = 0; before < 20; ++before) {
            const std::string text =
                std::string(before, 'a') + std::string(odd) + '\0' + std::string(before, 'z');
            EXPECT_EQ(toUtf8(toUtf16(text)), text);
        }
}

TEST(JetText, InvalidUtf8BecomesTheReplacementCharacter) {
    EXPECT_EQ(toUtf16("a\xFFz"), u"a\xFFFDz");
    EXPECT_EQ(toUtf16("\xC3"), u"\xFFFD");
    EXPECT_EQ(toUtf16("\xC0\x80"), u"\xFFFD\xFFFD");
    EXPECT_EQ(toUtf16("\xED\xA0\x80").find(u'\xD800'), std::u16string::npos);
    EXPECT_EQ(toUtf16("\xF4\x90\x80\x80").front(), u'\xFFFD');
}

TEST(Key, LongsSortBySignAndValue) {
    EXPECT_EQ(longKey(1), (Bytes{0x7F, 0x80, 0, 0, 1}));
    EXPECT_LT(longKey(-5), longKey(-4));
    EXPECT_LT(longKey(-1), longKey(0));
    for (int32_t value : {INT32_MIN, -1, 0, 1, INT32_MAX})
        EXPECT_EQ(longAtStart(longKey(value), true), value);
    EXPECT_EQ(longAtStart(Bytes{0}, true), std::nullopt);
}

TEST(ValueCodec, EachTypeRoundTrips) {
    const std::vector<std::pair<Type, Value>> samples{
        {Type::Byte, int64_t{255}},
        {Type::Integer, int64_t{-32768}},
        {Type::Long, int64_t{INT32_MIN}},
        {Type::Currency, Currency{-123456789}},
        {Type::Single, 1.5},
        {Type::Double, -2.25e300},
        {Type::Date, Date{38143.546523}},
        {Type::Guid, Bytes(16, 7)},
        {Type::Numeric, Bytes(17, 9)},
    };
    for (const auto& [type, value] : samples) {
        const Column column = columnOf(type);
        EXPECT_EQ(decodeValue(column, encodeValue(column, value).value()), value) << int(type);
    }
}

TEST(ValueCodec, NumberOutOfRangeIsAnOverflow) {
    EXPECT_EQ(codeOf(columnOf(Type::Byte), int64_t{256}), ErrorCode::Overflow);
    EXPECT_EQ(codeOf(columnOf(Type::Byte), int64_t{-1}), ErrorCode::Overflow);
    EXPECT_EQ(codeOf(columnOf(Type::Integer), int64_t{32768}), ErrorCode::Overflow);
    EXPECT_EQ(codeOf(columnOf(Type::Long), int64_t{1} << 31), ErrorCode::Overflow);
    EXPECT_EQ(codeOf(columnOf(Type::Single), 1e39), ErrorCode::Overflow);
}

TEST(ValueCodec, OtherTypeIsAMismatch) {
    EXPECT_EQ(codeOf(columnOf(Type::Long), std::string("1")), ErrorCode::TypeMismatch);
    EXPECT_EQ(codeOf(textColumn(5), int64_t{1}), ErrorCode::TypeMismatch);
    EXPECT_EQ(codeOf(columnOf(Type::Date), 1.0), ErrorCode::TypeMismatch);
}

TEST(ValueCodec, TextIsCountedInUtf16Units) {
    EXPECT_EQ(codeOf(textColumn(2), std::string("èè")), ErrorCode::None);
    EXPECT_EQ(codeOf(textColumn(2), std::string("èèè")), ErrorCode::FieldTooSmall);
    EXPECT_EQ(codeOf(textColumn(2), std::string("😀")), ErrorCode::None);
    EXPECT_EQ(codeOf(textColumn(1), std::string("😀")), ErrorCode::FieldTooSmall);
}

TEST(ValueCodec, OleIsRefused) {
    EXPECT_EQ(codeOf(columnOf(Type::Ole), Bytes{1}), ErrorCode::NotSupported);
}

TEST(ValueCodec, BytesTooShortForTheirTypeAreNull) {
    EXPECT_EQ(decodeValue(columnOf(Type::Long), Bytes{1, 2, 3}), Value());
    EXPECT_EQ(decodeValue(columnOf(Type::Double), Bytes{}), Value());
}

}  // namespace format_test
