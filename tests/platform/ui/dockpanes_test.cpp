// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include "platform/ui/DockPanes.h"
#include "support/TestClass.h"

namespace dockpanes_test {

using ui::DockPanes;

namespace {

struct Window {
    QMainWindow window;
    DockPanes panes{&window};
    QToolBar* bar = new QToolBar("Bar");

    Window() {
        bar->setObjectName("Bar");
        bar->addAction("x");
        window.addToolBar(bar);
        window.setCentralWidget(new QLabel("centre"));
        panes.addPane("dckLeft", "A sinistra", Qt::LeftDockWidgetArea, 230);
        panes.DockWindows("dckLeft")->setContent(new QLabel("content"));
        window.resize(800, 500);
        window.show();
    }
    QDockWidget* dock() { return window.findChild<QDockWidget*>("dckLeft"); }
};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

}  // namespace

class TestDockPanes : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString path() const { return m_folder.filePath("Layout.imp"); }

  private Q_SLOTS:
    void paneIsWhereItWasDesigned() {
        Window w;
        QCOMPARE(w.window.dockWidgetArea(w.dock()), Qt::LeftDockWidgetArea);
        QCOMPARE(w.dock()->width(), 230);
        QVERIFY(w.dock()->isVisible());
    }

    void captionAndContentAreReachedByName() {
        Window w;
        ui::DockPane* pane = w.panes.DockWindows("dckLeft");
        QCOMPARE(pane->Caption(), "A sinistra");
        pane->setCaption("Left");
        QCOMPARE(w.dock()->windowTitle(), "Left");
        QCOMPARE(w.dock()->accessibleName(), "Left");
        QCOMPARE(qobject_cast<QLabel*>(pane->content())->text(), "content");
        QVERIFY(!w.panes.DockWindows("dckleft"));
    }

    void layoutComesBackAsItWasSaved() {
        {
            Window w;
            w.window.addDockWidget(Qt::RightDockWidgetArea, w.dock());
            w.window.resizeDocks({w.dock()}, {300}, Qt::Horizontal);
            w.bar->hide();
            QCoreApplication::processEvents();
            QVERIFY(w.panes.saveLayout(path()).ok());
        }
        Window w;
        QVERIFY(w.panes.loadLayout(path()).ok());
        QCoreApplication::processEvents();
        QCOMPARE(w.window.dockWidgetArea(w.dock()), Qt::RightDockWidgetArea);
        QCOMPARE(w.dock()->width(), 300);
        QVERIFY(w.bar->isHidden());
    }

    void floatingPaneStaysFloating() {
        {
            Window w;
            w.dock()->setFloating(true);
            QVERIFY(w.panes.saveLayout(path()).ok());
        }
        Window w;
        QVERIFY(w.panes.loadLayout(path()).ok());
        QVERIFY(w.dock()->isFloating());
    }

    void missingFileIsReportedAndLeavesTheDesign() {
        Window w;
        const Status status = w.panes.loadLayout(m_folder.filePath("none.imp"));
        QCOMPARE(int(status.code()), int(ErrorCode::FileNotFound));
        QCOMPARE(w.dock()->width(), 230);
    }

    void damagedFileIsReportedAndLeavesTheDesign_data() {
        QTest::addColumn<int>("cut");
        QTest::addColumn<int>("flipped");
        QTest::newRow("empty") << 0 << -1;
        QTest::newRow("cut in the header") << 11 << -1;
        QTest::newRow("header only") << 14 << -1;
        QTest::newRow("cut in the arrangement") << 60 << -1;
        QTest::newRow("foreign file") << -1 << 0;
        QTest::newRow("wrong length") << -1 << 8;
        QTest::newRow("wrong checksum") << -1 << 12;
        QTest::newRow("damaged arrangement") << -1 << 40;
    }
    void damagedFileIsReportedAndLeavesTheDesign() {
        QFETCH(int, cut);
        QFETCH(int, flipped);
        Window moved;
        moved.window.addDockWidget(Qt::RightDockWidgetArea, moved.dock());
        QVERIFY(moved.panes.saveLayout(path()).ok());
        QByteArray content = contentOf(path());
        QVERIFY(content.size() > 60);
        if (cut >= 0) content.truncate(cut);
        if (flipped >= 0) content[flipped] = static_cast<char>(content[flipped] ^ 0x55);
        write(path(), content);
        Window w;
        QCOMPARE(int(w.panes.loadLayout(path()).code()), int(ErrorCode::UnrecognizedFormat));
        QCOMPARE(w.window.dockWidgetArea(w.dock()), Qt::LeftDockWidgetArea);
        QVERIFY(w.bar->isVisible());
    }

    void hugeFileIsRefused() {
        write(path(), "VSTLAY1\n" + QByteArray(1 << 20, 'x'));
        Window w;
        QCOMPARE(int(w.panes.loadLayout(path()).code()), int(ErrorCode::UnrecognizedFormat));
    }

    void wholeFileWithAForeignArrangementLeavesTheDesign() {
        const QByteArray arrangement("no arrangement of any toolkit");
        QByteArray content("VSTLAY1\n");
        const auto size = static_cast<quint32>(arrangement.size());
        const quint16 sum = qChecksum(arrangement);
        for (int shift = 0; shift < 32; shift += 8)
            content.append(static_cast<char>(size >> shift & 0xff));
        for (int shift = 0; shift < 16; shift += 8)
            content.append(static_cast<char>(sum >> shift & 0xff));
        write(path(), content + arrangement);
        Window w;
        QCOMPARE(int(w.panes.loadLayout(path()).code()), int(ErrorCode::UnrecognizedFormat));
        QCOMPARE(w.window.dockWidgetArea(w.dock()), Qt::LeftDockWidgetArea);
        QCOMPARE(w.dock()->width(), 230);
    }

    void unwritableFileIsReported() {
        Window w;
        QCOMPARE(int(w.panes.saveLayout(m_folder.filePath("none/Layout.imp")).code()),
                 int(ErrorCode::PathAccess));
    }
};

TEST_CLASS(TestDockPanes);

}  // namespace dockpanes_test

#include "dockpanes_test.moc"
