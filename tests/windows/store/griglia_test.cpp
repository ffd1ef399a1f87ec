// SPDX-License-Identifier: GPL-3.0-or-later
// The grid: its columns, clicks, status text and pop-up menu.
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include "modules/lang/bVAR.h"
#include "modules/send/Accettati.h"
#include "support/Repetitions.h"
#include "support/SmtpSink.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/send/frmInvia.h"
#include "windows/store/griglia.h"
#include "windows/store/griglia_stage.h"

namespace griglia_test {

using namespace testing_support;
using ui::MessageDialog;

class TestGriglia : public QObject {
    Q_OBJECT

    static bool selected(int id) {
        return StoreStage::count("tb_destinatari", QString("sel = True AND id = %1").arg(id)) == 1;
    }
    static void moveOver(StoreStage& stage, int x = 100) { mouse::move(&stage.grd(), QPoint(x, 300)); }

  private Q_SLOTS:
    void columnsAreInTheOrderOfTheScreen() {
        StoreStage stage;
        stage.folder.addRecipient({{"rgs", "RGS"},   {"nom", "NOM"},     {"piva", "PIVA"}, {"ind", "IND"},
                                   {"cap", "CAP"},   {"loc", "LOC"},     {"prov", "PR"},   {"tel", "TEL"},
                                   {"fax", "FAX"},   {"email", "EMAIL"}, {"campo1", "C1"}, {"campo2", "C2"},
                                   {"campo3", "C3"}, {"campo4", "C4"},   {"campo5", "C5"}, {"campo6", "C6"},
                                   {"campo7", "C7"}, {"campo8", "C8"},   {"campo9", "C9"}, {"sel", "1"}});
        stage.clickNode("K1");
        const QStringList wanted{"",    "1",   "Vero", "EMAIL", "1",   "RGS", "NOM", "PIVA",
                                 "IND", "CAP", "LOC",  "PR",    "TEL", "FAX", "C1",  "C2",
                                 "C3",  "C4",  "C5",   "C6",    "C7",  "C8",  "C9"};
        for (int column = 0; column < wanted.size(); ++column)
            QCOMPARE(stage.grd().TextMatrix(1, column), wanted[column]);
    }

    void checkBoxIsNewerThanWhatIsRememberedOfARun() {
        StoreStage stage;
        const int id = stage.addRecipient(1, "Alfa");
        const int other = stage.addRecipient(1, "Beta");
        const auto database = mail::DatabaseFile::at(percorsoDB);
        QVERIFY(accettati().reserve(database, 2).ok());
        accettati().add(database, id, "a@x.it");
        accettati().add(database, other, "a@x.it");
        stage.clickNode("K1");
        stage.clickCell(1, 2);
        stage.clickCell(1, 2);
        ApplicaAccettati();
        QVERIFY(selected(id));
        QVERIFY(!selected(other));
    }

    void headingsComeFromTheLanguageButForTwo() {
        StoreStage stage;
        stage.clickNode("K1");
        const QStringList wanted{
            "Send",    "Email",    "id_grp",  "Ragione Sociale", "Nome",    "P.Iva o Cod.Fis.", "Indirizzo",
            "CAP",     "Località", "Prov.",   "Telefono",        "Fax",     "Campo 1",          "Campo 2",
            "Campo 3", "Campo 4",  "Campo 5", "Campo 6",         "Campo 7", "Campo 8",          "Campo 9"};
        for (int column = 2; column < 23; ++column)
            if (column != 4) QCOMPARE(stage.grd().TextMatrix(0, column), wanted[column - 2]);
    }

    void fixedColumnAndNumbersAreHidden() {
        StoreStage stage;
        stage.clickNode("K1");
        for (int column = 0; column < 23; ++column)
            QCOMPARE(stage.grd().isColumnHidden(column), column == 0 || column == 1 || column == 4);
    }

    void firstWidthsAndThoseOfTheUserStayFromFillToFill() {
        StoreStage stage;
        stage.clickNode("K1");
        const QList<int> wanted{56, 230, 0, 200, 140, 120, 170, 64, 130, 52, 110, 110, 120};
        for (int i = 0; i < wanted.size(); ++i)
            QCOMPARE(stage.grd().columnWidth(i + 2), wanted[i]);
        stage.grd().horizontalHeader()->resizeSection(5, 333);
        stage.clickNode("K0");
        QCOMPARE(stage.grd().columnWidth(5), 333);
        QCOMPARE(stage.grd().columnWidth(3), 230);
    }

    void emptyGroupShowsTheHeadingsAlone() {
        StoreStage stage;
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Rows(), 1);
        QCOMPARE(stage.grd().TextMatrix(0, 2), "Send");
        moveOver(stage);
        QCOMPARE(stage.help(), "Email presenti: 0");
        mouse::click(&stage.grd(), {100, 100}, Qt::RightButton);
        QCOMPARE(stage.takePopup(), QString());
    }

    void countHasTheSystemsDigitGrouping() {
        StoreStage stage;
        QList<SampleFolder::Columns> rows(1234);
        stage.folder.addRecipients(rows);
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Rows(), 1235);
        moveOver(stage);
        QCOMPARE(stage.help(), "Email presenti: 1.234");
        QLocale::setDefault(QLocale("en_US"));
        moveOver(stage, 110);
        QCOMPARE(stage.help(), "Email presenti: 1,234");
    }

    void countIsReportedOnlyWhenThePointerMoves() {
        StoreStage stage;
        stage.clickNode("K1");
        QCOMPARE(stage.help(), "Mailing List");
    }

    void clickOnTheBoxWritesTheSelectionAndReadsNothingBack() {
        StoreStage stage;
        const int id = stage.addRecipient(1, "Alfa", "a@x.it", false);
        stage.clickNode("K1");
        QSignalSpy fills(&stage.grd(), &ui::DataGrid::afterDataRefresh);
        stage.clickCell(1, 2);
        QVERIFY(selected(id));
        QCOMPARE(stage.grd().CellChecked(), 1);
        stage.clickCell(1, 2);
        QVERIFY(!selected(id));
        QCOMPARE(stage.grd().CellChecked(), 2);
        QCOMPARE(fills.size(), 0);
    }

    void clickBesideTheBoxWritesNothing() {
        StoreStage stage;
        const int off = stage.addRecipient(1, "Alfa", "a@x.it", false);
        const int on = stage.addRecipient(1, "Beta", "b@x.it", true);
        stage.clickNode("K1");
        for (const int row : {1, 2})
            for (const int column : {3, 5}) {
                stage.clickCell(row, column);
                QVERIFY(!selected(off));
                QVERIFY(selected(on));
            }
    }

    void clickOnAHeadingDoesNothing() {
        StoreStage stage;
        const int id = stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        QHeaderView* head = stage.grd().horizontalHeader();
        QTest::mouseClick(head->viewport(), Qt::LeftButton, {}, {head->sectionViewportPosition(2) + 20, 8});
        QVERIFY(selected(id));
    }

    void clickOnARowOfADeletedGroupIsNoFailure() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingDel");
        stage.clickCell(1, 2);
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(stage.grd().CellChecked(), 2);
    }

    void theSentenceOverAnEmptyGridIsTrueAfterRowsWereAddedElsewhere() {
        StoreStage stage;
        QCOMPARE(stage.grd().EmptyText(), "Scegliere una cartella");
        stage.clickNode("K1");
        QCOMPARE(stage.grd().EmptyText(), "Nessun destinatario in questa cartella");
        stage.command("cmdPopMailingRinomina");
        QCOMPARE(stage.grd().EmptyText(), "Nessun destinatario in questa cartella");
        QTimer::singleShot(0, &stage.window(), [&] {
            stage.addRecipient(1, "Alfa");
            QApplication::activeModalWidget()->hide();
        });
        stage.command("cmdMailingImpTXT");
        QCOMPARE(stage.grd().Rows(), 1);
        QCOMPARE(stage.grd().EmptyText(), "Fai clic sulla cartella per vedere i destinatari");
        stage.clickNode("K1");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingUserDel");
        QCOMPARE(stage.grd().Rows(), 1);
        QCOMPARE(stage.grd().EmptyText(), "Nessun destinatario in questa cartella");
    }

    void theSentenceOfAGroupOnTheScreenIsAboutThatGroup() {
        StoreStage stage;
        const int b = stage.addGroup(0, "B");
        stage.clickNode("K1");
        stage.addRecipient(b, "Beta");
        stage.command("cmdPopMailingRinomina");
        QCOMPARE(stage.grd().EmptyText(), "Nessun destinatario in questa cartella");
    }

    void clickOnTheBoxWithoutDatabaseEndsTheProgram() {
        StoreStage stage;
        const int id = stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.folder.hideDatabase();
        MessageDialog::queue(MessageDialog::Ok);
        stage.clickCell(1, 2);
        stage.folder.showDatabase();
        QVERIFY(!stage.failure().isEmpty());
        QVERIFY(selected(id));
    }

    void spaceTogglesTheBoxOfTheCurrentRow() {
        StoreStage stage;
        const int id = stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.grd().setFocus();
        QTest::keyClick(&stage.grd(), Qt::Key_Space);
        QVERIFY(!selected(id));
    }

    void doubleClickOnTheBoxTogglesAndOpensNothing() {
        StoreStage stage;
        const int id = stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        stage.clickCell(1, 2);
        QTest::mouseDClick(stage.grd().viewport(), Qt::LeftButton, {}, stage.cell(1, 2));
        QVERIFY(!selected(id));
        QVERIFY(!stage.form().isVisible());
    }

    void doubleClickOpensTheRecipient() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        const int id = stage.addRecipient(1, "Beta");
        stage.clickNode("K1");
        QString opened;
        stage.whenFormOpens([&](frmDestinatario& form) { opened = form.txtIDuser->text(); });
        QTest::mouseDClick(stage.grd().viewport(), Qt::LeftButton, {}, stage.cell(2, 5));
        QCOMPARE(opened, QString::number(id));
    }

    void rightClickOnARowOpensTheMenuAndMakesItCurrent() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.addRecipient(1, "Beta");
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Row(), 1);
        stage.clickCell(2, 5, Qt::RightButton);
        QCOMPARE(stage.takePopup(), "popMailingGRD");
        QCOMPARE(stage.grd().Row(), 2);
    }

    void refreshAfterASelectionShowsAllBoxesChecked() {
        StoreStage stage;
        for (const char* name : {"Alfa", "Beta", "Gamma"})
            stage.addRecipient(1, name, "a@x.it", false);
        stage.clickNode("K1");
        stage.clickCell(1, 2);
        stage.command("cmdPopMailingSelAllGRP");
        QCOMPARE(stage.columnOfGrid(2), QStringList({"Vero", "Vero", "Vero"}));
        QCOMPARE(stage.grd().TextMatrix(0, 3), "Email");
    }

    void closingTheSendWindowReloadsTheGrid() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa", "a@x.it");
        stage.clickNode("K1");
        SampleFolder::run("UPDATE [tb_destinatari] SET sel = False;");
        frmInvia& send = finestre::Invia();
        send.show();
        QTest::mouseClick(send.findChild<QPushButton*>("cmdChiudi"), Qt::LeftButton);
        QVERIFY(!send.isVisible());
        QCOMPARE(stage.columnOfGrid(2), QStringList("Falso"));
    }

    void gridReloadedBetweenAStopAndItsLastTickShowsTheRowAsSelected() {
        StoreStage stage;
        const SmtpSink server;
        stage.folder.addAccount(SampleFolder::loopbackAccount(server.port()));
        stage.addRecipient(1, "Alfa", "a@x.it");
        stage.addRecipient(1, "Beta", "b@x.it");
        stage.clickNode("K1");
        frmInvia& send = finestre::Invia();
        send.SetPrgBar();
        send.CaricaDati();
        send.show();
        ui::FileDialog::queue(stage.folder.writeMessage());
        const auto click = [&](const char* name) {
            QTest::mouseClick(send.findChild<QPushButton*>(name), Qt::LeftButton);
        };
        for (const char* name : {"cmdFile", "cmdInvia", "cmdFerma"})
            click(name);
        SampleFolder::run("UPDATE [tb_destinatari] SET sel = False WHERE rgs = 'Beta';");
        click("cmdChiudi");
        const auto* tmr = send.findChild<QTimer*>("tmr");
        QVERIFY(tmr->isActive());
        QCOMPARE(stage.columnOfGrid(2), QStringList({"Vero", "Falso"}));
        QTRY_VERIFY(!tmr->isActive());
        QTRY_COMPARE(send.findChild<QLabel*>("lblFallite")->text(), "Email non inviate: 1");
        QVERIFY(!send.isVisible());
        QCOMPARE(stage.columnOfGrid(2), QStringList({"Vero", "Falso"}));
    }

    void closingTheSendWindowWithoutACurrentGroupReloadsNothing() {
        StoreStage stage;
        stage.window();
        frmInvia& send = finestre::Invia();
        send.show();
        QTest::mouseClick(send.findChild<QPushButton*>("cmdChiudi"), Qt::LeftButton);
        QCOMPARE(stage.grd().model()->columnCount(), 0);
        QVERIFY(stage.ends.isEmpty());
    }

    void fillIsASnapshot() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        SampleFolder::run("UPDATE [tb_destinatari] SET rgs = 'Altro';");
        SampleFolder::run("DELETE FROM [tb_destinatari];");
        QCOMPARE(stage.columnOfGrid(5), QStringList("Alfa"));
    }

    void barOffersNewRecipientsOnlyWhereAMenuDoes() {
        StoreStage stage;
        const auto isOn = [&](const char* name) { return stage.onBar(name); };
        stage.addRecipient(0, "Senza gruppo");
        QVERIFY(!isOn("cmdPopMailingNew"));
        QVERIFY(!isOn("cmdPopMailingUserNew"));
        stage.clickNode("K1");
        QVERIFY(isOn("cmdPopMailingNew"));
        QVERIFY(isOn("cmdPopMailingUserNew"));
        stage.clickNode("K0");
        QVERIFY(isOn("cmdPopMailingUserNew"));
        SampleFolder::run("DELETE FROM [tb_destinatari];");
        stage.clickNode("K0");
        QVERIFY(!isOn("cmdPopMailingUserNew"));
        QVERIFY(isOn("cmdPopMailingNew"));
    }

    void manyRecipientsMakeNoWidgetEach() {
        constexpr int many = repetitions(100000);
        StoreStage stage;
        const int few = stage.addGroup(0, "Pochi");
        stage.folder.addRecipients(QList<SampleFolder::Columns>(100, {{"rgs", "Ditta"}}));
        SampleFolder::run(QString("UPDATE [tb_destinatari] SET id_grp = %1;").arg(few));
        stage.folder.addRecipients(QList<SampleFolder::Columns>(many, {{"rgs", "Ditta"}}));
        stage.clickNode("K" + QString::number(few));
        QCOMPARE(stage.grd().Rows(), 101);
        const qsizetype objects = stage.window().findChildren<QObject*>().size();
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Rows(), many + 1);
        QVERIFY(stage.window().findChildren<QObject*>().size() <= objects);
        QCOMPARE(stage.grd().TextMatrix(many, 5), "Ditta");
    }
};

TEST_CLASS(TestGriglia);

}  // namespace griglia_test

#include "griglia_test.moc"
