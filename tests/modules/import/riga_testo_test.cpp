// SPDX-License-Identifier: GPL-3.0-or-later
// One line of a delimited text file, and the files whose statements are known.
#include "modules/import/RigaTesto.h"

#include <QCryptographicHash>
#include <QTemporaryDir>

#include "modules/core/Fallimento.h"
#include "platform/text/TextFile.h"
#include "support/Vectors.h"

namespace riga_testo_test {

using namespace destinatario;
using namespace schema;

namespace {

/// A rule that takes the address from one field and the name from another.
RigaTesto regola(int campoEmail, int campoNome = 0, const QString& separatore = ";") {
    RigaTesto nuova;
    nuova.separatore = separatore;
    nuova.posizioni[campi::boxEmail] = campoEmail;
    nuova.posizioni[1] = campoNome;
    return nuova;
}

void expectFailure(const RigaTesto& lettore, const QString& riga) {
    try {
        static_cast<void>(lettore.Leggi(riga));
        ADD_FAILURE() << riga.toStdString();
    } catch (const Fallimento& fallimento) {
        EXPECT_EQ(fallimento.numero(), 9);
    }
}

struct Outcome {
    int rows = 0;
    QList<int> refused;
    int failedAt = 0;
    QByteArray hash;
};

Outcome readWhole(const QString& path, const RigaTesto& lettore, const QString& gruppo) {
    text::LineReader file;
    EXPECT_TRUE(file.open(path, text::LineEnds::Any).ok());
    Outcome outcome;
    QCryptographicHash statements(QCryptographicHash::Sha256);
    QString riga;
    for (int number = 1; file.nextLine(riga); ++number) {
        try {
            const auto valori = lettore.Leggi(riga);
            if (!valori) {
                outcome.refused << number;
                continue;
            }
            ++outcome.rows;
            statements.addData(IstruzioneNuovo(gruppo, "True", *valori).toUtf8() + '\n');
        } catch (const Fallimento&) {
            outcome.failedAt = number;
            break;
        }
    }
    outcome.hash = statements.result().toHex();
    return outcome;
}

RigaTesto ruleOf(const QJsonObject& vector) {
    RigaTesto lettore;
    lettore.separatore = vector["txtSep"].toString();
    const QJsonArray boxes = vector["cmbCmp"].toArray();
    EXPECT_EQ(boxes.size(), campi::quanti);
    for (int i = 0; i < campi::quanti; ++i)
        lettore.posizioni[static_cast<size_t>(i)] = boxes[i].toInt();
    return lettore;
}

void expectVector(const QJsonObject& vector, const QString& path) {
    const std::string name = vector["name"].toString().toStdString();
    const Outcome outcome = readWhole(path, ruleOf(vector), QString::number(vector["target"].toInt()));
    EXPECT_EQ(outcome.rows, vector["rows"].toInt()) << name;
    EXPECT_EQ(outcome.refused.size(), vector["refused"].toInt()) << name;
    const QJsonArray refused = vector["first_refused_lines"].toArray();
    for (int i = 0; i < refused.size(); ++i)
        EXPECT_EQ(outcome.refused.value(i), refused[i].toInt()) << name;
    EXPECT_EQ(outcome.failedAt, vector["failure_at_line"].toInt()) << name;
    EXPECT_EQ(outcome.hash, vector["sql_sha256"].toString().toLatin1()) << name;
}

}  // namespace

TEST(TextLine, VectorsResultInTheirStatements) {
    const QJsonArray vectors = vectorsOf("txt/expected.json");
    EXPECT_EQ(vectors.size(), 16);
    for (const QJsonValue& value : vectors)
        expectVector(value.toObject(), dataPath("txt/" + value.toObject()["file"].toString()));
}

TEST(TextLine, EveryLineEndResultsInTheSameRows) {
    const QJsonObject vector = vectorsOf("txt/expected.json")[0].toObject();
    QByteArray bytes = bytesOf(dataPath("txt/" + vector["file"].toString()));
    const QTemporaryDir dir;
    for (const char* end : {"\r", "\n", "\r\n"}) {
        writeBytes(dir.filePath("file.txt"), QByteArray(bytes).replace("\r\n", end));
        expectVector(vector, dir.filePath("file.txt"));
    }
    while (bytes.endsWith('\n') || bytes.endsWith('\r'))
        bytes.chop(1);
    writeBytes(dir.filePath("file.txt"), bytes);
    expectVector(vector, dir.filePath("file.txt"));
}

TEST(TextLine, EmptySeparatorLeavesTheLineWhole) {
    EXPECT_EQ(regola(1, 0, "").Leggi("a@x.it")->at(email), "a@x.it");
    expectFailure(regola(2, 0, ""), "a;a@x.it");
}

TEST(TextLine, NothingBetweenTwoSeparatorsIsAnEmptyField) {
    const auto valori = regola(1, 2).Leggi("a@x.it;;Rossi");
    ASSERT_TRUE(valori);
    EXPECT_EQ(valori->at(nom), "");
    EXPECT_EQ(regola(1, 3).Leggi("a@x.it;;Rossi")->at(nom), "Rossi");
}

TEST(TextLine, LosesItsQuotes) {
    EXPECT_EQ(regola(1, 2).Leggi("a@x.it;Dell'Acqua \"Vito\"")->at(nom), "DellAcqua Vito");
    EXPECT_EQ(regola(1).Leggi("\"a'@x.it\"")->at(email), "a@x.it");
}

TEST(TextLine, HeaderIsRefusedLikeAnyOtherBadAddress) {
    EXPECT_FALSE(regola(3).Leggi("Ragione Sociale;Nome;Email"));
    EXPECT_TRUE(regola(3).Leggi("Ragione Sociale;Nome;Email@x.it"));
}

TEST(TextLine, EndingInTheSeparatorHasOneEmptyLastField) {
    EXPECT_EQ(regola(1, 2).Leggi("a@x.it;")->at(nom), "");
    EXPECT_FALSE(regola(2).Leggi("Rossi;"));
    expectFailure(regola(3), "Rossi;");
}

TEST(TextLine, WithoutAFieldForTheAddressFails) {
    expectFailure(regola(2), "a@x.it");
    expectFailure(regola(1), "");
    expectFailure(regola(1, 0, ""), "");
    expectFailure(regola(0), "a@x.it");
}

TEST(TextLine, TheFailureNamesTheLineTheFieldAndWhatIsIn) {
    const auto testoDi = [](int campo, const PuntoImportazione& punto) {
        try {
            static_cast<void>(regola(campo).Leggi("", punto));
        } catch (const Fallimento& fallimento) {
            return fallimento.testo();
        }
        return QString();
    };
    EXPECT_EQ(testoDi(1, {3, 2}), "Riga 3: il campo 1 non c'è; inseriti 2 destinatari");
    EXPECT_EQ(testoDi(18, {1, 0}), "Riga 1: il campo 18 non c'è; inseriti 0 destinatari");
    EXPECT_EQ(testoDi(2, {2, 1}), "Riga 2: il campo 2 non c'è; inserito 1 destinatario");
}

TEST(TextLine, ToleratesThatAnyOtherFieldIsMissing) {
    EXPECT_EQ(regola(1, 18).Leggi("a@x.it;b")->at(nom), "");
}

TEST(TextLine, OneFieldMayFeedTwoColumns) {
    RigaTesto lettore = regola(1, 2);
    lettore.posizioni[0] = 2;
    const auto valori = lettore.Leggi("a@x.it;Rossi");
    EXPECT_EQ(valori->at(nom), "Rossi");
    EXPECT_EQ(valori->at(rgs), "Rossi");
}

TEST(TextLine, SeparatorIsComparedWholeAndWithCase) {
    EXPECT_EQ(regola(2, 1, "XX").Leggi("axxbXc XXa@x.it")->at(nom), "axxbXc");
    EXPECT_EQ(regola(2, 1, "--").Leggi("a---a@x.it")->at(email), "-a@x.it");
}

TEST(TextLine, IsCutBeforeItIsCleaned) {
    RigaTesto lettore = regola(1);
    lettore.posizioni[6] = 2;
    EXPECT_EQ(lettore.Leggi("a@x.it;\"MI\"")->at(prov), "M");
    EXPECT_EQ(lettore.Leggi("a@x.it;' MI")->at(prov), "");
}

TEST(TextLine, CutsAnAddressAt255Characters) {
    const QString lungo = QString(248, u'a') + "@xx.com";
    ASSERT_EQ(lungo.size(), 255);
    EXPECT_EQ(regola(1).Leggi(lungo)->at(email), lungo);
    EXPECT_EQ(regola(1).Leggi("b" + lungo)->at(email), "b" + lungo.chopped(1));
}

TEST(TextLine, KeepsCharactersOfTheCodePage) {
    const QTemporaryDir dir;
    writeBytes(dir.filePath("file.txt"), "a@x.it;Niccol\xf2 \x80 \x9d\r\n");
    text::LineReader file;
    ASSERT_TRUE(file.open(dir.filePath("file.txt"), text::LineEnds::Any).ok());
    QString riga;
    ASSERT_TRUE(file.nextLine(riga));
    EXPECT_EQ(regola(1, 2).Leggi(riga)->at(nom), QString("Niccolò € ") + QChar(0x9d));
}

TEST(TextLine, OfSeparatorsAloneIsReadOnlyAsFarAsFieldsAreChosen) {
    const QString riga = "a@x.it" + QString(8 << 20, u';');
    EXPECT_EQ(regola(1, 18).Leggi(riga)->at(nom), "");
}

}  // namespace riga_testo_test
