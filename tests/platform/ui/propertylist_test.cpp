// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/ui/ColorHexagon.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/PropertyList.h"
#include "support/TestClass.h"

namespace propertylist_test {

using ui::PropertyList;

namespace {

/// A dialog with a list of two groups and a default button, as a form has it.
struct Form {
    QDialog dialog;
    PropertyList* list = new PropertyList;
    QPushButton* save = new QPushButton("Salva");
    int saved = 0;

    Form() {
        auto* column = new QVBoxLayout(&dialog);
        column->addWidget(list);
        column->addWidget(save);
        save->setDefault(true);
        QObject::connect(save, &QPushButton::clicked, &dialog, [this] { ++saved; });
        list->addGroup("Main", "Dati");
        list->addBoolean("Spedire", "Send", "Da spedire");
        list->addText("Email", "Email", "Indirizzo (max 255 caratteri)");
        list->addText("Provincia", "Provincia", "Sigla (max 2 caratteri)");
        list->addGroup("Altro", "Altro");
        list->addText("Campo1", "Campo 1", "Campo libero 1");
        list->addColour("Sfondo", "Sfondo", "Colore dello sfondo");
        dialog.resize(400, 400);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        list->setFocus();
    }
    QTreeWidget* view() { return list->findChild<QTreeWidget*>(); }
    QLineEdit* editor() { return view()->viewport()->findChild<QLineEdit*>(); }
    ui::ColorHexagon* colours() {
        auto* panel = view()->findChild<QWidget*>("colorPopup");
        return panel && panel->isVisible() ? panel->findChild<ui::ColorHexagon*>("color") : nullptr;
    }
    QString current() { return view()->currentItem()->text(0); }
    QString description() { return list->findChild<QLabel*>()->text(); }
    QPoint cell(const char* caption, int column) {
        QTreeWidgetItem* item = view()->findItems(caption, Qt::MatchExactly).constFirst();
        return view()->visualRect(view()->indexFromItem(item, column)).center();
    }
    /// Keys go to the cell that is open, as the window system sends them.
    void type(Qt::Key key, const QString& text = {}) {
        QWidget* target = editor() ? static_cast<QWidget*>(editor()) : view();
        QTest::sendKeyEvent(QTest::Click, target, key, text, Qt::NoModifier);
        QCoreApplication::processEvents();
    }
};

}  // namespace

class TestPropertyList : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void keysAreComparedWithoutCase() {
        Form f;
        QVERIFY(f.list->Item("email"));
        QCOMPARE(f.list->Item("EMAIL"), f.list->Item("Email"));
        QCOMPARE(f.list->Item("altro")->Caption(), "Altro");
        QVERIFY(!f.list->Item("Nessuno"));
    }

    void captionShowsAtOnce() {
        Form f;
        f.list->Item("Email")->setCaption("Posta");
        QCOMPARE(f.list->Item("Email")->Caption(), "Posta");
        QCOMPARE(f.view()->topLevelItem(2)->text(0), "Posta");
        f.list->Item("altro")->setCaption("Other");
        QCOMPARE(f.view()->topLevelItem(4)->text(0), "Other");
    }

    void valuesKeepTheirKind() {
        Form f;
        QCOMPARE(f.list->Item("Spedire")->Value(), QVariant(false));
        QCOMPARE(f.list->Item("Email")->Value(), QVariant(QString()));
        f.list->Item("Spedire")->setValue(true);
        f.list->Item("Email")->setValue("a@b.it");
        f.list->Item("Sfondo")->setValue(0x0000ffu);
        QCOMPARE(f.list->Item("Spedire")->Value(), QVariant(true));
        QCOMPARE(f.list->Item("Email")->Value(), QVariant("a@b.it"));
        QCOMPARE(f.list->Item("Sfondo")->Value(), QVariant(0x0000ffu));
        QCOMPARE(f.view()->topLevelItem(6)->text(1), "#ff0000");
        f.list->Item("Email")->setValue("");
        QCOMPARE(f.list->Item("Email")->Value(), QVariant(""));
    }

    void typingStartsEditingAndCountsAtOnce() {
        Form f;
        f.list->setCurrentItem("Email");
        f.type(Qt::Key_X, "x");
        QVERIFY(f.editor());
        QCOMPARE(f.editor()->text(), "x");
        f.type(Qt::Key_Egrave, QString::fromUtf8("è"));
        QCOMPARE(f.list->Item("Email")->Value().toString(), QString::fromUtf8("xè"));
    }

    void typedTextIsNeverCut() {
        Form f;
        f.list->setCurrentItem("Provincia");
        for (const QString letter : {"B", "L", "U"})
            f.type(Qt::Key_unknown, letter);
        QCOMPARE(f.list->Item("Provincia")->Value().toString(), "BLU");
    }

    void returnAndTabCommitAndGoDownOverGroups_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("return") << int(Qt::Key_Return);
        QTest::newRow("enter") << int(Qt::Key_Enter);
        QTest::newRow("tab") << int(Qt::Key_Tab);
    }
    void returnAndTabCommitAndGoDownOverGroups() {
        QFETCH(int, key);
        Form f;
        f.list->setCurrentItem("Provincia");
        f.type(Qt::Key_B, "B");
        f.type(Qt::Key(key));
        QTRY_VERIFY(!f.editor());
        QCOMPARE(f.current(), "Campo 1");
        QCOMPARE(f.list->Item("Provincia")->Value().toString(), "B");
        QCOMPARE(f.saved, 0);
        QVERIFY(f.view()->hasFocus());
    }

    void returnReachesTheDefaultButtonWhenNoCellIsOpen() {
        Form f;
        f.list->setCurrentItem("Email");
        f.type(Qt::Key_Return);
        QCOMPARE(f.saved, 1);
    }

    void tabLeavesTheListWhenNoCellIsOpen() {
        Form f;
        f.list->setCurrentItem("Email");
        QTest::keyClick(f.view(), Qt::Key_Tab);
        QVERIFY(f.save->hasFocus());
    }

    void escapeRestoresTheOldValueAndLeavesTheCellOnly() {
        Form f;
        f.list->Item("Email")->setValue("prima");
        f.list->setCurrentItem("Email");
        f.type(Qt::Key_X, "x");
        QCOMPARE(f.list->Item("Email")->Value().toString(), "x");
        f.type(Qt::Key_Escape);
        QTRY_VERIFY(!f.editor());
        QCOMPARE(f.list->Item("Email")->Value().toString(), "prima");
        QCOMPARE(f.current(), "Email");
        QVERIFY(f.dialog.isVisible());
    }

    void valueWrittenWhileItsCellIsOpenShowsThere() {
        Form f;
        f.list->setCurrentItem("Email");
        f.type(Qt::Key_X, "x");
        f.list->Item("Email")->setValue("pulito");
        QCOMPARE(f.editor()->text(), "pulito");
    }

    void leavingAnOpenCellByAClickElsewhereKeepsWhatWasTyped() {
        Form f;
        f.list->setCurrentItem("Email");
        f.type(Qt::Key_X, "x");
        f.save->setFocus();
        QTRY_VERIFY(!f.editor());
        QCOMPARE(f.list->Item("Email")->Value().toString(), "x");
        QCOMPARE(f.current(), "Email");
    }

    void spaceAndClickToggleAYesNo() {
        Form f;
        f.list->setCurrentItem("Spedire");
        f.type(Qt::Key_Space, " ");
        QCOMPARE(f.list->Item("Spedire")->Value(), QVariant(true));
        // anywhere in the cell, not on the little box only
        QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, f.cell("Send", 1));
        QCOMPARE(f.list->Item("Spedire")->Value(), QVariant(false));
        QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, f.cell("Send", 0));
        QCOMPARE(f.list->Item("Spedire")->Value(), QVariant(false));
    }

    void arrowsSkipGroupsAndTheDescriptionFollows() {
        Form f;
        f.list->setCurrentItem("Provincia");
        QCOMPARE(f.description(), "Sigla (max 2 caratteri)");
        f.type(Qt::Key_Down);
        QCOMPARE(f.current(), "Campo 1");
        QCOMPARE(f.description(), "Campo libero 1");
        f.type(Qt::Key_Up);
        QCOMPARE(f.current(), "Provincia");
    }

    void clickOnACaptionMakesItsValueCurrent() {
        Form f;
        QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, f.cell("Email", 0));
        QCOMPARE(f.current(), "Email");
        QCOMPARE(f.view()->currentColumn(), 1);
        f.type(Qt::Key_X, "x");
        QCOMPARE(f.list->Item("Email")->Value().toString(), "x");
    }

    void colourIsTypedInHexAndNonsenseIsIgnored() {
        Form f;
        f.list->Item("Sfondo")->setValue(0x112233u);
        f.list->setCurrentItem("Sfondo");
        for (const QChar letter : QString("#00FF80"))
            f.type(Qt::Key_unknown, letter);
        f.type(Qt::Key_Return);
        QTRY_VERIFY(!f.editor());
        QCOMPARE(f.list->Item("Sfondo")->Value().toUInt(), 0x80ff00u);
        f.list->setCurrentItem("Sfondo");
        for (const QChar letter : QString("rosso"))
            f.type(Qt::Key_unknown, letter);
        f.type(Qt::Key_Return);
        QTRY_VERIFY(!f.editor());
        QCOMPARE(f.list->Item("Sfondo")->Value().toUInt(), 0x80ff00u);
    }

    void swatchIsDrawnInTheColour() {
        Form f;
        f.list->Item("Sfondo")->setValue(0x0000ffu);
        QCoreApplication::processEvents();
        const QRect cell = f.view()->visualRect(f.view()->model()->index(6, 1));
        const QImage picture = f.view()->viewport()->grab(cell).toImage();
        QCOMPARE(picture.pixelColor(6 + 12, cell.height() / 2), QColor(Qt::red));
    }

    void itemsAreNamedByCaptionWithTheValueAsText() {
        Form f;
        f.list->Item("Email")->setValue("a@b.it");
        QAccessibleInterface* table = QAccessible::queryAccessibleInterface(f.view());
        QVERIFY(table->tableInterface());
        QAccessibleInterface* cell = table->tableInterface()->cellAt(2, 1);
        QVERIFY(cell);
        QCOMPARE(cell->text(QAccessible::Name), "Email");
        QCOMPARE(cell->text(QAccessible::Description), "a@b.it");
        QVERIFY(table->tableInterface()->cellAt(1, 1)->state().checkable);
        f.list->setCurrentItem("Email");
        f.type(Qt::Key_X, "x");
        QCOMPARE(f.editor()->accessibleName(), "Email");
    }

    void assistiveProgramsToggleAYesNoAndOpenAValueForTyping() {
        Form f;
        using Actions = QAccessibleActionInterface;
        const auto cell = [&f](int row, int column) {
            return QAccessible::queryAccessibleInterface(f.view())->tableInterface()->cellAt(row, column);
        };
        QVERIFY(cell(0, 1)->actionInterface()->actionNames().isEmpty());
        QCOMPARE(cell(1, 0)->actionInterface()->actionNames(), QStringList{Actions::pressAction()});
        QCOMPARE(cell(1, 1)->actionInterface()->actionNames(),
                 QStringList({Actions::pressAction(), Actions::toggleAction()}));
        QCOMPARE(cell(2, 1)->actionInterface()->actionNames(), QStringList({Actions::pressAction(), "Edit"}));
        cell(1, 1)->actionInterface()->doAction(Actions::toggleAction());
        QTRY_VERIFY(f.list->Item("Spedire")->Value().toBool());
        QVERIFY(cell(1, 1)->state().checked);
        cell(3, 0)->actionInterface()->doAction(Actions::pressAction());
        QTRY_COMPARE(f.current(), "Provincia");
        cell(2, 1)->actionInterface()->doAction("Edit");
        QTRY_VERIFY(f.editor());
        QAccessibleInterface* editor = cell(2, 1)->child(0);
        QCOMPARE(editor->text(QAccessible::Name), "Email");
        editor->editableTextInterface()->insertText(0, "a@b.it");
        f.type(Qt::Key_Return);
        QCOMPARE(cell(2, 1)->text(QAccessible::Value), "a@b.it");
    }

    void aColourIsPickedAmongThoseThatItsEndsAndKeysOffer_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"swatch", "arrow", "F4", "Alt+Down"})
            QTest::newRow(way) << way;
    }
    void aColourIsPickedAmongThoseThatItsEndsAndKeysOffer() {
        QFETCH(QString, way);
        Form f;
        f.list->Item("Sfondo")->setValue(0x0000ffU);
        f.list->setCurrentItem("Sfondo");
        const QRect cell = f.view()->visualRect(f.view()->currentIndex());
        if (way == "swatch")
            QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, cell.topLeft() + QPoint(15, 12));
        if (way == "arrow")
            QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, cell.bottomRight() - QPoint(8, 8));
        if (way == "F4") QTest::keyClick(f.view(), Qt::Key_F4);
        if (way == "Alt+Down") QTest::keyClick(f.view(), Qt::Key_Down, Qt::AltModifier);
        ui::ColorHexagon* colours = f.colours();
        QVERIFY(colours);
        QCOMPARE(colours->Color(), 0x0000ffU);
        QCOMPARE(colours->accessibleName(), "Sfondo");
        const quint32 wanted = colours->cellColor(3);
        colours->pick(3);
        QCOMPARE(f.list->Item("Sfondo")->Value().toUInt(), wanted);
        QVERIFY(!f.colours());
        QVERIFY(!f.editor());
        QCOMPARE(f.saved, 0);
    }

    void leavingTheColoursKeepsWhatWasTyped() {
        Form f;
        f.list->setCurrentItem("Sfondo");
        for (const QChar letter : QString("#102030"))
            f.type(Qt::Key_unknown, letter);
        QTest::keyClick(f.editor(), Qt::Key_Down, Qt::AltModifier);
        QVERIFY(f.colours());
        QCOMPARE(f.colours()->Color(), 0x302010U);
        QTest::keyClick(f.colours(), Qt::Key_Escape);
        QVERIFY(!f.colours());
        QTRY_VERIFY(!f.editor());
        QCOMPARE(f.list->Item("Sfondo")->Value().toUInt(), 0x302010U);
    }

    void theMiddleOfAColourIsForTypingAndATextOffersNoColours() {
        Form f;
        f.list->setCurrentItem("Sfondo");
        QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, f.cell("Sfondo", 1));
        QTRY_VERIFY(f.editor());
        QVERIFY(!f.colours());
        f.list->setCurrentItem("Email");
        QTest::keyClick(f.view(), Qt::Key_F4);
        QVERIFY(!f.colours());
    }
};

TEST_CLASS_WITH(TestPropertyList, ui::setUpDesktop);

}  // namespace propertylist_test

#include "propertylist_test.moc"
