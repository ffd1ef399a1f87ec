// SPDX-License-Identifier: GPL-3.0-or-later
// Faulty address books, Outlook files and databases: nothing is said to the user, the group that was asked
// for stays, imported rows stay, and the database is consistent.
#include <sys/stat.h>

#include "platform/jet/Database.h"
#include "support/Impatience.h"
#include "support/TestClass.h"
#include "windows/core/Evento.h"
#include "windows/import/contatti_stage.h"

namespace contatti_guasti_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

constexpr const char* book = "casa/.thunderbird/x.default/abook.sqlite";

/// Puts an invalid source into the program folder.
void makeBadFile(const QString& kind, const QString& name, const ContactStage& stage) {
    const QString path = stage.folder.path(name);
    if (kind == "directory") QVERIFY(QDir().mkpath(path));
    if (kind == "device") QVERIFY(QFile::link("/dev/zero", path));
    if (kind == "pipe") QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    if (kind == "unreadable") QVERIFY(QFile::link("/proc/self/mem", path));
    if (kind == "empty file") stage.write(name, "");
    if (kind == "line of 2 GB") QVERIFY(QFile::resize(stage.write(name, "BEGIN:VCARD"), qint64(2) << 30));
    if (kind != "binary") return;
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += static_cast<char>(i * 31 + i / 256);
    stage.write(name, bytes);
}

void commands() {
    QTest::addColumn<QString>("command");
    QTest::newRow("rubrica") << "cmdMailingImpOE";
    QTest::newRow("Outlook") << "cmdMailingImpMSO";
}

}  // namespace

/// Presses Esc as soon as the window paints that it waits for Outlook.
class EscWhenPainted : public QObject {
  public:
    explicit EscWhenPainted(frmMain& main) : m_main(main) { qApp->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        const QString said = m_main.Commands().GetStatic("stcHelp")->Text();
        if (event->type() != QEvent::Paint || !said.startsWith("Lettura dei contatti")) return false;
        ++paints;
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(m_main.windowHandle(), &key);
        return false;
    }

    int paints = 0;

  private:
    frmMain& m_main;
};

class TestImportContattiGuasti : public QObject {
    Q_OBJECT

    /// Imports into a new group, which stays empty, and nothing is said.
    static void expectAnEmptyGroup(ContactStage& stage, const QString& command) {
        stage.chooseNewGroup("Fiera");
        stage.import(command);
        QCOMPARE(stage.groupsInTable(), 2);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Fiera)");
        QCOMPARE(stage.recipients(), 0);
        QCOMPARE(stage.progressNow(), 0.0);
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.failure(), "");
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(stage.faults(), QStringList());
    }

    static constexpr std::array<const char*, 8> kinds{"missing",    "directory",  "device", "pipe",
                                                      "unreadable", "empty file", "binary", "line of 2 GB"};

  private Q_SLOTS:
    void whatIsNoSourceLeavesAnEmptyGroup_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("kind");
        for (const char* kind : kinds) {
            const auto row = [&](const char* command, const char* path) {
                QTest::addRow("%s: %s", path, kind) << command << path << kind;
            };
            row("cmdMailingImpOE", book);
            row("cmdMailingImpOE", "data/rubrica/rubrica.vcf");
            row("cmdMailingImpOE", "data/rubrica/rubrica.ldif");
            row("cmdMailingImpMSO", "data/posta.pst");
        }
    }
    void whatIsNoSourceLeavesAnEmptyGroup() {
        QFETCH(QString, command);
        QFETCH(QString, path);
        QFETCH(QString, kind);
        ContactStage stage;
        contacts::setOutlookHelper(TEST_BIN_DIR "/vestrola-pst");
        QVERIFY(QDir().mkpath(QFileInfo(stage.folder.path(path)).path()));
        makeBadFile(kind, path, stage);
        expectAnEmptyGroup(stage, command);
    }

    void helperThatDoesNotReachOutlookLeavesAnEmptyGroup_data() {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QByteArray>("ending");
        QTest::newRow("says nothing") << QByteArray() << QByteArray("exit 0\n");
        QTest::newRow("crashes at once") << QByteArray() << QByteArray("kill -SEGV $$\n");
        QTest::newRow("talks rubbish")
            << QByteArray("rubbish\n" + contactLine("a@example.it", "")) << QByteArray();
        QTest::newRow("never stops") << QByteArray() << QByteArray("exec cat /dev/zero\n");
    }
    void helperThatDoesNotReachOutlookLeavesAnEmptyGroup() {
        QFETCH(QByteArray, lines);
        QFETCH(QByteArray, ending);
        ContactStage stage;
        stage.writeHelper(lines, ending);
        expectAnEmptyGroup(stage, "cmdMailingImpMSO");
    }

    void helperThatIsMissingLeavesAnEmptyGroup() {
        ContactStage stage;
        stage.write("data/posta.pst", "x");
        contacts::setOutlookHelper("/manca/vestrola-pst");
        expectAnEmptyGroup(stage, "cmdMailingImpMSO");
    }

    void helperThatGoesAstrayLeavesTheRowsBeforeIt_data() {
        QTest::addColumn<QByteArray>("ending");
        QTest::newRow("crashes") << QByteArray("printf '{\"Email1Address\":\"due@exa'\nkill -SEGV $$\n");
        QTest::newRow("talks rubbish") << QByteArray("echo rubbish\n");
        QTest::newRow("never stops") << QByteArray("exec cat /dev/zero\n");
    }
    void helperThatGoesAstrayLeavesTheRowsBeforeIt() {
        QFETCH(QByteArray, ending);
        ContactStage stage;
        stage.writeHelper("{\"count\":5}\n" + contactLine("uno@example.it", "Uno"), ending);
        stage.window();
        stage.chooseRoot();
        stage.import("cmdMailingImpMSO");
        QCOMPARE(stage.inserted("email"), QStringList{"uno@example.it"});
        QCOMPARE(stage.progressMaximum(), 5.0);
        QCOMPARE(stage.progressNow(), 0.0);
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.faults(), QStringList());
    }

    void escEndsAHelperThatHangsWhileTheWindowIsPainted() {
        ContactStage stage;
        stage.writeHelper("{\"count\":2}\n" + contactLine("uno@example.it", "Uno"), "exec sleep 600\n");
        stage.window();
        stage.chooseRoot();
        const QString before = stage.window().Commands().GetStatic("stcHelp")->Text();
        EscWhenPainted esc(stage.window());
        stage.import("cmdMailingImpMSO");
        QVERIFY(esc.paints > 0);
        QCOMPARE(stage.inserted("email"), QStringList());
        QCOMPARE(stage.window().Commands().GetStatic("stcHelp")->Text(), before);
        QCOMPARE(stage.faults(), QStringList());
    }

    void databaseThatSomebodyElseWritesToTakesNoRowsAndNothingIsSaid_data() { commands(); }
    void databaseThatSomebodyElseWritesToTakesNoRowsAndNothingIsSaid() {
        QFETCH(QString, command);
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.writeHelper("{\"count\":2}\n" + contactLine("ada@example.it", "") +
                          contactLine("eva@example.it", ""));
        stage.window();
        stage.chooseRoot();
        const testing_support::Impatience impatience;
        auto other = esigi(jet::Database::open(stage.folder.database().toStdString()));
        QTimer::singleShot(0, [&] {
            esigi(other->begin());
            finestre::Scelta().findChild<QPushButton*>("cmdOK")->click();
        });
        stage.command(command);
        other.reset();
        QCOMPARE(stage.recipients(), 0);
        QCOMPARE(stage.progressNow(), 0.0);
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(!QGuiApplication::overrideCursor());
        stage.import(command);
        QCOMPARE(stage.inserted("email"), (QStringList{"ada@example.it", "eva@example.it"}));
        QCOMPARE(stage.faults(), QStringList());
    }

    void databaseThatIsRemovedBeforehandHasNoRowsAndCausesNoMessage_data() { commands(); }
    void databaseThatIsRemovedBeforehandHasNoRowsAndCausesNoMessage() {
        QFETCH(QString, command);
        ContactStage stage;
        stage.writeCards(twoCards);
        stage.writeHelper("{\"count\":1}\n" + contactLine("ada@example.it", ""));
        stage.window();
        stage.chooseRoot();
        QTimer::singleShot(0, [&] {
            stage.folder.hideDatabase();
            finestre::Scelta().findChild<QPushButton*>("cmdOK")->click();
        });
        stage.command(command);
        stage.folder.showDatabase();
        QCOMPARE(stage.recipients(), 0);
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.failure(), "");
        QCOMPARE(stage.faults(), QStringList());
    }

    void endOfTheProgramMeanwhileKeepsTheRowsBefore_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("byAFailure");
        for (const char* command : {"cmdMailingImpOE", "cmdMailingImpMSO"}) {
            QTest::addRow("%s, main window closed", command) << command << false;
            QTest::addRow("%s, failure of a handler", command) << command << true;
        }
    }
    void endOfTheProgramMeanwhileKeepsTheRowsBefore() {
        QFETCH(QString, command);
        QFETCH(bool, byAFailure);
        ContactStage stage;
        stage.writeCards(QByteArray(twoCards) + twoCards);
        stage.writeHelper("{\"count\":4}\n" + contactLine("ada@example.it", "").repeated(4));
        stage.window();
        stage.chooseRoot();
        // What a process leaves that ends without its destructors.
        const QString left = stage.folder.path("rimasto.mdb");
        sostituisciTermine([&](int) { QFile::copy(percorsoDB, left); });
        if (byAFailure) MessageDialog::queue(MessageDialog::Ok);
        stage.step = [&](double value) {
            if (value != 2) return;
            if (byAFailure)
                evento([] { fallisci(ErrorCode::Overflow); });
            else
                stage.window().close();
        };
        stage.import(command);
        stage.step = nullptr;
        ado::Recordset rows;
        esigi(rows.setActiveConnection("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + left));
        rows.setCursorType(ado::CursorType::Static);
        rows.setSource("SELECT * FROM [tb_destinatari];");
        esigi(rows.open());
        QCOMPARE(rows.recordCount(), 2);
    }

    void databaseThatIsRemovedMeanwhileKeepsTheRowsBefore_data() { commands(); }
    void databaseThatIsRemovedMeanwhileKeepsTheRowsBefore() {
        QFETCH(QString, command);
        ContactStage stage;
        QStringList all;
        QByteArray cards, lines = "{\"count\":8000}\n";
        for (int i = 0; i < 8000; ++i) {
            all << QString("n%1@example.it").arg(i);
            cards += "BEGIN:VCARD\nEMAIL:" + all.last().toUtf8() + "\nEND:VCARD\n";
            lines += contactLine(all.last(), "");
        }
        stage.writeCards(cards);
        stage.writeHelper(lines);
        stage.window();
        stage.chooseRoot();
        stage.step = [&](double value) {
            if (value == 7000) stage.folder.hideDatabase();
        };
        stage.import(command);
        stage.step = nullptr;
        stage.folder.showDatabase();
        const QStringList found = stage.inserted("email");
        // A group of rows that goes to disk together contains 5000 at most.
        QVERIFY2(found.size() >= 2000, qPrintable(QString::number(found.size())));
        QVERIFY(found == all.mid(0, found.size()));
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(stage.progressNow(), 0.0);
        QCOMPARE(stage.faults(), QStringList());
    }
};

TEST_CLASS(TestImportContattiGuasti);

}  // namespace contatti_guasti_test

#include "contatti_guasti_test.moc"
