// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCloseEvent>
#include <QDir>

#include "modules/send/Accettati.h"
#include "support/TestClass.h"
#include "windows/shell/shell_support.h"

namespace end_test {

using namespace testing_support;
using ui::MessageDialog;

class TestEnd : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void closingTheWindowSavesLayoutAndPlacementAndEndsTheProgramAtOnce() {
        StoreStage stage;
        frmMain& window = stage.window();
        window.close();
        QCOMPARE(stage.ends, QList<int>{0});
        QVERIFY(readFile(stage.folder.path("data/LayoutMain.imp")).size() > 0);
        QVERIFY(readFile(stage.folder.path("data/frmMain.imp")).startsWith("[Form frmMain]\r\n"));
        QVERIFY(MessageDialog::shown().isEmpty());
        // No window is unloaded: the process ends instead.
        QVERIFY(window.isVisible());
    }

    void repliesThatAreStillAwaitedGetTheirTimeBeforeTheEnd() {
        StoreStage stage;
        QList<qsizetype> endsBefore;
        risposteAttese().concludi = [&] { endsBefore << stage.ends.size(); };
        stage.window().close();
        risposteAttese() = {};
        QCOMPARE(endsBefore, QList<qsizetype>{0});
        QCOMPARE(stage.ends, QList<int>{0});
    }

    void theExitCommandArrivesAtTheSamePlace() {
        StoreStage stage;
        stage.window();
        stage.command("cmdEsci");
        QCOMPARE(stage.ends, QList<int>{0});
        QVERIFY(QFile::exists(stage.folder.path("data/LayoutMain.imp")));
        QVERIFY(QFile::exists(stage.folder.path("data/frmMain.imp")));
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void aPlacementThatCannotBeWrittenIsTheLastFailure() {
        StoreStage stage;
        stage.window();
        QVERIFY(QDir().mkdir(stage.folder.path("data/frmMain.imp")));
        MessageDialog::queue(1);
        stage.window().close();
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY(stage.failure().startsWith("Errore 75:"));
        QVERIFY(QFile::exists(stage.folder.path("data/LayoutMain.imp")));
    }

    void aLayoutThatCannotBeWrittenDoesNotKeepThePlacementBack() {
        StoreStage stage;
        stage.window();
        QVERIFY(QDir().mkdir(stage.folder.path("data/LayoutMain.imp")));
        stage.window().close();
        QCOMPARE(stage.ends, QList<int>{0});
        QVERIFY(QFile::exists(stage.folder.path("data/frmMain.imp")));
    }
};

TEST_CLASS(TestEnd);

}  // namespace end_test

#include "end_test.moc"
