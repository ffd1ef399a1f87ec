// SPDX-License-Identifier: GPL-3.0-or-later
// The recipient commands of the pop-up menus.
#include <QLabel>
#include <QLineEdit>

#include "platform/ui/PropertyList.h"
#include "support/TestClass.h"
#include "windows/store/griglia_stage.h"

namespace griglia_destinatari_test {

using namespace testing_support;
using ui::MessageDialog;

class TestGrigliaDestinatari : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void newRecipientOpensTheEmptyFormForTheGroup() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.clickNode("K" + QString::number(b));
        bool seen = false;
        stage.whenFormOpens([&](frmDestinatario& form) {
            seen = true;
            QCOMPARE(form.windowTitle(), "Aggiungi destinatario ");
            QCOMPARE(form.lbl->text(), "Aggiungi destinatario");
            QCOMPARE(form.txtIDgroup->text(), QString::number(b));
            QCOMPARE(form.txtIDuser->text(), "0");
            QCOMPARE(int(form.modo), 0);
            QCOMPARE(form.prp->Item("Email")->Value().toString(), "");
            QCOMPARE(form.prp->Item("Spedire")->Value().toBool(), true);
            QVERIFY(form.isModal());
            QCOMPARE(form.parentWidget(), &stage.window());
        });
        stage.command("cmdPopMailingUserNew");
        QVERIFY(seen);
        QVERIFY(!stage.form().isVisible());
    }

    void editedRecipientIsLoadedIntoTheForm() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        const int id = stage.addRecipient(1, "Beta", "b@x.it", false);
        stage.clickNode("K1");
        stage.clickCell(2, 5);
        bool seen = false;
        stage.whenFormOpens([&](frmDestinatario& form) {
            seen = true;
            QCOMPARE(form.windowTitle(), "Modifica destinatario ");
            QCOMPARE(form.lbl->text(), "Modifica destinatario");
            QCOMPARE(form.txtIDgroup->text(), "1");
            QCOMPARE(form.txtIDuser->text(), QString::number(id));
            QCOMPARE(int(form.modo), 1);
            QCOMPARE(form.prp->Item("RagioneSociale")->Value().toString(), "Beta");
            QCOMPARE(form.prp->Item("Spedire")->Value().toBool(), false);
        });
        stage.command("cmdPopMailingUserMod");
        QVERIFY(seen);
    }

    void returnInTheGridOpensTheRecipient() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.grd().setFocus();
        bool seen = false;
        stage.whenFormOpens([&](frmDestinatario&) { seen = true; });
        QTest::keyClick(&stage.grd(), Qt::Key_Return);
        QVERIFY(seen);
    }

    void insertInTheTreeOpensANewRecipient() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.tree().setFocus();
        int mode = -1;
        stage.whenFormOpens([&](frmDestinatario& form) { mode = form.modo; });
        QTest::keyClick(&stage.tree(), Qt::Key_Insert);
        QCOMPARE(mode, 0);
    }

    void recipientThatWentAwayEndsTheProgram() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        SampleFolder::run("DELETE FROM [tb_destinatari];");
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingUserMod");
        QVERIFY(stage.failure().startsWith("Errore 3021:"));
        QCOMPARE(stage.ends, QList<int>{1});
    }

    void deleteAsksAndKeepsTheRecipientOnNo() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::No);
        stage.command("cmdPopMailingUserDel");
        QVERIFY(
            stage.oneBox("Sicuro di voler cancellare questo destinatario?\r\nOperazione irreversibile.", 68));
        QCOMPARE(MessageDialog::shown().constLast().defaultAnswer, int(MessageDialog::No));
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        QCOMPARE(stage.grd().Rows(), 2);
    }

    void deleteTakesTheCurrentRowOutOfTableAndGrid() {
        StoreStage stage;
        for (const char* name : {"Alfa", "Beta", "Gamma"})
            stage.addRecipient(1, name);
        stage.clickNode("K1");
        stage.clickCell(2, 5);
        SampleFolder::run("UPDATE [tb_destinatari] SET rgs = 'Cambiato' WHERE rgs = 'Alfa';");
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingUserDel");
        QCOMPARE(StoreStage::count("tb_destinatari", "rgs = 'Beta'"), 0);
        QCOMPARE(stage.columnOfGrid(5), QStringList({"Alfa", "Gamma"}));
    }

    void deleteOfTheLastRowLeavesTheHeadings() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingUserDel");
        QCOMPARE(stage.grd().Rows(), 1);
        QCOMPARE(stage.grd().TextMatrix(0, 3), "Email");
        QCOMPARE(stage.grd().Row(), 0);
    }

    void deleteWithoutARowTouchesNobody() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K0");
        QCOMPARE(stage.grd().Row(), 0);
        MessageDialog::queue(MessageDialog::Yes);
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingUserDel");
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        QVERIFY(stage.failure().startsWith("Errore 13:"));
    }
};

TEST_CLASS(TestGrigliaDestinatari);

}  // namespace griglia_destinatari_test

#include "griglia_destinatari_test.moc"
