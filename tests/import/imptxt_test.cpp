// The window of the text import: its controls, and files that import as they should.
#include "import/frmImpTXT.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include "import/campi.h"
#include "import/import_stage.h"
#include "import/imptxt_stage.h"

using namespace testing_support;

namespace {

const QString dataFolder = QStringLiteral(TEST_DATA_DIR "/txt/");

QJsonArray vectors() {
    QFile file(dataFolder + "expected.json");
    if (!file.open(QIODevice::ReadOnly)) qFatal("no vectors");
    return QJsonDocument::fromJson(file.readAll()).object()["vectors"].toArray();
}

}  // namespace

class TestImportTxt : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void opensOverTheMainWindowByItsCommand() {
        TxtStage stage;
        stage.window();
        bool modal = false;
        QTimer::singleShot(0, &stage.window(), [&] {
            modal = QApplication::activeModalWidget() == &finestre::ImpTXT();
            finestre::ImpTXT().findChild<QPushButton*>("cmdChiudi")->click();
        });
        stage.command("cmdMailingImpTXT");
        QVERIFY(modal);
        QVERIFY(!finestre::ImpTXT().isVisible());
        QVERIFY(stage.ends.isEmpty());
    }

    void startsEmptyWithTheItalianTexts() {
        TxtStage stage;
        QCOMPARE(stage.dialog().windowTitle(), " Importa destinatari da file di testo");
        QCOMPARE(stage.control<QLineEdit>("txtPath")->text(), "");
        QCOMPARE(stage.control<QLineEdit>("txtSep")->text(), ";");
        QCOMPARE(stage.control<QLabel>("lbl(1)")->text(), "Separatore campi:");
        QCOMPARE(stage.control<QPushButton>("cmdSfoglia")->text(), "Sfoglia");
        QCOMPARE(stage.control<QPushButton>("cmdImportaTXT")->text(), "&Importa destinatari");
        QCOMPARE(stage.control<QPushButton>("cmdChiudi")->text(), "&Chiudi");
        QVERIFY(!stage.enabled("cmdImportaTXT"));
        QVERIFY(!stage.enabled("txtCartella"));
        QVERIFY(stage.control<QRadioButton>("opt(0)")->isChecked());
        QCOMPARE(stage.control<QLineEdit>("txtCartella")->text(), "Nuova cartella");
        QStringList voci{" ---------- "};
        for (int n = 1; n <= 18; ++n)
            voci << QString("Campo n.%1").arg(n);
        for (int i = 0; i < 19; ++i) {
            QStringList offered;
            for (int n = 0; n < stage.box(i)->count(); ++n)
                offered << stage.box(i)->itemText(n);
            QCOMPARE(offered, voci);
            QCOMPARE(stage.box(i)->currentIndex(), 0);
        }
    }

    void eachBoxStandsUnderTheLabelOfItsColumn() {
        TxtStage stage;
        const QStringList labels{"Ragione Sociale:", "Nome:",      "Email:",     "P.Iva o Cod.Fis.:", "CAP:",
                                 "Località:",        "Provincia:", "Indirizzo:", "Telefono:",         "Fax:"};
        for (int i = 0; i < 19; ++i) {
            const QString text = i < 10 ? labels[i] : QString("Campo %1:").arg(i - 9);
            QLabel* above = stage.labelAbove(i);
            QVERIFY(above);
            QCOMPARE(above->text(), text);
            QCOMPARE(above->buddy(), stage.box(i));
            QCOMPARE(stage.box(i)->accessibleName(), QString(text).remove(':'));
        }
        QCOMPARE(stage.labelAbove(7)->objectName(), "lblcmp(4)");
        QCOMPARE(stage.labelAbove(4)->objectName(), "lblcmp(5)");
        QCOMPARE(stage.labelAbove(5)->objectName(), "lblcmp(6)");
        QCOMPARE(stage.labelAbove(6)->objectName(), "lblcmp(7)");
    }

    void boxesStandInFourRowsOfFiveTheLastOfFour() {
        TxtStage stage;
        for (int i = 0; i < 19; ++i) {
            const QPoint place = stage.box(i)->mapTo(&stage.dialog(), QPoint());
            QCOMPARE(place.y(), stage.box(i / 5 * 5)->mapTo(&stage.dialog(), QPoint()).y());
            QCOMPARE(place.x(), stage.box(i % 5)->mapTo(&stage.dialog(), QPoint()).x());
        }
    }

    void boxOfTheAddressIsPaleYellow() {
        TxtStage stage;
        for (int i = 0; i < 19; ++i)
            QCOMPARE(stage.box(i)->palette().color(QPalette::Base) == QColor(255, 255, 204), i == 2);
        QCOMPARE(stage.box(2)->accessibleDescription(), "obbligatorio");
    }

    void onlyTheBoxOfTheAddressEnablesTheImport() {
        TxtStage stage;
        QVERIFY(stage.control<QPushButton>("cmdSfoglia")->isDefault());
        for (int i = 0; i < 19; ++i)
            if (i != 2) stage.box(i)->setCurrentIndex(1);
        QVERIFY(!stage.enabled("cmdImportaTXT"));
        stage.box(2)->setCurrentIndex(18);
        QVERIFY(stage.enabled("cmdImportaTXT"));
        QVERIFY(stage.control<QPushButton>("cmdImportaTXT")->isDefault());
        stage.box(0)->setCurrentIndex(0);
        QVERIFY(stage.enabled("cmdImportaTXT"));
        stage.box(2)->setCurrentIndex(0);
        QVERIFY(!stage.enabled("cmdImportaTXT"));
    }

    void nameOfTheNewGroupIsEnabledWithTheSecondOption() {
        TxtStage stage;
        stage.click("opt(1)");
        QVERIFY(stage.enabled("txtCartella"));
        stage.click("opt(0)");
        QVERIFY(!stage.enabled("txtCartella"));
    }

    void browseTakesTheChosenFileAndLeavesEverythingAfterACancel() {
        TxtStage stage;
        ui::FileDialog::queue("/tmp/elenco.txt");
        stage.click("cmdSfoglia");
        QCOMPARE(stage.control<QLineEdit>("txtPath")->text(), "/tmp/elenco.txt");
        ui::FileDialog::queueCancel();
        stage.click("cmdSfoglia");
        QCOMPARE(stage.control<QLineEdit>("txtPath")->text(), "/tmp/elenco.txt");
        QCOMPARE(ui::FileDialog::shown()[0].title, "Apri Database Access");
        QCOMPARE(ui::FileDialog::shown()[0].filter, "File di Testo (*.TXT)|*.TXT");
        QVERIFY(stage.ends.isEmpty());
    }

    void isLeftByItsOwnButtonOnlyAndKeepsItsFields() {
        TxtStage stage;
        stage.type("txtPath", "a.txt");
        stage.type("txtSep", "||");
        stage.box(2)->setCurrentIndex(3);
        QVERIFY(!stage.dialog().close());
        QTest::keyClick(&stage.dialog(), Qt::Key_Escape);
        QVERIFY(stage.dialog().isVisible());
        stage.click("cmdChiudi");
        QVERIFY(!finestre::ImpTXT().isVisible());
        QCOMPARE(stage.control<QLineEdit>("txtPath")->text(), "a.txt");
        QCOMPARE(stage.control<QLineEdit>("txtSep")->text(), "||");
        QCOMPARE(stage.box(2)->currentIndex(), 3);
        QVERIFY(stage.enabled("cmdImportaTXT"));
    }

    void tabGoesPairByPairAlongTheRows() {
        TxtStage stage;
        stage.box(2)->setCurrentIndex(1);
        QApplication::setActiveWindow(&stage.dialog());
        stage.control<QLineEdit>("txtPath")->setFocus();
        QStringList order{"txtPath"};
        for (int i = 0; i < 24; ++i) {
            QTest::keyClick(stage.dialog().focusWidget(), Qt::Key_Tab);
            order << stage.dialog().focusWidget()->objectName();
        }
        QStringList wanted{"txtPath", "cmdSfoglia", "txtSep"};
        for (int i = 0; i < 19; ++i)
            wanted << QString("cmbCmp(%1)").arg(i);
        for (const char* name : {"opt(0)", "cmdImportaTXT", "cmdChiudi"})
            wanted << name;
        QCOMPARE(order, wanted);
    }

    void vectors_data() {
        QTest::addColumn<QJsonObject>("vector");
        for (const QJsonValue& value : ::vectors())
            QTest::newRow(qPrintable(value["name"].toString())) << value.toObject();
    }
    void vectors() {
        QFETCH(QJsonObject, vector);
        TxtStage stage;
        const int target = vector["target"].toInt();
        for (int group = 2; group <= target; ++group)
            stage.addGroup(0, QString("Gruppo %1").arg(group));
        stage.chooseNode(target);
        stage.type("txtPath", dataFolder + vector["file"].toString());
        stage.type("txtSep", vector["txtSep"].toString());
        const QJsonArray boxes = vector["cmbCmp"].toArray();
        for (int i = 0; i < 19; ++i)
            stage.box(i)->setCurrentIndex(boxes[i].toInt());
        const bool fails = !vector["failure_at_line"].isNull();
        if (fails) ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.failure(), fails ? "Errore 9:\r\n\r\nIndice non compreso nell'intervallo" : "");
        QCOMPARE(stage.ends, fails ? QList<int>{1} : QList<int>{});
        QCOMPARE(ui::MessageDialog::shown().size(), fails ? 1 : 0);
        QCOMPARE(finestre::ImpTXT().isVisible(), fails);
        QCOMPARE(TxtStage::recipients(), vector["rows"].toInt());
        QCOMPARE(TxtStage::statementsHash(), vector["sql_sha256"].toString().toLatin1());
        QCOMPARE(TxtStage::count("tb_destinatari", "sel = True"), vector["rows"].toInt());
        QCOMPARE(stage.faults(), QStringList());
    }

    void newGroupGetsTheRowsAndIsOnTheTreeAtOnce() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it;Rossi\r\nb@x.it;Bianchi\r\n"), 1, 2);
        stage.click("opt(1)");
        stage.type("txtCartella", "Fiera");
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Fiera)");
        const QString id = TxtStage::look("SELECT id FROM [tb_gruppi] WHERE nome = 'Fiera' ;");
        QCOMPARE(TxtStage::inserted("id_grp"), QStringList({id, id}));
        QCOMPARE(TxtStage::inserted("nom"), QStringList({"Rossi", "Bianchi"}));
        QVERIFY(!finestre::ImpTXT().isVisible());
    }

    void gridIsNotRefreshedBeforeTheNextClick() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it\r\n"), 1);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.grd().Rows(), 1);
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Rows(), 2);
    }

    void sameFileTwiceGivesEveryRowTwice() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it\r\nb@x.it\r\n"), 1);
        stage.click("cmdImportaTXT");
        stage.click("cmdImportaTXT");
        QCOMPARE(TxtStage::inserted("email"), QStringList({"a@x.it", "b@x.it", "a@x.it", "b@x.it"}));
    }

    void progressOfTheStatusBarIsNotUsed() {
        TxtStage stage;
        stage.chooseNode(1);
        ui::ProgressCounter& progress = *stage.window().Commands().GetProgress("stcProgress");
        const double maximum = progress.maximum();
        stage.map(stage.write("a.txt", "a@x.it\r\nb@x.it\r\n"), 1);
        stage.click("cmdImportaTXT");
        QCOMPARE(progress.value(), 0.0);
        QCOMPARE(progress.maximum(), maximum);
    }

    void hourglassIsGoneAfterTheImport() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it\r\n"), 1);
        stage.click("cmdImportaTXT");
        QVERIFY(!QApplication::overrideCursor());
    }
};

QTEST_MAIN(TestImportTxt)
#include "imptxt_test.moc"
