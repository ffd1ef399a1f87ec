// SPDX-License-Identifier: GPL-3.0-or-later
// The tree: how it is built, what a click does, labels and pop-up menus.
#include <QLineEdit>

#include "platform/ui/GroupTreeItem.h"
#include "support/TestClass.h"
#include "windows/store/griglia_stage.h"

namespace gruppi_albero_test {

using namespace testing_support;

class TestGruppiAlbero : public QObject {
    Q_OBJECT

    static QLineEdit* editor(StoreStage& stage) { return stage.tree().viewport()->findChild<QLineEdit*>(); }
    static void typeLabel(StoreStage& stage, const QString& text) {
        QLineEdit* line = editor(stage);
        QVERIFY(line);
        line->setText(text);
        QTest::keyClick(line, Qt::Key_Return);
        QCoreApplication::processEvents();
    }

  private Q_SLOTS:
    void emptyTableShowsTheRootAloneExpanded() {
        StoreStage stage;
        SampleFolder::run("DELETE FROM [tb_gruppi];");
        QCOMPARE(stage.tree().Count(), 1);
        const ui::GroupNodeRef root = stage.tree().Node("K0");
        QCOMPARE(root->Text(), "Database Mailing");
        QVERIFY(stage.tree().topLevelItem(0)->isExpanded());
        QVERIFY(!nodoCorrente);
    }

    void rootAndGroupsHaveTheirImages() {
        StoreStage stage;
        const auto images = [](QTreeWidgetItem* item) {
            const auto* node = static_cast<ui::GroupTreeItem*>(item);
            return QStringList{node->image(false), node->image(true)};
        };
        QTreeWidgetItem* root = stage.tree().topLevelItem(0);
        stage.clickNode("K0");
        stage.command("cmdPopMailingNew");
        QCOMPARE(images(root), (QStringList{"Mailing", "Mailing"}));
        QCOMPARE(root->childCount(), 2);
        for (const int child : {0, 1})
            QCOMPARE(images(root->child(child)), (QStringList{"Close", "Open"}));
    }

    void formFillsItsPaneWithTheTree() {
        StoreStage stage;
        QCOMPARE(stage.groups().windowTitle(), "Gruppi mailing");
        QCOMPARE(stage.window().DockWindows().DockWindows("dckGruppi")->content(), &stage.groups());
        stage.window().resize(900, 700);
        QTest::qWait(0);
        QCOMPARE(stage.tree().geometry(), stage.groups().rect());
        QCOMPARE(stage.tree().objectName(), "TREE");
    }

    void topLevelComesSortedByName() {
        StoreStage stage;
        stage.addGroup(0, "Agenzie");
        const int z = stage.addGroup(0, "Zeta");
        stage.addGroup(z, "Sotto");
        stage.addGroup(0, "bianchi");
        QCOMPARE(stage.shape(), "Database Mailing(Agenzie, bianchi, Clienti, Zeta)");
    }

    void keyOfAGroupIsKAndItsNumber() {
        StoreStage stage;
        const int id = stage.addGroup(0, "Zeta");
        QCOMPARE(stage.tree().Node("K" + QString::number(id))->Text(), "Zeta");
    }

    void clickLoadsOneLevelAndFillsTheGrid() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        stage.addGroup(1, "A");
        stage.addGroup(b, "Sotto B");
        stage.addRecipient(1, "Zeta");
        stage.addRecipient(1, "Alfa");
        stage.addRecipient(b, "Altro");
        stage.clickNode("K1");
        QCOMPARE(stage.shape("K1"), "Clienti(A, B)");
        QCOMPARE(stage.columnOfGrid(5), QStringList({"Alfa", "Zeta"}));
        QCOMPARE(nodoCorrente->Key, "K1");
        QCOMPARE(nodoCorrente->Text, "Clienti");
        QCOMPARE(stage.tree().DropHighlight()->Key(), "K1");
    }

    void levelIsNeverLoadedAgain() {
        StoreStage stage;
        stage.addGroup(1, "A");
        stage.clickNode("K1");
        stage.addGroup(1, "Nuova da altri");
        stage.clickNode("K1");
        QCOMPARE(stage.shape("K1"), "Clienti(A)");
        stage.groups().CaricaGruppiINI();
        stage.clickNode("K1");
        QCOMPARE(stage.shape("K1"), "Clienti(A, Nuova da altri)");
    }

    void clickOnTheRootLoadsNothingTwiceAndShowsRecipientsWithoutAGroup() {
        StoreStage stage;
        stage.addRecipient(0, "Senza gruppo");
        stage.clickNode("K0");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti)");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Senza gruppo"));
    }

    void clickIntoEmptySpaceRepeatsTheClickOnTheSelectedNode() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.addRecipient(1, "Nuovo");
        mouse::click(&stage.tree(), stage.emptySpace());
        QCOMPARE(stage.columnOfGrid(5), QStringList("Nuovo"));
        QCOMPARE(nodoCorrente->Key, "K1");
    }

    void clickIntoEmptySpaceBeforeAnyOtherDoesNothing() {
        StoreStage stage;
        mouse::click(&stage.tree(), stage.emptySpace());
        QVERIFY(!nodoCorrente);
        QVERIFY(stage.ends.isEmpty());
    }

    void clickThatCannotFillTheGridSaysSoOverItAndItsKeysRest() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        const int alfa = stage.addRecipient(1, "Alfa");
        stage.addRecipient(b, "Beta");
        stage.clickNode("K1");
        stage.clickCell(1, 5);
        const QPoint place = stage.at("K" + QString::number(b));
        stage.folder.hideDatabase();
        mouse::click(&stage.tree(), place);
        stage.folder.showDatabase();
        QCOMPARE(nodoCorrente->Text, "B");
        QCOMPARE(stage.grd().Notice(), "Impossibile leggere i destinatari di questa cartella");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        stage.grd().setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Space})
            QTest::keyClick(&stage.grd(), key);
        stage.clickCell(1, 2);
        QTest::mouseDClick(stage.grd().viewport(), Qt::LeftButton, {}, stage.cell(1, 5));
        QCOMPARE(
            StoreStage::count("tb_destinatari", QString("id = %1 AND id_grp = 1 AND sel = True").arg(alfa)),
            1);
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        stage.clickNode("K" + QString::number(b));
        QCOMPARE(stage.grd().Notice(), QString());
        QCOMPARE(stage.columnOfGrid(5), QStringList("Beta"));
        stage.clickCell(1, 2);
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = True"), 1);
    }

    void clickIntoEmptySpaceBeforeAnyOtherIsNoFailure() {
        StoreStage stage;
        mouse::click(&stage.tree(), stage.emptySpace());
        QCOMPARE(stage.grd().Notice(), QString());
        QCOMPARE(stage.grd().EmptyText(), "Scegliere una cartella");
    }

    void clickWithoutDatabaseLeavesSilently() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.folder.hideDatabase();
        stage.clickNode("K0");
        stage.folder.showDatabase();
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QCOMPARE(nodoCorrente->Key, "K0");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
    }

    void pointerOverTheTreeNamesItInTheStatusBar() {
        StoreStage stage;
        mouse::move(&stage.tree(), stage.at("K1"));
        QCOMPARE(stage.help(), "Mailing List");
    }

    void rightClickOpensTheMenuOfTheNode_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("menu");
        QTest::newRow("root") << "K0"
                              << "popMailingHead";
        QTest::newRow("group") << "K1"
                               << "popMailing";
    }
    void rightClickOpensTheMenuOfTheNode() {
        QFETCH(QString, key);
        QFETCH(QString, menu);
        StoreStage stage;
        stage.clickNode(key, Qt::RightButton);
        QCOMPARE(nodoCorrente->Key, key);
        QCOMPARE(stage.takePopup(), menu);
    }

    void rightClickIntoEmptySpaceOpensTheMenuOfTheNodeLastClicked() {
        StoreStage stage;
        mouse::click(&stage.tree(), stage.emptySpace(), Qt::RightButton);
        QCOMPARE(stage.takePopup(), QString());
        stage.clickNode("K1");
        mouse::click(&stage.tree(), stage.emptySpace(), Qt::RightButton);
        QCOMPARE(stage.takePopup(), "popMailing");
    }

    void leftClickOpensNoMenu() {
        StoreStage stage;
        stage.clickNode("K1");
        QCOMPARE(stage.takePopup(), QString());
    }

    void labelOfTheRootCannotBeChanged() {
        StoreStage stage;
        stage.clickNode("K0");
        stage.command("cmdPopMailingRinomina");
        QVERIFY(!editor(stage));
    }

    void renamedNodeKeepsItsPlace() {
        StoreStage stage;
        stage.addGroup(0, "Beta");
        stage.addGroup(0, "Delta");
        stage.clickNode("K1");
        stage.command("cmdPopMailingRinomina");
        typeLabel(stage, "Zeta");
        QCOMPARE(stage.shape(), "Database Mailing(Beta, Zeta, Delta)");
        QCOMPARE(StoreStage::look("SELECT nome FROM [tb_gruppi] WHERE id = 1;"), "Zeta");
        QCOMPARE(nodoCorrente->Text, "Zeta");
    }

    void nameWithAnApostropheIsStoredAsTyped() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.command("cmdPopMailingRinomina");
        typeLabel(stage, "L'Aquila \"e\" ''dintorni''");
        QCOMPARE(StoreStage::look("SELECT nome FROM [tb_gruppi] WHERE id = 1;"),
                 "L'Aquila \"e\" ''dintorni''");
    }

    void emptyNameWritesNothing() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.command("cmdPopMailingRinomina");
        typeLabel(stage, "");
        QCOMPARE(StoreStage::look("SELECT nome FROM [tb_gruppi] WHERE id = 1;"), "Clienti");
        QCOMPARE(stage.tree().Node("K1")->Text(), "Clienti");
    }

    void nameLongerThanTheColumnCannotBeTyped() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.command("cmdPopMailingRinomina");
        typeLabel(stage, QString(300, 'x'));
        QCOMPARE(StoreStage::look("SELECT nome FROM [tb_gruppi] WHERE id = 1;"), QString(255, 'x'));
        QCOMPARE(stage.tree().Node("K1")->Text(), QString(255, 'x'));
        QVERIFY(stage.ends.isEmpty());
    }

    void nameLongerThanTheColumnOfThisDatabaseCannotBeTyped() {
        StoreStage stage;
        stage.folder.narrowGroupNames(20);
        stage.clickNode("K1");
        stage.command("cmdPopMailingRinomina");
        typeLabel(stage, QString(300, 'x'));
        QCOMPARE(StoreStage::look("SELECT nome FROM [tb_gruppi] WHERE id = 1;"), QString(20, 'x'));
        QVERIFY(stage.ends.isEmpty());
    }

    void renameOfAGroupThatWentAwayEndsTheProgram() {
        StoreStage stage;
        stage.clickNode("K1");
        SampleFolder::run("DELETE FROM [tb_gruppi] WHERE id = 1;");
        stage.command("cmdPopMailingRinomina");
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        typeLabel(stage, "Altro");
        QVERIFY(stage.failure().startsWith("Errore 3021:"));
    }
};

TEST_CLASS(TestGruppiAlbero);

}  // namespace gruppi_albero_test

#include "gruppi_albero_test.moc"
