// SPDX-License-Identifier: GPL-3.0-or-later
// Faulty text files and databases: what the user reads, and that the rows before the fault stay.
#include <sys/stat.h>

#include <QTimer>

#include "platform/jet/Database.h"
#include "support/Impatience.h"
#include "support/TestClass.h"
#include "windows/import/imptxt_stage.h"

namespace imptxt_guasti_test {

using namespace testing_support;

namespace {

// more than two of the groups of 5000 rows that go to disk together
constexpr int manyLines = 12000;

/// Enough lines for a long import: "n1@x.it", "n2@x.it", …
QByteArray longList() {
    QByteArray lines;
    for (int i = 1; i <= manyLines; ++i)
        lines += "n" + QByteArray::number(i) + "@x.it\r\n";
    return lines;
}

}  // namespace

class TestImportTxtGuasti : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aFileThatCannotBeReadEndsTheProgram_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("failure");
        const QString notFound = "Errore 53:\r\n\r\nImpossibile trovare il file";
        const QString access = "Errore 75:\r\n\r\nErrore di accesso al percorso/file";
        QTest::newRow("empty path") << "" << notFound;
        QTest::newRow("missing file") << "/nowhere/a.txt" << notFound;
        QTest::newRow("directory") << "/tmp" << access;
        QTest::newRow("device") << "/dev/zero" << access;
        QTest::newRow("unreadable") << "/proc/self/mem"
                                    << "Errore 57:\r\n\r\nErrore di I/O del dispositivo";
    }
    void aFileThatCannotBeReadEndsTheProgram() {
        QFETCH(QString, path);
        QFETCH(QString, failure);
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(path, 1);
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.failure(), failure);
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(TxtStage::recipients(), 0);
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(stage.faults(), QStringList());
    }

    void aNewGroupIsMadeBeforeTheFileIsOpened() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map("/nowhere/a.txt", 1);
        stage.click("opt(1)");
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Nuova cartella)");
        QCOMPARE(TxtStage::groupsInTable(), 2);
    }

    void withoutACurrentNodeTheMessageIsShownAndTheFormStays() {
        TxtStage stage;
        stage.window();
        stage.map("/nowhere/a.txt", 1);
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QVERIFY(stage.oneBox("Selezionare una cartella dove aggiungere i destinatari.", 64));
        QVERIFY(stage.dialog().isVisible());
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(!QApplication::overrideCursor());
    }

    void aPipeIsNotWaitedFor() {
        TxtStage stage;
        stage.chooseNode(1);
        const QString pipe = stage.folder.path("pipe");
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        stage.map(pipe, 1);
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.failure(), "Errore 75:\r\n\r\nErrore di accesso al percorso/file");
    }

    void aLineOfTwoGigabytesEndsTheProgramAndTheRowsBeforeItStay() {
        TxtStage stage;
        stage.chooseNode(1);
        const QString path = stage.write("a.txt", "a@x.it\r\nb@x.it\r\n");
        QVERIFY(QFile::resize(path, qint64(2) << 30));
        stage.map(path, 1);
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QCOMPARE(stage.failure(), "Errore 57:\r\n\r\nErrore di I/O del dispositivo");
        QCOMPARE(TxtStage::inserted("email"), QStringList({"a@x.it", "b@x.it"}));
        QCOMPARE(stage.faults(), QStringList());
    }

    void aBinaryFileHasNoRows() {
        TxtStage stage;
        stage.chooseNode(1);
        QByteArray bytes;
        for (int i = 0; i < 100000; ++i)
            if (const char byte = static_cast<char>(i * 31 + i / 256); byte != '\r' && byte != '\n')
                bytes += byte;
        stage.map(stage.write("a.bin", bytes + "\na@x.it"), 1);
        stage.click("cmdImportaTXT");
        QCOMPARE(TxtStage::inserted("email"), QStringList("a@x.it"));
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(stage.faults(), QStringList());
    }

    void everyCharacterButTheQuotesOfAValueArrives() {
        TxtStage stage;
        stage.chooseNode(1);
        QByteArray name = "-";
        for (int code = 1; code < 256; ++code)
            if (!QByteArray("\r\n;'\"").contains(static_cast<char>(code)) && code % 5 == 0)
                name += static_cast<char>(code);
        name += '-';
        stage.map(stage.write("a.txt", "a@x.it;" + name + "\r\n"), 1, 2);
        stage.click("cmdImportaTXT");
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(TxtStage::inserted("nom")[0].toLatin1().size(), name.size());
        QCOMPARE(TxtStage::inserted("nom")[0].size(), name.size());
    }

    void aStatementThatFailsEndsTheProgram() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it;Anna\r\nb@x.it;Bruno\r\n"), 1, 2);
        ado::closeAll();
        QFile file(stage.folder.database());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        const QByteArray name("c\0a\0m\0p\0o\0009\0", 12);
        QVERIFY(bytes.contains(name));
        bytes.replace(name, QByteArray("c\0a\0m\0p\0o\0x\0", 12));
        QVERIFY(file.seek(0));
        QCOMPARE(file.write(bytes), bytes.size());
        file.close();
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QVERIFY(stage.failure().startsWith("Errore 3265:"));
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(TxtStage::recipients(), 0);
    }

    void aFileThatIsCutMeanwhileIsReadToItsNewEnd() {
        TxtStage stage;
        stage.chooseNode(1);
        const QString path = stage.write("a.txt", longList());
        stage.map(path, 1);
        bool cut = false;
        QTimer::singleShot(0, [&] { cut = QFile::resize(path, 10); });
        stage.click("cmdImportaTXT");
        QVERIFY(cut);
        QVERIFY(stage.ends.isEmpty());
        const QStringList addresses = TxtStage::inserted("email");
        QVERIFY(!addresses.isEmpty());
        QVERIFY(addresses.size() < manyLines);
        QVERIFY(isBeginningOfTheList(addresses));
        QCOMPARE(stage.faults(), QStringList());
    }

    void aFileThatIsRemovedMeanwhileIsReadToItsEnd() {
        TxtStage stage;
        stage.chooseNode(1);
        const QString path = stage.write("a.txt", longList());
        stage.map(path, 1);
        QTimer::singleShot(0, [&] { QFile::remove(path); });
        stage.click("cmdImportaTXT");
        QVERIFY(!QFile::exists(path));
        QCOMPARE(TxtStage::recipients(), manyLines);
        QVERIFY(isBeginningOfTheList(TxtStage::inserted("email")));
        QCOMPARE(stage.faults(), QStringList());
    }

    void aFileThatGrowsMeanwhileIsReadToItsNewEnd() {
        TxtStage stage;
        stage.chooseNode(1);
        const QString path = stage.write("a.txt", longList());
        stage.map(path, 1);
        bool grown = false;
        QTimer::singleShot(0, [&] {
            QFile file(path);
            grown = file.open(QIODevice::Append) && file.write("ultimo@x.it\r\n") > 0;
        });
        stage.click("cmdImportaTXT");
        QVERIFY(grown);
        QStringList addresses = TxtStage::inserted("email");
        QCOMPARE(addresses.size(), manyLines + 1);
        QCOMPARE(addresses.takeLast(), "ultimo@x.it");
        QVERIFY(isBeginningOfTheList(addresses));
        QCOMPARE(stage.faults(), QStringList());
    }

    void clicksAndKeysDuringTheImportAreThrownAway() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", longList()), 1);
        auto* close = stage.control<QPushButton>("cmdChiudi");
        auto* start = stage.control<QPushButton>("cmdImportaTXT");
        bool alive = false;
        QTimer::singleShot(0, [&] {
            alive = true;
            QTest::mouseClick(close, Qt::LeftButton);
            QTest::mouseClick(start, Qt::LeftButton);
            QTest::keyClick(&stage.dialog(), Qt::Key_Return);
        });
        stage.click("cmdImportaTXT");
        QVERIFY(alive);
        QCOMPARE(TxtStage::recipients(), manyLines);
        QCoreApplication::processEvents();
        QCOMPARE(TxtStage::recipients(), manyLines);
    }

    void rowsAreThereForTheRestOfTheProgramWhileTheImportRuns() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", longList()), 1);
        int seen = 0;
        QTimer::singleShot(0, [&] { seen = TxtStage::recipients(); });
        stage.click("cmdImportaTXT");
        QVERIFY(seen > 0);
        QVERIFY(seen < manyLines);
        QCOMPARE(TxtStage::recipients(), manyLines);
    }

    void aDatabaseThatSomebodyElseWritesToIsAFailure() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", "a@x.it\r\n"), 1);
        {
            const testing_support::Impatience impatience;
            auto other = esigi(jet::Database::open(stage.folder.database().toStdString()));
            esigi(other->begin());
            ui::MessageDialog::queue(ui::MessageDialog::Ok);
            stage.click("cmdImportaTXT");
        }
        QVERIFY(stage.failure().startsWith("Errore 3045:"));
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(TxtStage::recipients(), 0);
        QCOMPARE(stage.faults(), QStringList());
    }

    void aDatabaseThatIsRemovedMeanwhileIsAFailureAndTheRowsBeforeStay() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("a.txt", longList()), 1);
        QTimer::singleShot(0, [&] { stage.folder.hideDatabase(); });
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdImportaTXT");
        QVERIFY(!stage.failure().isEmpty());
        QCOMPARE(stage.ends, QList<int>{1});
        stage.folder.showDatabase();
        const QStringList addresses = TxtStage::inserted("email");
        QVERIFY(!addresses.isEmpty());
        QVERIFY(addresses.size() < manyLines);
        QVERIFY(isBeginningOfTheList(addresses));
        QCOMPARE(stage.faults(), QStringList());
    }
};

TEST_CLASS(TestImportTxtGuasti);

}  // namespace imptxt_guasti_test

#include "imptxt_guasti_test.moc"
