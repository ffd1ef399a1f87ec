// SPDX-License-Identifier: GPL-3.0-or-later
// The last import's report in memory, and the window that shows it.
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "modules/import/UltimaImportazione.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/import/frmImpTXT.h"
#include "windows/store/griglia_stage.h"
#include "windows/strumenti/frmUltimaImportazione.h"

namespace ultima_importazione_test {

using namespace testing_support;

namespace {

struct Scena : StoreStage {
    Scena() { ultimaImportazione() = {}; }
    void import(const QByteArray& lines) {
        window();
        QFile file(folder.path("soci.txt"));
        if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size()) qFatal("no file");
        file.close();
        clickNode("K1");
        frmImpTXT& form = finestre::ImpTXT();
        form.findChild<QLineEdit*>("txtPath")->setText(file.fileName());
        form.findChild<QComboBox*>("cmbCmp(2)")->setCurrentIndex(1);
        form.findChild<QPushButton*>("cmdImportaTXT")->click();
    }
    frmUltimaImportazione& open() {
        window();
        frmUltimaImportazione& form = finestre::UltimaImportazione();
        form.Mostra(ultimaImportazione());
        return form;
    }
    static QStringList rows(const frmUltimaImportazione& form) {
        QStringList shown;
        for (int i = 0; i < form.lstRighe->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* item = form.lstRighe->topLevelItem(i);
            if (!item->isHidden()) shown << item->text(0) + ' ' + item->text(2) + ": " + item->text(3);
        }
        return shown;
    }
};

}  // namespace

class TestUltimaImportazione : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void beforeAnyImportTheWindowSaysSo() {
        Scena stage;
        frmUltimaImportazione& form = stage.open();
        QCOMPARE(form.lblRiassunto->text(),
                 QString("Dall'avvio del programma non è stata fatta nessuna importazione."));
        QVERIFY(Scena::rows(form).isEmpty());
        QVERIFY(!form.cmdCopia->isEnabled());
    }

    void textImportReportsEachLineAndWhyItWasRefused() {
        Scena stage;
        stage.import(
            "anna@x.it;Anna\r\nbruno.x.it;Bruno\r\n;Carla\r\ndino@x.museum;Dino\r\nelsa@x.it;Elsa\r\n");
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 2);
        frmUltimaImportazione& form = stage.open();
        QVERIFY(form.lblRiassunto->text().startsWith("Da file di testo soci.txt, "));
        QVERIFY(form.lblRiassunto->text().endsWith("\nImportate 2, rifiutate 3."));
        QCOMPARE(
            Scena::rows(form),
            (QStringList{"2 bruno.x.it;Bruno: Nell'indirizzo manca \"@\"", "3 ;Carla: Manca l'indirizzo",
                         "4 dino@x.museum;Dino: L'ultima parte dell'indirizzo ha più di quattro caratteri"}));
        form.cmbMostra->setCurrentIndex(1);
        QCOMPARE(Scena::rows(form), (QStringList{"1 anna@x.it: ", "5 elsa@x.it: "}));
        form.cmbMostra->setCurrentIndex(2);
        QCOMPARE(Scena::rows(form).size(), 5);
    }

    void whatIsShownIsCopied() {
        Scena stage;
        stage.import("anna@x.it\r\nbruno\tx\r\n");
        frmUltimaImportazione& form = stage.open();
        form.cmdCopia->click();
        QCOMPARE(QApplication::clipboard()->text(),
                 QString("2\tRifiutata\tbruno x\tNell'indirizzo manca \"@\"\n"));
    }

    void nextImportForgetsTheOneBefore() {
        Scena stage;
        stage.import("anna\r\n");
        stage.import("bruno@x.it\r\n");
        frmUltimaImportazione& form = stage.open();
        QCOMPARE(Scena::rows(form), QStringList{"1 bruno@x.it: "});
    }

    void menuOpensTheWindowAndEscClosesIt() {
        Scena stage;
        stage.window();
        bool open = false;
        QTimer::singleShot(0, &stage.window(), [&] {
            frmUltimaImportazione& form = finestre::UltimaImportazione();
            open = QTest::qWaitForWindowExposed(&form) && form.isModal();
            QTest::keyClick(&form, Qt::Key_Escape);
        });
        stage.window().findChild<QAction*>("cmdStrumentiUltimaImportazione")->trigger();
        QVERIFY(open);
        QVERIFY(!finestre::UltimaImportazione().isVisible());
    }

    void linesBeyondTheBoundAreCountedOnly() {
        UltimaImportazione report;
        report.Comincia("prova");
        const auto more = static_cast<qint64>(UltimaImportazione::massimo) + 5;
        for (qint64 i = 1; i <= more; ++i) {
            report.Rifiutata(i, QString(5000, 'x'), "motivo");
            report.Importata(i, "a@x.it");
        }
        report.Finisci(more);
        QCOMPARE(report.Rifiutate(), more);
        QCOMPARE(report.Importate(), more);
        QCOMPARE(report.Righe().size(), 2 * UltimaImportazione::massimo);
        QCOMPARE(report.Righe()[0].testo.size(), qsizetype{UltimaImportazione::massimoTesto});
    }

    void linesThatWereLostAtTheEndAreReported() {
        Scena stage;
        ultimaImportazione().Comincia("prova");
        ultimaImportazione().Importata(1, "a@x.it");
        ultimaImportazione().Importata(2, "b@x.it");
        ultimaImportazione().Finisci(1);
        QVERIFY(stage.open().lblRiassunto->text().contains("Nel database ne sono rimaste 1"));
    }

    void reasonsOfRefusedAddresses_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty") << ""
                               << "Manca l'indirizzo";
        QTest::newRow("no at sign") << "anna.x.it"
                                    << "Nell'indirizzo manca \"@\"";
        QTest::newRow("no name") << "@x.it"
                                 << "Nell'indirizzo manca il nome prima di \"@\"";
        QTest::newRow("no domain") << "anna@x"
                                   << "Nell'indirizzo manca il dominio dopo \"@\"";
        QTest::newRow("long end") << "a@x.museum"
                                  << "L'ultima parte dell'indirizzo ha più di quattro caratteri";
        QTest::newRow("plus") << "a+b@x.it"
                              << "L'indirizzo non è valido";
    }
    void reasonsOfRefusedAddresses() {
        QFETCH(QString, address);
        QTEST(MotivoIndirizzo(address), "reason");
    }
};

TEST_CLASS(TestUltimaImportazione);

}  // namespace ultima_importazione_test

#include "ultima_importazione_test.moc"
