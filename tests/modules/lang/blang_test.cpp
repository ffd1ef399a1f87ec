// SPDX-License-Identifier: GPL-3.0-or-later
// The language files: every sample of tests/data/lang, and what may be found in a file that was edited
// by hand. A sample states the entries of the list, the numbers, the texts that arrive and whether the
// reading fails.
#include "modules/lang/bLANG.h"

#include <QSet>
#include <QTemporaryDir>

#include "modules/core/Fallimento.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

namespace blang_test {

namespace {

using Coppie = QList<QPair<QString, QString>>;

QSet<QString> knownKeys() {
    const QList<QByteArray> lines = bytesOf(dataPath("lang/keys.txt")).split('\n');
    QSet<QString> keys;
    for (const QByteArray& line : lines)
        if (!line.isEmpty()) keys += QString::fromUtf8(line);
    return keys;
}

class LanguageFile : public testing::Test {
  protected:
    LanguageFile() { useFolder(folder.path()); }
    ~LanguageFile() override { sys::setProgramFolder({}); }

    void useFolder(const QString& path) {
        sys::setProgramFolder(path + '/');
        bLANG::numeroLingue = 0;
        bLANG::linguaScelta = 0;
    }

    void write(const QByteArray& texts, const QByteArray& choice) {
        writeBytes(folder.filePath("LANG.lng"), texts);
        writeBytes(folder.filePath("LANGz.lng"), choice);
    }

    /// The list, then the texts if the list could be read. Returns the number of the failure, 0 for none.
    int read() {
        applied.clear();
        Prosegui prosegui;
        prosegui([this] {
            bLANG::ElencaLingue(entries);
            bLANG::LeggiTesti([this](const QString& key) {
                return known.contains(key) ? bLANG::Destinazione([this, key](const QString& text) {
                    applied.append({key, text});
                })
                                           : bLANG::Destinazione();
            });
        });
        return prosegui.numero();
    }

    QTemporaryDir folder;
    const QSet<QString> known = knownKeys();
    QStringList entries;
    Coppie applied;
};

const QByteArray twoLanguages = "[<LNG1>]Italiano\r\n[<LNG2>]English\r\n[<MDLO>]: bVAR\r\n";

}  // namespace

TEST_F(LanguageFile, EverySampleHasItsListItsTextsAndItsEnd) {
    EXPECT_EQ(known.size(), 373);
    for (const QJsonValue& value : vectorsOf("lang/expected.json")) {
        const QJsonObject sample = value.toObject();
        SCOPED_TRACE(sample["name"].toString().toStdString());
        useFolder(dataPath("lang/") + sample["folder"].toString());
        const int failure = read();

        QStringList list;
        for (const QJsonValue& entry : sample["menu_items"].toArray())
            list += entry.toString();
        EXPECT_EQ(entries, list);
        EXPECT_EQ(bLANG::numeroLingue, sample["numeroLingue"].toInt());
        EXPECT_EQ(bLANG::linguaScelta, sample["linguaScelta"].toInt());
        EXPECT_EQ(failure != 0, !sample["error"].isNull());
        EXPECT_EQ(applied.size(), sample["assignments"].toInt());
        for (qsizetype i = 0; i < sample["applied"].toArray().size(); ++i) {
            const QJsonArray pair = sample["applied"].toArray()[i].toArray();
            EXPECT_EQ(applied.value(i), qMakePair(pair[0].toString(), pair[1].toString()));
        }
        QJsonObject final;
        for (const auto& [key, text] : applied)
            final[key] = text;
        EXPECT_EQ(final, sample["final"].isObject() ? sample["final"].toObject()
                                                    : jsonOf("lang/" + sample["final_file"].toString()));
    }
}

TEST_F(LanguageFile, WithoutTheTextsThereIsNoFile) {
    EXPECT_EQ(read(), int(ErrorCode::FileNotFound));
    EXPECT_TRUE(entries.isEmpty());
}

TEST_F(LanguageFile, WithoutAChoiceTheListIsUnmarked) {
    writeBytes(folder.filePath("LANG.lng"), twoLanguages);
    EXPECT_EQ(read(), int(ErrorCode::FileNotFound));
    EXPECT_EQ(entries, QStringList({"Italiano", "English"}));
}

TEST_F(LanguageFile, AnEmptyChoiceIsInputPastTheEnd) {
    write(twoLanguages, "");
    EXPECT_EQ(read(), int(ErrorCode::InputPastEnd));
    EXPECT_EQ(bLANG::linguaScelta, 0);
}

TEST_F(LanguageFile, OnlyTheFirstLineOfTheChoiceIsRead) {
    write(twoLanguages + "[<NOME>]Lingua[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n", "English\r\nItaliano\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(bLANG::linguaScelta, 2);
}

TEST_F(LanguageFile, AChoiceThatIsNoLanguageFailsAtTheFirstKnownKeyOnly) {
    write(twoLanguages + "[<NOME>]Ignota[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n", "Klingon\r\n");
    EXPECT_EQ(read(), 0);
    write(twoLanguages + "[<NOME>]Lingua[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n", "Klingon\r\n");
    bLANG::numeroLingue = 0;
    EXPECT_EQ(read(), int(ErrorCode::SubscriptOutOfRange));
}

TEST_F(LanguageFile, AHeaderOfTwoDigitsIsNeitherListedNorCounted) {
    write("[<LNG1>]Italiano\r\n[<LNG10>]Deutsch\r\n", "Italiano\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(entries, QStringList(">> Italiano <<"));
    EXPECT_EQ(bLANG::numeroLingue, 1);
}

TEST_F(LanguageFile, AnEmptyTextIsATextLikeAnother) {
    write(twoLanguages + "[<NOME>]Lingua[<LNG1>]a[<LNG2>][<LNG3>]\r\n", "English\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(applied, Coppie({{"bVAR.Lingua", ""}}));
}

TEST_F(LanguageFile, TheLastOfTwoEqualKeysWins) {
    write(twoLanguages +
              "[<NOME>]Lingua[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n[<NOME>]Lingua[<LNG1>]c[<LNG2>]d[<LNG3>]\r\n",
          "English\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(applied, Coppie({{"bVAR.Lingua", "b"}, {"bVAR.Lingua", "d"}}));
}

TEST_F(LanguageFile, TheFirstOfTwoEqualMarkersCounts) {
    write(twoLanguages + "[<NOME>]Lingua[<LNG1>]a[<LNG2>]b[<LNG3>]c[<LNG1>]d[<LNG2>]e[<LNG3>]\r\n",
          "English\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(applied, Coppie({{"bVAR.Lingua", "b"}}));
}

TEST_F(LanguageFile, AKeyMarkerAloneEndsTheReading) {
    write(twoLanguages + "[<NOME>]Lingua\r\n[<NOME>]Lingua[<LNG1>]a[<LNG2>]b[<LNG3>]\r\n", "English\r\n");
    EXPECT_EQ(read(), int(ErrorCode::SubscriptOutOfRange));
    EXPECT_TRUE(applied.isEmpty());
}

TEST_F(LanguageFile, ALineWithoutAnyMarkerEndsTheReadingIfItLooksLikeOne) {
    useFolder(dataPath("lang/files/nome_marcatore_strano"));
    EXPECT_EQ(read(), int(ErrorCode::SubscriptOutOfRange));
    EXPECT_TRUE(applied.isEmpty());
}

TEST_F(LanguageFile, ALineWithoutTheSecondBracketIsAComment) {
    write(twoLanguages + "[<NOME> ]Lingua\r\n[<NOME>\r\n[\r\n\r\n", "English\r\n");
    EXPECT_EQ(read(), 0);
}

TEST_F(LanguageFile, AFileWithoutLanguagesFailsAtItsFirstText) {
    write("[<MDLO>]: bVAR\r\n[<NOME>]Ignota[<LNG1>]\r\n", "Italiano\r\n");
    EXPECT_EQ(read(), int(ErrorCode::SubscriptOutOfRange));
}

TEST_F(LanguageFile, ABlankMakesAnotherKey) {
    write(twoLanguages + "[<NOME>]Lingua [<LNG1>]a[<LNG2>]b[<LNG3>]\r\n", "English\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_TRUE(applied.isEmpty());
}

TEST_F(LanguageFile, TheCountOnlyGrows) {
    write(twoLanguages, "English\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(entries.size(), 2);
    EXPECT_EQ(bLANG::numeroLingue, 4);
}

TEST_F(LanguageFile, TheCountEndsAtItsLargestNumber) {
    write(QByteArray("[<LNG1>]Italiano\r\n").repeated(32768), "Italiano\r\n");
    EXPECT_EQ(read(), int(ErrorCode::Overflow));
    EXPECT_EQ(bLANG::numeroLingue, 32767);
}

TEST_F(LanguageFile, BytesAreCharactersOfTheCodePage) {
    write(
        "[<LNG1>]Fran\xE7"
        "ais\r\n[<MDLO>]: bVAR\r\n[<NOME>]Lingua[<LNG1>]\x80\xE8[<LNG2>]\r\n",
        "Fran\xE7"
        "ais\r\n");
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(applied, Coppie({{"bVAR.Lingua", "€è"}}));
}

TEST_F(LanguageFile, TheChoiceIsWrittenAsOneLine) {
    bLANG::ScriviLinguaInUso("Français");
    EXPECT_EQ(bytesOf(folder.filePath("LANGz.lng")), QByteArray("Fran\xE7"
                                                                "ais\r\n"));
}

TEST_F(LanguageFile, AChoiceThatCannotBeWrittenFails) {
    sys::setProgramFolder(folder.path() + "/missing/");
    Prosegui prosegui;
    EXPECT_FALSE(prosegui([] { bLANG::ScriviLinguaInUso("English"); }));
}

TEST(LanguageEntry, IsMarkedByItsFirstTwoCharacters) {
    EXPECT_TRUE(bLANG::eSegnata(">> Italiano <<"));
    EXPECT_TRUE(bLANG::eSegnata(">>"));
    EXPECT_FALSE(bLANG::eSegnata("> Italiano"));
    EXPECT_FALSE(bLANG::eSegnata(""));
}

}  // namespace blang_test
