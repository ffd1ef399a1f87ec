// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>

#include "support/TestClass.h"
#include "windows/entry/Posizione.h"
#include "windows/shell/shell_support.h"

namespace posizione_test {

using namespace testing_support;

class TestPosizione : public QObject {
    Q_OBJECT

    static void write(const StoreStage& stage, const QByteArray& content, const char* name = "frmMain") {
        writeFile(stage.folder.path(QString("data/%1.imp").arg(name)), content);
    }
    static QByteArray read(const StoreStage& stage, const char* name = "frmMain") {
        return readFile(stage.folder.path(QString("data/%1.imp").arg(name)));
    }
    static void setBuffer(float left, float top, float width, float height, std::int16_t state) {
        posLeft = left;
        posTop = top;
        posWidth = width;
        posHeight = height;
        posWindowState = state;
    }

  private Q_SLOTS:
    void init() { setBuffer(0, 0, 0, 0, 0); }

    void theFileHasSixLinesWithKeysOfSixteenCharacters() {
        StoreStage stage;
        frmMain& window = stage.window();
        window.move(100, 40);
        window.resize(900, 600);
        SalvaPosizioneForm(window);
        QCOMPARE(read(stage),
                 "[Form frmMain]\r\n"
                 "mnLeft........: 1500\r\n"
                 "mnTop.........: 600\r\n"
                 "mnWidth.......: 13500\r\n"
                 "mnHeight......: 9000\r\n"
                 "mnWindowState.: 0\r\n");
    }

    void aPlacementComesBack() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmEditor");
        write(stage,
              "[Form frmMain]\r\nmnLeft........: 1500\r\nmnTop.........: 600\r\nmnWidth.......: 13500\r\n"
              "mnHeight......: 9000\r\nmnWindowState.: 2\r\n",
              "frmEditor");
        CaricaPosizioneForm(window);
        QCOMPARE(window.pos(), QPoint(100, 40));
        QCOMPARE(window.size(), QSize(900, 600));
        QCOMPARE(window.windowState(), Qt::WindowMaximized);
    }

    void theFirstLineOfTheEditorsFileNamesTheMainWindow() {
        StoreStage stage;
        stage.window();
        QWidget editor;
        editor.setObjectName("frmEditor");
        SalvaPosizioneForm(editor);
        QVERIFY(read(stage, "frmEditor").startsWith("[Form frmMain]\r\n"));
    }

    void theFirstLineIsNotLookedAt() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        write(stage, "whatever\r\nmnLeft........: 300\r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(window.x(), 20);
    }

    void aFileWithTheHeaderOnlyLeavesTheWindowWhereTheBufferSays() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        write(stage, "[Form frmMain]\r\n");
        setBuffer(450, 300, 9000, 6000, 0);
        CaricaPosizioneForm(window);
        QCOMPARE(window.geometry().topLeft(), QPoint(30, 20));
        QCOMPARE(window.size(), QSize(600, 400));
    }

    void aMissingKeyTakesWhatTheOtherWindowLeftInTheBuffer() {
        StoreStage stage;
        QWidget first;
        first.setObjectName("frmMain");
        QWidget second;
        second.setObjectName("frmEditor");
        write(
            stage,
            "mnLeft........: 150\r\nmnTop.........: 300\r\nmnWidth.......: 9000\r\nmnHeight......: 6000\r\n");
        write(stage, "mnTop.........: 600\r\n", "frmEditor");
        CaricaPosizioneForm(first);
        CaricaPosizioneForm(second);
        QCOMPARE(second.pos(), QPoint(10, 40));
        QCOMPARE(second.size(), QSize(600, 400));
    }

    void aKeyWithNothingAfterItIsZero() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        setBuffer(450, 300, 9000, 6000, 0);
        write(stage, "mnLeft........: \r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(posLeft, 0.0f);
        QCOMPARE(window.x(), 0);
    }

    void values_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<float>("value");
        QTest::newRow("decimal comma: read up to it") << QByteArray("1500,9") << 1500.0f;
        QTest::newRow("decimal point") << QByteArray("1500.5") << 1500.5f;
        QTest::newRow("blanks around") << QByteArray("   75  ") << 75.0f;
        QTest::newRow("negative") << QByteArray("-120") << -120.0f;
        QTest::newRow("no number") << QByteArray("abc") << 0.0f;
        QTest::newRow("reading stops at the first other character") << QByteArray("30x5") << 30.0f;
        QTest::newRow("too large for the buffer: passed over") << QByteArray(60, '9') << 450.0f;
    }
    void values() {
        QFETCH(QByteArray, text);
        QFETCH(float, value);
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        setBuffer(450, 300, 9000, 6000, 0);
        write(stage, "mnLeft........: " + text + "\r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(posLeft, value);
    }

    void keysAreComparedExactly_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("case") << QByteArray("MNLEFT........: 9");
        QTest::newRow("a point less") << QByteArray("mnLeft.......:  9");
        QTest::newRow("no blank") << QByteArray("mnLeft........:99");
        QTest::newRow("shorter than a key") << QByteArray("mnLeft........:");
    }
    void keysAreComparedExactly() {
        QFETCH(QByteArray, line);
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        setBuffer(450, 300, 9000, 6000, 0);
        write(stage, line + "\r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(posLeft, 450.0f);
    }

    void theStateIsRoundedToTheNearestWholeNumber() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        setBuffer(450, 300, 9000, 6000, 0);
        write(stage, "mnWindowState.: 1.6\r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(posWindowState, std::int16_t{2});
        QCOMPARE(window.windowState(), Qt::WindowMaximized);
    }

    void aStateThatDoesNotExistIsIgnored() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        setBuffer(450, 300, 9000, 6000, 0);
        write(stage, "mnWindowState.: 7\r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(window.windowState(), Qt::WindowNoState);
        QCOMPARE(window.size(), QSize(600, 400));
    }

    void nothingKeepsAWindowOnTheScreen() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        setBuffer(0, 0, 9000, 6000, 0);
        write(stage, "mnLeft........: 150000\r\nmnTop.........: -90000\r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(window.pos(), QPoint(10000, -6000));
    }

    void aMissingFileLeavesTheDesignPlace() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmNessuno");
        window.setGeometry(7, 8, 300, 200);
        setBuffer(450, 300, 9000, 6000, 2);
        CaricaPosizioneForm(window);
        QCOMPARE(window.geometry(), QRect(7, 8, 300, 200));
        QCOMPARE(window.windowState(), Qt::WindowNoState);
    }

    void aDamagedFileLeavesTheDesignPlace() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        window.setGeometry(7, 8, 300, 200);
        write(stage, QByteArray(5000, '\xff') + QByteArray("\0\1\2\r\n\r\r\n", 8) + QByteArray(300, 'x'));
        CaricaPosizioneForm(window);
        QCOMPARE(window.geometry(), QRect(7, 8, 300, 200));
        write(stage, "");
        CaricaPosizioneForm(window);
        QCOMPARE(window.geometry(), QRect(7, 8, 300, 200));
    }

    void absurdNumbersAreSkippedOneByOne() {
        StoreStage stage;
        QWidget window;
        window.setObjectName("frmMain");
        window.setGeometry(7, 8, 300, 200);
        write(stage,
              "mnLeft........: 900000000000000000000\r\nmnTop.........: 300\r\nmnWidth.......: -5\r\n"
              "mnHeight......: 6000\r\nmnWindowState.: 99999999\r\n");
        CaricaPosizioneForm(window);
        QCOMPARE(window.pos(), QPoint(7, 20));
        QCOMPARE(window.height(), 400);
        QCOMPARE(window.windowState(), Qt::WindowNoState);
    }

    void aMaximisedWindowKeepsTheRectangleThatWasRead() {
        StoreStage stage;
        frmMain& window = stage.window();
        setBuffer(1500, 600, 13500, 9000, 2);
        window.setWindowState(Qt::WindowMaximized);
        SalvaPosizioneForm(window);
        const QByteArray file = read(stage);
        QVERIFY(file.contains("mnLeft........: 1500\r\n"));
        QVERIFY(file.contains("mnHeight......: 9000\r\n"));
        QVERIFY(file.contains("mnWindowState.: 2\r\n"));
    }

    void aRunThatEndedMinimisedStartsInNormalState() {
        StoreStage stage;
        frmMain& window = stage.window();
        setBuffer(1500, 600, 13500, 9000, 0);
        window.setWindowState(Qt::WindowMinimized);
        SalvaPosizioneForm(window);
        QVERIFY(read(stage).contains("mnLeft........: 1500\r\n"));
        QVERIFY(read(stage).contains("mnWindowState.: 0\r\n"));
    }

    void theEditorSavedWhileTheMainWindowIsMaximisedGetsTheBufferAndState2() {
        StoreStage stage;
        stage.window().setWindowState(Qt::WindowMaximized);
        setBuffer(1500, 600, 13500, 9000, 0);
        QWidget editor;
        editor.setObjectName("frmEditor");
        editor.setGeometry(1, 2, 300, 200);
        SalvaPosizioneForm(editor);
        const QByteArray file = read(stage, "frmEditor");
        QVERIFY(file.contains("mnLeft........: 1500\r\n"));
        QVERIFY(file.contains("mnWidth.......: 13500\r\n"));
        QVERIFY(file.contains("mnWindowState.: 2\r\n"));
    }

    void theMainWindowsNormalStateAppliesToAMaximisedEditorToo() {
        StoreStage stage;
        stage.window();
        QWidget editor;
        editor.setObjectName("frmEditor");
        editor.setGeometry(10, 20, 300, 200);
        editor.setWindowState(Qt::WindowMaximized);
        SalvaPosizioneForm(editor);
        QVERIFY(read(stage, "frmEditor").contains("mnWindowState.: 0\r\n"));
    }

    void numbersAreWrittenWithTheLocalesDecimalSignAndNoGrouping() {
        StoreStage stage;
        stage.window().setWindowState(Qt::WindowMaximized);
        setBuffer(1500.5f, 123456, -15, 0, 2);
        SalvaPosizioneForm(stage.window());
        const QByteArray file = read(stage);
        QVERIFY(file.contains("mnLeft........: 1500,5\r\n"));
        QVERIFY(file.contains("mnTop.........: 123456\r\n"));
        QVERIFY(file.contains("mnWidth.......: -15\r\n"));
        QVERIFY(file.contains("mnHeight......: 0\r\n"));
    }

    void anUnwritableFileIsAFailure() {
        StoreStage stage;
        frmMain& window = stage.window();
        QVERIFY(QDir().mkdir(stage.folder.path("data/frmMain.imp")));
        bool failed = false;
        try {
            SalvaPosizioneForm(window);
        } catch (const Fallimento& failure) {
            failed = failure.numero() == 75;
        }
        QVERIFY(failed);
    }
};

TEST_CLASS(TestPosizione);

}  // namespace posizione_test

#include "posizione_test.moc"
