// SPDX-License-Identifier: GPL-3.0-or-later
// The menu "Strumenti": after the others, with a handler of its own for each command.
#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>

#include "platform/ui/Desktop.h"
#include "platform/ui/MessageDialog.h"
#include "support/TestClass.h"
#include "windows/shell/shell_support.h"

namespace strumenti_test {

using namespace testing_support;

class TestStrumenti : public QObject {
    Q_OBJECT

    static frmMain::Strumento tool(
        const QString& name, const QString& caption, std::function<void()> open = [] {}) {
        return {name, caption, "Descrizione di " + name, "document-edit", std::move(open)};
    }
    static std::unique_ptr<frmMain> windowWith(std::vector<frmMain::GruppoStrumenti> tools) {
        frmMain::Vicini around{};
        around.strumenti = std::move(tools);
        return std::make_unique<frmMain>(std::move(around));
    }
    static QStringList items(const QMenu& menu) {
        QStringList texts;
        for (const QAction* action : menu.actions())
            texts << (action->isSeparator() ? "|" : action->text());
        return texts;
    }

  private Q_SLOTS:
    void theMenuIsAfterTheOthersWithASeparatorBetweenGroups() {
        StoreStage stage;
        stage.window();
        const auto window =
            windowWith({{tool("cmdA", "&Aaa..."), tool("cmdB", "&Bbb...")}, {}, {tool("cmdC", "&Ccc...")}});
        const QAction* last = window->menuBar()->actions().constLast();
        QCOMPARE(last->text(), "&Strumenti");
        QCOMPARE(window->menuBar()->actions().size(), 6);
        QVERIFY(last->menu());
        QCOMPARE(items(*last->menu()), (QStringList{"&Aaa...", "&Bbb...", "|", "&Ccc..."}));
        QVERIFY(!window->findChild<QAction*>("cmdA")->icon().isNull());
    }

    void withoutToolsThereIsNoMenu() {
        StoreStage stage;
        stage.window();
        const auto window = windowWith({{}, {}});
        QCOMPARE(window->menuBar()->actions().size(), 5);
    }

    void aToolOpensWithoutTheEventOfTheTableOfCommands() {
        StoreStage stage;
        stage.window();
        int opened = 0;
        const auto window = windowWith({{tool("cmdA", "A", [&] { ++opened; })}});
        const QSignalSpy started(&window->Commands(), &ui::CommandBars::commandStarted);
        window->findChild<QAction*>("cmdA")->trigger();
        QCOMPARE(opened, 1);
        QCOMPARE(started.size(), 0);
    }

    void aToolIsIgnoredWhileAnotherCommandRuns() {
        StoreStage stage;
        stage.window();
        int opened = 0;
        frmMain* here = nullptr;
        const auto window = windowWith({{tool("cmdA", "A", [&] { ++opened; }), tool("cmdB", "B", [&] {
                                             here->findChild<QAction*>("cmdA")->trigger();
                                             here->ComandoPremuto("cmdHelpInfoSu");  // would call nothing
                                         })}});
        here = window.get();
        window->findChild<QAction*>("cmdB")->trigger();
        QCOMPARE(opened, 0);
        QVERIFY(stage.ends.isEmpty());
        window->findChild<QAction*>("cmdA")->trigger();
        QCOMPARE(opened, 1);
    }

    void aToolIsIgnoredWhileTheHandlerOfAReportedCommandRuns() {
        StoreStage stage;
        stage.window();
        int opened = 0;
        frmMain* here = nullptr;
        frmMain::Vicini around{};
        around.strumenti = {{tool("cmdA", "A", [&] { ++opened; })}};
        around.InfoSu = [&] { here->findChild<QAction*>("cmdA")->trigger(); };
        frmMain window(std::move(around));
        here = &window;
        window.ComandoPremuto("cmdHelpInfoSu");
        QCOMPARE(opened, 0);
    }

    void pointingAtAToolShowsItsDescription() {
        StoreStage stage;
        stage.window();
        const auto window = windowWith({{tool("cmdA", "A")}});
        window->findChild<QAction*>("cmdA")->hover();
        QCOMPARE(window->Commands().GetStatic("stcHelp")->Text(), "Descrizione di cmdA");
    }

    void assistiveProgramsFindTheMenuAndItsItems() {
        StoreStage stage;
        stage.window();
        const auto window = windowWith({{tool("cmdA", "&Aaa...")}});
        QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(window->menuBar());
        QAccessibleInterface* entry = bar->child(bar->childCount() - 1);
        QCOMPARE(entry->text(QAccessible::Name), "Strumenti");
        QAccessibleInterface* menu =
            QAccessible::queryAccessibleInterface(window->findChild<QMenu*>("mnuStrumenti"));
        QCOMPARE(menu->child(0)->text(QAccessible::Name), "Aaa...");
    }

    void aFailureInAToolSaysWhatWasBeingDone() {
        StoreStage stage;
        stage.window();
        const auto window = windowWith({{tool("cmdA", "A", [] { fallisci(ErrorCode::FileNotFound); })}});
        ui::MessageDialog::queue(1);
        window->findChild<QAction*>("cmdA")->trigger();
        QVERIFY(stage.failure().startsWith("Errore 53:"));
        QVERIFY(ui::MessageDialog::shown().constLast().details.contains("Descrizione di cmdA"));
    }
};

TEST_CLASS_WITH(TestStrumenti, ui::setUpDesktop);

}  // namespace strumenti_test

#include "strumenti_test.moc"
