// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the text import: its controls, and files that import as they should.
#include "support/TestClass.h"
#include "windows/import/frmImpTXT.h"

#include <QDropEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QTimer>

#include "modules/import/campi.h"
#include "windows/import/import_stage.h"
#include "windows/import/imptxt_stage.h"

namespace imptxt_test {

using namespace testing_support;

namespace {

const QString dataFolder = QStringLiteral(TEST_DATA_DIR "/txt/");

QJsonArray expectedRows() {
    QFile file(dataFolder + "expected.json");
    if (!file.open(QIODevice::ReadOnly)) qFatal("no vectors");
    return QJsonDocument::fromJson(file.readAll()).object()["vectors"].toArray();
}

}  // namespace

class TestImportTxt : public QObject {
    Q_OBJECT

  private Q_SLOTS:
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

    void vectors_data() {
        QTest::addColumn<QJsonObject>("vector");
        for (const QJsonValue& value : expectedRows())
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
        const QString failure =
            QString("Errore 9:\r\n\r\nRiga %1: il campo %2 non c'è; inserito 1 destinatario")
                .arg(vector["failure_at_line"].toInt())
                .arg(boxes[2].toInt());
        if (fails) QVERIFY2(stage.failure().startsWith(failure), qPrintable(stage.failure()));
        QCOMPARE(stage.failure().isEmpty(), !fails);
        QCOMPARE(stage.ends, fails ? QList<int>{1} : QList<int>{});
        QCOMPARE(ui::MessageDialog::shown().size(), fails ? 1 : 0);
        QCOMPARE(finestre::ImpTXT().isVisible(), fails);
        QCOMPARE(TxtStage::recipients(), vector["rows"].toInt());
        QCOMPARE(TxtStage::statementsHash(), vector["sql_sha256"].toString().toLatin1());
        QCOMPARE(TxtStage::count("tb_destinatari", "sel = True"), vector["rows"].toInt());
        QCOMPARE(stage.faults(), QStringList());
    }

    void unicodeFilesArriveAsTheyAreWritten_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QString lines = "a@x.it;Perù\r\nb@x.it;€uro\r\n";
        QByteArray utf16("\xff\xfe");
        for (const QChar unit : lines)
            utf16 += QByteArray(1, static_cast<char>(unit.cell())) + static_cast<char>(unit.row());
        QTest::newRow("UTF-8") << lines.toUtf8();
        QTest::newRow("UTF-8 with a mark") << "\xef\xbb\xbf" + lines.toUtf8();
        QTest::newRow("UTF-16") << utf16;
        QTest::newRow("Windows-1252") << QByteArray("a@x.it;Per\xf9\r\nb@x.it;\x80uro\r\n");
        QTest::newRow("with NULs") << QByteArray("a@x.it;Per\xf9\0\r\nb@x.it\0;\x80uro\r\n", 28);
    }
    void unicodeFilesArriveAsTheyAreWritten() {
        QFETCH(QByteArray, bytes);
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.csv", bytes), 1, 2);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.failure(), QString());
        QCOMPARE(TxtStage::inserted("email"), QStringList({"a@x.it", "b@x.it"}));
        QCOMPARE(TxtStage::inserted("nom"), QStringList({"Perù", "€uro"}));
    }

    void aPathMayEndInALineBreak() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it\r\n") + '\n', 1);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.failure(), QString());
        QCOMPARE(TxtStage::recipients(), 1);
    }

    void ctrlTabPutsATabIntoTheSeparator() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it\tRossi\r\n"), 1, 2);
        auto* separator = stage.control<QLineEdit>("txtSep");
        separator->setFocus();
        separator->selectAll();
        QTest::keyClick(separator, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(separator->text(), "\t");
        QCOMPARE(QApplication::focusWidget(), separator);
        separator->deselect();
        separator->clearFocus();
        const QImage tab = separator->grab().toImage();
        separator->clear();
        QVERIFY2(separator->grab().toImage() != tab, "the tab shows nothing");
        separator->setText("\t");
        QCOMPARE(separator->accessibleDescription(), "Contiene una tabulazione");
        stage.click("cmdImportaTXT");
        QCOMPARE(TxtStage::inserted("nom"), QStringList("Rossi"));
    }

    void tabAloneLeavesTheSeparator() {
        TxtStage stage;
        auto* separator = stage.control<QLineEdit>("txtSep");
        separator->setFocus();
        QTest::keyClick(separator, Qt::Key_Tab);
        QCOMPARE(separator->text(), ";");
        QVERIFY(QApplication::focusWidget() != separator);
    }

    void aFileMayBeDroppedAnywhereOnTheWindow() {
        TxtStage stage;
        const auto drop = [&](QWidget* on, const QList<QUrl>& urls) {
            QMimeData data;
            data.setUrls(urls);
            QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(on, &enter);
            QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(on, &event);
        };
        auto* path = stage.control<QLineEdit>("txtPath");
        const QUrl file = QUrl::fromLocalFile("/tmp/la lista.csv");
        drop(&stage.dialog(), {file});
        QCOMPARE(path->text(), "/tmp/la lista.csv");
        for (const char* box : {"txtPath", "txtSep", "txtCartella"}) {
            path->clear();
            auto* target = stage.control<QLineEdit>(box);
            target->setEnabled(true);
            drop(target, {file});
            QCOMPARE(path->text(), "/tmp/la lista.csv");
        }
        QCOMPARE(stage.control<QLineEdit>("txtSep")->text(), ";");
        drop(&stage.dialog(), {file, QUrl::fromLocalFile("/tmp/b.csv")});
        drop(&stage.dialog(), {QUrl("http://x.it/a.csv")});
        QCOMPARE(path->text(), "/tmp/la lista.csv");
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
};

TEST_CLASS(TestImportTxt);

}  // namespace imptxt_test

#include "imptxt_test.moc"
