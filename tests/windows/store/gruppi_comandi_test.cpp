// SPDX-License-Identifier: GPL-3.0-or-later
// The group commands of the pop-up menus.
#include <QAccessible>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>

#include "modules/send/Accettati.h"
#include "platform/ui/PropertyList.h"
#include "platform/ui/Unattended.h"
#include "support/TestClass.h"
#include "windows/store/griglia_stage.h"

namespace gruppi_comandi_test {

using namespace testing_support;
using ui::MessageDialog;

class TestGruppiComandi : public QObject {
    Q_OBJECT

    /// A click while the database is away.
    static void failToClick(StoreStage& stage, const QString& key) {
        const QPoint place = stage.at(key);
        stage.folder.hideDatabase();
        mouse::click(&stage.tree(), place);
        stage.folder.showDatabase();
    }

  private Q_SLOTS:
    void newGroupIsLastUntilTheNextRebuild() {
        StoreStage stage;
        stage.addGroup(1, "Zeta");
        stage.clickNode("K1");
        stage.command("cmdPopMailingNew");
        QCOMPARE(stage.shape("K1"), "Clienti(Zeta, Nuovo gruppo)");
        const QString id = StoreStage::look("SELECT id FROM [tb_gruppi] WHERE nome = 'Nuovo gruppo';");
        QCOMPARE(stage.tree().Node('K' + id)->Text(), "Nuovo gruppo");
        QCOMPARE(StoreStage::look("SELECT id_up FROM [tb_gruppi] WHERE id = " + id + " ;"), "1");
        QCOMPARE(stage.tree().SelectedItem()->Key(), "K1");
        QVERIFY(!stage.tree().viewport()->findChild<QLineEdit*>());
        stage.groups().CaricaGruppiINI();
        stage.clickNode("K1");
        QCOMPARE(stage.shape("K1"), "Clienti(Nuovo gruppo, Zeta)");
    }

    void newGroupInTheRootHasTheParentZero() {
        StoreStage stage;
        stage.clickNode("K0");
        stage.command("cmdPopMailingNew");
        stage.command("cmdPopMailingNew");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Nuovo gruppo, Nuovo gruppo)");
        QCOMPARE(StoreStage::count("tb_gruppi", "nome = 'Nuovo gruppo' AND id_up = 0"), 2);
    }

    void copyTakesMembersWithAllTheirDataButNoSubgroups() {
        StoreStage stage;
        stage.addGroup(1, "Sotto");
        stage.folder.addRecipients({{{"rgs", "L'Aquila s.r.l."},
                                     {"nom", "Anna"},
                                     {"piva", "123"},
                                     {"ind", "Via Roma"},
                                     {"cap", "67100"},
                                     {"loc", "L'Aquila"},
                                     {"prov", "AQ"},
                                     {"tel", "1"},
                                     {"fax", "2"},
                                     {"email", "a@x.it"},
                                     {"campo1", "uno"},
                                     {"campo9", "nove"},
                                     {"sel", "0"}},
                                    {{"rgs", "Beta"}, {"sel", "1"}}});
        stage.clickNode("K1");
        stage.command("cmdPopMailingCopia");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti(Sotto), Clienti_Copia)");
        const QString id = StoreStage::look("SELECT id FROM [tb_gruppi] WHERE nome = 'Clienti_Copia';");
        QCOMPARE(StoreStage::look("SELECT id_up FROM [tb_gruppi] WHERE id = " + id + " ;"), "0");
        const QStringList columns{"rgs", "nom", "piva",  "ind",    "cap",    "loc",    "prov",
                                  "tel", "fax", "email", "campo1", "campo5", "campo9", "sel"};
        for (const QString& name : columns) {
            const QString rows = "SELECT * FROM [tb_destinatari] WHERE id_grp = %1 ORDER BY rgs ASC;";
            QCOMPARE(StoreStage::column(rows.arg(id), name), StoreStage::column(rows.arg(1), name));
        }
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = " + id), 2);
        QCOMPARE(StoreStage::count("tb_gruppi", "id_up = " + id), 0);
    }

    void secondCopyHasTheNameOfTheFirst() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.command("cmdPopMailingCopia");
        stage.command("cmdPopMailingCopia");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Clienti_Copia, Clienti_Copia)");
    }

    void copyOfARenamedGroupHasItsNewName() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.command("cmdPopMailingRinomina");
        auto* label = stage.tree().viewport()->findChild<QLineEdit*>();
        QVERIFY(label);
        label->setText("D'Este");
        QTest::keyClick(label, Qt::Key_Return);
        QCoreApplication::processEvents();
        stage.command("cmdPopMailingCopia");
        QCOMPARE(stage.shape(), "Database Mailing(D'Este, D'Este_Copia)");
    }

    void copyOfASubgroupIsBesideIt() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        stage.clickNode("K1");
        stage.clickNode("K" + QString::number(b));
        stage.command("cmdPopMailingCopia");
        QCOMPARE(stage.shape("K1"), "Clienti(B, B_Copia)");
        QCOMPARE(StoreStage::look("SELECT id_up FROM [tb_gruppi] WHERE nome = 'B_Copia';"), "1");
    }

    void groupWithSubgroupsIsNotDeleted() {
        StoreStage stage;
        stage.addGroup(1, "Sotto");
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingDel");
        QVERIFY(
            stage.oneBox("Impossibile eliminare questo gruppo.\r\n"
                         "Eliminare tutti i sottogruppi prima di continuare.",
                         64));
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        QVERIFY(stage.tree().Node("K1"));
    }

    void deleteAsksAndKeepsTheGroupOnNo() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::No);
        stage.command("cmdPopMailingDel");
        QVERIFY(
            stage.oneBox("Sicuro di voler eliminare questo gruppo?\r\n"
                         "Tutti i destinatari appartenenti a questo gruppo saranno cancellati.",
                         36));
        QCOMPARE(StoreStage::count("tb_gruppi", "id = 1"), 1);
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
    }

    void deleteTakesTheMembersAlongAndLeavesTheGridAsItIs() {
        StoreStage stage;
        const int other = stage.addGroup(0, "Altro");
        stage.addRecipient(1, "Alfa");
        stage.addRecipient(other, "Beta");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingDel");
        QCOMPARE(StoreStage::count("tb_gruppi", "id = 1"), 0);
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", "rgs"), QStringList("Beta"));
        QCOMPARE(stage.shape(), "Database Mailing(Altro)");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        QVERIFY(stage.ends.isEmpty());
    }

    void deleteThatFailsHalfwayLeavesItsFirstStatementDone() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        SampleFolder::renameInFile(stage.folder.database(), "tb_gruppi", "tb_gruppx");
        for (const int answer : {MessageDialog::Yes, MessageDialog::Ok})
            MessageDialog::queue(answer);
        stage.command("cmdPopMailingDel");
        SampleFolder::renameInFile(stage.folder.database(), "tb_gruppx", "tb_gruppi");
        QVERIFY(stage.failure().contains("tb_gruppi"));
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(StoreStage::count("tb_destinatari", "id > 0"), 0);
        QCOMPARE(StoreStage::count("tb_gruppi", "id = 1"), 1);
        QVERIFY(stage.tree().Node("K1"));
    }

    void theQuestionShowsTheGroupItIsAboutAndReturnAnswersNo() {
        StoreStage stage;
        const int other = stage.addGroup(1, "Altro");
        stage.addRecipient(other, "Alfa");
        stage.addRecipient(other, "Beta");
        stage.addRecipient(1, "Gamma");
        stage.clickNode("K1");
        stage.dropRow(stage.at("K" + QString::number(other)));
        stage.tree().collapseAll();
        QCOMPARE(stage.tree().SelectedItem()->Key(), "K1");
        const QString helpBefore = stage.help();
        QString selected;
        QString help;
        QString text;
        QString read;
        bool inSight = false;
        ui::setUnattended(false);
        const auto back = qScopeGuard([] { ui::setUnattended(true); });
        QTimer::singleShot(0, &stage.window(), [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !QTest::qWaitForWindowExposed(box)) qFatal("no question");
            QApplication::setActiveWindow(box);
            text = box->text();
            read = QAccessible::queryAccessibleInterface(box)->text(QAccessible::Description);
            help = stage.help();
            selected = stage.tree().SelectedItem()->Text();
            inSight = stage.tree().visualItemRect(stage.tree().selectedItems().constFirst()).isValid();
            QTest::keyClick(box, Qt::Key_Return);
        });
        stage.command("cmdPopMailingDel");
        QCOMPARE(text,
                 "Sicuro di voler eliminare questo gruppo?\n"
                 "Tutti i destinatari appartenenti a questo gruppo saranno cancellati.");
        QCOMPARE(read, text);
        QCOMPARE(selected, "Altro");
        QVERIFY(inSight);
        QCOMPARE(help, "Altro: 3 destinatari");
        QCOMPARE(stage.help(), helpBefore);
        QCOMPARE(stage.tree().SelectedItem()->Key(), "K1");
        QCOMPARE(StoreStage::count("tb_gruppi", QString("id = %1").arg(other)), 1);
        QCOMPARE(StoreStage::count("tb_destinatari", QString("id_grp = %1").arg(other)), 3);
        QCOMPARE(MessageDialog::shown().constLast().style, 36);
    }

    void commandsOfARemovedGroupDoNothing_data() {
        QTest::addColumn<QString>("command");
        for (const char* name :
             {"cmdPopMailingNew", "cmdPopMailingCopia", "cmdPopMailingDel", "cmdPopMailingRinomina",
              "cmdPopMailingHead", "cmdPopMailingUserNew", "cmdPopMailingUserMod", "cmdPopMailingSelAllGRP",
              "cmdPopMailingSelNotGRP", "cmdPopMailingSvuotaCartella"})
            QTest::newRow(name) << name;
    }
    void commandsOfARemovedGroupDoNothing() {
        QFETCH(QString, command);
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingDel");
        QCOMPARE(nodoCorrente->Key, "K1");
        stage.command(command);
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        QCOMPARE(stage.shape(), "Database Mailing");
        QCOMPARE(StoreStage::count("tb_gruppi", "id > 0"), 0);
        QCOMPARE(StoreStage::count("tb_destinatari", "id > 0"), 0);
    }

    void groupWhoseClickFailedIsNotDeletedFromAboveItsSubgroups() {
        StoreStage stage;
        stage.addGroup(1, "Sotto");
        failToClick(stage, "K1");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti)");
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingDel");
        QCOMPARE(MessageDialog::shown()[0].style, 64);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti(Sotto))");
    }

    void currentNodeStillNamesTheDeletedGroupUntilTheNextClick() {
        StoreStage stage;
        const int other = stage.addGroup(0, "Altro");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingDel");
        QCOMPARE(nodoCorrente->Key, "K1");
        QCOMPARE(nodoCorrente->Text, "Clienti");
        stage.clickNode("K" + QString::number(other));
        QCOMPARE(nodoCorrente->Text, "Altro");
    }

    void menuOfADeletedGroupStillOpensByTheMouse() {
        StoreStage stage;
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingDel");
        mouse::click(&stage.tree(), stage.emptySpace(), Qt::RightButton);
        QCOMPARE(stage.takePopup(), "popMailing");
    }

    void keysDoNothingWhileTheCurrentGroupIsADeletedOne() {
        StoreStage stage;
        stage.addGroup(0, "Altro");
        stage.clickNode("K1");
        stage.tree().setFocus();
        MessageDialog::queue(MessageDialog::Yes);
        QTest::keyClick(&stage.tree(), Qt::Key_Delete);
        QTest::keyClick(&stage.tree(), Qt::Key_Delete);
        QTest::keyClick(&stage.tree(), Qt::Key_F2);
        QCOMPARE(MessageDialog::shown().size(), 1);
        QCOMPARE(stage.shape(), "Database Mailing(Altro)");
        QVERIFY(!stage.onBar("cmdPopMailingNew"));
        QVERIFY(stage.ends.isEmpty());
    }

    void groupBecomesOneOfTheTopLevel() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        const QString key = "K" + QString::number(b);
        stage.addGroup(b, "Sotto");
        stage.clickNode("K1");
        stage.clickNode(key);
        stage.command("cmdPopMailingHead");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, B(Sotto))");
        QCOMPARE(StoreStage::look("SELECT id_up FROM [tb_gruppi] WHERE nome = 'B';"), "0");
        QVERIFY(stage.ends.isEmpty());
    }

    void rootAsTopLevelGroupChangesNothing() {
        StoreStage stage;
        stage.clickNode("K0");
        stage.command("cmdPopMailingHead");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti)");
        QVERIFY(stage.ends.isEmpty());
    }

    void emptyingAsksThenDeletesTheMembersOnly() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        stage.addRecipient(1, "Alfa");
        stage.addRecipient(b, "Beta");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::No);
        stage.command("cmdPopMailingSvuotaCartella");
        QVERIFY(
            stage.oneBox("Sicuro di voler svuotare questa cartella?\r\n"
                         "Tutti i destinatari verranno cancellati.\r\n"
                         "Operazione irreversibile.",
                         68));
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingSvuotaCartella");
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari];", "rgs"), QStringList("Beta"));
        QCOMPARE(stage.shape(), "Database Mailing(Clienti(B))");
        QCOMPARE(stage.grd().Rows(), 1);
    }

    void selectionOfAGroupLeavesItsSubgroupsAlone() {
        StoreStage stage;
        const int b = stage.addGroup(1, "B");
        stage.addRecipient(1, "Alfa", "a@x.it", false);
        stage.addRecipient(b, "Beta", "b@x.it", false);
        stage.clickNode("K1");
        stage.command("cmdPopMailingSelAllGRP");
        QCOMPARE(SampleFolder::selected(), QStringList("a@x.it"));
        QCOMPARE(stage.columnOfGrid(2), QStringList("Vero"));
        stage.command("cmdPopMailingSelNotGRP");
        QCOMPARE(SampleFolder::selected(), QStringList());
        QCOMPARE(stage.columnOfGrid(2), QStringList("Falso"));
    }

    void selectionOfTheDatabaseReachesGroupsThatAreNotShown() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addRecipient(1, "Alfa", "a@x.it", false);
        stage.addRecipient(b, "Beta", "b@x.it", false);
        stage.clickNode("K1");
        stage.clickNode("K0");
        stage.command("cmdPopMailingSelAllDB");
        QCOMPARE(SampleFolder::selected(), QStringList({"a@x.it", "b@x.it"}));
        stage.command("cmdPopMailingSelNotDB");
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void selectionIsNewerThanWhatIsRememberedOfARun() {
        for (const char* command : {"cmdPopMailingSelAllGRP", "cmdPopMailingSelAllDB"}) {
            StoreStage stage;
            const int b = stage.addGroup(0, "B");
            const int alfa = stage.addRecipient(1, "Alfa", "a@x.it");
            const int beta = stage.addRecipient(b, "Beta", "b@x.it");
            const auto database = mail::DatabaseFile::at(percorsoDB);
            QVERIFY(accettati().reserve(database, 2).ok());
            accettati().add(database, alfa, "a@x.it");
            accettati().add(database, beta, "b@x.it");
            stage.clickNode("K1");
            stage.command(command);
            ApplicaAccettati();
            const bool all = QString(command).endsWith("DB");
            QCOMPARE(SampleFolder::selected(),
                     all ? QStringList({"a@x.it", "b@x.it"}) : QStringList("a@x.it"));
        }
    }

    void selectionRedrawsTheGroupOnTheScreen() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addRecipient(1, "Alfa", "a@x.it", false);
        stage.addRecipient(b, "Beta", "b@x.it", false);
        stage.clickNode("K1");
        stage.command("cmdPopMailingSelAllDB");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        QCOMPARE(stage.columnOfGrid(2), QStringList("Vero"));
    }

    void selectionAfterAClickThatFailedKeepsTheRowsOfTheGroupBeforeCovered() {
        StoreStage stage;
        const QString b = "K" + QString::number(stage.addGroup(0, "B"));
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        failToClick(stage, b);
        stage.command("cmdPopMailingSelNotDB");
        QCOMPARE(nodoCorrente->Text, "B");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        QCOMPARE(stage.columnOfGrid(2), QStringList("Falso"));
        // To edit one of them would move it into the group that was clicked.
        QCOMPARE(stage.grd().Notice(), "Impossibile leggere i destinatari di questa cartella");
        QTest::mouseDClick(stage.grd().viewport(), Qt::LeftButton, {}, stage.cell(1, 5));
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        stage.clickNode(b);
        QCOMPARE(stage.grd().Notice(), "");
        QCOMPARE(stage.grd().Rows(), 1);
    }

    void newRecipientAfterAClickThatFailedIsShownInItsGroup() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        failToClick(stage, "K" + QString::number(b));
        stage.whenFormOpens([](frmDestinatario& form) {
            form.prp->Item("RagioneSociale")->setValue("Beta");
            form.prp->Item("Email")->setValue("b@x.it");
            QTest::mouseClick(form.cdmSalva, Qt::LeftButton);
        });
        stage.command("cmdPopMailingUserNew");
        QCOMPARE(StoreStage::count("tb_destinatari", QString("id_grp = %1 AND rgs = 'Beta'").arg(b)), 1);
        QCOMPARE(stage.columnOfGrid(5), QStringList("Beta"));
        QCOMPARE(stage.grd().Notice(), "");
    }

    void commandWithoutDatabaseEndsTheProgram() {
        StoreStage stage;
        stage.clickNode("K1");
        stage.folder.hideDatabase();
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingSelAllDB");
        stage.folder.showDatabase();
        QVERIFY(!stage.failure().isEmpty());
        QCOMPARE(stage.ends, QList<int>{1});
    }

    void keysOfTheTreeDoWhatItsMenuOffers() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa", "a@x.it", false);
        stage.clickNode("K1");
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(SampleFolder::selected(), QStringList("a@x.it"));
        QTest::keyClick(&stage.tree(), Qt::Key_D, Qt::ControlModifier);
        QTest::keyClick(&stage.tree(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti(Nuovo gruppo), Clienti_Copia)");
    }
};

TEST_CLASS(TestGruppiComandi);

}  // namespace gruppi_comandi_test

#include "gruppi_comandi_test.moc"
