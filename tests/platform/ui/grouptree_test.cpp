// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAccessible>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include "platform/ui/datagrid_support.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/DragContent.h"
#include "platform/ui/GroupTree.h"
#include "support/TestClass.h"

namespace grouptree_test {

using ui::dragContent;
using ui::Dragged;
using ui::GroupNodeRef;
using ui::GroupTree;

namespace {

/// Root R with A (and A1 below) and B; every event is noted by name.
struct Window {
    QWidget window;
    GroupTree* tree = new GroupTree;
    QStringList events;

    Window() {
        auto* row = new QHBoxLayout(&window);
        row->addWidget(tree);
        tree->setImage("Base", "server-database");
        tree->setImage("Close", "folder");
        tree->setImage("Open", "folder-open");
        add("", "R", "Radice");
        add("R", "A", "Acero");
        add("A", "A1", "Acero uno");
        add("R", "B", "Betulla");
        QVERIFY(tree->Expand("R").ok());
        QVERIFY(tree->Expand("A").ok());
        watch();
        window.resize(600, 400);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        tree->setFocus();
    }
    GroupNodeRef add(const QString& parent, const QString& key, const QString& text) {
        const auto node = tree->Add(parent, key, text, parent.isEmpty() ? "Base" : "Close",
                                    parent.isEmpty() ? "Base" : "Open");
        if (!node.ok()) qFatal("%s", qUtf8Printable(node.status().text()));
        return node.value();
    }
    static QString keyOf(const GroupNodeRef& node) { return node ? node->Key() : "-"; }
    void watch() {
        const auto note = [this](const QString& name) { events << name; };
        QObject::connect(tree, &GroupTree::nodeClick, &window,
                         [=](const GroupNodeRef& node) { note("node " + keyOf(node)); });
        QObject::connect(tree, &GroupTree::click, &window, [=] { note("click"); });
        QObject::connect(tree, &GroupTree::mouseUp, &window, [=](Qt::MouseButton button) {
            note(button == Qt::RightButton ? "up right" : "up");
        });
        QObject::connect(tree, &GroupTree::nodeDropped, &window,
                         [=](const GroupNodeRef& node) { note("node drop " + keyOf(node)); });
        QObject::connect(tree, &GroupTree::rowDropped, &window,
                         [=](const GroupNodeRef& node) { note("row drop " + keyOf(node)); });
    }
    QPoint at(const QString& key) {
        for (QTreeWidgetItemIterator item(tree); *item; ++item)
            if ((*item)->text(0) == tree->Node(key)->Text()) return tree->visualItemRect(*item).center();
        return {};
    }
    QPoint empty() { return {100, 300}; }
    QLineEdit* editor() { return tree->viewport()->findChild<QLineEdit*>(); }
    QString selected() { return keyOf(tree->SelectedItem()); }
};

}  // namespace

class TestGroupTree : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void nodesAreFoundByKey() {
        Window w;
        QCOMPARE(w.tree->Count(), 4);
        QCOMPARE(w.tree->Node("A1")->Text(), "Acero uno");
        QCOMPARE(w.tree->Node("A1")->Parent()->Key(), "A");
        QVERIFY(!w.tree->Node("R")->Parent());
        QCOMPARE(w.tree->Node("R")->Children(), 2);
        QVERIFY(!w.tree->Node("a1"));
    }

    void equalKeysAndUnknownParentsAreRefused() {
        Window w;
        QCOMPARE(int(w.tree->Add("R", "A", "x", "Close", "Open").status().code()),
                 int(ErrorCode::DuplicateKey));
        QCOMPARE(int(w.tree->Add("Z", "Y", "x", "Close", "Open").status().code()),
                 int(ErrorCode::ItemNotFound));
        QCOMPARE(w.tree->Count(), 4);
    }

    void newNodeIsLastAndNotSelected() {
        Window w;
        w.tree->setSelectedItem(w.tree->Node("B"));
        w.add("R", "N", "Abete");
        QCOMPARE(w.tree->topLevelItem(0)->child(2)->text(0), "Abete");
        QCOMPARE(w.selected(), "B");
        QVERIFY(w.events.isEmpty());
    }

    void removedNodeStillAnswersWithKeyAndText() {
        Window w;
        const GroupNodeRef node = w.tree->Node("A");
        const GroupNodeRef below = w.tree->Node("A1");
        QVERIFY(w.tree->Remove("A").ok());
        QCOMPARE(node->Key(), "A");
        QCOMPARE(node->Text(), "Acero");
        QCOMPARE(node->Children(), 0);
        QVERIFY(!node->Parent());
        QVERIFY(!w.tree->Node("A1"));
        QVERIFY(!below->Parent());
        QCOMPARE(w.tree->Count(), 2);
        QCOMPARE(int(w.tree->Remove("A").code()), int(ErrorCode::ItemNotFound));
    }

    void clearedTreeCanBeBuiltAgain() {
        Window w;
        const GroupNodeRef node = w.tree->Node("A1");
        w.tree->Clear();
        QCOMPARE(w.tree->Count(), 0);
        QCOMPARE(node->Text(), "Acero uno");
        w.add("", "R", "Radice");
        QCOMPARE(w.tree->Count(), 1);
        QVERIFY(!w.tree->SelectedItem());
    }

    void nodeOutlivesTheTree() {
        GroupNodeRef node;
        {
            Window w;
            node = w.tree->Node("A");
        }
        QCOMPARE(node->Text(), "Acero");
        QCOMPARE(node->Children(), 0);
    }

    void nodeMovesWithItsChildrenAfterTheOthers() {
        Window w;
        w.add("B", "B1", "Betulla uno");
        w.tree->setSelectedItem(w.tree->Node("A"));
        QVERIFY(w.tree->Move("A", "B").ok());
        QCOMPARE(w.tree->Node("A")->Parent()->Key(), "B");
        QCOMPARE(w.tree->Node("A1")->Parent()->Key(), "A");
        QCOMPARE(w.tree->Node("R")->Children(), 1);
        QCOMPARE(w.tree->topLevelItem(0)->child(0)->child(1)->text(0), "Acero");
        QVERIFY(w.tree->topLevelItem(0)->child(0)->child(1)->isExpanded());
        QCOMPARE(w.selected(), "A");
    }

    void moveBelowItselfOrOfTheRootIsRefused_data() {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("target");
        QTest::newRow("itself") << "A"
                                << "A";
        QTest::newRow("own child") << "A"
                                   << "A1";
        QTest::newRow("root") << "R"
                              << "B";
        QTest::newRow("root on itself") << "R"
                                        << "R";
    }
    void moveBelowItselfOrOfTheRootIsRefused() {
        QFETCH(QString, node);
        QFETCH(QString, target);
        Window w;
        QCOMPARE(int(w.tree->Move(node, target).code()), int(ErrorCode::NotSupported));
        QCOMPARE(w.tree->Node("A")->Parent()->Key(), "R");
        QCOMPARE(w.tree->Node("A1")->Parent()->Key(), "A");
    }

    void moveOfUnknownNodesIsRefused() {
        Window w;
        QCOMPARE(int(w.tree->Move("Z", "A").code()), int(ErrorCode::ItemNotFound));
        QCOMPARE(int(w.tree->Move("A", "").code()), int(ErrorCode::ItemNotFound));
    }

    void leftClickReportsNodeThenClickThenUp() {
        Window w;
        mouse::press(w.tree, w.at("B"));
        QVERIFY(w.events.isEmpty());
        mouse::release(w.tree, w.at("B"));
        QCOMPARE(w.events, (QStringList{"node B", "click", "up"}));
        QCOMPARE(w.selected(), "B");
    }

    void rightPressCountsAsAClickFirst() {
        Window w;
        mouse::click(w.tree, w.at("A"), Qt::RightButton);
        QCOMPARE(w.events, (QStringList{"node A", "click", "up right"}));
        QCOMPARE(w.selected(), "A");
    }

    void clickIntoEmptySpaceKeepsTheSelection() {
        Window w;
        mouse::click(w.tree, w.at("A"));
        w.events.clear();
        mouse::click(w.tree, w.empty());
        QCOMPARE(w.events, (QStringList{"click", "up"}));
        QCOMPARE(w.selected(), "A");
        w.events.clear();
        mouse::click(w.tree, w.empty(), Qt::RightButton);
        QCOMPARE(w.events, QStringList{"up right"});
    }

    void clickOnABranchFoldsAndIsNoClick() {
        Window w;
        const QPoint text = w.at("A");
        const int left = w.tree->visualItemRect(w.tree->topLevelItem(0)->child(0)).left();
        mouse::click(w.tree, {left - 9, text.y()});
        QVERIFY(!w.tree->topLevelItem(0)->child(0)->isExpanded());
        QCOMPARE(w.events, QStringList{"up"});
        QCOMPARE(w.selected(), "-");
    }

    void releaseOnAnotherNodeIsNoClick() {
        Window w;
        mouse::click(w.tree, w.at("B"));
        w.events.clear();
        w.tree->setDragEnabled(false);
        mouse::press(w.tree, w.at("A"));
        mouse::release(w.tree, w.at("R"));
        QCOMPARE(w.events, QStringList{"up"});
        QCOMPARE(w.selected(), "B");
    }

    void keysClickTheNodeTheyComeTo() {
        Window w;
        mouse::click(w.tree, w.at("R"));
        w.events.clear();
        QTest::keyClick(w.tree, Qt::Key_Down);
        QCOMPARE(w.events, (QStringList{"node A", "click"}));
        QCOMPARE(w.selected(), "A");
        w.events.clear();
        QTest::keyClick(w.tree, Qt::Key_Return);
        QTest::keyClick(w.tree, Qt::Key_Space);
        QCOMPARE(w.events, (QStringList{"node A", "click", "node A", "click"}));
        w.events.clear();
        QTest::keyClick(w.tree, Qt::Key_Left);  // folds
        QVERIFY(w.events.isEmpty());
    }

    void movingReportsEachTime() {
        Window w;
        QSignalSpy moves(w.tree, &GroupTree::mouseMove);
        mouse::move(w.tree, w.at("A"));
        mouse::move(w.tree, w.empty());
        QCOMPARE(moves.size(), 2);
    }

    void labelEditTakesTheNewText() {
        Window w;
        QString text;
        connect(w.tree, &GroupTree::afterLabelEdit, &w.window, [&](const QString& now) { text = now; });
        w.tree->setSelectedItem(w.tree->Node("A"));
        w.tree->StartLabelEdit();
        QVERIFY(w.editor());
        QCOMPARE(w.editor()->text(), "Acero");
        w.editor()->setText("L'acero");
        QTest::keyClick(w.editor(), Qt::Key_Return);
        QTRY_VERIFY(!w.editor());
        QCOMPARE(text, "L'acero");
        QCOMPARE(w.tree->Node("A")->Text(), "L'acero");
        QCOMPARE(w.tree->topLevelItem(0)->child(0)->text(0), "L'acero");
        QCOMPARE(w.events, QStringList());
    }

    void labelEditCanBeCancelledBefore() {
        Window w;
        connect(w.tree, &GroupTree::beforeLabelEdit, &w.window, [](bool* cancel) { *cancel = true; });
        w.tree->setSelectedItem(w.tree->Node("R"));
        w.tree->StartLabelEdit();
        QVERIFY(!w.editor());
    }

    void labelEditCanBeCancelledAfter() {
        Window w;
        connect(w.tree, &GroupTree::afterLabelEdit, &w.window,
                [](const QString&, bool* cancel) { *cancel = true; });
        w.tree->setSelectedItem(w.tree->Node("A"));
        w.tree->StartLabelEdit();
        w.editor()->setText("");
        QTest::keyClick(w.editor(), Qt::Key_Return);
        QTRY_VERIFY(!w.editor());
        QCOMPARE(w.tree->Node("A")->Text(), "Acero");
        QCOMPARE(w.tree->topLevelItem(0)->child(0)->text(0), "Acero");
    }

    void escapeLeavesTheLabelWithoutASignal() {
        Window w;
        QSignalSpy after(w.tree, &GroupTree::afterLabelEdit);
        w.tree->setSelectedItem(w.tree->Node("A"));
        w.tree->StartLabelEdit();
        w.editor()->setText("x");
        QTest::keyClick(w.editor(), Qt::Key_Escape);
        QTRY_VERIFY(!w.editor());
        QCOMPARE(after.size(), 0);
        QCOMPARE(w.tree->Node("A")->Text(), "Acero");
    }

    void labelEditNeedsASelectedNodeAndStartsByNoKeyOrClick() {
        Window w;
        w.tree->StartLabelEdit();
        QVERIFY(!w.editor());
        mouse::click(w.tree, w.at("A"));
        mouse::click(w.tree, w.at("A"));
        QTest::keyClick(w.tree, Qt::Key_F2);
        QVERIFY(!w.editor());
    }

    void droppedNodeIsReportedWithItsTarget() {
        Window w;
        QStringList over;
        connect(w.tree, &GroupTree::draggedOver, &w.window,
                [&](const GroupNodeRef& node) { over << Window::keyOf(node); });
        QVERIFY(mouse::drop(w.tree, w.at("A1"), dragContent(Dragged::Node)));
        QCOMPARE(w.events, QStringList{"node drop A1"});
        QCOMPARE(over, QStringList{"A1"});
        QCOMPARE(w.tree->Node("B")->Parent()->Key(), "R");  // the program decides what it means
    }

    void droppedRowIsDistinguishedFromANode() {
        Window w;
        QVERIFY(mouse::drop(w.tree, w.at("B"), dragContent(Dragged::Row)));
        QCOMPARE(w.events, QStringList{"row drop B"});
    }

    void dropOnEmptySpaceNamesNoNode() {
        Window w;
        QVERIFY(mouse::drop(w.tree, w.empty(), dragContent(Dragged::Node)));
        QVERIFY(mouse::drop(w.tree, w.empty(), dragContent(Dragged::Row)));
        QCOMPARE(w.events, (QStringList{"node drop -", "row drop -"}));
    }

    void foreignDragsAreRefused() {
        Window w;
        auto* text = new QMimeData;
        text->setText("testo");
        QVERIFY(!mouse::drop(w.tree, w.at("B"), text));
        auto* otherProgram = new QMimeData;
        otherProgram->setData("application/x-vestrola-row", "1");
        QVERIFY(!mouse::drop(w.tree, w.at("B"), otherProgram));
        QVERIFY(w.events.isEmpty());
    }

    void leavingWithADragNamesNoNode() {
        Window w;
        GroupNodeRef over = w.tree->Node("A");
        connect(w.tree, &GroupTree::draggedOver, &w.window, [&](const GroupNodeRef& node) { over = node; });
        const std::unique_ptr<QMimeData> content(dragContent(Dragged::Row));
        QVERIFY(mouse::dragOver(w.tree, w.at("B"), content.get()));
        QCOMPARE(Window::keyOf(over), "B");
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(w.tree->viewport(), &leave);
        QVERIFY(!over);
    }

    void dragIsNoClickAndTheSelectionGoesBack() {
        Window w;
        mouse::click(w.tree, w.at("A"));
        w.events.clear();
        QCOMPARE(mouse::startDrag(w.tree, w.at("B")), 1);
        QCOMPARE(w.selected(), "A");
        mouse::release(w.tree, w.at("B"));
        QVERIFY(!w.events.contains("click"));
        QCOMPARE(w.selected(), "A");
    }

    void aRefusedDragIsAClickOnlyWhereItEndsOnItsNode() {
        Window w;
        connect(w.tree, &GroupTree::beforeDrag, &w.window,
                [](const GroupNodeRef& node, bool* cancel) { *cancel = node->Key() != "A"; });
        mouse::click(w.tree, w.at("A"));
        w.events.clear();
        QCOMPARE(mouse::startDrag(w.tree, w.at("B")), 0);
        mouse::move(w.tree, w.at("A1"));
        QCOMPARE(w.selected(), "B");
        mouse::release(w.tree, w.at("A1"));
        QVERIFY(!w.events.contains("click"));
        QCOMPARE(w.selected(), "A");
        QCOMPARE(mouse::startDrag(w.tree, w.at("B")), 0);
        mouse::release(w.tree, w.at("B"));
        QVERIFY(w.events.contains("click"));
        QCOMPARE(w.selected(), "B");
        QCOMPARE(mouse::startDrag(w.tree, w.at("A")), 1);
    }

    void dropHighlightIsDrawn() {
        Window w;
        const QRect area = w.tree->visualItemRect(w.tree->topLevelItem(0)->child(1));
        const QImage before = w.tree->viewport()->grab(area).toImage();
        w.tree->setDropHighlight(w.tree->Node("B"));
        QCOMPARE(w.tree->DropHighlight()->Key(), "B");
        QVERIFY(w.tree->viewport()->grab(area).toImage() != before);
        w.tree->setDropHighlight(nullptr);
        QCOMPARE(w.tree->viewport()->grab(area).toImage(), before);
    }

    void emptyTextIsDrawnWhileNoNodeHasAChild() {
        Window w;
        w.tree->setEmptyText("Nuova cartella: tasto destro sulla radice");
        const auto drawn = [&] {
            const QImage picture = w.tree->viewport()->grab().toImage();
            for (int y = 120; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    if (picture.pixelColor(x, y).lightness() < 180) return true;
            return false;
        };
        QVERIFY(!drawn());
        QVERIFY(w.tree->Remove("A").ok());
        QVERIFY(w.tree->Remove("B").ok());
        QVERIFY(drawn());
    }

    void assistiveProgramsSeeATreeOfNamedNodes() {
        Window w;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.tree);
        QCOMPARE(face->role(), QAccessible::Tree);
        QCOMPARE(face->tableInterface()->cellAt(1, 0)->text(QAccessible::Name), "Acero");
        QVERIFY(face->tableInterface()->cellAt(1, 0)->state().expanded);
        QCOMPARE(face->tableInterface()->rowCount(), 4);
        QAccessibleInterface* last = face->tableInterface()->cellAt(3, 0);
        QCOMPARE(last->text(QAccessible::Name), "Betulla");
        QCOMPARE(last->role(), QAccessible::TreeItem);
        QCOMPARE(face->child(face->indexOfChild(last)), last);
        QCOMPARE(face->tableInterface()->cellAt(4, 0), nullptr);
    }

    void assistiveProgramsClickOpenCloseAndRenameNodes() {
        Window w;
        using Actions = QAccessibleActionInterface;
        const auto node = [&w](int row) {
            return QAccessible::queryAccessibleInterface(w.tree)->tableInterface()->cellAt(row, 0);
        };
        QCOMPARE(node(0)->actionInterface()->actionNames(),
                 QStringList({Actions::pressAction(), "Collapse", Actions::showMenuAction()}));
        QCOMPARE(node(3)->actionInterface()->actionNames(),
                 QStringList({Actions::pressAction(), "Edit", Actions::showMenuAction()}));
        node(3)->actionInterface()->doAction(Actions::pressAction());
        QTRY_COMPARE(w.events, QStringList({"node B", "click"}));
        QVERIFY(node(3)->state().selected);
        QAccessibleInterface* below = node(2);
        node(1)->actionInterface()->doAction("Collapse");
        QTRY_VERIFY(node(1)->state().collapsed);
        QCOMPARE(below->tableCellInterface()->rowIndex(), -1);
        QCOMPARE(QAccessible::queryAccessibleInterface(w.tree)->tableInterface()->rowCount(), 3);
        node(1)->actionInterface()->doAction("Expand");
        QTRY_VERIFY(node(1)->state().expanded);
        w.events.clear();
        node(2)->actionInterface()->doAction(Actions::showMenuAction());
        QTRY_COMPARE(w.events, QStringList({"node A1", "click", "up right"}));
        QCOMPARE(node(2)->childCount(), 0);
        node(2)->actionInterface()->doAction("Edit");
        QTRY_COMPARE(node(2)->childCount(), 1);
        QAccessibleInterface* editor = node(2)->child(0);
        QCOMPARE(editor->role(), QAccessible::EditableText);
        QCOMPARE(editor->text(QAccessible::Value), "Acero uno");
        const QAccessibleInterface* gone = node(3);
        QVERIFY(gone->isValid());
        QVERIFY(w.tree->Remove("B").ok());
        QVERIFY(!gone->isValid());
    }
};

TEST_CLASS_WITH(TestGroupTree, ui::setUpDesktop);

}  // namespace grouptree_test

#include "grouptree_test.moc"
