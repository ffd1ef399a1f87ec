// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QMessageBox>
#include <QScopeGuard>
#include <QScreen>
#include <QTimer>

#include "modules/store/NuovoDatabase.h"
#include "modules/store/percorsoDBase.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Connection.h"
#include "platform/jet/Database.h"
#include "platform/system/Clock.h"
#include "platform/system/ProgramFolder.h"
#include "platform/ui/DockPanes.h"
#include "platform/ui/Unattended.h"
#include "support/TestClass.h"
#include "windows/core/CentraForm.h"
#include "windows/entry/bMain.h"
#include "windows/shell/frmSplash.h"
#include "windows/shell/shell_support.h"

namespace start_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

const QString prefix = "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = ";

void start() {
    percorsoDB.clear();
    connDB.clear();
    evento([] { SubMain(); });
}

bool splashIsThere() {
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmSplash") return true;
    return false;
}

}  // namespace

/// Notes the order in which splash and main window are shown and hidden.
class WindowWatch : public QObject {
  public:
    explicit WindowWatch(QStringList& seen) : m_seen(seen) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool comesOrGoes = event->type() == QEvent::Show || event->type() == QEvent::Hide;
        const QString name = watched->objectName();
        if (comesOrGoes && watched->isWidgetType() && (name == "frmSplash" || name == "frmMain"))
            m_seen << name + (event->type() == QEvent::Show ? " shown" : " hidden");
        return false;
    }

  private:
    QStringList& m_seen;
};

class TestStart : public QObject {
    Q_OBJECT

    static void setPathFile(const StoreStage& stage, const QByteArray& content) {
        writeFile(stage.folder.path("data/pathDBase.imp"), content);
    }

  private Q_SLOTS:
    void cleanup() {
        ui::setUnattended(true);
        while (QApplication::overrideCursor())
            QApplication::restoreOverrideCursor();
    }

    void aJournalThatDoesNotBelongToTheDatabaseIsSetAsideAndReported() {
        StoreStage stage;
        writeFile(stage.folder.database() + "-journal", QByteArray(5000, 'x'));
        MessageDialog::queue(MessageDialog::Ok);
        start();
        const auto boxes = MessageDialog::shown();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].title, "Attenzione");
        QVERIFY(boxes[0].text.contains("data.mdb-journal.scartato"));
        QCOMPARE(readFile(stage.folder.database() + "-journal.scartato"), QByteArray(5000, 'x'));
    }

    void aNoticeOfTheEngineComesAfterTheOutermostHandler() {
        StoreStage stage;
        start();
        ado::closeAll();
        writeFile(stage.folder.database() + "-journal", QByteArray(5000, 'x'));
        MessageDialog::queue(MessageDialog::Ok);
        qsizetype within = -1;
        evento([&] {
            evento([] {
                ado::Recordset groups = RecordsetDB();
                groups.setSource("SELECT * FROM [tb_gruppi];");
                esigi(groups.open());
            });
            within = MessageDialog::shown().size();
        });
        QCOMPARE(within, 0);
        QCOMPARE(MessageDialog::shown().size(), 1);
    }

    void theStartWritesTheLogReadsThePathAndShowsTheTitledWindow() {
        StoreStage stage;
        start();
        QVERIFY(readFile(stage.folder.path("Error.txt")).startsWith("Inizio applicazione: "));
        QCOMPARE(percorsoDB, stage.folder.database());
        QCOMPARE(connDB, prefix + percorsoDB);
        QVERIFY(finestre::Main().isVisible());
        QVERIFY(finestre::Main().isEnabled());
        QCOMPARE(finestre::Main().windowTitle(), "Vestrola - Ver. 3.0.2130");
        QVERIFY(!splashIsThere());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(stage.tree().Count(), 2);
        QCOMPARE(stage.grd().Rows(), 1);
        QCOMPARE(finestre::Main().DockWindows().DockWindows("dckGruppi")->content(), &stage.groups());
    }

    void xxxInTheSecondLineSelectsTheDefaultDatabase() {
        StoreStage stage;
        setPathFile(stage, "anything at all\r\nXXX\r\n");
        start();
        QCOMPARE(percorsoDB, stage.folder.database());
        QCOMPARE(stage.tree().Count(), 2);
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void anyOtherTextIsUsedLiterallyAlsoARelativePath() {
        StoreStage stage;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(stage.folder.path("data")));
        setPathFile(stage, "[Path dabatase Quintara]\r\ndata.mdb\r\n");
        start();
        QDir::setCurrent(before);
        QCOMPARE(percorsoDB, "data.mdb");
        QCOMPARE(connDB, prefix + "data.mdb");
        QCOMPARE(stage.tree().Count(), 2);
    }

    void unusablePathsStartTheRecovery_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("path");
        QTest::newRow("xxx in lower case is a path") << QByteArray("h\r\nxxx\r\n") << "xxx";
        QTest::newRow("no second line") << QByteArray("h\r\n") << "";
        QTest::newRow("empty file") << QByteArray() << "";
        QTest::newRow("missing database") << QByteArray("h\r\n/nowhere/list.mdb\r\n") << "/nowhere/list.mdb";
    }
    void unusablePathsStartTheRecovery() {
        QFETCH(QByteArray, file);
        QFETCH(QString, path);
        StoreStage stage;
        setPathFile(stage, file);
        MessageDialog::queue(1);
        MessageDialog::queue(1);
        FileDialog::queueCancel();
        start();
        QCOMPARE(percorsoDB, path);
        QCOMPARE(MessageDialog::shown().size(), 2);
        QCOMPARE(stage.ends.size(), 1);
    }

    void aDatabaseThatCannotBeReadStartsTheRecoveryAndStaysAsItIs_data() {
        QTest::addColumn<double>("kept");
        QTest::addColumn<QByteArray>("added");
        QTest::newRow("empty") << 0.0 << QByteArray();
        QTest::newRow("no database") << 0.0 << QByteArray(8192, 'x');
        QTest::newRow("cut in half") << 0.5 << QByteArray();
        QTest::newRow("rubbish behind the header") << 0.04 << QByteArray(400000, '\xa5');
    }
    void aDatabaseThatCannotBeReadStartsTheRecoveryAndStaysAsItIs() {
        QFETCH(double, kept);
        QFETCH(QByteArray, added);
        StoreStage stage;
        const QByteArray whole = readFile(stage.folder.database());
        const QByteArray content =
            whole.left(static_cast<qsizetype>(static_cast<double>(whole.size()) * kept)) + added;
        writeFile(stage.folder.database(), content);
        MessageDialog::queue(1);
        MessageDialog::queue(1);
        FileDialog::queueCancel();
        start();
        QCOMPARE(MessageDialog::shown().size(), 2);
        QVERIFY(MessageDialog::shown()[0].text.startsWith("Impossibile trovare il database."));
        QCOMPARE(stage.ends.size(), 1);
        QCOMPARE(readFile(stage.folder.database()), content);
        QVERIFY(QFile::remove(stage.folder.database()));  // else it is verified at the end
    }

    void refusingAnotherDatabaseEndsTheProgramAndSavesNothing() {
        StoreStage stage;
        QVERIFY(QFile::remove(stage.folder.path("data/pathDBase.imp")));
        MessageDialog::queue(1);
        MessageDialog::queue(1);
        FileDialog::queueCancel();
        start();
        const auto& boxes = MessageDialog::shown();
        QCOMPARE(boxes.size(), 2);
        QCOMPARE(boxes[0].text,
                 "Impossibile trovare il database.\r\nCaricare un'altro database prima di continuare.");
        QCOMPARE(boxes[0].style, 16);
        QCOMPARE(boxes[0].title, "Attenzione");
        QCOMPARE(boxes[1].text,
                 "Si è scelto di non continuare.\r\nImpossibile utilizzare il programma senza un Database "
                 "valido.");
        QCOMPARE(boxes[1].style, 16);
        QCOMPARE(boxes[1].title, "Attenzione");
        QCOMPARE(FileDialog::shown().size(), 1);
        QVERIFY(!FileDialog::shown()[0].save);
        QCOMPARE(FileDialog::shown()[0].title, "Apri Mailing List");
        QCOMPARE(FileDialog::shown()[0].filter, "Database Mailing List *.mdb|*.mdb|");
        QCOMPARE(stage.ends.size(), 1);
        QCOMPARE(QDir(stage.folder.path("data")).entryList(QDir::Files),
                 (QStringList{"Account.imp", "data.mdb"}));
    }

    void aWrongFileEndsTheProgram() {
        StoreStage stage;
        setPathFile(stage, "h\r\n/nowhere\r\n");
        writeFile(stage.folder.path("no.mdb"), "nothing of the kind");
        MessageDialog::queue(1);
        MessageDialog::queue(1);
        FileDialog::queue(stage.folder.path("no.mdb"));
        start();
        const auto& boxes = MessageDialog::shown();
        QCOMPARE(boxes.size(), 2);
        QCOMPARE(boxes[1].text, "Formato file errato");
        QCOMPARE(boxes[1].style, 64);
        QCOMPARE(boxes[1].title, "Attenzione");
        QCOMPARE(stage.ends.size(), 1);
        QCOMPARE(readFile(stage.folder.path("data/pathDBase.imp")), "h\r\n/nowhere\r\n");
        QVERIFY(!QFile::exists(stage.folder.path("data/frmMain.imp")));
        QVERIFY(!QFile::exists(stage.folder.path("data/LayoutMain.imp")));
    }

    void anotherDatabaseLetsTheStartContinue() {
        StoreStage stage;
        setPathFile(stage, "h\r\n/nowhere\r\n");
        MessageDialog::queue(1);
        FileDialog::queue(stage.folder.database());
        start();
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(percorsoDB, stage.folder.database());
        QCOMPARE(connDB, prefix + percorsoDB);
        QCOMPARE(readFile(stage.folder.path("data/pathDBase.imp")),
                 "[Path dabatase Quintara]\r\n" + stage.folder.database().toUtf8() + "\r\n");
        QCOMPARE(stage.tree().Count(), 2);
        QCOMPARE(stage.grd().Rows(), 1);
        QVERIFY(finestre::Main().isVisible());
        QVERIFY(!QApplication::overrideCursor());
    }

    void theSplashStaysOnTopUnderTheHourglassWhileTheLoadAsks() {
        StoreStage stage;
        setPathFile(stage, "h\r\n/nowhere\r\n");
        ui::setUnattended(false);
        bool seen = false;
        QTimer look;
        look.callOnTimeout([&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            look.stop();
            QVERIFY(QApplication::overrideCursor());
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
            frmSplash& splash = finestre::Splash();
            QVERIFY(splash.isVisible());
            QVERIFY(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
            // The box belongs to the splash, so that the splash does not cover it.
            QCOMPARE(box->parentWidget(), &splash);
            QVERIFY(!finestre::Main().isVisible());
            seen = true;
            ui::setUnattended(true);
            FileDialog::queue(stage.folder.database());
            box->accept();
        });
        look.start(0);
        start();
        QVERIFY(seen);
        QVERIFY(finestre::Main().isVisible());
    }

    void theSplashComesBackOverTheLoadedWindowAndGoesWhenThatIsShown() {
        StoreStage stage;
        QStringList seen;
        WindowWatch watch(seen);
        start();
        QCOMPARE(seen, (QStringList{"frmSplash shown", "frmSplash hidden", "frmSplash shown", "frmMain shown",
                                    "frmSplash hidden"}));
        QVERIFY(!splashIsThere());
    }

    void theSplashShowsNameAndVersionInTheMiddleOfTheScreenWithoutTheKeyboard() {
        StoreStage stage;
        frmSplash& splash = finestre::Splash();
        QVERIFY(splash.isVisible());
        QCOMPARE(splash.findChild<QLabel*>("lblApplication")->text(), "Vestrola");
        QCOMPARE(splash.findChild<QLabel*>("lblVersion")->text(), "Ver. 3.0.2130");
        QVERIFY(splash.testAttribute(Qt::WA_ShowWithoutActivating));
        QVERIFY(splash.windowFlags().testFlag(Qt::FramelessWindowHint));
        const QPoint middle = splash.screen()->geometry().center();
        QVERIFY((splash.geometry().center() - middle).manhattanLength() <= 2);
        QVERIFY(splash.findChildren<QTimer*>().isEmpty());
    }

    void unloadingTheSplashEnablesTheMainWindow() {
        StoreStage stage;
        stage.window().setEnabled(false);
        finestre::Splash();
        finestre::ScaricaSplash();
        QVERIFY(stage.window().isEnabled());
        QVERIFY(!splashIsThere());
        QVERIFY(finestre::Splash().isVisible());
    }

    void centringShowsAnyWindowAboveAllOthersAndKeepsItsSize() {
        QWidget window;
        window.resize(300, 100);
        CentraForm(window);
        QVERIFY(window.isVisible());
        QVERIFY(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(window.size(), QSize(300, 100));
        QVERIFY((window.frameGeometry().center() - window.screen()->geometry().center()).manhattanLength() <=
                2);
    }

    void theFirstMentionOfTheMainWindowLoadsIt() {
        StoreStage stage;
        frmMain& window = finestre::Main();
        QCOMPARE(window.windowTitle(), "Vestrola - Ver. 3.0.2130");
        QCOMPARE(window.Gruppi().TREE->Count(), 2);
        QVERIFY(!window.isVisible());
        QCOMPARE(&finestre::Main(), &window);
    }

    void layoutAndPlacementOfTheLastRunComeBack() {
        StoreStage stage;
        {
            frmMain& window = stage.window();
            window.DockWindows().DockWindows("dckGruppi")->setCaption("altro");
            window.addDockWidget(Qt::RightDockWidgetArea, window.findChild<QDockWidget*>("dckGruppi"));
            window.setGeometry(50, 60, 900, 500);
            window.close();
            QCOMPARE(stage.ends, QList<int>{0});
            finestre::dimentica();
        }
        start();
        frmMain& window = finestre::Main();
        QCOMPARE(window.dockWidgetArea(window.findChild<QDockWidget*>("dckGruppi")), Qt::RightDockWidgetArea);
        QCOMPARE(window.geometry(), QRect(50, 60, 900, 500));
    }

    void filesOfTheLastRunThatAreDamagedLeaveTheDesign_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("noise") << QByteArray(4000, '\xa5');
        QTest::newRow("text") << QByteArray("hello\r\n");
    }
    void filesOfTheLastRunThatAreDamagedLeaveTheDesign() {
        QFETCH(QByteArray, content);
        StoreStage stage;
        posLeft = posTop = posWidth = posHeight = 0;
        writeFile(stage.folder.path("data/LayoutMain.imp"), content);
        writeFile(stage.folder.path("data/frmMain.imp"), content);
        start();
        frmMain& window = finestre::Main();
        QCOMPARE(window.size(), QSize(1080, 640));
        QCOMPARE(window.dockWidgetArea(window.findChild<QDockWidget*>("dckGruppi")), Qt::LeftDockWidgetArea);
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
    }

    void aLanguageThatFailsLeavesTheStepsAfterItUndone_data() {
        QTest::addColumn<QString>("missing");
        QTest::newRow("texts") << "LANG.lng";
        QTest::newRow("choice") << "LANGz.lng";
    }
    void aLanguageThatFailsLeavesTheStepsAfterItUndone() {
        QFETCH(QString, missing);
        StoreStage stage;
        posLeft = posTop = posWidth = posHeight = 0;
        QVERIFY(QFile::remove(stage.folder.path(missing)));
        writeFile(stage.folder.path("data/frmMain.imp"), "mnWidth.......: 9000\r\nmnHeight......: 6000\r\n");
        start();
        frmMain& window = finestre::Main();
        QVERIFY(window.isVisible());
        QCOMPARE(window.windowTitle(), "Vestrola - Ver. 3.0.2130");
        QCOMPARE(window.size(), QSize(1080, 640));
        QVERIFY(!window.DockWindows().DockWindows("dckGruppi")->content());
        QVERIFY(!splashIsThere());
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
        // The commands that need the group window fail; the others work.
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queueCancel();
        stage.command("cmdMailingApri");
        QVERIFY(stage.ends.isEmpty());
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingRinomina");
        QCOMPARE(stage.ends, QList<int>{1});
        window.close();
        QCOMPARE(stage.ends, (QList<int>{1, 0}));
    }

    void theLayoutComesBackAlsoWhereTheLanguageFails() {
        StoreStage stage;
        {
            frmMain& window = stage.window();
            window.addDockWidget(Qt::RightDockWidgetArea, window.findChild<QDockWidget*>("dckGruppi"));
            window.close();
            finestre::dimentica();
        }
        QVERIFY(QFile::remove(stage.folder.path("LANG.lng")));
        start();
        frmMain& window = finestre::Main();
        QVERIFY(!window.DockWindows().DockWindows("dckGruppi")->content());
        QCOMPARE(window.dockWidgetArea(window.findChild<QDockWidget*>("dckGruppi")), Qt::RightDockWidgetArea);
    }

    void theInstalledTemplatesMakeAFolderThatStartsWithoutAQuestion() {
        StoreStage stage;
        const QTemporaryDir user;
        const QString folder = user.filePath("vestrola");
        QVERIFY(sys::fillProgramFolder(folder, TEST_DATA_DIR "/../../assets/templates").ok());
        QVERIFY(schema::CreaDatabase((folder + "/data/data.mdb").toStdString()).ok());
        sys::setProgramFolder(folder);
        start();
        QCOMPARE(percorsoDB, folder + "/data/data.mdb");
        QCOMPARE(stage.tree().Count(), 1);
        QCOMPARE(finestre::Main().size(), QSize(990, 640));  // within 1024 by 768
        QCOMPARE(finestre::Main().Commands().GetList("cmdLang")->SelectedIndex(), 0);
        QVERIFY(finestre::Main().Commands().GetList("cmdLang")->Caption(2) != QString());
        QCOMPARE(readFile(folder + "/data/Account.imp"), QByteArray());
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void aLogThatCannotBeWrittenDoesNotKeepTheProgramFromStarting() {
        StoreStage stage;
        QVERIFY(QDir().mkpath(stage.folder.path("Error.txt")));
        start();
        QVERIFY(finestre::Main().isVisible());
        QCOMPARE(stage.tree().Count(), 2);
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
    }

    void anUnhandledFailureAndTheEndOfTheProgramLeaveTheLogOfStartsAlone() {
        StoreStage stage;
        start();
        const QByteArray before = readFile(stage.folder.path("Error.txt"));
        sys::clock().now = [] { return QDateTime::currentDateTime().addDays(1); };
        const auto restored = qScopeGuard([] { sys::clock() = sys::systemClock(); });
        stage.folder.hideDatabase();
        MessageDialog::queue(1);
        stage.command("cmdInvia");
        QVERIFY(stage.failure().startsWith("Errore 53:"));
        stage.folder.showDatabase();
        stage.command("cmdEsci");
        QCOMPARE(stage.ends, (QList<int>{1, 0}));
        QCOMPARE(readFile(stage.folder.path("Error.txt")), before);
    }

    void aSecondStartIsNotPrevented() {
        StoreStage stage;
        start();
        const QByteArray first = readFile(stage.folder.path("Error.txt"));
        QCOMPARE(first.count("\r\n"), 1);
        finestre::dimentica();
        start();
        QCOMPARE(readFile(stage.folder.path("Error.txt")).count("\r\n"), 1);
        QVERIFY(finestre::Main().isVisible());
    }
};

TEST_CLASS(TestStart);

}  // namespace start_test

#include "start_test.moc"
