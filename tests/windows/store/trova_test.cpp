// SPDX-License-Identifier: GPL-3.0-or-later
// Finding recipients: the bar above the grid, in the folder and everywhere; sorting by the headings.
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>

#include "platform/ui/FindBar.h"
#include "support/LockedFile.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/store/griglia.h"
#include "windows/store/griglia_stage.h"

namespace trova_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

constexpr int colonnaAzienda = 5;

/// Clienti(Nord(Alpi), Sud), Soci, with recipients in each; the bar is open.
struct Scena : StoreStage {
    int nord = addGroup(1, "Nord");
    int alpi = addGroup(nord, "Alpi");
    int sud = addGroup(1, "Sud");
    int soci = addGroup(0, "Soci");

    Scena() {
        addRecipient(1, "Azienda Uno", "uno@x.it", false);
        addRecipient(1, "Caffè Due", "due@x.it", true);
        addRecipient(alpi, "Rifugio Perù", "tre@x.it", true);
        addRecipient(alpi, "Baita Quattro", "quattro@x.it", false);
        addRecipient(soci, "Circolo PERU", "cinque@x.it", false);
        addRecipient(soci, "Socio Sei", "sei@x.it", true);
    }
    ui::FindBar& bar() { return *window().findChild<ui::FindBar*>("Trova"); }
    QLineEdit& field() { return *window().findChild<QLineEdit*>("txtTrova"); }
    void open() {
        window();
        QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier);
    }
    void everywhere() { window().findChild<QComboBox*>("cmbDove")->setCurrentIndex(1); }
    void checkedOnly() { window().findChild<QCheckBox*>("chkSoloSelezionati")->setChecked(true); }
    void type(const QString& text) {
        field().clear();
        QTest::keyClicks(&field(), text);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&field(), key, modifiers);
    }
    QString row() { return grd().TextMatrix(grd().Row(), colonnaAzienda); }
    QString answer() { return bar().answer(); }
    QString selections() {
        return column("SELECT * FROM [tb_destinatari] ORDER BY id ASC;", "sel").join(' ');
    }
};

}  // namespace

class TestTrova : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void ctrlFOpensTheBarAndEscClosesIt() {
        Scena stage;
        stage.window();
        QVERIFY(!stage.bar().isVisible());
        stage.open();
        QVERIFY(stage.bar().isVisible());
        QCOMPARE(stage.window().focusWidget(), &stage.field());
        stage.press(Qt::Key_Escape);
        QVERIFY(!stage.bar().isVisible());
        QCOMPARE(stage.window().focusWidget(), &stage.grd());
    }

    void barIsAboveTheGridWhichFillsTheRest() {
        Scena stage;
        const int before = (stage.window(), stage.grd().height());
        stage.open();
        QTRY_COMPARE(stage.grd().height(), before - stage.bar().height());
        QCOMPARE(stage.bar().mapToGlobal(QPoint(0, stage.bar().height())),
                 stage.grd().mapToGlobal(QPoint(0, 0)));
        QCOMPARE(stage.bar().width(), stage.grd().width());
    }

    void longAnswerIsCutAndTheBarKeepsItsRoom() {
        Scena stage;
        stage.window().resize(1000, 600);
        stage.open();
        auto& answer = *stage.window().findChild<QLabel*>("lblTrovati");
        stage.bar().setAnswer(QString("Ricerca non riuscita: ").repeated(20), true);
        QTRY_VERIFY(answer.isVisible() && answer.width() > 0);
        QVERIFY(answer.geometry().right() < stage.bar().width());
        QVERIFY(stage.field().isVisible());
        QCOMPARE(answer.toolTip(), answer.text());
    }

    void typingGoesToTheFirstMatchOfTheFolder() {
        Scena stage;
        stage.clickNode("K1");
        stage.open();
        stage.type("CAFFE");
        QTRY_COMPARE(stage.answer(), QString("1 di 1"));
        QCOMPARE(stage.row(), QString("Caffè Due"));
        QCOMPARE(stage.window().focusWidget(), &stage.field());
        stage.type("peru");
        QTRY_COMPARE(stage.answer(), QString("Nessun risultato"));
        QCOMPARE(stage.row(), QString("Caffè Due"));
    }

    void enterGoesRoundInTheFolder() {
        Scena stage;
        stage.clickNode("K1");
        stage.open();
        stage.type("x.it");
        QTRY_COMPARE(stage.answer(), QString("1 di 2"));
        stage.press(Qt::Key_Return);
        QCOMPARE(stage.row(), QString("Caffè Due"));
        QCOMPARE(stage.answer(), QString("2 di 2"));
        stage.press(Qt::Key_Return);
        QCOMPARE(stage.row(), QString("Azienda Uno"));
        stage.press(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(stage.row(), QString("Caffè Due"));
        QTest::keyClick(&stage.window(), Qt::Key_F3);
        QCOMPARE(stage.row(), QString("Azienda Uno"));
        QTest::keyClick(&stage.window(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(stage.row(), QString("Caffè Due"));
    }

    void everywhereCountsAllFolders() {
        Scena stage;
        stage.open();
        stage.everywhere();
        stage.type("peru");
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle"));
        stage.type("due@");
        QTRY_COMPARE(stage.answer(), QString("1 in 1 cartella"));
        stage.type("tigre");
        QTRY_COMPARE(stage.answer(), QString("Nessun risultato"));
    }

    void enterOpensTheFolderOfTheNextMatchByAClick() {
        Scena stage;
        stage.window();
        stage.open();
        stage.everywhere();
        stage.type("peru");
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle"));
        QSignalSpy click(&stage.tree(), &ui::GroupTree::click);
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.row(), QString("Rifugio Perù"));
        QCOMPARE(click.count(), 1);
        QCOMPARE(nodoCorrente->Key, QString("K%1").arg(stage.alpi));
        QCOMPARE(stage.tree().SelectedItem()->Key(), nodoCorrente->Key);
        QCOMPARE(stage.shape(), QString("Database Mailing(Clienti(Nord(Alpi), Sud), Soci)"));
        QCOMPARE(stage.window().focusWidget(), &stage.field());
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle; qui 1 di 1"));
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.row(), QString("Circolo PERU"));
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.row(), QString("Rifugio Perù"));
        stage.press(Qt::Key_Return, Qt::ShiftModifier);
        QTRY_COMPARE(stage.row(), QString("Circolo PERU"));
    }

    void enterBeforeTheSearchHasEndedGoesThereAllTheSame() {
        Scena stage;
        stage.window();
        stage.open();
        stage.everywhere();
        stage.type("circolo");
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.row(), QString("Circolo PERU"));
    }

    void matchesWithoutAWayAreReportedAndNotShown() {
        Scena stage;
        const int id = stage.addRecipient(777, "Perduto Perù");
        Q_UNUSED(id)
        stage.open();
        stage.everywhere();
        stage.type("perduto");
        QTRY_COMPARE(stage.answer(), QString("1 in 0 cartelle, 1 in cartelle perdute"));
        stage.press(Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(!nodoCorrente);
        QVERIFY(stage.ends.isEmpty());
    }

    void selectedOnesOnly() {
        Scena stage;
        stage.clickNode("K1");
        stage.open();
        stage.checkedOnly();
        QTRY_COMPARE(stage.answer(), QString("1 trovato"));
        stage.press(Qt::Key_Return);
        QCOMPARE(stage.row(), QString("Caffè Due"));
        stage.everywhere();
        stage.type("peru");
        QTRY_COMPARE(stage.answer(), QString("1 in 1 cartella"));
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.row(), QString("Rifugio Perù"));
    }

    void folderThatWasEmptiedMeanwhileIsSkipped() {
        Scena stage;
        stage.window();
        stage.open();
        stage.everywhere();
        stage.type("peru");
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle"));
        SampleFolder::run(QString("DELETE FROM [tb_destinatari] WHERE id_grp = %1 ;").arg(stage.alpi));
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.row(), QString("Circolo PERU"));
    }

    void nothingIsWritten() {
        Scena stage;
        const QString before = stage.selections();
        stage.open();
        stage.everywhere();
        stage.type("x.it");
        for (int i = 0; i < 5; ++i) {
            stage.press(Qt::Key_Return);
            QTest::qWait(0);
        }
        QTRY_VERIFY(stage.answer().contains("6 in 3 cartelle"));
        QCOMPARE(stage.selections(), before);
    }

    void damagedDatabaseIsASentence() {
        Scena stage;
        stage.open();
        stage.everywhere();
        connDB = prefissoConnDB + percorsoDB + ".manca";
        stage.type("x.it");
        QTRY_VERIFY(stage.answer().startsWith("Ricerca non riuscita: "));
        stage.press(Qt::Key_Return);
        QVERIFY(stage.ends.isEmpty());
    }

    void damagedTableIsASentenceAndTheWindowLives() {
        Scena stage;
        stage.clickNode("K1");
        stage.open();
        stage.everywhere();
        stage.folder.damagePagesWith("x.it");
        stage.type("x.it");
        QTRY_VERIFY2(stage.answer().startsWith("Ricerca non riuscita: "), qPrintable(stage.answer()));
        stage.press(Qt::Key_Return);
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(stage.window().isVisible());
        stage.window().findChild<QComboBox*>("cmbDove")->setCurrentIndex(0);  // what is on the screen
        QTRY_COMPARE(stage.answer(), QString("2 di 2"));
        stage.grd().sortBy(3);
        QTRY_COMPARE(stage.columnOfGrid(colonnaAzienda), (QStringList{"Caffè Due", "Azienda Uno"}));
    }

    void folderThatCannotBeReadIsASentenceAndTheWindowLives() {
        Scena stage;
        stage.clickNode("K1");
        stage.open();
        stage.everywhere();
        stage.type("peru");
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle"));
        stage.folder.damagePagesWith("x.it");
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle; questa cartella non si può leggere"));
        QVERIFY(stage.ends.isEmpty());
        stage.window().findChild<QComboBox*>("cmbDove")->setCurrentIndex(0);
        QTRY_COMPARE(stage.answer(), QString("Ricerca non riuscita: questa cartella non si può leggere"));
        stage.press(Qt::Key_Return);
        const QStringList rows = stage.columnOfGrid(colonnaAzienda);
        stage.grd().sortBy(3);
        QVERIFY(!stage.grd().sorted());
        QCOMPARE(stage.columnOfGrid(colonnaAzienda), rows);
    }

    void databaseThatAnotherProgramLocksIsReportedAndTheSearchContinuesAfterwards() {
        Scena stage;
        stage.clickNode("K1");
        stage.open();
        stage.everywhere();
        const QString before = stage.help();
        LockedFile lock(stage.folder.database());
        stage.type("peru");
        QTRY_COMPARE(stage.answer(),
                     QString("Trovati: 0. Il database è usato da un altro programma: la ricerca "
                             "riprende quando è libero."));
        QCOMPARE(stage.help(), stage.answer());
        lock.release();
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle"));
        QCOMPARE(stage.help(), before);
        QVERIFY(stage.ends.isEmpty());
    }

    void otherDatabaseIsSearchedAgain() {
        Scena stage;
        stage.open();
        stage.everywhere();
        stage.type("peru");
        QTRY_COMPARE(stage.answer(), QString("2 in 2 cartelle"));
        const TestList other;
        other.add(0, "Altro Perù", "a@x.it", true);
        MessageDialog::queue(MessageDialog::Yes);
        ui::FileDialog::queue(other.path());
        stage.command("cmdMailingApri");
        QCOMPARE(percorsoDB, other.path());
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.answer(), QString("1 in 1 cartella"));
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(stage.row(), QString("Altro Perù"));
    }

    void headingSortsTheViewAndAReloadRestoresTheOrderOfTheStatement() {
        Scena stage;
        stage.clickNode("K1");
        const QString before = stage.selections();
        QCOMPARE(stage.columnOfGrid(colonnaAzienda), (QStringList{"Azienda Uno", "Caffè Due"}));
        QHeaderView& heads = *stage.grd().horizontalHeader();
        const QPoint email(heads.sectionViewportPosition(3) + 20, 10);
        QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, email);
        QTRY_COMPARE(stage.columnOfGrid(colonnaAzienda), (QStringList{"Caffè Due", "Azienda Uno"}));
        QCOMPARE(stage.help(), QString("Ordinati per Email, crescente"));
        QCOMPARE(stage.selections(), before);
        griglia::RinfrescaGriglia();
        QCOMPARE(stage.columnOfGrid(colonnaAzienda), (QStringList{"Azienda Uno", "Caffè Due"}));
        QVERIFY(!stage.grd().sorted());
    }

    void checkBoxOfASortedRowIsThatOfItsRecipient() {
        Scena stage;
        stage.clickNode("K1");
        stage.grd().sortBy(3);
        QTRY_COMPARE(stage.columnOfGrid(colonnaAzienda), (QStringList{"Caffè Due", "Azienda Uno"}));
        stage.clickCell(1, 2);
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = False AND email = 'due@x.it'"), 1);
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = True AND email = 'uno@x.it'"), 0);
    }
};

TEST_CLASS(TestTrova);

}  // namespace trova_test

#include "trova_test.moc"
