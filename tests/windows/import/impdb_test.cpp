// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the Access import: listing, mapping, and what the walk over the records does.
#include "modules/store/NuovoDatabase.h"
#include "support/TestClass.h"
#include "windows/import/frmImpDB.h"

#include <QTimer>

#include "modules/import/campi.h"
#include "windows/import/impdb_stage.h"

namespace impdb_test {

using namespace testing_support;
using jet::Type;

namespace {

const QString noEmail = "Impossibile continuare.\r\nSelezionare almento un campo per l'email.";

const jet::Value nothing;

jet::Value words(const char* value) {
    return std::string(value);
}

}  // namespace

class TestImportDb : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void startsWithTheItalianTexts() {
        DbStage stage;
        QCOMPARE(stage.dialog().windowTitle(), " Importa destinatari da Database Access");
        const QHash<QString, QString> labels{{"lbl(0)", "Percorso Database:"},
                                             {"lbl(1)", "Tabelle esistenti:"},
                                             {"lbl(2)", "Come vuoi inserire i nuovi destinatari?"},
                                             {"lbl(3)", "Password Database:"}};
        for (auto label = labels.begin(); label != labels.end(); ++label)
            QCOMPARE(stage.control<QLabel>(label.key())->text(), label.value());
        QCOMPARE(stage.control<QPushButton>("cmdSfoglia")->text(), "Sfoglia");
        QCOMPARE(stage.control<QPushButton>("cmdApri")->text(), "Apri");
        QCOMPARE(stage.control<QPushButton>("cmdImportaDB")->text(), "&Importa destinatari");
        QCOMPARE(stage.control<QPushButton>("cmdChiudi")->text(), "&Chiudi");
        QVERIFY(!stage.enabled("cmdImportaDB"));
        QVERIFY(stage.control<QPushButton>("cmdApri")->isDefault());
        QCOMPARE(stage.control<QLineEdit>("txtPassword")->echoMode(), QLineEdit::Normal);
    }

    void openingListsTheTablesAndTheColumnsOfTheFirst() {
        DbStage stage;
        stage.addPeople({});
        stage.open();
        QCOMPARE(stage.tables(), QStringList({"Anagrafe", "tb_destinatari", "tb_gruppi"}));
        QCOMPARE(stage.control<QComboBox>("cmbTab")->currentIndex(), 0);
        for (int i = 0; i < 19; ++i) {
            QCOMPARE(DbStage::entries(*stage.box(i)), QStringList({" ---------- ", "mail", "nome"}));
            QCOMPARE(stage.box(i)->currentIndex(), 0);
        }
        QVERIFY(stage.enabled("cmdImportaDB"));
        QVERIFY(stage.control<QPushButton>("cmdImportaDB")->isDefault());
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
    }

    void choosingAnotherTableFillsTheBoxesAndTurnsTheImportOff() {
        DbStage stage;
        stage.addPeople({});
        stage.open();
        stage.feed(2, "mail");
        auto* tables = stage.control<QComboBox>("cmbTab");
        QTest::keyClick(tables, Qt::Key_Down);
        QTest::keyClick(tables, Qt::Key_Down);
        QCOMPARE(tables->currentText(), "tb_gruppi");
        QCOMPARE(DbStage::entries(*stage.box(18)), QStringList({" ---------- ", "id", "id_up", "nome"}));
        QCOMPARE(stage.box(2)->currentIndex(), 0);
        QVERIFY(!stage.enabled("cmdImportaDB"));
        QVERIFY(stage.control<QPushButton>("cmdApri")->isDefault());
        stage.click("cmdApri");
        QCOMPARE(tables->currentText(), "Anagrafe");
        QVERIFY(stage.enabled("cmdImportaDB"));
    }

    void aSourceThatCannotBeOpenedSaysWhyAndLeavesTheBoxesEmpty() {
        DbStage stage;
        stage.addPeople({});
        stage.open();
        stage.answerBox();
        stage.open(stage.folder.path("manca.mdb"));
        QCOMPARE(ui::MessageDialog::shown().size(), 1);
        const auto& box = ui::MessageDialog::shown()[0];
        ado::Connection connection;
        const Status status = connection.open(
            "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + stage.folder.path("manca.mdb") + ";");
        QVERIFY(!status.text().isEmpty());
        QCOMPARE(box.text, status.text());
        QCOMPARE(box.style, 64);
        QCOMPARE(box.title, "Attenzione");
        QCOMPARE(stage.tables(), QStringList());
        for (int i = 0; i < 19; ++i)
            QCOMPARE(stage.box(i)->count(), 0);
        QVERIFY(!stage.enabled("cmdImportaDB"));
        QVERIFY(!QApplication::overrideCursor());
    }

    void aWrongPasswordSaysSoAndLeavesTheBoxesEmptyUntilTheRightOneIsGiven() {
        DbStage stage;
        stage.addPeople({{words("a@x.it"), words("Anna")}});
        jettables::setPassword(stage.source().toStdString(), u"Segreta");
        for (const char* password : {"", "segreta", "Segreta1"}) {
            ui::MessageDialog::reset();
            stage.answerBox();
            stage.open(stage.source(), password);
            QVERIFY(stage.oneBox("Password non valida.", 64));
            QCOMPARE(stage.tables(), QStringList());
            for (int i = 0; i < 19; ++i)
                QCOMPARE(stage.box(i)->count(), 0);
            QVERIFY(!stage.enabled("cmdImportaDB"));
        }
        stage.chooseNode();
        stage.open(stage.source(), "Segreta");
        stage.feed(2, "mail");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::inserted("email"), QStringList("a@x.it"));
    }

    void withoutABoxForTheAddressNothingIsImported() {
        DbStage stage;
        stage.addPeople({{words("a@x.it"), words("Anna")}});
        stage.open();
        stage.feed(1, "nome");
        stage.answerBox();
        stage.click("cmdImportaDB");
        QVERIFY(stage.oneBox(noEmail, 64));
        QCOMPARE(DbStage::recipients(), 0);
        QVERIFY(stage.dialog().isVisible());
    }

    void onlyTheAddressMappedInsertsRowsWithEverythingElseEmpty() {
        DbStage stage;
        stage.addPeople({{words("a@x.it"), words("Anna")}, {words("b@x.it"), words("Bruno")}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::inserted("email"), QStringList({"a@x.it", "b@x.it"}));
        for (const char* column : {"rgs", "nom", "piva", "ind", "campo9"})
            QCOMPARE(DbStage::inserted(column), QStringList({"", ""}));
        QCOMPARE(DbStage::inserted("id_grp"), QStringList({"1", "1"}));
        QCOMPARE(DbStage::inserted("sel"), QStringList({"Vero", "Vero"}));
        QVERIFY(!finestre::ImpDB().isVisible());
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QCOMPARE(stage.faults(), QStringList());
    }

    void eachBoxFeedsItsColumnAsFarAsItGoes() {
        DbStage stage;
        DbStage::Columns columns{{"mail", Type::Text, 100}};
        DbStage::Row row{words("a@x.it")};
        for (int i = 0; i < 19; ++i) {
            columns.push_back({"c" + std::to_string(i), Type::Memo});
            row.push_back(nothing);
        }
        stage.addTable("Anagrafe", columns, {});
        const std::vector<QString> names{"rgs",    "nom",    "email",  "piva",   "cap",    "loc",    "prov",
                                         "ind",    "tel",    "fax",    "campo1", "campo2", "campo3", "campo4",
                                         "campo5", "campo6", "campo7", "campo8", "campo9"};
        const QList<int> limits{70,  70,  70,  15,  10,  70,  2,   255, 15, 15,
                                255, 255, 255, 255, 255, 255, 255, 255, 255};
        jettables::addRow(stage.source().toStdString(), "Anagrafe", row);
        QString shown;
        for (int i = 0; i < 300; ++i)
            shown += QChar('a' + i % 26);
        for (int i = 0; i < 19; ++i) {
            const std::string bytes = shown.toStdString();
            jet::Bytes wide;
            for (const char letter : bytes) {
                wide.push_back(static_cast<uint8_t>(letter));
                wide.push_back(0);
            }
            auto file = esigi(jet::Database::open(stage.source().toStdString()));
            jet::RowId id;
            esigi(esigi(file->table("Anagrafe"))->scan([&](jet::RowId found, const jet::RowView&) {
                id = found;
                return true;
            }));
            file.reset();
            jettables::setLongValue(stage.source().toStdString(), "Anagrafe", id, static_cast<size_t>(i + 1),
                                    wide, jettables::Place::OneRow);
        }
        stage.chooseNode();
        stage.open();
        for (int i = 0; i < 19; ++i)
            stage.feed(i, i == 2 ? "mail" : QString("c%1").arg(i));
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::recipients(), 1);
        for (int i = 0; i < 19; ++i)
            QCOMPARE(DbStage::inserted(names[static_cast<size_t>(i)])[0],
                     i == 2 ? QString("a@x.it") : shown.left(limits[i]));
    }

    void addressIsCutAt70Characters() {
        DbStage stage;
        const std::string fits = std::string(63, 'a') + "@xx.com";
        stage.addPeople({{fits, words("")}, {"b" + fits, words("")}, {"bbb" + fits, words("")}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.click("cmdImportaDB");
        const QString whole = QString::fromStdString(fits);
        QCOMPARE(whole.size(), 70);
        QCOMPARE(DbStage::inserted("email"), QStringList({whole, "b" + whole.chopped(1)}));
    }

    void valuesOfEveryTypeAreWrittenAsTheUserWritesThem_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("first");
        QTest::addColumn<QStringList>("second");
        QTest::newRow("Italian") << "it_IT" << QStringList{"Vero",   "7",   "-3",      "1234567",
                                                           "1234,5", "0,5", "1234,25", "15/03/2023 12:00:00"}
                                 << QStringList{"Falso", "0", "0", "0", "0", "0", "0", "15/03/2023"};
        QTest::newRow("American") << "en_US"
                                  << QStringList{"True",   "7",   "-3",      "1234567",
                                                 "1234.5", "0.5", "1234.25", "3/15/2023 12:00:00 PM"}
                                  << QStringList{"False", "0", "0", "0", "0", "0", "0", "3/15/2023"};
    }
    void valuesOfEveryTypeAreWrittenAsTheUserWritesThem() {
        QFETCH(QString, locale);
        DbStage stage;
        QLocale::setDefault(QLocale(locale));
        stage.addTable("Anagrafe",
                       {{"mail", Type::Text, 50},
                        {"attivo", Type::YesNo},
                        {"byte", Type::Byte},
                        {"intero", Type::Integer},
                        {"lungo", Type::Long},
                        {"valuta", Type::Currency},
                        {"singolo", Type::Single},
                        {"doppio", Type::Double},
                        {"data", Type::Date}},
                       {{words("a@x.it"), true, int64_t{7}, int64_t{-3}, int64_t{1234567},
                         jet::Currency{12345000}, 0.5, 1234.25, jet::Date{45000.5}},
                        {words("b@x.it"), false, int64_t{0}, int64_t{0}, int64_t{0}, jet::Currency{}, 0.0,
                         0.0, jet::Date{45000}}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        const QStringList columns{"attivo", "byte", "intero", "lungo", "valuta", "singolo", "doppio", "data"};
        for (int i = 0; i < columns.size(); ++i)
            stage.feed(10 + i, columns[i]);
        stage.click("cmdImportaDB");
        QStringList first;
        QStringList second;
        for (int i = 1; i <= 8; ++i) {
            first << DbStage::inserted(QString("campo%1").arg(i))[0];
            second << DbStage::inserted(QString("campo%1").arg(i))[1];
        }
        QTEST(first, "first");
        QTEST(second, "second");
    }

    void nullKeepsTheValueOfTheRecordBefore() {
        DbStage stage;
        stage.addPeople({{nothing, words("Primo")},
                         {words("a@x.it"), words("Anna")},
                         {words("b@x.it"), nothing},
                         {nothing, words("Carlo")},
                         {words("sbagliato"), words("Dora")},
                         {nothing, words("Elio")}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.feed(1, "nome");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::inserted("email"), QStringList({"a@x.it", "b@x.it", "b@x.it"}));
        QCOMPARE(DbStage::inserted("nom"), QStringList({"Anna", "Anna", "Carlo"}));
    }

    void binaryDataKeepTheValueOfTheRecordBeforeToo() {
        DbStage stage;
        stage.addTable("Anagrafe", {{"mail", Type::Text, 50}, {"foto", Type::Binary, 20}},
                       {{words("a@x.it"), jet::Bytes{1, 2, 3}}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.feed(1, "foto");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::inserted("nom"), QStringList({""}));
    }

    void aQuoteInAValueLeavesThatRecordOut() {
        DbStage stage;
        stage.addPeople({{words("a@x.it"), words("Anna")},
                         {words("b@x.it"), words("D'Angelo")},
                         {words("c@x.it"), words(" Caffè \"Roma\" ")}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.feed(1, "nome");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::inserted("email"), QStringList({"a@x.it", "c@x.it"}));
        QCOMPARE(DbStage::inserted("nom"), QStringList({"Anna", " Caffè \"Roma\" "}));
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
    }

    void aBadAddressIsSkippedAndNotTrimmed() {
        DbStage stage;
        stage.addPeople({{words(" a@x.it"), words("")},
                         {words("\"b@x.it\""), words("")},
                         {words("c@x.museum"), words("")},
                         {words("d@x.it"), words("")}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::inserted("email"), QStringList({"d@x.it"}));
    }

    void onlySystemTablesLeadToAnEmptyListAndAnImportThatStopsAtOnce() {
        DbStage stage;
        esigi(schema::CreaDatabase(stage.source().toStdString()));
        QFile file(stage.source());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        for (const auto& [from, to] :
             {std::pair{"tb_destinatari", "mSyS_stinatari"}, {"tb_gruppi", "MSysuppi_"}}) {
            QByteArray wide;
            QByteArray wideTo;
            for (const char* letter = from; *letter; ++letter)
                wide.append(*letter).append('\0');
            for (const char* letter = to; *letter; ++letter)
                wideTo.append(*letter).append('\0');
            bytes.replace(wide, wideTo).replace(from, to);
        }
        QVERIFY(file.seek(0));
        QCOMPARE(file.write(bytes), bytes.size());
        file.close();
        stage.chooseNode();
        stage.open();
        QCOMPARE(stage.tables(), QStringList());
        QCOMPARE(stage.box(2)->count(), 0);
        QVERIFY(stage.enabled("cmdImportaDB"));
        stage.answerBox();
        stage.click("cmdImportaDB");
        QVERIFY(stage.oneBox(noEmail, 64));
    }

    void aTableNameWithAClosingBracketBreaksTheSourceText() {
        DbStage stage;
        stage.addTable("Anagrafe]", {{"mail", Type::Text, 50}}, {{words("a@x.it")}});
        stage.chooseNode();
        stage.open();
        QCOMPARE(stage.tables()[0], "Anagrafe]");
        stage.feed(2, "mail");
        stage.click("opt(1)");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::recipients(), 0);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Nuova cartella)");
        QVERIFY(!finestre::ImpDB().isVisible());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
    }

    void aFailingSourceStopsBeforeTheNewGroupIsMade() {
        DbStage stage;
        stage.addPeople({{words("a@x.it"), words("Anna")}});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.click("opt(1)");
        ado::closeAll();
        QVERIFY(QFile::remove(stage.source()));
        stage.answerBox();
        stage.click("cmdImportaDB");
        QCOMPARE(ui::MessageDialog::shown().size(), 1);
        QCOMPARE(ui::MessageDialog::shown()[0].style, 64);
        QCOMPARE(ui::MessageDialog::shown()[0].title, "Attenzione");
        QCOMPARE(DbStage::groupsInTable(), 1);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti)");
        QVERIFY(stage.dialog().isVisible());
        QVERIFY(!QApplication::overrideCursor());
    }

    void anEmptyTableLeavesTheNewGroupEmpty() {
        DbStage stage;
        stage.addPeople({});
        stage.chooseNode();
        stage.open();
        stage.feed(2, "mail");
        stage.click("opt(1)");
        stage.type("txtCartella", "Fiera d'autunno");
        stage.click("cmdImportaDB");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Fiera d'autunno)");
        QCOMPARE(DbStage::recipients(), 0);
        QVERIFY(!finestre::ImpDB().isVisible());
    }

    void selectedGroupBeforeAnyClickShowsTheTwoLinesAndStops() {
        DbStage stage;
        stage.addPeople({{words("a@x.it"), words("Anna")}});
        stage.open();
        stage.feed(2, "mail");
        stage.answerBox();
        stage.click("cmdImportaDB");
        QVERIFY(stage.oneBox(
            "Impossibile continuare.\r\nSelezionare una cartella dove aggiungere i destinatari.", 64));
        QCOMPARE(DbStage::recipients(), 0);
        QVERIFY(stage.dialog().isVisible());
        QVERIFY(!QApplication::overrideCursor());
    }

    void newGroupGetsTheRows() {
        DbStage stage;
        stage.addPeople({{words("a@x.it"), words("Anna")}});
        stage.open();
        stage.feed(2, "mail");
        stage.click("opt(1)");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::inserted("id_grp"),
                 QStringList(DbStage::look("SELECT id FROM [tb_gruppi] WHERE nome = 'Nuova cartella' ;")));
    }

    void isLeftByItsOwnButtonOnlyAndKeepsItsFields() {
        DbStage stage;
        stage.addPeople({});
        stage.open(stage.source(), "segreta");
        stage.feed(2, "mail");
        QVERIFY(!stage.dialog().close());
        QTest::keyClick(&stage.dialog(), Qt::Key_Escape);
        QVERIFY(stage.dialog().isVisible());
        stage.click("cmdChiudi");
        QVERIFY(!finestre::ImpDB().isVisible());
        QCOMPARE(stage.control<QLineEdit>("txtDatabase")->text(), stage.source());
        QCOMPARE(stage.control<QLineEdit>("txtPassword")->text(), "segreta");
        QCOMPARE(stage.box(2)->currentText(), "mail");
    }

    void theRecipientsThemselvesCanBeTheSource() {
        DbStage stage;
        for (int i = 0; i < 40; ++i)
            stage.addRecipient(1, QString("Ditta %1").arg(i), QString("n%1@x.it").arg(i));
        stage.chooseNode();
        stage.open(stage.folder.database());
        QCOMPARE(stage.tables()[0], "tb_destinatari");
        stage.feed(2, "email");
        stage.feed(0, "rgs");
        stage.click("cmdImportaDB");
        QCOMPARE(DbStage::recipients(), 80);
        QCOMPARE(stage.faults(), QStringList());
    }
};

TEST_CLASS(TestImportDb);

}  // namespace impdb_test

#include "impdb_test.moc"
