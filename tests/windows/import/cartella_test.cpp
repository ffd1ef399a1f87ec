// SPDX-License-Identifier: GPL-3.0-or-later
// The small window that asks for the group, and what the choice of the group does.
#include "windows/import/cartella.h"
#include "support/TestClass.h"

#include "modules/store/RecordsetDB.h"
#include "windows/entry/Vicini.h"
#include "windows/import/frmScelta.h"
#include "windows/import/import_stage.h"

namespace cartella_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

QDialog& scelta() {
    return finestre::Scelta();
}

class Stage : public ImportStage {
  public:
    Stage() : ImportStage(scelta) {}
    frmScelta& form() { return static_cast<frmScelta&>(dialog()); }
};

std::optional<QString> choose(const cartella::Scelta& choice) {
    ado::Recordset rs = RecordsetDB();
    return cartella::Scegli(choice, rs, cartella::avvisoCartella, cartella::senzaGuardia,
                            finestre::IntornoAgliImport().NuovoNodo);
}

}  // namespace

class TestImportCartella : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void startsWithTheSelectedGroupAndTheItalianTexts() {
        Stage stage;
        QCOMPARE(stage.form().windowTitle(), " Nuovi destinatari");
        QCOMPARE(stage.control<QLabel>("lbl")->text(), "Come vuoi inserire i nuovi destinatari?");
        QCOMPARE(stage.control<QRadioButton>("opt(0)")->text(),
                 "Aggiungi i destinatari nella cartella selezionata.");
        QCOMPARE(stage.control<QRadioButton>("opt(1)")->text(),
                 "Aggiungi i destinatari in una nuova cartella.");
        QCOMPARE(stage.control<QPushButton>("cmdOK")->text(), "&OK");
        QCOMPARE(stage.control<QPushButton>("cmdAnnulla")->text(), "&Annulla");
        QCOMPARE(stage.control<QLineEdit>("txtCartella")->text(), "Nuova cartella");
        QVERIFY(stage.control<QRadioButton>("opt(0)")->isChecked());
        QVERIFY(!stage.enabled("txtCartella"));
        QVERIFY(stage.control<QPushButton>("cmdOK")->isDefault());
    }

    void aRemovedGroupCountsAsNone() {
        Stage stage;
        nodoCorrente = Nodo{"K7", "Tolta"};
        MessageDialog::queue(MessageDialog::Ok);
        QCOMPARE(choose({true, {}}), std::optional<QString>());
        QCOMPARE(MessageDialog::shown().size(), 1);
        QCOMPARE(MessageDialog::shown()[0].text, "Selezionare una cartella dove aggiungere i destinatari.");
        nodoCorrente = Nodo{"K1", "Clienti"};
        QCOMPARE(choose({true, {}}), std::optional<QString>("1"));
        nodoCorrente = Nodo{"K0", "Database Mailing"};
        QCOMPARE(choose({true, {}}), std::optional<QString>("0"));
    }

    void nameIsEnabledExactlyWithTheSecondOption() {
        Stage stage;
        stage.click("opt(1)");
        QVERIFY(stage.enabled("txtCartella"));
        stage.click("opt(1)");
        QVERIFY(stage.enabled("txtCartella"));
        stage.click("opt(0)");
        QVERIFY(!stage.enabled("txtCartella"));
    }

    void okReportsTheChoiceAndHides() {
        Stage stage;
        stage.click("cmdOK");
        QVERIFY(!finestre::Scelta().isVisible());
        QVERIFY(finestre::Scelta().cartellaSelezionata);
        QVERIFY(!finestre::Scelta().sceltaAnnullata);
        stage.click("opt(1)");
        stage.type("txtCartella", "Fiera");
        stage.click("cmdOK");
        QVERIFY(!finestre::Scelta().isVisible());
        QVERIFY(!finestre::Scelta().cartellaSelezionata);
        QCOMPARE(finestre::Scelta().Scelta().nuova, "Fiera");
    }

    void cancelStopsAndLeavesTheChoiceAsItWas() {
        Stage stage;
        stage.click("cmdOK");
        stage.click("opt(1)");
        stage.click("cmdAnnulla");
        QVERIFY(!finestre::Scelta().isVisible());
        QVERIFY(finestre::Scelta().sceltaAnnullata);
        QVERIFY(finestre::Scelta().cartellaSelezionata);
        QVERIFY(finestre::Scelta().Scelta().selezionata);
    }

    void isLeftByItsTwoButtonsOnlyAndKeepsChoiceAndName() {
        Stage stage;
        stage.click("opt(1)");
        stage.type("txtCartella", "Fiera");
        QVERIFY(!stage.form().close());
        QVERIFY(stage.form().isVisible());
        QTest::keyClick(&stage.form(), Qt::Key_Escape);
        QVERIFY(stage.form().isVisible());
        stage.click("cmdOK");
        QVERIFY(stage.control<QRadioButton>("opt(1)")->isChecked());
        QCOMPARE(stage.control<QLineEdit>("txtCartella")->text(), "Fiera");
        QVERIFY(stage.enabled("txtCartella"));
    }

    void nameIsCalledAfterItsOptionInTheLanguageInUse() {
        Stage stage;
        QCOMPARE(stage.control<QLineEdit>("txtCartella")->accessibleName(),
                 "Aggiungi i destinatari in una nuova cartella.");
        stage.form().hide();
        stage.control<QRadioButton>("opt(1)")->setText("Add the recipients to a new folder.");
        stage.form().hide();
        QCOMPARE(stage.control<QLineEdit>("txtCartella")->accessibleName(),
                 "Add the recipients to a new folder.");
    }

    void enterConfirms() {
        Stage stage;
        QTest::keyClick(&stage.form(), Qt::Key_Return);
        QVERIFY(!finestre::Scelta().isVisible());
        QVERIFY(!finestre::Scelta().sceltaAnnullata);
    }

    void optionsHaveTheBackgroundOfTheTheme() {
        Stage stage;
        for (const char* name : {"opt(0)", "opt(1)"})
            QCOMPARE(stage.control<QRadioButton>(name)->palette().color(QPalette::Window),
                     stage.form().palette().color(QPalette::Window));
    }

    void aNameLongerThanTheColumnCannotBeTyped() {
        Stage stage;
        stage.window();
        stage.click("opt(1)");
        auto* name = stage.control<QLineEdit>("txtCartella");
        name->selectAll();
        name->insert(QString(300, 'n'));
        const QString id = choose({false, name->text()}).value();
        QCOMPARE(Stage::look("SELECT nome FROM [tb_gruppi] WHERE id = " + id + " ;"), QString(255, 'n'));
    }

    void aNameLongerThanTheColumnOfThisDatabaseCannotBeTyped() {
        Stage stage;
        stage.folder.narrowGroupNames(20);
        stage.window();
        stage.form().hide();
        stage.form().show();
        stage.click("opt(1)");
        auto* name = stage.control<QLineEdit>("txtCartella");
        QCOMPARE(name->text(), "Nuova cartella");
        name->insert(QString(300, 'n'));
        const QString id = choose({false, name->text()}).value();
        QCOMPARE(Stage::look("SELECT nome FROM [tb_gruppi] WHERE id = " + id + " ;").size(), 20);
    }

    void selectedGroupIsTheCurrentNode() {
        Stage stage;
        stage.window();
        stage.clickNode("K1");
        QCOMPARE(choose({true, "Fiera"}).value(), "1");
        QCOMPARE(Stage::groupsInTable(), 1);
    }

    void rootReturnsZero() {
        Stage stage;
        stage.window();
        stage.clickNode("K0");
        QCOMPARE(choose({true, "Fiera"}).value(), "0");
    }

    void selectedGroupBeforeAnyClickShowsTheMessageAndCreatesNothing() {
        Stage stage;
        stage.window();
        MessageDialog::queue(MessageDialog::Ok);
        QVERIFY(!choose({true, "Fiera"}));
        QVERIFY(stage.oneBox("Selezionare una cartella dove aggiungere i destinatari.", 64));
        QCOMPARE(Stage::groupsInTable(), 1);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti)");
    }

    void newGroupIsAtTheTopLevelWhateverIsSelected() {
        Stage stage;
        stage.window();
        stage.clickNode("K1");
        const QString id = choose({false, "Fiera"}).value();
        QCOMPARE(Stage::look("SELECT id_up FROM [tb_gruppi] WHERE id = " + id + " ;"), "0");
        QCOMPARE(Stage::look("SELECT nome FROM [tb_gruppi] WHERE id = " + id + " ;"), "Fiera");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Fiera)");
        QVERIFY(stage.tree().Node('K' + id));
        QCOMPARE(nodoCorrente->Key, "K1");
    }

    void newGroupNamedLikeAnExistingOneIsASecondOne() {
        Stage stage;
        stage.window();
        const QString id = choose({false, "Clienti"}).value();
        QVERIFY(id != "1");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Clienti)");
    }

    void quotesInTheNameAreHarmless() {
        Stage stage;
        stage.window();
        const QString id = choose({false, "Caffe' \"D'Angelo\""}).value();
        QCOMPARE(Stage::look("SELECT nome FROM [tb_gruppi] WHERE id = " + id + " ;"), "Caffe' \"D'Angelo\"");
    }

    void anEmptyNameIsANameToo() {
        Stage stage;
        stage.window();
        const QString id = choose({false, ""}).value();
        QCOMPARE(Stage::look("SELECT nome FROM [tb_gruppi] WHERE id = " + id + " ;"), "");
    }

    void aCarryOnImportContinuesWhereTheGroupCannotBeMade() {
        Stage stage;
        stage.window();
        ado::Recordset rs = RecordsetDB();
        stage.folder.hideDatabase();
        ado::closeAll();
        Prosegui prosegui;
        const auto gruppo = cartella::Scegli({false, "Fiera"}, rs, cartella::avvisoCartella,
                                             std::ref(prosegui), finestre::IntornoAgliImport().NuovoNodo);
        QCOMPARE(gruppo.value(), "0");
        QVERIFY(prosegui.numero() != 0);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti)");
        stage.folder.showDatabase();
    }
};

TEST_CLASS(TestImportCartella);

}  // namespace cartella_test

#include "cartella_test.moc"
