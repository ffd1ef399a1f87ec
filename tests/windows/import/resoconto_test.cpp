// SPDX-License-Identifier: GPL-3.0-or-later
// What each import but the text import notes of its lines.
#include "modules/import/UltimaImportazione.h"
#include "support/TestClass.h"
#include "windows/import/contatti_stage.h"
#include "windows/import/impdb_stage.h"

namespace resoconto_test {

using namespace testing_support;

namespace {

/// "1 +a@x.it" for an imported line, "2 -testo: motivo" for a refused one.
QStringList noted() {
    QStringList lines;
    for (const UltimaImportazione::Riga& line : ultimaImportazione().Righe())
        lines << QString::number(line.numero) + (line.importata ? " +" : " -") + line.testo +
                     (line.importata ? QString() : ": " + line.motivo);
    return lines;
}

}  // namespace

class TestResoconto : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void addressBook() {
        ContactStage stage;
        stage.writeCards(
            "BEGIN:VCARD\nFN:Ada\nEMAIL:ada@example.it\nEND:VCARD\n"
            "BEGIN:VCARD\nFN:Eva\nEMAIL:eva+noi@example.it\nEND:VCARD\n");
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        QCOMPARE(ultimaImportazione().Origine(), QString("rubrica"));
        QCOMPARE(noted(),
                 (QStringList{"1 +ada@example.it", "2 -eva+noi@example.it: L'indirizzo non è valido"}));
        QCOMPARE(ultimaImportazione().Scritte(), 1);
    }

    void outlookReportsShortAddressesAndRefusedStatements() {
        ContactStage stage;
        stage.writeHelper("{\"count\":4}\n" + contactLine("ada@example.it", "Ada") +
                          contactLine("a@b.c", "Corta") + contactLine("eva@example.it", "L'Eva") + "{}\n");
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(ultimaImportazione().Origine(), QString("contatti di Outlook"));
        QCOMPARE(ultimaImportazione().Importate(), 1);
        QCOMPARE(ultimaImportazione().Rifiutate(), 3);
        QCOMPARE(ultimaImportazione().Scritte(), 1);
        const QStringList lines = noted();
        QCOMPARE(lines[0], QString("1 +ada@example.it"));
        QVERIFY(lines[2].startsWith("3 -eva@example.it: "));
        QVERIFY(lines[2].size() > QString("3 -eva@example.it: ").size());
        QCOMPARE(lines[3], QString("4 -: Non è un contatto"));
        QCOMPARE(stage.inserted("email"), QStringList{"ada@example.it"});
    }

    void accessDatabase() {
        DbStage stage;
        stage.addPeople(
            {{std::string("ada@example.it"), std::string("Ada")}, {std::string("eva"), std::string("Eva")}});
        stage.window();
        stage.clickNode("K1");
        stage.open();
        stage.feed(2, "mail");
        stage.click("cmdImportaDB");
        QCOMPARE(ultimaImportazione().Origine(), QString("tabella \"Anagrafe\" di sorgente.mdb"));
        QCOMPARE(noted(), (QStringList{"1 +ada@example.it", "2 -eva: Nell'indirizzo manca \"@\""}));
    }

    void anImportThatWasGivenUpLeavesTheOneBefore() {
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpOE");
        stage.import("cmdMailingImpOE", "cmdAnnulla");
        QCOMPARE(ultimaImportazione().Importate(), 2);
    }
};

TEST_CLASS(TestResoconto);

}  // namespace resoconto_test

#include "resoconto_test.moc"
