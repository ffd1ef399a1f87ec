// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Personalizza.h"
#include "modules/store/NuovoDatabase.h"

#include <map>
#include <QTemporaryDir>
#include <random>

#include "platform/jet/Database.h"
#include "support/Vectors.h"

namespace personalizza_test {

namespace {

/// A row: a column that is absent is missing from the table, one without a value is Null.
using Row = std::map<QString, std::optional<QString>>;

LeggiColonna readerOf(Row row) {
    return [row = std::move(row)](const QString& column) -> Result<std::optional<QString>> {
        const auto found = row.find(column);
        if (found == row.end()) return Status(ErrorCode::ItemNotFound, QStringLiteral("no such column"));
        return found->second;
    };
}

Row rowOf(const QJsonObject& object) {
    Row row;
    for (const QString& column : object.keys()) {
        row[column] =
            object[column].isNull() ? std::nullopt : std::optional<QString>(object[column].toString());
    }
    return row;
}

QString personalized(const QString& text, const Row& row) {
    return Personalizza(text, LeggiValori(readerOf(row)));
}

QString nameOf(const Row& row) {
    const Result<QString> name = NomeDestinatario(readerOf(row));
    EXPECT_TRUE(name.ok());
    return name.ok() ? name.value() : QStringLiteral("failed");
}

}  // namespace

TEST(Personalisation, ReturnsTheTextsOfTheVectors) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("send/placeholders.json"))) {
        SCOPED_TRACE(vector[QLatin1String("name")].toString().toStdString());
        Row row = rowOf(vector[QLatin1String("row")].toObject());
        for (const QJsonValue column : vector[QLatin1String("missing_columns")].toArray())
            row.erase(column.toString());
        const ValoriSegnaposto values = LeggiValori(readerOf(row));
        EXPECT_EQ(Personalizza(vector[QLatin1String("corpoHtml")].toString(), values),
                  vector[QLatin1String("BodyHtml")].toString());
        EXPECT_EQ(Personalizza(vector[QLatin1String("CorpoTesto")].toString(), values),
                  vector[QLatin1String("BodyText")].toString());
        EXPECT_EQ(Personalizza(vector[QLatin1String("oggettoMail")].toString(), values),
                  vector[QLatin1String("Subject")].toString());
    }
}

TEST(Personalisation, PlaceholderUsedTwiceIsReplacedInBothPlaces) {
    EXPECT_EQ(personalized(QStringLiteral(":::nom:::, sì :::nom:::"), {{"nom", "Ada"}}),
              QStringLiteral("Ada, sì Ada"));
}

TEST(Personalisation, NullKeepsThePlaceholderAndTheEmptyTextRemovesIt) {
    EXPECT_EQ(personalized(QStringLiteral("a:::nom:::b"), {{"nom", std::nullopt}}),
              QStringLiteral("a:::nom:::b"));
    EXPECT_EQ(personalized(QStringLiteral("a:::nom:::b"), {{"nom", QString()}}), QStringLiteral("ab"));
}

TEST(Personalisation, MissingColumnKeepsThePlaceholderAndTheOthersAreReplaced) {
    EXPECT_EQ(personalized(QStringLiteral(":::rgs::: :::nom:::"), {{"nom", "Ada"}}),
              QStringLiteral(":::rgs::: Ada"));
}

TEST(Personalisation, LaterPlaceholderInAValueIsExpandedAnEarlierOneIsNot) {
    EXPECT_EQ(personalized(QStringLiteral(":::rgs:::"), {{"rgs", ":::nom:::"}, {"nom", "Ada"}}),
              QStringLiteral("Ada"));
    EXPECT_EQ(personalized(QStringLiteral(":::nom:::"), {{"rgs", "Ditta"}, {"nom", ":::rgs:::"}}),
              QStringLiteral(":::rgs:::"));
}

TEST(Personalisation, CapitalLetterMakesItNoPlaceholder) {
    EXPECT_EQ(personalized(QStringLiteral(":::Nom::: :::NOM:::"), {{"nom", "Ada"}}),
              QStringLiteral(":::Nom::: :::NOM:::"));
}

TEST(Personalisation, ThereIsNoTenthField) {
    EXPECT_EQ(personalized(QStringLiteral(":::campo10:::"), {{"campo1", "uno"}, {"campo10", "dieci"}}),
              QStringLiteral(":::campo10:::"));
}

TEST(Personalisation, OrderIsThatOfTheColumns) {
    const std::array<const char*, numeroSegnaposto> order{
        "rgs",    "nom",    "email",  "piva",   "ind",    "cap",    "loc",    "prov",   "tel",   "fax",
        "campo1", "campo2", "campo3", "campo4", "campo5", "campo6", "campo7", "campo8", "campo9"};
    for (std::size_t i = 0; i < order.size(); ++i)
        EXPECT_EQ(colonneSegnaposto[i], QLatin1String(order[i]));
}

TEST(Personalisation, SplitTemplateReturnsTheSameText) {
    std::mt19937 random(11);
    const QStringList pieces{
        ":::nom:::", ":::rgs:::", ":::campo1:::", ":::tel:::", ":::", "::",  ":", "nom", "rgs",
        "campo",     "1",         "e ",           "<p>",       "",    "x: y"};
    const auto some = [&](unsigned most) {
        QString text;
        for (unsigned i = random() % (most + 1); i > 0; --i)
            text += pieces[qsizetype(random() % unsigned(pieces.size()))];
        return text;
    };
    int asPlain = 0;
    for (int i = 0; i < 3000; ++i) {
        ModelloDiviso split;
        const QString text = random() % 2 ? some(8) : "a :::nom::: b :::rgs::: c :::campo1:::";
        for (int recipient = 0; recipient < 5; ++recipient) {
            ValoriSegnaposto values;
            for (auto& value : values)
                if (random() % 8) value = random() % 3 ? some(1) : some(3);
            const QString expected = Personalizza(text, values);
            ASSERT_EQ(split.Personalizza(text, values), expected) << text.toStdString();
            asPlain += expected.contains("a ") ? 1 : 0;
        }
        ASSERT_EQ(split.Personalizza("x:::nom:::", {}), "x:::nom:::") << "another template";
    }
    EXPECT_GT(asPlain, 1000);
}

TEST(RecipientName, IsChosenAsTheVectorsSay) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("send/toname.json"))) {
        EXPECT_EQ(nameOf(rowOf(vector[QLatin1String("row")].toObject())),
                  vector[QLatin1String("ToName")].toString());
    }
}

TEST(RecipientName, IsTheAddressWhereThereIsNothingElse) {
    EXPECT_EQ(nameOf({{"rgs", QString()}, {"nom", std::nullopt}, {"email", QString()}}), QString());
    EXPECT_EQ(nameOf({{"rgs", QStringLiteral("Ditta")}, {"nom", std::nullopt}, {"email", std::nullopt}}),
              QStringLiteral("Ditta"));
}

TEST(RecipientName, CannotBeReadFromAnAddressThatIsNull) {
    const Row row{{"rgs", QString()}, {"nom", std::nullopt}, {"email", std::nullopt}};
    EXPECT_EQ(NomeDestinatario(readerOf(row)).status().code(), ErrorCode::InvalidNull);
}

TEST(RecipientName, FailsWhereThereIsNoRow) {
    EXPECT_EQ(NomeDestinatario(readerOf({})).status().code(), ErrorCode::ItemNotFound);
}

TEST(Personalisation, TextOfNothingButColonsTakesTimeInProportion) {
    const QString colons(100'000, u':');
    EXPECT_EQ(personalized(colons + QStringLiteral("rgs") + colons, {{"rgs", QString()}}),
              colons.chopped(3) + colons.chopped(3));
}

TEST(RecipientColumns, AreReadFromTheCurrentRow) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("data.mdb"));
    ASSERT_TRUE(schema::CreaDatabase(path.toStdString()).ok());
    const QString connection = QStringLiteral("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = ") + path;
    ado::Recordset rows;
    ASSERT_TRUE(rows.setActiveConnection(connection).ok());
    rows.setCursorType(ado::CursorType::Keyset);
    rows.setLockType(ado::LockType::Optimistic);
    rows.setSource(QStringLiteral("SELECT * FROM [tb_destinatari];"));
    ASSERT_TRUE(rows.open().ok());
    const LeggiColonna read = ColonneDi(rows);
    EXPECT_FALSE(read(QStringLiteral("rgs")).ok()) << "there is no row yet";

    ASSERT_TRUE(rows.addNew().ok());
    ASSERT_TRUE(rows.setValue(u"rgs", QStringLiteral("Società Perù")).ok());
    ASSERT_TRUE(rows.setValue(u"nom", QString()).ok());
    ASSERT_TRUE(rows.update().ok());
    EXPECT_EQ(read(QStringLiteral("rgs")).value(), QStringLiteral("Società Perù"));
    EXPECT_EQ(read(QStringLiteral("nom")).value(), QString());
    EXPECT_EQ(read(QStringLiteral("loc")).value(), std::nullopt);
    EXPECT_EQ(read(QStringLiteral("id")).value(), QStringLiteral("1"));
    EXPECT_EQ(read(QStringLiteral("campo10")).status().code(), ErrorCode::ItemNotFound);
    EXPECT_EQ(Personalizza(QStringLiteral(":::rgs:::|:::nom:::|:::loc:::"), LeggiValori(read)),
              QStringLiteral("Società Perù||:::loc:::"));
    rows.close();
    ado::closeAll();
}

TEST(Personalisation, ACapitalOneIsLeftAloneBesideAnExactOne) {
    const Row values{{"rgs", "Alfa"}, {"nom", "Ada"}};
    EXPECT_EQ(personalized(":::RGS::: :::rgs::: :::Rgs::: :::nom::::::NOM:::", values),
              ":::RGS::: Alfa :::Rgs::: Ada:::NOM:::");
    EXPECT_EQ(personalized(":::rgs::::::RGS:::", values), "Alfa:::RGS:::");
}

TEST(Personalisation, ValueInALinkBecomesNoPartOfIt) {
    ValoriSegnaposto values;
    values[1] = QStringLiteral("a&cc=b@c.it/?#:::email:::\r\n è");
    values[2] = QStringLiteral("o'neil+x@example.it");
    EXPECT_EQ(Personalizza(QStringLiteral("https://x.it/:::nom:::?e=:::email:::&t=:::tel:::"),
                           PerCollegamento(values)),
              QStringLiteral("https://x.it/a%26cc%3Db%40c.it%2F%3F%23%3A%3A%3Aemail%3A%3A%3A%0D%0A%20%C3%A8"
                             "?e=o%27neil%2Bx%40example.it&t=:::tel:::"));
}

}  // namespace personalizza_test
