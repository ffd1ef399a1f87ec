// SPDX-License-Identifier: GPL-3.0-or-later
// The tools of a bar that are more than a button, and disabled bars.
#include <QAccessible>
#include <QDialog>
#include <QMainWindow>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "platform/ui/CommandBars.h"
#include "support/TestClass.h"

namespace commandbars_tools_test {

using ui::CommandBars;

namespace {

struct Window {
    QMainWindow window;
    CommandBars bars{&window};
    QLineEdit* field = new QLineEdit;
    QWidget* panel = new QWidget(&window);
    QSignalSpy started{&bars, &CommandBars::commandStarted};
    QSignalSpy pointed{&bars, &CommandBars::commandPointed};
    QSignalSpy edited{&bars, &CommandBars::textEdited};
    QSignalSpy opening{&bars, &CommandBars::popupOpening};

    Window() {
        bars.addCommand({"cmdBold", "Grassetto", "", "", {QKeySequence("F5")}, {}, true});
        bars.addCommand({"cmdBoth", "Ovunque", "", "", {QKeySequence("F6")}});
        bars.addCommand({"cmdInMenu", "Nel menu", "", "", {QKeySequence("F7")}});
        bars.addCommand({"cmdLoose", "Senza posto", "", "", {QKeySequence("F8")}});
        bars.addMenu("popTable", "Tabella", "Comandi della tabella", {"cmdInMenu"});
        bars.setMenuButton("popTable", "insert-table", {QKeySequence("Ctrl+T")});
        bars.addComboBox("cmbFont", "Seleziona font", 150)->AddItem("Arial");
        bars.GetComboBox("cmbFont")->AddItem("Verdana");
        bars.addEdit("txtSubject", "Oggetto:", "Oggetto del messaggio");
        panel->setMinimumSize(100, 50);
        bars.addCustomPopup({"popColors", "Colori", "Tabella colori", "format-text-color"}, panel);
        bars.addToolBar("Html", {"cmbFont", "popColors", "|", "cmdBold", "cmdBoth", "popTable"},
                        Qt::ToolButtonIconOnly);
        bars.addToolBar("Message", {"txtSubject"}, Qt::ToolButtonIconOnly);
        bars.addToolBar("Always", {"cmdBoth"}, Qt::ToolButtonIconOnly);
        window.setCentralWidget(field);
        window.resize(800, 200);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }
    template <class Control>
    Control* find(const char* name) {
        auto* control = window.findChild<Control*>(name);
        if (!control) qFatal("no control %s", name);
        return control;
    }
    QStringList startedNames() const {
        QStringList names;
        for (const auto& call : started)
            names << call.constFirst().toString();
        return names;
    }
};

}  // namespace

class TestCommandBarsTools : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aCheckableToolChangesNothingByItself() {
        Window w;
        ui::Command* bold = w.bars.GetToolButton("cmdBold");
        QTest::mouseClick(w.find<QToolButton>("cmdBold"), Qt::LeftButton);
        QCOMPARE(w.startedNames(), QStringList("cmdBold"));
        QCOMPARE(bold->Checked(), 0);
        QVERIFY(!w.find<QToolButton>("cmdBold")->isChecked());
        bold->setChecked(1);
        QVERIFY(w.find<QToolButton>("cmdBold")->isChecked());
        QTest::mouseClick(w.find<QToolButton>("cmdBold"), Qt::LeftButton);
        QCOMPARE(bold->Checked(), 1);
        QVERIFY(w.find<QToolButton>("cmdBold")->isChecked());
    }

    void choosingFromAListStartsItsCommandWithTheText() {
        Window w;
        auto* combo = w.bars.GetComboBox("cmbFont");
        QCOMPARE(combo->count(), 2);
        QCOMPARE(combo->itemText(1), "Verdana");
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_Down);
        QCOMPARE(w.startedNames(), QStringList("cmbFont"));
        QCOMPARE(combo->Text(), "Verdana");
    }

    void aTypedTextStartsTheListsCommandAtReturnOnce() {
        Window w;
        auto* combo = w.bars.GetComboBox("cmbFont");
        for (const char* text : {"Georgia", "Arial"}) {
            combo->lineEdit()->setFocus();
            combo->lineEdit()->selectAll();
            QTest::keyClicks(combo->lineEdit(), text);
            w.started.clear();
            QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
            QCOMPARE(w.startedNames(), QStringList("cmbFont"));
            QCOMPARE(combo->Text(), text);
            QCOMPARE(combo->count(), 2);
        }
    }

    void settingATextIsSilent() {
        Window w;
        w.bars.GetComboBox("cmbFont")->setText("Courier");
        w.bars.GetEdit("txtSubject")->setText("x");
        QCOMPARE(w.bars.GetComboBox("cmbFont")->Text(), "Courier");
        QCOMPARE(w.bars.GetEdit("txtSubject")->Text(), "x");
        QVERIFY(w.started.isEmpty());
        QVERIFY(w.edited.isEmpty());
    }

    void typingInAFieldReportsEachChange() {
        Window w;
        auto* edit = w.find<QLineEdit>("txtSubject");
        edit->setFocus();
        QTest::keyClicks(edit, "ab");
        QCOMPARE(w.edited.size(), 2);
        QCOMPARE(w.edited.constFirst().constFirst().toString(), "txtSubject");
        QCOMPARE(w.bars.GetEdit("txtSubject")->Text(), "ab");
    }

    void fieldsAndListsShowTheirDescriptionUnderThePointer() {
        Window w;
        QTest::mouseMove(w.find<QLineEdit>("txtSubject"));
        QTRY_VERIFY(!w.pointed.isEmpty());
        QCOMPARE(w.pointed.constLast(), (QVariantList{"txtSubject", "Oggetto del messaggio"}));
        QTest::mouseMove(w.bars.GetComboBox("cmbFont"));
        QTRY_COMPARE(w.pointed.constLast(), (QVariantList{"cmbFont", "Seleziona font"}));
        w.bars.GetComboBox("cmbFont")->setDescription("Choose a font");
        QCOMPARE(w.bars.GetComboBox("cmbFont")->Description(), "Choose a font");
    }

    void aFieldsLabelIsItsNameForAssistivePrograms() {
        Window w;
        QCOMPARE(w.find<QLineEdit>("txtSubject")->accessibleName(), "Oggetto");
        w.bars.GetEdit("txtSubject")->setLabel("Subject:");
        QCOMPARE(w.bars.GetEdit("txtSubject")->Label(), "Subject:");
        QCOMPARE(w.find<QLineEdit>("txtSubject")->accessibleName(), "Subject");
        QCOMPARE(w.find<QLabel>("txtSubjectLabel")->buddy(), w.find<QLineEdit>("txtSubject"));
    }

    void aPanelOpensBelowItsButtonAndIsAnnouncedFirst() {
        Window w;
        bool hiddenWhenTold = false;
        connect(&w.bars, &CommandBars::popupOpening, &w.window,
                [&] { hiddenWhenTold = !w.panel->isVisible(); });
        auto* button = w.find<QToolButton>("popColors");
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(hiddenWhenTold);
        QCOMPARE(w.opening.size(), 1);
        QVERIFY(w.panel->isVisible());
        // The offscreen screen puts a frame of two pixels around it.
        const QPoint away = w.panel->pos() - button->mapToGlobal(QPoint(0, button->height()));
        QVERIFY(away.manhattanLength() <= 4);
        QVERIFY(w.started.isEmpty());
        w.bars.closePopup("popColors");
        QVERIFY(!w.panel->isVisible());
        QCOMPARE(w.bars.GetCustomPopup("popColors")->Description(), "Tabella colori");
        QVERIFY(!w.bars.GetToolButton("popColors"));
    }

    void keysOpenAMenuBelowItsButton() {
        Window w;
        QTest::keyClick(w.field, Qt::Key_T, Qt::ControlModifier);
        QVERIFY(w.find<QMenu>("popTable")->isVisible());
        auto* button = w.find<QToolButton>("popTable");
        QCOMPARE(w.find<QMenu>("popTable")->pos(), button->mapToGlobal(QPoint(0, button->height())));
        w.find<QMenu>("popTable")->hide();
    }

    void assistiveProgramsOpenTheMenuOfAButton() {
        Window w;
        auto* menu = w.find<QMenu>("popTable");
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.find<QToolButton>("popTable"));
        QCOMPARE(face->text(QAccessible::Name), "Tabella");
        QVERIFY(face->state().hasPopup);
        for (const QString& action :
             {QAccessibleActionInterface::showMenuAction(), QAccessibleActionInterface::pressAction()}) {
            QVERIFY2(face->actionInterface()->actionNames().contains(action), qPrintable(action));
            face->actionInterface()->doAction(action);
            QVERIFY2(!menu->isVisible(), "who asks is answered before the menu is left");
            QTimer::singleShot(0, menu, [menu, &w] {
                QCOMPARE(menu->pos(),
                         w.find<QToolButton>("popTable")
                             ->mapToGlobal(QPoint(0, w.find<QToolButton>("popTable")->height())));
                menu->hide();
            });
            QCoreApplication::processEvents();
            QVERIFY(!menu->isVisible());
        }
        w.bars.setBarEnabled("Html", false);
        face->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QCoreApplication::processEvents();
        QVERIFY(!menu->isVisible());
    }

    void menusAndPanelsWaitForNoWindowInFront() {
        Window w;
        QDialog dialog(&w.window);
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        const auto press = [&w](const char* name) {
            QAccessible::queryAccessibleInterface(w.find<QToolButton>(name))
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::pressAction());
            QCoreApplication::processEvents();
        };
        press("popColors");
        QVERIFY(!w.panel->isVisible());
        QTimer::singleShot(0, w.find<QMenu>("popTable"), [&w] {
            if (w.find<QMenu>("popTable")->isVisible()) qFatal("the menu shows over another window");
        });
        press("popTable");
        dialog.hide();
        press("popColors");
        QTRY_VERIFY(w.panel->isVisible());
        w.panel->hide();
    }

    void aBarThatIsOffIsDisabledAndItsKeysHaveNoEffect() {
        Window w;
        w.bars.setBarEnabled("Html", false);
        QVERIFY(!w.find<QToolButton>("cmdBold")->isEnabled());
        QVERIFY(!w.bars.GetComboBox("cmbFont")->isEnabled());
        for (const auto key : {Qt::Key_F5, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8})
            QTest::keyClick(w.field, key);
        QTest::keyClick(w.field, Qt::Key_T, Qt::ControlModifier);
        QVERIFY(!w.find<QMenu>("popTable")->isVisible());
        QCOMPARE(w.startedNames(), (QStringList{"cmdBoth", "cmdLoose"}));
        w.bars.setBarEnabled("Html", true);
        w.started.clear();
        for (const auto key : {Qt::Key_F5, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8})
            QTest::keyClick(w.field, key);
        QCOMPARE(w.startedNames(), (QStringList{"cmdBold", "cmdBoth", "cmdInMenu", "cmdLoose"}));
    }

    void aToolKeepsItsOwnStateWhileItsBarIsOff() {
        Window w;
        ui::Command* bold = w.bars.GetToolButton("cmdBold");
        w.bars.setBarEnabled("Html", false);
        QVERIFY(bold->isEnabled());
        bold->setEnabled(false);
        w.bars.setBarEnabled("Html", true);
        QVERIFY(!w.find<QToolButton>("cmdBold")->isEnabled());
        bold->setEnabled(true);
        QVERIFY(w.find<QToolButton>("cmdBold")->isEnabled());
    }
};

TEST_CLASS(TestCommandBarsTools);

}  // namespace commandbars_tools_test

#include "commandbars_tools_test.moc"
