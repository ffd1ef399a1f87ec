// SPDX-License-Identifier: GPL-3.0-or-later
// The restart after a failure, and the end that the system requests.
#include "windows/entry/Riavvio.h"
#include "support/TestClass.h"

#include <sys/wait.h>
#include <unistd.h>
#include <chrono>
#include <csignal>
#include <QProcess>
#include <QScopeGuard>
#include <thread>

#include "modules/core/FileRiavvio.h"
#include "modules/message/CopiaRecupero.h"
#include "platform/html/HtmlView.h"
#include "platform/system/Clock.h"
#include "platform/ui/Unattended.h"
#include "windows/entry/bMain.h"
#include "windows/entry/FineSessione.h"
#include "windows/message/frmEditor.h"
#include "windows/shell/shell_support.h"

namespace riavvio_test {

using namespace testing_support;
using ui::MessageDialog;

class TestRiavvio : public QObject {
    Q_OBJECT

    int m_starts = 0;
    int m_seconds = 0;

    QString file(const StoreStage& stage, const QString& name = "riavvio.imp") const {
        return stage.folder.path("data/" + name);
    }
    static void fail() {
        evento([] { fallisci(ErrorCode::TypeMismatch); });
    }
    /// Ends the program by a failure, with a restart, as a user does half a minute after the start.
    void failAndRestart() {
        m_seconds = 30;
        MessageDialog::queue(MessageDialog::Restart);
        fail();
        QCOMPARE(m_starts, 1);
    }
    /// The file, with its process replaced by one that has ended.
    static QByteArray ofAnEndedProcess(QByteArray content) {
        QProcess ended;
        ended.start("/bin/true", QStringList());
        const QByteArray number = QByteArray::number(ended.processId());
        ended.waitForFinished();
        return content.replace("processo=" + QByteArray::number(::getpid()), "processo=" + number);
    }
    void startAnew(StoreStage& stage) {
        finestre::dimentica();
        nodoCorrente.reset();
        writeFile(file(stage), ofAnEndedProcess(readFile(file(stage))));
        riavvio::Raccogli();
        SubMain();
    }

  private Q_SLOTS:
    void init() {
        m_starts = 0;
        m_seconds = 0;
        const QDateTime begin(QDate(2026, 3, 1), QTime(9, 0));
        sys::clock().now = [this, begin] { return begin.addSecs(m_seconds); };
        riavvio::sostituisciPartenza([this] { ++m_starts; });
    }
    void cleanup() {
        sys::clock() = sys::systemClock();
        riavvio::sostituisciPartenza({});
        riavvio::Raccogli();
    }

    void itIsOfferedTenSecondsAfterAStartAndNotBefore() {
        StoreStage stage;
        SubMain();
        for (const auto& [seconds, offered] : {std::pair(0, false), {9, false}, {10, true}, {1000, true}}) {
            m_seconds = seconds;
            MessageDialog::queue(MessageDialog::Ok);
            fail();
            QCOMPARE(MessageDialog::shown().constLast().buttons.testFlag(QMessageBox::Retry), offered);
        }
        QCOMPARE(m_starts, 0);
        QVERIFY(!QFile::exists(file(stage)));
        QCOMPARE(stage.ends, QList<int>({1, 1, 1, 1}));
    }

    void itIsNotOfferedBeforeTheMainWindowHasComeUp() {
        StoreStage stage;
        riavvio::SegnaAvvio();
        m_seconds = 60;
        MessageDialog::queue(MessageDialog::Ok);
        fail();
        QCOMPARE(MessageDialog::shown().constLast().buttons,
                 QMessageBox::StandardButtons(QMessageBox::Close));
    }

    void itStartsTheProgramAndStillEndsThisOneWithStatusOne() {
        StoreStage stage;
        SubMain();
        failAndRestart();
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY(!QFile::exists(stage.folder.path("data/frmMain.imp")));
        QVERIFY(!QFile::exists(stage.folder.path("data/LayoutMain.imp")));
        QVERIFY(QFile::exists(file(stage)));
    }

    void theNewStartHasThePlaceAndTheGroupOfTheOldOne() {
        StoreStage stage;
        const int upper = stage.addGroup(0, "Fiere");
        const int lower = stage.addGroup(upper, "Milano");
        stage.addRecipient(lower, "Rossi", "a@x.it");
        SubMain();
        stage.clickNode(QString("K%1").arg(upper));
        stage.clickNode(QString("K%1").arg(lower));
        finestre::Main().move(70, 80);
        finestre::Main().resize(910, 550);
        failAndRestart();
        startAnew(stage);
        QCOMPARE(finestre::Main().size(), QSize(910, 550));
        QCOMPARE(finestre::Main().pos(), QPoint(70, 80));
        QVERIFY(nodoCorrente);
        QCOMPARE(nodoCorrente->Text, "Milano");
        QCOMPARE(stage.tree().SelectedItem()->Text(), "Milano");
        QCOMPARE(stage.columnOfGrid(3), QStringList("a@x.it"));
        QVERIFY2(!QFile::exists(file(stage)), "it counts once");
    }

    void aGroupThatIsGoneLeavesTheOneAboveIt() {
        StoreStage stage;
        const int upper = stage.addGroup(0, "Fiere");
        const int lower = stage.addGroup(upper, "Milano");
        SubMain();
        stage.clickNode(QString("K%1").arg(upper));
        stage.clickNode(QString("K%1").arg(lower));
        failAndRestart();
        SampleFolder::run(QString("DELETE FROM [tb_gruppi] WHERE id = %1 ;").arg(lower));
        startAnew(stage);
        QCOMPARE(nodoCorrente->Text, "Fiere");
    }

    void aPathOfAnotherDatabaseOpensNoGroup() {
        StoreStage stage;
        SubMain();
        stage.clickNode("K1");
        failAndRestart();
        writeFile(file(stage), readFile(file(stage)).replace("database=", "database=x"));
        startAnew(stage);
        QVERIFY(!nodoCorrente);
        QVERIFY(stage.ends == QList<int>{1});
    }

    void theNewStartWaitsForTheEndOfTheOldProgram_data() {
        QTest::addColumn<int>("milliseconds");
        QTest::newRow("that ends at once") << 300;
        QTest::newRow("that has a browser to end, on a loaded machine") << 6000;
    }
    void theNewStartWaitsForTheEndOfTheOldProgram() {
        QFETCH(int, milliseconds);
        StoreStage stage;
        const pid_t old = ::fork();
        if (old == 0)
            while (true)
                ::pause();
        writeFile(file(stage), "[Riavvio]\r\nprocesso=" + QByteArray::number(old) +
                                   "\r\nora=" + sys::clock().now().toUTC().toString(Qt::ISODate).toLatin1() +
                                   "\r\nposizione=1 2 3 4 0\r\ndatabase=\r\ngruppi=\r\n");
        std::thread end([old, milliseconds] {
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
            ::kill(old, SIGKILL);  // Qt Test would catch another signal in the child too
        });
        riavvio::Raccogli();
        const pid_t ended = ::waitpid(old, nullptr, WNOHANG);
        end.join();
        if (ended != old) ::waitpid(old, nullptr, 0);
        QCOMPARE(ended, old);
    }

    /// Runs the first events after a start; whether they opened the editor, which is closed again.
    static bool editorComesAfterTheStart() {
        bool shown = false;
        QTimer close;
        close.callOnTimeout([&] {
            if (!finestre::Editor().isVisible()) return;
            shown = true;
            finestre::Editor().hide();
        });
        close.start(10);
        QCoreApplication::processEvents();
        return shown;
    }
    static void writeMessage(const QString& path) {
        writeFile(path,
                  "[<INI-SUBJ>]Listino[<END-SUBJ>]\r\n[<INI-PRIO>]NR[<END-PRIO>]\r\n[<INI-ALLG>]\r\n"
                  "[<END-ALLG>]\r\n[<INI-MESS>]\r\n<p>Gentile cliente</p>\r\n[<END-MESS>]\r\n");
    }

    void aMessageThatWasLeftIsOpenedInTheEditorAfterTheStart() {
        StoreStage stage;
        const QString path = stage.folder.path("offerta di maggio.mss");
        writeMessage(path);
        QVERIFY(fileRiavvio::LasciaMessaggio(QFile::encodeName(path)).ok());
        riavvio::Raccogli();
        SubMain();
        QVERIFY(!finestre::Editor().isVisible());
        QVERIFY(editorComesAfterTheStart());
        const frmEditor& editor = finestre::Editor();
        QCOMPARE(editor.percorsoFile, path);
        QVERIFY(editor.windowTitle().contains("[offerta di maggio.mss]"));
        QVERIFY(!editor.IsModificato());
        QVERIFY(editor.DHTML->knownHTML().contains("Gentile cliente"));
        QVERIFY(!QFile::exists(file(stage)));
        riavvio::ApriMessaggio();
        QVERIFY2(!editor.isVisible(), "it counts once");
    }

    void withoutAMessageTheEditorStaysAway() {
        StoreStage stage;
        riavvio::Raccogli();
        SubMain();
        QVERIFY(!editorComesAfterTheStart());
        QCOMPARE(finestre::Editor().percorsoFile, QString());
    }

    void aRescueCopyIsOfferedFirstAndTheMessageIsOpenedWhereItIsNotTaken_data() {
        QTest::addColumn<bool>("taken");
        QTest::newRow("taken") << true;
        QTest::newRow("not taken") << false;
    }
    void aRescueCopyIsOfferedFirstAndTheMessageIsOpenedWhereItIsNotTaken() {
        QFETCH(bool, taken);
        StoreStage stage;
        {
            CopiaRecupero copy;
            copy.Scrivi({"bozza.mss", "Bozza", "NR", {}, "<p>uno</p>", {}});
        }
        const QString path = stage.folder.path("offerta.mss");
        writeMessage(path);
        QVERIFY(fileRiavvio::LasciaMessaggio(QFile::encodeName(path)).ok());
        riavvio::Raccogli();
        SubMain();
        MessageDialog::queue(taken ? MessageDialog::Yes : MessageDialog::No);
        QVERIFY(editorComesAfterTheStart());
        QCOMPARE(MessageDialog::shown().size(), 1);
        QCOMPARE(finestre::Editor().percorsoFile, taken ? QString() : path);
    }

    void aNameThatIsNoTextIsReported() {
        StoreStage stage;
        QVERIFY(fileRiavvio::LasciaMessaggio("/posta/\xff.mss").ok());
        riavvio::Raccogli();
        SubMain();
        MessageDialog::queue(MessageDialog::Ok);
        QVERIFY(!editorComesAfterTheStart());
        QVERIFY(MessageDialog::shown().constLast().text.contains("rinominalo"));
    }

    void aNewStartKeepsTheMessageThatSomebodyHasLeft() {
        StoreStage stage;
        SubMain();
        QVERIFY(fileRiavvio::LasciaMessaggio("/posta/a.mss").ok());
        failAndRestart();
        QCOMPARE(fileRiavvio::Raccogli().messaggio, QByteArray("/posta/a.mss"));
    }

    void anOldFileDoesNotCount() {
        StoreStage stage;
        SubMain();
        stage.clickNode("K1");
        failAndRestart();
        m_seconds += 61;
        startAnew(stage);
        QVERIFY(!nodoCorrente);
        QVERIFY(!QFile::exists(file(stage)));
    }

    void aDamagedFileIsSetAside_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("other") << QByteArray("[Form frmMain]\r\n");
        QTest::newRow("title alone") << QByteArray("[Riavvio]\r\n");
        QTest::newRow("too long") << "[Riavvio]\r\n" + QByteArray(70000, 'x');
        QTest::newRow("no numbers") << QByteArray(
            "[Riavvio]\r\nprocesso=x\r\nora=2026-03-01T09:00:00Z\r\n"
            "posizione=a b c d e\r\n");
        QTest::newRow("four numbers")
            << QByteArray("[Riavvio]\r\nprocesso=99\r\nora=2026-03-01T09:00:00Z\r\nposizione=1 2 3 4\r\n");
    }
    void aDamagedFileIsSetAside() {
        QFETCH(QByteArray, content);
        StoreStage stage;
        writeFile(file(stage), content);
        riavvio::Raccogli();
        QVERIFY(!QFile::exists(file(stage)));
        QCOMPARE(readFile(file(stage, "riavvio.imp.rovinato")), content);
        SubMain();
        QVERIFY(finestre::Main().isVisible());
        QVERIFY(!nodoCorrente);
    }

    void numbersThatNoWindowCanHaveAreHarmless() {
        StoreStage stage;
        QProcess ended;
        ended.start("/bin/true", QStringList());
        const QByteArray number = QByteArray::number(ended.processId());
        ended.waitForFinished();
        writeFile(file(stage), "[Riavvio]\r\nprocesso=" + number +
                                   "\r\nora=" + sys::clock().now().toUTC().toString(Qt::ISODate).toLatin1() +
                                   "\r\nposizione=2147483647 -2147483648 2147483647 -1 99\r\n"
                                   "database=%\r\ngruppi=K999 K0 K0\r\n");
        riavvio::Raccogli();
        SubMain();
        QVERIFY(finestre::Main().isVisible());
        QVERIFY(stage.ends.isEmpty());
    }

    void theEndOfTheSessionSavesLayoutAndPlacementWhateverWindowIsOpen() {
        StoreStage stage;
        SubMain();
        bool modal = false;
        closeModalWindow([&](QWidget& window) {
            modal = window.objectName() == "frmImpTXT";
            FineSessione();
        });
        stage.command("cmdMailingImpTXT");
        QVERIFY(modal);
        QCOMPARE(stage.ends, QList<int>{0});
        QVERIFY(QFile::exists(stage.folder.path("data/LayoutMain.imp")));
        QVERIFY(QFile::exists(stage.folder.path("data/frmMain.imp")));
    }

    void theEndOfTheSessionBeforeTheMainWindowIsUpSavesNothing() {
        StoreStage stage;
        riavvio::SegnaAvvio();
        try {
            FineSessione();
        } catch (const ProgrammaTerminato&) {
        }
        QCOMPARE(stage.ends, QList<int>{0});
        QVERIFY(!QFile::exists(stage.folder.path("data/frmMain.imp")));
    }

    void theEndOfTheSessionOverAFailureEndsWithItsStatusAndSavesNothing() {
        StoreStage stage;
        SubMain();
        ui::setUnattended(false);
        QTimer::singleShot(0, this, [] {
            try {
                FineSessione();
            } catch (const ProgrammaTerminato&) {
            }
            if (QWidget* box = QApplication::activeModalWidget()) box->close();
        });
        fail();
        QCOMPARE(stage.ends.constFirst(), 1);
        QVERIFY(!QFile::exists(stage.folder.path("data/frmMain.imp")));
    }
};

TEST_CLASS(TestRiavvio);

}  // namespace riavvio_test

#include "riavvio_test.moc"
