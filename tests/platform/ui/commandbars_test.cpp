// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAccessible>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include "platform/ui/CommandBars.h"
#include "platform/ui/Desktop.h"
#include "support/CommandCaption.h"
#include "support/TestClass.h"

namespace commandbars_test {

using ui::CommandBars;
using Scope = ui::CommandDesign::Scope;

namespace {

/// A window with two commands in a menu, a bar and a pop-up menu, and a field that owns the pop-up menu.
struct Window {
    QMainWindow window;
    QLineEdit* field = new QLineEdit;
    CommandBars bars{&window};
    QSignalSpy started{&bars, &CommandBars::commandStarted};
    QSignalSpy pointed{&bars, &CommandBars::commandPointed};
    QString menuNow = "popRow";

    Window() {
        bars.addCommand(
            {"cmdOpen", "&Apri elenco", "Apre un elenco", "document-open", {QKeySequence("Ctrl+O")}});
        bars.addCommand({"cmdSave", "&Salva elenco", "Salva l'elenco", "document-save-as"});
        bars.addCommand(
            {"cmdDelete", "Elimina", "Elimina la riga", "edit-delete", {QKeySequence("F8")}, Scope::Popup});
        bars.addMenu("mnuFile", "&File", "Comandi sui file", {"cmdOpen", "|", "cmdSave"});
        bars.addListMenu("mnuLanguage", "&Lingua", "Lingua del programma", "cmdLanguage");
        bars.addMenu("popRow", "", "", {"cmdDelete", "cmdSave"});
        bars.addMenu("popHead", "", "", {"cmdSave"});
        bars.addMenuBar("Menu", {"mnuFile", "mnuLanguage"});
        bars.addToolBar("First", {"cmdOpen", "|", "cmdSave"}, Qt::ToolButtonIconOnly);
        bars.addToolBar("Second", {"cmdDelete"}, Qt::ToolButtonTextBesideIcon);
        bars.addStatic("stcHelp", "Pronto...", 1);
        bars.addProgress("stcProgress", "Avanzamento");
        bars.addStatic("stcDate", "oggi", 0);
        window.setCentralWidget(field);
        bars.offerPopup(field, [this] { return menuNow; });
        window.resize(600, 300);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }
    QToolButton* button(const char* name) { return window.findChild<QToolButton*>(name); }
    QMenu* menu(const char* name) { return window.findChild<QMenu*>(name); }
    QStringList startedNames() const {
        QStringList names;
        for (const auto& call : started)
            names << call.constFirst().toString();
        return names;
    }
};

QAction* entry(QMenu* menu, int index) {
    return menu->actions().at(index);
}

}  // namespace

class TestCommandBars : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void captionShowsAtOnceWhereverTheCommandIs() {
        Window w;
        w.bars.GetToolButton("cmdOpen")->setCaption("&Open list");
        QCOMPARE(captionOf(w.bars.GetToolButton("cmdOpen")), "&Open list");
        QCOMPARE(entry(w.menu("mnuFile"), 0)->text(), "&Open list");
        QCOMPARE(w.button("cmdOpen")->text(), "Open list");
        QCOMPARE(w.button("cmdOpen")->toolTip(), "Open list");
        w.bars.GetPopupMenu("mnuFile")->setCaption("&Datei");
        QCOMPARE(w.window.menuBar()->actions().constFirst()->text(), "&Datei");
    }

    void menusAndBarsAreInTheGivenOrderWithSeparators() {
        Window w;
        const auto actions = w.menu("mnuFile")->actions();
        QCOMPARE(actions.size(), 3);
        QCOMPARE(actions[0]->objectName(), "cmdOpen");
        QVERIFY(actions[1]->isSeparator());
        QCOMPARE(actions[2]->objectName(), "cmdSave");
        QVERIFY(w.window.findChild<QToolBar*>("First")->actions().at(1)->isSeparator());
        QCOMPARE(w.window.menuBar()->objectName(), "Menu");
        QVERIFY(!w.button("cmdOpen")->icon().isNull());
    }

    void accessToNamesOfAnotherKindIsNull() {
        Window w;
        QVERIFY(!w.bars.GetToolButton("mnuFile"));
        QVERIFY(!w.bars.GetPopupMenu("cmdOpen"));
        QVERIFY(!w.bars.GetStatic("cmdOpen"));
        QVERIFY(!w.bars.GetToolButton("cmdopen"));
        QVERIFY(!w.bars.GetList("mnuLanguage"));
    }

    void everyWayOfStartingEmitsTheOneSignal() {
        Window w;
        QTest::mouseClick(w.button("cmdOpen"), Qt::LeftButton);
        entry(w.menu("mnuFile"), 0)->trigger();
        QTest::keyClick(w.field, Qt::Key_O, Qt::ControlModifier);
        w.bars.showPopup("popRow", w.field->mapToGlobal(QPoint(5, 5)));
        QTest::keyClick(w.menu("popRow"), Qt::Key_Down);
        QTest::keyClick(w.menu("popRow"), Qt::Key_Return);
        QCOMPARE(w.startedNames(), (QStringList{"cmdOpen", "cmdOpen", "cmdOpen", "cmdDelete"}));
    }

    void furtherCommandsAreIgnoredWhileAHandlerRuns() {
        Window w;
        int handled = 0;
        connect(&w.bars, &CommandBars::commandStarted, &w.window, [&](const QString& name) {
            ++handled;
            if (name != "cmdOpen") return;
            QTest::mouseClick(w.button("cmdSave"), Qt::LeftButton);
            QCoreApplication::processEvents();
        });
        QTest::mouseClick(w.button("cmdOpen"), Qt::LeftButton);
        QCOMPARE(handled, 1);
        QTest::mouseClick(w.button("cmdSave"), Qt::LeftButton);
        QCOMPARE(handled, 2);
    }

    void disabledCommandIsOffEverywhere() {
        Window w;
        w.bars.GetToolButton("cmdOpen")->setEnabled(false);
        QVERIFY(!w.bars.GetToolButton("cmdOpen")->isEnabled());
        QVERIFY(!w.button("cmdOpen")->isEnabled());
        QTest::mouseClick(w.button("cmdOpen"), Qt::LeftButton);
        QTest::keyClick(w.field, Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(w.started.size(), 0);
    }

    void pointerOnAButtonShowsNameAndDescription() {
        Window w;
        QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
        QCoreApplication::sendEvent(w.button("cmdSave"), &enter);
        QCOMPARE(w.pointed.size(), 1);
        QCOMPARE(w.pointed[0][0].toString(), "cmdSave");
        QCOMPARE(w.pointed[0][1].toString(), "Salva l'elenco");
    }

    void walkThroughAMenuPointsAtMenuAndCommands() {
        Window w;
        w.bars.GetPopupMenu("mnuFile")->setDescription("Files");
        w.window.menuBar()->setActiveAction(w.menu("mnuFile")->menuAction());
        QCOMPARE(w.pointed.size(), 1);
        QCOMPARE(w.pointed[0][1].toString(), "Files");
        QTest::keyClick(w.menu("mnuFile"), Qt::Key_Down);
        QCOMPARE(w.pointed.last()[0].toString(), "cmdOpen");
        w.menu("mnuFile")->close();
    }

    void popupKeysActOnlyWhereTheirMenuWouldShow() {
        Window w;
        QTest::keyClick(w.field, Qt::Key_F8);
        QCOMPARE(w.startedNames(), QStringList{"cmdDelete"});
        w.menuNow = "popHead";
        QTest::keyClick(w.field, Qt::Key_F8);
        w.menuNow.clear();
        QTest::keyClick(w.field, Qt::Key_F8);
        w.menuNow = "popRow";
        w.button("cmdOpen")->setFocus();
        QTest::keyClick(w.button("cmdOpen"), Qt::Key_F8);
        QCOMPARE(w.started.size(), 1);
        w.field->setFocus();
        w.bars.GetToolButton("cmdDelete")->setEnabled(false);
        QTest::keyClick(w.field, Qt::Key_F8);
        QCOMPARE(w.started.size(), 1);
    }

    void popupKeyShowsInItsMenu() {
        Window w;
        QAction* action = entry(w.menu("popRow"), 0);
        QCOMPARE(action->shortcut(), QKeySequence("F8"));
        QVERIFY(action->isShortcutVisibleInContextMenu());
    }

    void menuKeyOpensTheMenuOfTheMoment() {
        Window w;
        w.menuNow = "popHead";
        QContextMenuEvent request(QContextMenuEvent::Keyboard, {5, 5}, w.field->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(w.field, &request);
        QVERIFY(w.menu("popHead")->isVisible());
        w.menu("popHead")->close();
    }

    void menuOfAListOpensBelowItsCurrentItem() {
        Window w;
        w.menuNow = "popHead";
        QTreeWidget list;
        for (int i = 0; i < 100; ++i)
            list.addTopLevelItem(new QTreeWidgetItem({QString::number(i)}));
        list.resize(200, 200);
        list.show();
        w.bars.offerPopup(&list, [&w] { return w.menuNow; });
        list.setCurrentItem(list.topLevelItem(90));
        list.scrollToTop();
        QContextMenuEvent request(QContextMenuEvent::Keyboard, {5, 5}, list.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&list, &request);
        QVERIFY(w.menu("popHead")->isVisible());
        const QRect item = list.visualItemRect(list.topLevelItem(90));
        QVERIFY(list.viewport()->rect().contains(item));
        QCOMPARE(w.menu("popHead")->pos(), list.viewport()->mapToGlobal(item.bottomLeft()));
        w.menu("popHead")->close();
    }

    void shiftAndF10AreAMenuKey() {
        Window w;
        w.menuNow = "popHead";
        w.field->setFocus();
        QTest::keyClick(w.field, Qt::Key_F10);
        QVERIFY(!w.menu("popHead")->isVisible());
        QTest::keyClick(w.field, Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(w.menu("popHead")->isVisible());
        w.menu("popHead")->close();
    }

    void listPicksByCaptionAndCountsFromOne() {
        Window w;
        ui::CommandList* list = w.bars.GetList("cmdLanguage");
        list->AddText("Italiano");
        list->AddText("English");
        QCOMPARE(w.menu("mnuLanguage")->actions().size(), 2);
        QCOMPARE(list->SelectedIndex(), 0);
        entry(w.menu("mnuLanguage"), 1)->trigger();
        QCOMPARE(w.startedNames(), QStringList{"cmdLanguage"});
        QCOMPARE(list->SelectedIndex(), 2);
        QCOMPARE(list->Caption(list->SelectedIndex()), "English");
        QVERIFY(entry(w.menu("mnuLanguage"), 1)->isChecked());
        entry(w.menu("mnuLanguage"), 0)->trigger();
        QVERIFY(!entry(w.menu("mnuLanguage"), 1)->isChecked());
        QCOMPARE(list->Caption(0), "");
        QCOMPARE(list->Caption(3), "");
        list->Clear();
        QCOMPARE(list->SelectedIndex(), 0);
        QVERIFY(w.menu("mnuLanguage")->actions().isEmpty());
    }

    void statusBarContainsItsItemsFromLeftToRight() {
        Window w;
        const QWidget* help = w.bars.GetStatic("stcHelp");
        const QWidget* progress = w.bars.GetProgress("stcProgress");
        const QWidget* date = w.bars.GetStatic("stcDate");
        QCOMPARE(w.bars.GetStatic("stcHelp")->Text(), "Pronto...");
        QVERIFY(help->x() < progress->x());
        QVERIFY(progress->x() < date->x());
        QVERIFY(help->width() > date->width());
        QCOMPARE(progress->size(), QSize(170, 16));
    }

    void longStatusTextDoesNotWidenTheWindow() {
        Window w;
        w.bars.GetStatic("stcHelp")->setText(QString(2000, 'x'));
        QCoreApplication::processEvents();
        QCOMPARE(w.window.width(), 600);
        QVERIFY(w.window.minimumSizeHint().width() < 600);
    }

    void buttonsCarryCaptionAndDescriptionToAssistivePrograms() {
        Window w;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.button("cmdSave"));
        QCOMPARE(face->text(QAccessible::Name), "Salva elenco");
        QCOMPARE(face->text(QAccessible::Description), "Salva l'elenco");
        w.bars.GetToolButton("cmdSave")->setCaption("Save");
        w.bars.GetToolButton("cmdSave")->setDescription("Saves");
        QCOMPARE(face->text(QAccessible::Name), "Save");
        QCOMPARE(face->text(QAccessible::Description), "Saves");
    }

    void buttonsCanBePressedByAssistivePrograms() {
        Window w;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.button("cmdSave"));
        QVERIFY(face->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        face->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(w.started.size(), 1);
        QCOMPARE(w.started[0][0], QString("cmdSave"));
    }

    void statusTextIsAStaticTextToAssistivePrograms() {
        Window w;
        ui::StaticItem* item = w.bars.GetStatic("stcHelp");
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(item);
        QCOMPARE(face->role(), QAccessible::StaticText);
        item->setText("Email presenti: 7");
        QCOMPARE(face->text(QAccessible::Name), "Email presenti: 7");
    }

    void keysWalkAlongTheBarsAndBack() {
        Window w;
        w.bars.GetToolButton("cmdSave")->setEnabled(false);
        w.bars.focusBars();
        QVERIFY(w.button("cmdOpen")->hasFocus());
        QTest::keyClick(w.button("cmdOpen"), Qt::Key_Right);
        QVERIFY(w.button("cmdDelete")->hasFocus());
        QTest::keyClick(w.button("cmdDelete"), Qt::Key_Right);
        QVERIFY(w.button("cmdOpen")->hasFocus());
        QTest::keyClick(w.button("cmdOpen"), Qt::Key_Left);
        QVERIFY(w.button("cmdDelete")->hasFocus());
        QTest::keyClick(w.button("cmdDelete"), Qt::Key_Space);
        QCOMPARE(w.startedNames(), QStringList{"cmdDelete"});
        QTest::keyClick(w.button("cmdDelete"), Qt::Key_Escape);
        QVERIFY(w.field->hasFocus());
    }

    void everyIconOfTheBarsDraws() {
        Window w;
        for (const char* name : {"cmdOpen", "cmdSave", "cmdDelete"})
            QVERIFY2(!w.button(name)->icon().pixmap(22, 22).isNull(), name);
    }
};

TEST_CLASS_WITH(TestCommandBars, ui::setUpDesktop);

}  // namespace commandbars_test

#include "commandbars_test.moc"
