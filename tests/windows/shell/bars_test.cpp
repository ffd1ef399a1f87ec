// SPDX-License-Identifier: GPL-3.0-or-later
// The bars of the main window: what is where, with which texts; the status bar; the client area.
#include <QAccessible>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "platform/system/Clock.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/DockPanes.h"
#include "support/CommandCaption.h"
#include "support/TestClass.h"
#include "windows/core/bTheme.h"
#include "windows/shell/shell_support.h"

namespace bars_test {

using namespace testing_support;

namespace {

QStringList namesOf(const QWidget& place) {
    QStringList names;
    for (const QAction* action : place.actions())
        names << (action->isSeparator() ? "|"
                  : action->menu()      ? action->menu()->objectName()
                                        : action->objectName());
    return names;
}

struct Row {
    const char* menu;
    const char* name;
    const char* caption;
    const char* description;
};

// Every command with its default texts; the pop-up commands describe themselves by their caption.
constexpr Row commands[] = {
    {"mnuFile", "cmdFileAccount", "Imposta &Account", "Imposta Account"},
    {"mnuFile", "cmdInvia", "&Invia messaggi", "Invia i messaggi"},
    {"mnuFile", "cmdEsci", "&Esci", "Esci dal programma"},
    {"mnuEditor", "cmdEditor", "Editor Messaggi", "Editor messaggi"},
    {"mnuMailing", "cmdMailingApri", "&Apri Mailing List", "Apri Mailing List"},
    {"mnuMailing", "cmdMailingSalva", "&Salva Mailing List", "Salva Mailing List"},
    {"mnuMailing", "cmdMailingImpTXT", "Importa Mailing List da file di &testo",
     "Importa Mailing List da file di testo"},
    {"mnuMailing", "cmdMailingImpOE", "Importa Mailing List da &Outlook Express",
     "Importa Mailing List da Outlook Express"},
    {"mnuMailing", "cmdMailingImpMSO", "Importa Mailing List da &Microsoft Outlook",
     "Importa Mailing List da Microsoft Outlook"},
    {"mnuMailing", "cmdMailingImpDB", "Importa Mailing List da Microsoft A&ccess",
     "Importa Mailing List da Microsoft Access"},
    {"mnuHelp", "cmdHelpGuida", "xxx Guida in linea", "Guida in linea"},
    {"mnuHelp", "cmdHelpHomePage", "Visita la &home page di Quintara", "Visita la Home Page"},
    {"mnuHelp", "cmdHelpInviaMail", "Invia una &email a Quintara", "Invia una Email"},
    {"mnuHelp", "cmdHelpInfoSu", "&Info su...", "Info su..."},
    {"popMailing", "cmdPopMailingHead", "Imposta come cartella principale",
     "Imposta come cartella principale"},
    {"popMailing", "cmdPopMailingDel", "Elimina cartella", "Elimina cartella"},
    {"popMailing", "cmdPopMailingCopia", "Copia cartella nello stesso livello",
     "Copia cartella nello stesso livello"},
    {"popMailing", "cmdPopMailingRinomina", "Rinomina cartella", "Rinomina cartella"},
    {"popMailing", "cmdPopMailingNew", "Nuova cartella dentro questo livello",
     "Nuova cartella dentro questo livello"},
    {"popMailing", "cmdPopMailingSelAllGRP", "Seleziona tutti i destinatari della cartella",
     "Seleziona tutti i destinatari della cartella"},
    {"popMailing", "cmdPopMailingSelNotGRP", "Deseleziona tutti i destinatari della cartella",
     "Deseleziona tutti i destinatari della cartella"},
    {"popMailing", "cmdPopMailingSvuotaCartella", "Svuota cartella", "Svuota cartella"},
    {"popMailingHead", "cmdPopMailingSelAllDB", "Seleziona l'intero database", "Seleziona l'intero database"},
    {"popMailingHead", "cmdPopMailingSelNotDB", "Deseleziona l'intero database",
     "Deseleziona l'intero database"},
    {"popMailingGRD", "cmdPopMailingUserNew", "Nuovo destinatario in questa cartella",
     "Nuovo destinatario in questa cartella"},
    {"popMailingGRD", "cmdPopMailingUserMod", "Modifica destinatario", "Modifica destinatario"},
    {"popMailingGRD", "cmdPopMailingUserDel", "Elimina destinatario", "Elimina destinatario"},
};

}  // namespace

class TestBars : public QObject {
    Q_OBJECT

    static QMenu* menu(StoreStage& stage, const char* name) {
        auto* found = stage.window().findChild<QMenu*>(name);
        if (!found) qFatal("no menu %s", name);
        return found;
    }
    static QToolBar* bar(StoreStage& stage, const char* name) {
        auto* found = stage.window().findChild<QToolBar*>(name);
        if (!found) qFatal("no bar %s", name);
        return found;
    }
    static QToolButton* button(StoreStage& stage, const char* name) {
        auto* found = stage.window().findChild<QToolButton*>(name);
        if (!found) qFatal("no button %s", name);
        return found;
    }

  private Q_SLOTS:
    void everyCommandHasItsPlaceTextsAndIcon_data() {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(commands)); ++i)
            QTest::newRow(commands[i].name) << i;
    }
    void everyCommandHasItsPlaceTextsAndIcon() {
        QFETCH(int, row);
        StoreStage stage;
        const Row& expected = commands[row];
        const ui::Command* command = stage.window().Commands().GetToolButton(expected.name);
        QVERIFY(command);
        QCOMPARE(captionOf(command), QString::fromUtf8(expected.caption));
        QCOMPARE(command->Description(), QString::fromUtf8(expected.description));
        QVERIFY(namesOf(*menu(stage, expected.menu)).contains(expected.name));
        QVERIFY(!stage.window().findChild<QAction*>(expected.name)->icon().isNull());
    }

    void menusAreInTheirOrder_data() {
        QTest::addColumn<QByteArray>("menu");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("file") << QByteArray("mnuFile")
                              << QStringList{"cmdFileAccount", "cmdInvia", "|", "cmdEsci"};
        QTest::newRow("editor") << QByteArray("mnuEditor") << QStringList{"cmdEditor"};
        QTest::newRow("mailing") << QByteArray("mnuMailing")
                                 << QStringList{"cmdMailingApri",   "cmdMailingSalva", "|",
                                                "cmdMailingImpTXT", "cmdMailingImpOE", "cmdMailingImpMSO",
                                                "cmdMailingImpDB"};
        QTest::newRow("help") << QByteArray("mnuHelp")
                              << QStringList{"cmdHelpGuida",     "|", "cmdHelpHomePage",
                                             "cmdHelpInviaMail", "|", "cmdHelpInfoSu"};
        QTest::newRow("group") << QByteArray("popMailing")
                               << QStringList{"cmdPopMailingNew",
                                              "cmdPopMailingCopia",
                                              "cmdPopMailingDel",
                                              "cmdPopMailingRinomina",
                                              "cmdPopMailingHead",
                                              "|",
                                              "cmdPopMailingUserNew",
                                              "|",
                                              "cmdPopMailingSelAllGRP",
                                              "cmdPopMailingSelNotGRP",
                                              "|",
                                              "cmdPopMailingSvuotaCartella"};
        QTest::newRow("root") << QByteArray("popMailingHead")
                              << QStringList{"cmdPopMailingNew", "|", "cmdPopMailingSelAllDB",
                                             "cmdPopMailingSelNotDB"};
        QTest::newRow("grid") << QByteArray("popMailingGRD")
                              << QStringList{"cmdPopMailingUserNew",
                                             "cmdPopMailingUserMod",
                                             "cmdPopMailingUserDel",
                                             "|",
                                             "cmdPopMailingSelAllGRP",
                                             "cmdPopMailingSelNotGRP",
                                             "|",
                                             "cmdPopMailingSvuotaCartella"};
    }
    void menusAreInTheirOrder() {
        QFETCH(QByteArray, menu);
        QFETCH(QStringList, items);
        StoreStage stage;
        QCOMPARE(namesOf(*TestBars::menu(stage, menu)), items);
    }

    void menuBarHasItsMenusAndCaptions() {
        StoreStage stage;
        QMenuBar* bar = stage.window().menuBar();
        QCOMPARE(bar->objectName(), "Menu");
        QCOMPARE(namesOf(*bar),
                 (QStringList{"mnuFile", "mnuEditor", "mnuMailing", "mnuLingua", "mnuHelp", "mnuStrumenti"}));
        const ui::CommandBars& commands = stage.window().Commands();
        QCOMPARE(captionOf(commands.GetPopupMenu("mnuFile")), "&File");
        QCOMPARE(captionOf(commands.GetPopupMenu("mnuEditor")), "&Editor");
        QCOMPARE(captionOf(commands.GetPopupMenu("mnuMailing")), "&Mailing");
        QCOMPARE(captionOf(commands.GetPopupMenu("mnuHelp")), "&Help");
        QVERIFY(commands.GetPopupMenu("mnuLingua"));
        QVERIFY(commands.GetList("cmdLang"));
    }

    void mnemonicsOfAMenuAreDistinct() {
        StoreStage stage;
        QList<const QWidget*> places{stage.window().menuBar()};
        for (const QMenu* place : stage.window().findChildren<QMenu*>())
            places << place;
        for (const QWidget* place : places) {
            QStringList letters;
            for (const QAction* action : place->actions())
                if (const qsizetype at = action->text().indexOf('&'); at >= 0)
                    letters << action->text().mid(at + 1, 1).toLower();
            QCOMPARE(letters.removeDuplicates(), 0);
        }
    }

    void barsAreInTheOrderOfTheWork() {
        StoreStage stage;
        QCOMPARE(
            namesOf(*bar(stage, "Mailing")),
            (QStringList{"cmdMailingApri", "cmdMailingSalva", "|", "cmdPopMailingNew", "cmdPopMailingUserNew",
                         "|", "cmdMailingImpTXT", "cmdMailingImpOE", "cmdMailingImpMSO", "cmdMailingImpDB"}));
        QCOMPARE(namesOf(*bar(stage, "Editor")), QStringList{"cmdEditor"});
        QCOMPARE(namesOf(*bar(stage, "Send")), (QStringList{"cmdFileAccount", "cmdInvia"}));
        QVERIFY(bar(stage, "Mailing")->x() < bar(stage, "Editor")->x());
        QVERIFY(bar(stage, "Editor")->x() < bar(stage, "Send")->x());
        QCOMPARE(bar(stage, "Mailing")->y(), bar(stage, "Send")->y());
        QCOMPARE(bar(stage, "Mailing")->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QCOMPARE(bar(stage, "Send")->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    }

    void aNewCaptionShowsInMenuAndBar() {
        StoreStage stage;
        stage.window().Commands().GetToolButton("cmdInvia")->setCaption("&Spedisci");
        QCOMPARE(button(stage, "cmdInvia")->defaultAction()->text(), "&Spedisci");
        const auto actions = menu(stage, "mnuFile")->actions();
        QVERIFY(std::any_of(actions.begin(), actions.end(),
                            [](const QAction* a) { return a->text() == "&Spedisci"; }));
    }

    void buttonsReportTheirCaptionAndDescriptionToAssistivePrograms() {
        StoreStage stage;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(button(stage, "cmdMailingApri"));
        QCOMPARE(face->text(QAccessible::Name), "Apri Mailing List");
        QCOMPARE(face->text(QAccessible::Description), "Apri Mailing List");
        QCOMPARE(button(stage, "cmdMailingApri")->toolTip(), "Apri Mailing List");
        QVERIFY(button(stage, "cmdMailingApri")->size().width() >= 30);
        QVERIFY(button(stage, "cmdMailingApri")->size().height() >= 30);
    }

    void statusBarContainsHelpProgressAndToday() {
        const sys::Clock before = sys::clock();
        sys::clock().now = [] { return QDateTime(QDate(2025, 11, 20), QTime(9, 0)); };
        StoreStage stage;
        QCOMPARE(stage.window().statusBar()->objectName(), "StatusBar");
        const ui::CommandBars& commands = stage.window().Commands();
        QCOMPARE(commands.GetStatic("stcHelp")->Text(), "Pronto...");
        QCOMPARE(commands.GetStatic("stcData")->Text(), "giovedì 20 novembre 2025");
        QCOMPARE(commands.GetProgress("stcProgress")->value(), 0.0);
        QVERIFY(commands.GetStatic("stcHelp")->x() < commands.GetProgress("stcProgress")->x());
        QVERIFY(commands.GetProgress("stcProgress")->x() < commands.GetStatic("stcData")->x());
        sys::clock() = before;
    }

    void theDateFollowsTheClock() {
        const sys::Clock before = sys::clock();
        QDateTime now(QDate(2025, 11, 20), QTime(23, 59));
        sys::clock().now = [&now] { return now; };
        StoreStage stage;
        stage.window();
        now = now.addSecs(120);
        QEvent activation(QEvent::ActivationChange);
        QApplication::sendEvent(&stage.window(), &activation);
        QCOMPARE(stage.window().Commands().GetStatic("stcData")->Text(), "venerdì 21 novembre 2025");
        sys::clock() = before;
    }

    void pointingAtACommandShowsItsDescriptionAndNothingRestoresTheText() {
        StoreStage stage;
        QAction* send = stage.window().findChild<QAction*>("cmdInvia");
        send->hover();
        QCOMPARE(stage.help(), "Invia i messaggi");
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&stage.window(), &leave);
        QCoreApplication::processEvents();
        QCOMPARE(stage.help(), "Invia i messaggi");
        stage.window().Commands().GetToolButton("cmdEsci")->setDescription("Vai via");
        stage.window().findChild<QAction*>("cmdEsci")->hover();
        QCOMPARE(stage.help(), "Vai via");
    }

    void theMouseOverAButtonPointsAtItsCommand() {
        StoreStage stage;
        const QPoint middle = button(stage, "cmdEditor")->rect().center();
        QMouseEvent move(QEvent::MouseMove, middle, button(stage, "cmdEditor")->mapToGlobal(middle),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QEnterEvent enter(middle, middle, button(stage, "cmdEditor")->mapToGlobal(middle));
        QApplication::sendEvent(button(stage, "cmdEditor"), &enter);
        QApplication::sendEvent(button(stage, "cmdEditor"), &move);
        QCOMPARE(stage.help(), "Editor messaggi");
    }

    void theGroupPaneHasItsCaption() {
        StoreStage stage;
        ui::DockPane* pane = stage.window().DockWindows().DockWindows("dckGruppi");
        QVERIFY(pane);
        QCOMPARE(pane->Caption(), "Gruppi mailing");
        pane->setCaption("Folders");
        QCOMPARE(stage.window().findChild<QDockWidget*>("dckGruppi")->windowTitle(), "Folders");
        QVERIFY(!stage.window().DockWindows().DockWindows("dckgruppi"));
    }

    void theGridFillsWhatBarsAndPanesLeaveFree() {
        StoreStage stage;
        frmMain& window = stage.window();
        auto* pane = window.findChild<QDockWidget*>("dckGruppi");
        const auto expected = [&] {
            return QRect(QPoint(pane->geometry().right() + 1 +
                                    window.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent),
                                bar(stage, "Mailing")->geometry().bottom() + 1),
                         QPoint(window.width() - 1, window.statusBar()->y() - 1));
        };
        const auto actual = [&] { return QRect(window.grd().mapTo(&window, QPoint()), window.grd().size()); };
        const QRect before = actual();
        QCOMPARE(before.left(), expected().left());
        QCOMPARE(before.right(), expected().right());
        QVERIFY(qAbs(before.top() - expected().top()) <= 1);
        QCOMPARE(before.bottom(), expected().bottom());
        window.resize(1200, 700);
        window.resizeDocks({pane}, {300}, Qt::Horizontal);
        QTRY_VERIFY(actual() != before);
        QTRY_COMPARE(actual().right(), expected().right());
        QCOMPARE(actual().left(), expected().left());
        QCOMPARE(actual().bottom(), expected().bottom());
    }

    void theWindowOpensAtItsDesignSize() {
        StoreStage stage;
        QCOMPARE(stage.window().size(), QSize(1080, 640));
        QCOMPARE(stage.window().findChild<QDockWidget*>("dckGruppi")->width(), 230);
    }

    void gridAndProgressTakeTheirColoursFromThePalette() {
        StoreStage stage;
        QCOMPARE(stage.grd().lineColor(), QColor(128, 128, 128));
        QCOMPARE(stage.grd().fixedColor(), QColor(212, 208, 200));
        QCOMPARE(stage.grd().palette().color(QPalette::Base), QColor(253, 253, 253));
        QCOMPARE(stage.grd().palette().color(QPalette::AlternateBase), mistoSuBianco(0, 50));
        const auto* progress = stage.window().Commands().GetProgress("stcProgress");
        QCOMPARE(progress->palette().color(QPalette::Base), QColor(212, 208, 200));
    }

    void aResizeReadsTheDesktopsColoursAgainAndSetsTwoOfTheGrid() {
        StoreStage stage;
        stage.window();
        ImpostaColoriTema("Metallic");
        stage.grd().setLineColor(Qt::red);
        stage.grd().setFixedColor(Qt::red);
        stage.grd().setBackColor(Qt::red);
        stage.window().resize(1090, 650);
        QTRY_COMPARE(stage.grd().lineColor(), QColor(128, 128, 128));
        QCOMPARE(coloriTema[24], 128u | 128u << 8 | 128u << 16);
        QCOMPARE(stage.grd().lineColor(), QColor(128, 128, 128));
        QCOMPARE(stage.grd().fixedColor(), QColor(212, 208, 200));
        QCOMPARE(stage.grd().palette().color(QPalette::Base), QColor(Qt::red));
    }

    void theEmptyGridSaysWhatToDo() {
        StoreStage stage;
        const QImage before = stage.window().grd().grab().toImage();
        stage.grd().setEmptyText({});
        QVERIFY(stage.grd().grab().toImage() != before);
    }
};

TEST_CLASS_WITH(TestBars, ui::setUpDesktop);

}  // namespace bars_test

#include "bars_test.moc"
