// SPDX-License-Identifier: GPL-3.0-or-later
// The findings about a message.
#include "modules/strumenti/Rilievi.h"

#include <gtest/gtest.h>
#include <QFile>

#include "modules/strumenti/Rilievi_html.h"
#include "platform/html/HtmlDocument.h"
#include "support/SampleFolder.h"

namespace rilievi_test {

using namespace testing_support;
using Peso = Rilievo::Peso;

namespace {

ModelloProva model(const QString& html, const QString& subject = "Oggetto") {
    HtmlDocument document;
    EXPECT_TRUE(document.setDocumentHTML(html).ok());
    ModelloProva made;
    made.testi = {document.documentHTML(), document.bodyInnerText(), subject, "https://x.it/via"};
    return made;
}

/// The findings that contain the text.
QList<Rilievo> with(const QList<Rilievo>& findings, const QString& text) {
    QList<Rilievo> found;
    for (const Rilievo& one : findings)
        if (one.testo.contains(text)) found << one;
    return found;
}

/// How many of this severity contain the text.
int count(const QList<Rilievo>& findings, const QString& text, Peso weight) {
    int found = 0;
    for (const Rilievo& one : with(findings, text))
        found += one.peso == weight ? 1 : 0;
    return found;
}

void writePng(const QString& path, bool real = true) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(real ? QByteArray("\x89PNG\r\n\x1A\n") + QByteArray(100, 'x') : QByteArray("testo"));
}

}  // namespace

TEST(RilieviModello, aCleanMessageHasNone) {
    const auto findings = RilieviModello(model("<p>Ciao :::nom:::, <a href=\"https://x.it/\">vieni</a></p>"));
    EXPECT_TRUE(findings.isEmpty()) << findings.value(0).testo.toStdString();
}

TEST(RilieviModello, placeholdersThatNoColumnHasAreGrave) {
    const auto findings = RilieviModello(model("<p>:::cognome::: :::Nom:::</p>", ":::citta:::"));
    EXPECT_EQ(count(findings, "\":::cognome:::\" non viene sostituito: nessuna colonna", Peso::Grave), 1);
    EXPECT_EQ(count(findings, "\":::Nom:::\" non viene sostituito: si scrive \":::nom:::\"", Peso::Grave), 1);
    EXPECT_EQ(count(findings, ":::citta:::", Peso::Grave), 1);
}

TEST(RilieviModello, aPlaceholderThatAFormatPartsIsFound) {
    const auto findings = RilieviModello(model("<p>:::<b>nom</b>:::</p>"));
    EXPECT_EQ(count(findings, "spezzato da un cambio di formato", Peso::Grave), 1);
}

TEST(RilieviModello, missingTextSubjectAndSignOffAreReported) {
    ModelloProva made = model("<img src=\"https://x.it/a.png\">", " ");
    made.testi.disiscrizione.clear();
    const auto findings = RilieviModello(made);
    EXPECT_EQ(count(findings, "Manca la forma di solo testo", Peso::Attenzione), 1);
    EXPECT_EQ(count(findings, "L'oggetto è vuoto", Peso::Attenzione), 1);
    EXPECT_EQ(count(findings, "collegamento di disiscrizione", Peso::Consiglio), 1);
}

TEST(RilieviModello, missingAttachmentsAreGrave) {
    ModelloProva made = model("<p>x</p>");
    made.allegati = {{"/tmp/c'e", "c'e", true}, {"/tmp/manca", "manca", false}};
    EXPECT_EQ(count(RilieviModello(made), "L'allegato /tmp/manca non c'è", Peso::Grave), 1);
    EXPECT_EQ(with(RilieviModello(made), "allegato").size(), 1);
}

TEST(RilieviHtml, linksWithoutATargetAreGrave) {
    const QString broken =
        "<a href=\"\">1</a><a href=\"#\">2</a><a href=\"http://\">3</a>"
        "<a href=\"www.x.it\">4</a><a href=\"javascript:void(0)\">5</a>"
        "<a href=\"#qui\">6</a><a href=\"mailto:\">7</a>";
    const auto findings = RilieviHtml(broken);
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].peso, Peso::Grave);
    EXPECT_TRUE(findings[0].testo.startsWith("7 collegamenti non portano"))
        << findings[0].testo.toStdString();
}

TEST(RilieviHtml, linksWithATargetAreNotReported) {
    EXPECT_TRUE(RilieviHtml("<a name=\"qui\"></a><a href=\"#qui\">1</a><a href=\"https://x.it\">2</a>"
                            "<a href=\"mailto:a@x.it\">3</a><a href=\":::campo1:::\">4</a>"
                            "<a href=\"tel:+39\">5</a>")
                    .isEmpty());
}

TEST(RilieviHtml, imagesThatAreMissingOrNoneAreGrave) {
    SampleFolder folder;
    writePng(folder.path("buona.png"));
    writePng(folder.path("finta.png"), false);
    const auto findings =
        RilieviHtml("<img src=\"" + folder.path("buona.png") + "\"><img src=\"" + folder.path("finta.png") +
                    "\"><img src=\"" + folder.path("manca.png") + "\"><img src=\"logo.png\">");
    EXPECT_EQ(count(findings, "2 immagini non ci sono", Peso::Grave), 1);
    EXPECT_EQ(count(findings, "finta.png", Peso::Grave), 1);
    EXPECT_TRUE(with(findings, "buona.png").isEmpty());
}

TEST(RilieviHtml, imagesOfTheWebAreAHint) {
    const auto findings = RilieviHtml(
        "<img src=\"https://x.it/a.png\"><td background=\"//x.it/b.png\">"
        "<p style=\"background:url('http://x.it/c.png')\">x</p>");
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].peso, Peso::Consiglio);
    EXPECT_TRUE(findings[0].testo.startsWith("3 immagini restano sul web"));
}

TEST(RilieviHtml, imagesOfAStyleSheetOnTheWebCountToo) {
    const auto findings = RilieviHtml(
        "<style>body { background: url(https://x.it/a.png) } p { background: url('//x.it/b.png') }</style>");
    ASSERT_EQ(findings.size(), 1);
    EXPECT_TRUE(findings[0].testo.startsWith("2 immagini restano sul web"))
        << findings[0].testo.toStdString();
}

TEST(RilieviHtml, anAddressOfAnyLengthIsShownShort) {
    const auto findings = RilieviHtml("<a href=\"" + QString(5000, 'x') + "\">1</a>");
    ASSERT_EQ(findings.size(), 1);
    EXPECT_LT(findings[0].testo.size(), 200);
}

TEST(RilieviCopia, aBodyAbove100KilobytesIsReported) {
    EXPECT_TRUE(RilieviCopia({QString(corpoMassimo, 'x'), {}, {}, {}}).isEmpty());
    EXPECT_EQ(
        count(RilieviCopia({QString(corpoMassimo + 1, 'x'), {}, {}, {}}), "lo tagliano", Peso::Attenzione),
        1);
    EXPECT_EQ(RilieviCopia({QString(corpoMassimo / 2 + 1, QChar(0xE0)), {}, {}, {}}).size(), 1);
}

TEST(RilieviCampi, tellCountFirstRowAndWeight) {
    SampleFolder folder;
    folder.addRecipients({{{"rgs", "A"}, {"email", "a@x.it"}, {"nom", "Anna"}, {"loc", "x"}},
                          {{"rgs", "B"}, {"email", "b@x.it"}, {"nom", QString()}, {"loc", "x"}},
                          {{"rgs", "C"}, {"email", "c@x.it"}, {"nom", "<i>"}, {"loc", ""}}});
    ControlloCampi check(UsiDi({":::nom::: :::loc:::", {}, {}, {}}));
    while (check.Avanza(std::chrono::milliseconds(1))) {
    }
    const auto findings = RilieviCampi(check);
    ASSERT_EQ(findings.size(), 3);
    EXPECT_EQ(count(findings, "\":::nom:::\" è vuoto per 1 di 3", Peso::Grave), 1);
    EXPECT_EQ(with(findings, "al posto del valore")[0].riga, 1);
    EXPECT_EQ(count(findings, "\":::loc:::\" è vuoto per 1 di 3", Peso::Attenzione), 1);
    EXPECT_EQ(with(findings, "cambiano il messaggio")[0].riga, 2);
}

TEST(PerPeso, theHeaviestComeFirstInTheirOrder) {
    const auto sorted =
        PerPeso({{Peso::Consiglio, "1"}, {Peso::Grave, "2"}, {Peso::Attenzione, "3"}, {Peso::Grave, "4"}});
    QString order;
    for (const Rilievo& one : sorted)
        order += one.testo;
    EXPECT_EQ(order, "2431");
}

}  // namespace rilievi_test
