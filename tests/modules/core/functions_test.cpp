// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/bFunctions.h"

#include <unistd.h>
#include <QTemporaryDir>

#include "support/Vectors.h"

namespace functions_test {

TEST(FileExists, OnlyWhatCanBeOpenedForInputDoes) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("l'àllegato.pdf"));
    EXPECT_FALSE(FileEsiste(path));
    writeBytes(path, {});
    EXPECT_TRUE(FileEsiste(path));
    EXPECT_FALSE(FileEsiste(folder.path()));
    EXPECT_FALSE(FileEsiste(QString()));
    EXPECT_FALSE(FileEsiste(QStringLiteral("/dev/null")));
    EXPECT_FALSE(FileEsiste(QStringView(u"a\0b", 3).toString()));
}

TEST(FileExists, FileThatMayNotBeReadCountsAsMissing) {
    constexpr uid_t nobody = 65534;
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                         QFile::ReadOther | QFile::ExeOther));
    const QString path = folder.filePath(QStringLiteral("x"));
    writeBytes(path, {});
    ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions()));
    const bool root = geteuid() == 0;  // root may read everything, so the process becomes another user
    if (root) {
        ASSERT_EQ(seteuid(nobody), 0);
    }
    const bool exists = FileEsiste(path);
    if (root) {
        ASSERT_EQ(seteuid(0), 0);
    }
    EXPECT_FALSE(exists);
}

TEST(EmailCheck, AcceptsPlainAddresses) {
    for (const char* address : {"a@b.it", "nome.cognome@ditta.com", "a.b=c-d_e@x-y.z_w.info", "=@-.ab",
                                "1@2.34", ".@..it", "A@B.IT", "a@b..it", "a@b.__", "a@b.c.de"}) {
        EXPECT_TRUE(EmailValida(QLatin1String(address))) << address;
    }
}

TEST(EmailCheck, RefusesWhatTheRuleDoesNotKnow) {
    for (const char* address :
         {"",         "a",        "@b.it",         "a@",           "a@b",      "a@b.",
          "a@.it",    "a+b@c.it", "a@b.museum",    "a@b.x",        "a@b.it ",  " a@b.it",
          "a b@c.it", "a@b@c.it", "a@b,it",        "a'b@c.it",     "a@b.it\n", "a@b.it\r\n",
          "\na@b.it", "a@b.i-t",  "Nome <a@b.it>", "a@b.it,c@d.it"}) {
        EXPECT_FALSE(EmailValida(QLatin1String(address))) << address;
    }
}

TEST(EmailCheck, LastLabelHasTwoToFourCharacters) {
    EXPECT_TRUE(EmailValida(QStringLiteral("a@b.info")));
    EXPECT_FALSE(EmailValida(QStringLiteral("a@b.email")));
    EXPECT_FALSE(EmailValida(QStringLiteral("a@b.travel")));
}

TEST(EmailCheck, OnlyAsciiLettersCount) {
    EXPECT_FALSE(EmailValida(QStringLiteral("nicolò@b.it")));
    EXPECT_FALSE(EmailValida(QStringLiteral("a@città.it")));
    EXPECT_FALSE(EmailValida(QStringLiteral("a@b.it\u0660")));
    EXPECT_FALSE(EmailValida(QString(QChar(0xD800)) + QStringLiteral("@b.it")));
    EXPECT_FALSE(EmailValida(QStringView(u"a\0@b.it", 7).toString()));
}

TEST(EmailCheck, HugeTextIsAnsweredAllTheSame) {
    EXPECT_FALSE(EmailValida(QString(1'000'000, u'a')));
    EXPECT_FALSE(EmailValida(QStringLiteral("a@") + QString(1'000'000, u'.')));
    EXPECT_FALSE(EmailValida(QStringLiteral("a@") + QStringLiteral("b.").repeated(500'000)));
}

TEST(Colour, HasRedInItsLowByte) {
    EXPECT_EQ(ColoreDaHex(QStringLiteral("#0A141E")), 0x1E140Au);
    EXPECT_EQ(ColoreDaHex(QStringLiteral("#ff0000")), 255u);
}

TEST(Colour, IsTheSameWithAndWithoutTheHashAndInBothCases) {
    for (const char* white : {"#FFFFFF", "FFFFFF", "ffffff", "#fFfFfF", "##FF#FFFF"}) {
        EXPECT_EQ(ColoreDaHex(QLatin1String(white)), 16777215u) << white;
    }
}

TEST(Colour, TextOfAnotherLengthIsReadAsItsPieces) {
    EXPECT_EQ(ColoreDaHex(QStringLiteral("FFF")), 0xFFFFFu);
    EXPECT_EQ(ColoreDaHex(QStringLiteral("1")), 0x11u);
    EXPECT_EQ(ColoreDaHex(QStringLiteral("AABBCCDD")), 0xDDBBAAu);
}

TEST(Colour, TextThatIsNoNumberReturnsZero) {
    for (const char* text :
         {"", "#", "zzzzzz", "red", "12 456", "12340X", "1234 5", "1234+5", "1234-5", " 12345"})
        EXPECT_EQ(ColoreDaHex(QLatin1String(text)), 0u) << text;
}

TEST(ColourText, WritesRedFirstInCapitals) {
    EXPECT_EQ(HexDaColore(255), QStringLiteral("#FF0000"));
    EXPECT_EQ(HexDaColore(0), QStringLiteral("#000000"));
    EXPECT_EQ(HexDaColore(0x1E140A), QStringLiteral("#0A141E"));
    EXPECT_EQ(HexDaColore(0xABCDEF), QStringLiteral("#EFCDAB"));
}

TEST(ColourText, LeavesTheTopByteOut) {
    EXPECT_EQ(HexDaColore(0x80FF0011), QStringLiteral("#1100FF"));
}

TEST(ColourText, IsTheInverseOfTheColour) {
    for (std::uint32_t colour = 0; colour <= 0xFFFFFF; colour += 4099)
        EXPECT_EQ(ColoreDaHex(HexDaColore(colour)), colour);
}

TEST(CleanValue, LosesQuotesThenBlanksAtItsEnds) {
    EXPECT_EQ(PulisciValore(QStringLiteral(" \" l'Aquila \" ' ")), QStringLiteral("lAquila"));
    EXPECT_EQ(PulisciValore(QStringLiteral("a  b\t")), QStringLiteral("a  b\t"));
    EXPECT_EQ(PulisciValore(QStringLiteral("\"'\"")), QString());
}

TEST(WrittenPath, LosesLineBreaksAndBlanksAtItsEnd) {
    EXPECT_EQ(PercorsoScritto(QStringLiteral("/a/b.txt\r\n\n")), QStringLiteral("/a/b.txt"));
    EXPECT_EQ(PercorsoScritto(QStringLiteral("/a/b.txt  ")), QStringLiteral("/a/b.txt"));
    EXPECT_EQ(PercorsoScritto(QStringLiteral(" /a/b c.txt")), QStringLiteral(" /a/b c.txt"));
    EXPECT_EQ(PercorsoScritto(QString()), QString());
}

TEST(WrittenPath, KeepsABlankThatBelongsToTheName) {
    const QTemporaryDir folder;
    writeBytes(folder.filePath("a "), "x");
    EXPECT_EQ(PercorsoScritto(folder.filePath("a ") + '\n'), folder.filePath("a "));
}

TEST(NameOfPath, IsAfterTheLastSlashOrBackslash) {
    EXPECT_EQ(NomeDaPercorso(QStringLiteral("C:\\a\\b.pdf")), QStringLiteral("b.pdf"));
    EXPECT_EQ(NomeDaPercorso(QStringLiteral("/a/b.pdf")), QStringLiteral("b.pdf"));
    EXPECT_EQ(NomeDaPercorso(QStringLiteral("/a/C:\\b.pdf")), QStringLiteral("b.pdf"));
    EXPECT_EQ(NomeDaPercorso(QStringLiteral("b.pdf")), QStringLiteral("b.pdf"));
    EXPECT_EQ(NomeDaPercorso(QStringLiteral("/a/")), QString());
}

TEST(OpenThroughTheDesktop, PassesFailuresOver) {
    EXPECT_FALSE(ApriShell(QStringLiteral("no address")));
}

}  // namespace functions_test
