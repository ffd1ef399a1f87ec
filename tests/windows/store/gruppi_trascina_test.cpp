// SPDX-License-Identifier: GPL-3.0-or-later
// Drag and drop: recipients and groups onto the tree.
#include "support/TestClass.h"
#include "windows/store/griglia_stage.h"

namespace gruppi_trascina_test {

using namespace testing_support;
using ui::MessageDialog;

class TestGruppiTrascina : public QObject {
    Q_OBJECT

    static QString parentOf(const QString& name) {
        return StoreStage::look("SELECT id_up FROM [tb_gruppi] WHERE nome = '" + name + "';");
    }

  private Q_SLOTS:
    void recipientGoesToTheGroupItWasDroppedOn() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addRecipient(1, "Alfa");
        const int beta = stage.addRecipient(1, "Beta");
        stage.clickNode("K1");
        stage.clickCell(2, 5);
        stage.dropRow(stage.at("K" + QString::number(b)));
        QCOMPARE(StoreStage::count("tb_destinatari", QString("id_grp = %1 AND id = %2").arg(b).arg(beta)), 1);
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        QCOMPARE(stage.columnOfGrid(5), QStringList("Beta"));
        QCOMPARE(nodoCorrente->Text, "B");
        QCOMPARE(stage.tree().SelectedItem()->Key(), "K1");
    }

    void dropOfARecipientLoadsTheLevelsOfTheSelectedNodeAndOfItsTarget() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.addGroup(1, "Sotto");
        stage.addGroup(b, "Sotto B");
        stage.dropRow(stage.at("K" + QString::number(b)));
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B), Clienti(Sotto))");
    }

    void newGroupUnderTheTargetOfADropComesAfterThoseOfTheTable() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addGroup(b, "Sotto B");
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.dropRow(stage.at("K" + QString::number(b)));
        stage.command("cmdPopMailingNew");
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B, Nuovo gruppo), Clienti)");
    }

    void groupThatARecipientWasDroppedOnIsNotDeletedFromAboveItsSubgroups() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        const int below = stage.addGroup(b, "Sotto B");
        stage.addRecipient(below, "Beta", "beta@x.it");
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.dropRow(stage.at("K" + QString::number(b)));
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B), Clienti)");
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingDel");
        QCOMPARE(MessageDialog::shown()[0].style, 64);
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B), Clienti)");
        QCOMPARE(StoreStage::count("tb_gruppi", QString("id = %1").arg(b)), 1);
    }

    void keysAndBarDoNothingWhileAnotherGroupIsShownAsSelected() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addRecipient(1, "Alfa");
        stage.addRecipient(1, "Beta");
        stage.clickNode("K1");
        stage.dropRow(stage.at("K" + QString::number(b)));
        QCOMPARE(nodoCorrente->Text, "B");
        for (QWidget* place : {static_cast<QWidget*>(&stage.tree()), static_cast<QWidget*>(&stage.grd())}) {
            place->setFocus();
            for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Insert, Qt::Key_F2})
                if (place != &stage.tree() || key != Qt::Key_Return) QTest::keyClick(place, key);
            QTest::keyClick(place, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        }
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(StoreStage::count("tb_gruppi", "id > 0"), 2);
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = True"), 2);
        for (const char* name : {"cmdPopMailingNew", "cmdPopMailingUserNew"})
            QVERIFY(!stage.onBar(name));
        // The menus of the right button act on the group of the drop all the same.
        mouse::click(&stage.tree(), stage.emptySpace(), Qt::RightButton);
        QCOMPARE(stage.takePopup(), "popMailing");
        for (const char* name : {"cmdPopMailingNew", "cmdPopMailingUserNew"})
            QVERIFY(stage.window().findChild<QAction*>(name)->isEnabled());
        stage.command("cmdPopMailingNew");
        QCOMPARE(stage.shape(), "Database Mailing(B(Nuovo gruppo), Clienti)");
        stage.clickNode("K" + QString::number(b));
        QVERIFY(stage.onBar("cmdPopMailingNew"));
    }

    void dragBeginsOnlyOnTheGroupThatMoves() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        const QString keyOfB = "K" + QString::number(b);
        stage.clickNode("K1");
        QCOMPARE(mouse::startDrag(&stage.tree(), stage.at(keyOfB)), 0);
        mouse::move(&stage.tree(), stage.at("K0"));
        mouse::release(&stage.tree(), stage.at("K0"));
        QCOMPARE(stage.tree().SelectedItem()->Key(), "K1");
        QCOMPARE(nodoCorrente->Key, "K1");
        QCOMPARE(mouse::startDrag(&stage.tree(), stage.at("K1")), 1);
        mouse::release(&stage.tree(), stage.at("K1"));
        stage.clickNode(keyOfB);
        QCOMPARE(mouse::startDrag(&stage.tree(), stage.at(keyOfB)), 1);
        mouse::release(&stage.tree(), stage.at(keyOfB));
    }

    void noDragBeginsBeforeAnyClick() {
        StoreStage stage;
        QCOMPARE(mouse::startDrag(&stage.tree(), stage.at("K1")), 0);
    }

    void recipientDroppedOnTheRootBelongsToNoGroup() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.dropRow(stage.at("K0"));
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 0"), 1);
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Rows(), 1);
        stage.clickNode("K0");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
    }

    void recipientDroppedOnEmptySpaceEndsTheProgram() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Ok);
        stage.dropRow(stage.emptySpace());
        QVERIFY(!stage.failure().isEmpty());
        QCOMPARE(MessageDialog::shown()[0].style, 16);
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
    }

    void recipientDroppedWithoutDatabaseEndsTheProgram() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        const QPoint root = stage.at("K0");
        stage.folder.hideDatabase();
        MessageDialog::queue(MessageDialog::Ok);
        stage.dropRow(root);
        stage.folder.showDatabase();
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
    }

    void dragOfARowMarksTheNodeUnderThePointer() {
        StoreStage stage;
        stage.clickNode("K1");
        const std::unique_ptr<QMimeData> row(ui::dragContent(ui::Dragged::Row));
        mouse::dragOver(&stage.tree(), stage.at("K0"), row.get());
        QCOMPARE(stage.tree().DropHighlight()->Key(), "K0");
        mouse::dragOver(&stage.tree(), stage.emptySpace(), row.get());
        QVERIFY(!stage.tree().DropHighlight());
    }

    void movingTheGridsPointerWithTheButtonDownDragsItsRow() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        QCOMPARE(mouse::startDrag(&stage.grd(), stage.cell(1, 5)), 1);
    }

    void groupGoesIntoTheOneItWasDroppedOn() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addGroup(b, "Sotto B");
        stage.clickNode("K1");
        stage.dropNode(stage.at("K" + QString::number(b)));
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B, Clienti))");
        QCOMPARE(parentOf("Clienti"), QString::number(b));
        QVERIFY(stage.ends.isEmpty());
    }

    void groupThatMovesIsTheOneLastClicked() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        const int c = stage.addGroup(0, "C");
        stage.clickNode("K" + QString::number(c));
        mouse::startDrag(&stage.tree(), stage.at("K" + QString::number(b)));
        mouse::release(&stage.tree(), stage.at("K0"));
        stage.dropNode(stage.at("K1"));
        QCOMPARE(stage.shape(), "Database Mailing(B, Clienti(C))");
        QCOMPARE(parentOf("C"), "1");
        QCOMPARE(parentOf("B"), "0");
    }

    void groupDroppedOnTheRootComesToTheTopLevel() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        stage.clickNode("K1");
        stage.clickNode("K" + QString::number(b));
        stage.dropNode(stage.at("K0"));
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, B)");
        QCOMPARE(parentOf("B"), "0");
    }

    void groupDroppedOnItselfChangesNothing() {
        StoreStage stage;
        stage.addGroup(0, "B");
        stage.clickNode("K1");
        stage.dropNode(stage.at("K1"));
        QCOMPARE(stage.shape(), "Database Mailing(B, Clienti)");
        QCOMPARE(parentOf("Clienti"), "0");
        QVERIFY(stage.ends.isEmpty());
    }

    void groupDroppedOnItsOwnDescendantChangesNothingSilently() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        const int c = stage.addGroup(b, "C");
        stage.clickNode("K1");
        stage.clickNode("K" + QString::number(b));
        stage.clickNode("K1");
        for (const int below : {b, c})
            stage.dropNode(stage.at("K" + QString::number(below)));
        QCOMPARE(stage.shape(), "Database Mailing(Clienti(B(C)))");
        QCOMPARE(parentOf("Clienti"), "0");
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void draggedRootChangesNothingSilently() {
        StoreStage stage;
        stage.clickNode("K0");
        stage.dropNode(stage.at("K1"));
        QCOMPARE(stage.shape(), "Database Mailing(Clienti)");
        QVERIFY(stage.ends.isEmpty());
    }

    void groupDroppedOnEmptySpaceChangesNothing() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        stage.clickNode("K1");
        stage.clickNode("K" + QString::number(b));
        stage.dropNode(stage.emptySpace());
        QCOMPARE(stage.shape(), "Database Mailing(Clienti(B))");
        QCOMPARE(parentOf("B"), "1");
        QVERIFY(stage.ends.isEmpty());
    }

    void groupDroppedBeforeAnyClickOnlyLoadsTheLevel() {
        StoreStage stage;
        stage.addGroup(1, "B");
        stage.dropNode(stage.at("K1"));
        QCOMPARE(stage.shape(), "Database Mailing(Clienti(B))");
    }

    void recipientIsCutAndPastedByKeys() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addGroup(b, "Sotto B");
        stage.addRecipient(1, "Alfa", "alfa@x.it");
        const int beta = stage.addRecipient(1, "Beta", "beta@x.it");
        stage.addRecipient(b, "Acca", "acca@x.it");
        stage.clickNode("K1");
        stage.clickCell(2, 5);
        stage.grd().setFocus();
        QTest::keyClick(&stage.grd(), Qt::Key_X, Qt::ControlModifier);
        QVERIFY(stage.help().contains("beta@x.it"));
        QVERIFY(stage.grd().model()->index(1, 5).data(Qt::FontRole).isValid());
        QVERIFY(!stage.grd().model()->index(0, 5).data(Qt::FontRole).isValid());
        stage.tree().setFocus();
        while (nodoCorrente->Text != "B")
            QTest::keyClick(&stage.tree(), Qt::Key_Up);
        QTest::keyClick(&stage.tree(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(StoreStage::count("tb_destinatari", QString("id_grp = %1 AND id = %2").arg(b).arg(beta)), 1);
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        QCOMPARE(stage.columnOfGrid(5), QStringList({"Acca", "Beta"}));
        QCOMPARE(stage.grd().Row(), 2);
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B), Clienti)");
        // A second paste has nothing to move.
        stage.clickNode("K1");
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        QVERIFY(stage.ends.isEmpty());
    }

    void groupIsCutAndPastedByKeys() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        const int below = stage.addGroup(b, "Sotto B");
        const QString keyOfB = "K" + QString::number(b);
        stage.clickNode("K1");
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_X, Qt::ControlModifier);
        stage.clickNode(keyOfB);
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B, Clienti))");
        QCOMPARE(parentOf("Clienti"), QString::number(b));
        // Not below itself.
        QTest::keyClick(&stage.tree(), Qt::Key_X, Qt::ControlModifier);
        stage.clickNode("K" + QString::number(below));
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stage.shape(), "Database Mailing(B(Sotto B, Clienti))");
        QCOMPARE(parentOf("B"), "0");
        QCOMPARE(stage.help(), "La cartella non può essere spostata in Sotto B");
        QVERIFY(stage.ends.isEmpty());
    }

    void escapeTakesTheCutBackAndARootIsNeverCut() {
        StoreStage stage;
        stage.addGroup(0, "B");
        stage.clickNode("K1");
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(&stage.tree(), Qt::Key_Escape);
        stage.clickNode("K0");
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_X, Qt::ControlModifier);
        stage.clickNode("K1");
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stage.shape(), "Database Mailing(B, Clienti)");
    }

    void groupDroppedWithoutDatabaseLeavesSilently() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.clickNode("K1");
        const QPoint target = stage.at("K" + QString::number(b));
        stage.folder.hideDatabase();
        stage.dropNode(target);
        stage.folder.showDatabase();
        QCOMPARE(stage.shape(), "Database Mailing(B, Clienti)");
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
    }
};

TEST_CLASS(TestGruppiTrascina);

}  // namespace gruppi_trascina_test

#include "gruppi_trascina_test.moc"
