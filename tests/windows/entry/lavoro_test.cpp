// SPDX-License-Identifier: GPL-3.0-or-later
// Long work is visible: the hourglass while a statement or a fill runs, the progress item of the status
// bar, and a window that keeps being painted where the work permits.
#include <QScopeGuard>
#include <QTimer>

#include "platform/jet/OsFile.h"
#include "platform/ui/PaintedWork.h"
#include "support/TestClass.h"
#include "windows/core/Evento.h"
#include "windows/import/contatti_stage.h"
#include "windows/import/imptxt_stage.h"

namespace lavoro_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

bool isWaiting() {
    const QCursor* pointer = QApplication::overrideCursor();
    return pointer && pointer->shape() == Qt::WaitCursor;
}

/// Watches what is written to the disk: how often, and how often without the hourglass.
class DiskWatch {
  public:
    DiskWatch() {
        jet::setDiskHook([this](const jet::DiskStep&) {
            ++steps;
            ui::inWindowThread([this] { uncovered += isWaiting() ? 0 : 1; });
            return jet::DiskStep::Outcome::Proceed;
        });
    }
    ~DiskWatch() { jet::setDiskHook({}); }

    int steps = 0;
    int uncovered = 0;
};

/// A text file that takes a while to import.
QByteArray manyLines() {
    QByteArray lines;
    for (int i = 0; i < 4000; ++i)
        lines += "nome" + QByteArray::number(i) + "@esempio.it\r\n";
    return lines;
}

/// Counts the events of one kind that reach a widget.
class EventCounter : public QObject {
  public:
    EventCounter(QWidget* watched, QEvent::Type type) : QObject(watched), m_type(type) {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == m_type;
        return false;
    }
    int count = 0;

  private:
    QEvent::Type m_type;
};

}  // namespace

class TestLavoro : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cleanup() { QVERIFY(!QApplication::overrideCursor()); }

    void aGroupIsFilledUnderTheHourglass() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        int fills = 0;
        QObject::connect(&stage.grd(), &ui::DataGrid::afterDataRefresh, &stage.grd(),
                         [&fills] { fills += isWaiting(); });
        stage.clickNode("K1");
        QCOMPARE(fills, 1);
        QVERIFY(!QApplication::overrideCursor());
        stage.command("cmdPopMailingSelNotGRP");
        QCOMPARE(fills, 2);
    }

    void theStatementsOnGroupsRunUnderTheHourglass_data() {
        QTest::addColumn<QString>("command");
        for (const char* command :
             {"cmdPopMailingSelAllGRP", "cmdPopMailingSelNotGRP", "cmdPopMailingSelAllDB",
              "cmdPopMailingSelNotDB", "cmdPopMailingSvuotaCartella", "cmdPopMailingDel"})
            QTest::newRow(command) << command;
    }
    void theStatementsOnGroupsRunUnderTheHourglass() {
        QFETCH(QString, command);
        StoreStage stage;
        const bool some = command.contains("SelAll");
        for (const char* name : {"Alfa", "Beta"})
            stage.addRecipient(1, name, "a@x.it", !some);
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        const DiskWatch disk;
        stage.command(command);
        QVERIFY(disk.steps > 0);
        QCOMPARE(disk.uncovered, 0);
    }

    void aFailedStatementRemovesTheHourglass() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Ok);
        jet::setDiskHook([](const jet::DiskStep&) { return jet::DiskStep::Outcome::Fail; });
        stage.command("cmdPopMailingSelNotGRP");
        jet::setDiskHook({});
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY(!QApplication::overrideCursor());
    }

    void theTextImportKeepsTheWindowsPaintedUnderTheHourglass() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("molti.txt", manyLines()), 1);
        int turns = 0;
        int uncovered = 0;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
            ++turns;
            uncovered += isWaiting() ? 0 : 1;
            stage.grd().viewport()->update();
        });
        const EventCounter paints(stage.grd().viewport(), QEvent::Paint);
        const int before = paints.count;
        clock.start(0);
        const DiskWatch disk;
        stage.click("cmdImportaTXT");
        clock.stop();
        QCOMPARE(TxtStage::inserted("email").size(), 4000);
        QVERIFY(turns > 0);
        QCOMPARE(uncovered, 0);
        QCOMPARE(disk.uncovered, 0);
        QVERIFY(paints.count > before);
    }

    void keysAndClicksDuringAnImportAreThrownAway() {
        TxtStage stage;
        stage.chooseNode(1);
        stage.map(stage.write("molti.txt", manyLines()), 1);
        QTimer clock;
        int tried = 0;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
            ++tried;
            QTest::mouseClick(stage.control<QWidget>("cmdImportaTXT"), Qt::LeftButton);
            QTest::keyClick(stage.control<QWidget>("txtSep"), Qt::Key_X);
        });
        clock.start(0);
        stage.click("cmdImportaTXT");
        clock.stop();
        QVERIFY(tried > 0);
        QCOMPARE(TxtStage::inserted("email").size(), 4000);
        QCOMPARE(stage.control<QLineEdit>("txtSep")->text(), ";");
    }

    void theAddressBookImportCountsEachEntryVisiblyUnderTheHourglass() {
        ContactStage stage;
        QByteArray cards;
        for (int i = 0; i < 40; ++i)
            cards += "BEGIN:VCARD\nFN:Ada\nEMAIL:" + QByteArray(i % 2 ? "nessuno" : "ada@esempio.it") +
                     "\nEND:VCARD\n";
        stage.writeCards(cards);
        stage.window();
        stage.chooseRoot();
        auto* progress = stage.window().Commands().GetProgress("stcProgress");
        const EventCounter paints(progress, QEvent::Paint);
        int events = 0;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&] { ++events; });
        int atFirst = 0;
        int atLast = 0;
        int paintsAtFirst = 0;
        int paintsAtLast = 0;
        int uncovered = 0;
        stage.step = [&](double value) {
            uncovered += isWaiting() ? 0 : 1;
            QCOMPARE(progress->maximum(), 40.0);
            if (value == 1) {
                atFirst = events;
                paintsAtFirst = paints.count;
            }
            if (value == 40) {
                atLast = events;
                paintsAtLast = paints.count;
            }
        };
        clock.start(0);
        stage.import("cmdMailingImpOE");
        clock.stop();
        QList<double> wanted;
        for (int i = 1; i <= 40; ++i)
            wanted << i;
        QCOMPARE(stage.counted, wanted + QList<double>{0});
        QCOMPARE(uncovered, 0);
        QCOMPARE(atLast, atFirst);
        QCOMPARE(paintsAtLast - paintsAtFirst, 39);
    }

    void theOutlookImportLetsEventsRunAtEachEntryAndCountsTheValidOnes() {
        ContactStage stage;
        QByteArray items = "{\"count\":6}\n";
        for (const char* email :
             {"ada@esempio.it", "", "eva@esempio.it", "nessuno", "ugo@esempio.it", "a@b.it"})
            items += contactLine(email, "Ditta");
        stage.writeHelper(items);
        stage.window();
        stage.chooseRoot();
        int turns = 0;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&] { ++turns; });
        int before = 0;
        stage.step = [&](double value) {
            QCOMPARE(stage.progressMaximum(), 6.0);
            if (value == 0) return;
            QVERIFY2(turns > before, "the events ran between two entries");
            before = turns;
        };
        clock.start(0);
        stage.import("cmdMailingImpMSO");
        clock.stop();
        QCOMPARE(stage.counted, QList<double>({1, 2, 3, 4, 0}));
    }

    void copyingTheDatabaseShowsTheHourglass() {
        StoreStage stage;
        stage.window();
        ui::FileDialog::queue(stage.folder.path("copia.mdb"));
        int shownAtFailure = -1;
        sostituisciTermine([&](int) { shownAtFailure = isWaiting(); });
        stage.command("cmdMailingSalva");
        QCOMPARE(shownAtFailure, -1);
        QVERIFY(!QApplication::overrideCursor());
        // The copy onto the file itself fails in the middle.
        ui::FileDialog::queue(stage.folder.database());
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdMailingSalva");
        QCOMPARE(shownAtFailure, 1);
        QApplication::restoreOverrideCursor();
    }
};

TEST_CLASS(TestLavoro);

}  // namespace lavoro_test

#include "lavoro_test.moc"
