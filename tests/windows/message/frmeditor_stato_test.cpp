// SPDX-License-Identifier: GPL-3.0-or-later
// The tools of the editor follow the selection; toggles, lists, colours, status text, menus, keys.
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QFontDatabase>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

#include "platform/ui/ColorHexagon.h"
#include "support/TestClass.h"
#include "windows/core/bTheme.h"
#include "windows/entry/Finestre.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_stato_test {

using namespace testing_support;

namespace {

const char* const tableTools[] = {"cmdTableInsRow", "cmdTableInsCol", "cmdTableDelRow", "cmdTableDelCol"};

}  // namespace

class TestStato : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }
    ui::CommandBars& bars() { return stage().editor().Commands(); }
    bool enabled(const char* name) { return stage().tool(name).isEnabled(); }
    QToolBar& bar(const char* name) { return EditorStage::in<QToolBar>(stage().editor(), name); }
    static void enter(QWidget& widget) {
        QEnterEvent event(QPointF(3, 3), QPointF(3, 3), widget.mapToGlobal(QPointF(3, 3)));
        QApplication::sendEvent(&widget, &event);
    }
    QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void assistiveProgramsNameTheInputWidgetOfTheDesignAsTheView() {
        QVERIFY(!stage().design().accessibleName().isEmpty());
        QCOMPARE(stage().design().inputWidget()->accessibleName(), stage().design().accessibleName());
    }

    void theToolsShowTheFormatOfTheSelection_data() {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("html");
        QTest::newRow("bold") << "cmdBold"
                              << "<p><b id=\"x\">testo</b></p>";
        QTest::newRow("italic") << "cmdItalic"
                                << "<p><i id=\"x\">testo</i></p>";
        QTest::newRow("underline") << "cmdUnderline"
                                   << "<p><u id=\"x\">testo</u></p>";
        QTest::newRow("left") << "cmdLeft"
                              << "<p id=\"x\" align=\"left\">testo</p>";
        QTest::newRow("centre") << "cmdCenter"
                                << "<p id=\"x\" align=\"center\">testo</p>";
        QTest::newRow("right") << "cmdRight"
                               << "<p id=\"x\" align=\"right\">testo</p>";
    }
    void theToolsShowTheFormatOfTheSelection() {
        QFETCH(QString, tool);
        QFETCH(QString, html);
        stage().fill("<div id=\"no\" align=\"justify\">altro</div>" + html);
        stage().caret("#no", 2);
        QTRY_COMPARE(stage().tool(tool).Checked(), 0);
        stage().caret("#x", 2);
        QTRY_COMPARE(stage().tool(tool).Checked(), 1);
        QVERIFY(EditorStage::in<QToolButton>(stage().editor(), tool).isChecked());
        stage().caret("#no", 2);
        QTRY_COMPARE(stage().tool(tool).Checked(), 0);
    }

    void fontAndSizeFollowTheSelection() {
        stage().fill("<p><font face=\"Georgia\" size=\"5\">testo</font></p>");
        stage().caret("font", 2);
        QTRY_COMPARE(bars().GetComboBox("cmbFontName")->Text(), "Georgia");
        QCOMPARE(bars().GetComboBox("cmbFontSize")->Text(), "5");
        QVERIFY(!stage().marked());
    }

    void aNewTableIsInTheFontThatANewDocumentStartsWith() {
        stage().start("cmdTable");
        const QString body = stage().body();
        stage().caret("td", 2);
        QTRY_COMPARE(bars().GetComboBox("cmbFontName")->Text(), "Verdana");
        QVERIFY(!body.contains("Verdana"));
        QCOMPARE(stage().body(), body);
    }

    void theTableToolsAreOnInATableOnly() {
        stage().fill("<p>fuori</p><table><tbody><tr><td>1</td></tr></tbody></table>");
        stage().caret("td", 1);
        for (const char* tool : tableTools)
            QTRY_VERIFY2(enabled(tool), tool);
        stage().caret("p", 1);
        for (const char* tool : tableTools)
            QTRY_VERIFY2(!enabled(tool), tool);
    }

    void cutAndCopyNeedASelectionUndoAndRedoSomethingToUndo() {
        stage().fill("<p>testo</p>");
        stage().caret("p", 1);
        QTRY_VERIFY(!enabled("cmdCopia"));
        QVERIFY(!enabled("cmdTaglia"));
        QVERIFY(!enabled("cmdUndo"));
        QVERIFY(enabled("cmdSelezionaTutto"));
        stage().select("p", 0, 3);
        QTRY_VERIFY(enabled("cmdCopia"));
        QVERIFY(enabled("cmdTaglia"));
        stage().start("cmdBold");
        QTRY_VERIFY(enabled("cmdUndo"));
        QVERIFY(!enabled("cmdRedo"));
        stage().start("cmdUndo");
        QTRY_VERIFY(enabled("cmdRedo"));
    }

    void onTheSourceTabTheToolsFollowTheSource() {
        stage().fill("<table><tbody><tr><td>1</td></tr></tbody></table>");
        stage().caret("td", 1);
        QTRY_VERIFY(enabled("cmdTableInsRow"));
        stage().tool("cmdSelezionaTutto").setEnabled(false);
        stage().chooseTab(1);
        for (const char* tool : tableTools)
            QVERIFY2(!enabled(tool), tool);
        QVERIFY(!enabled("cmdTaglia"));
        QVERIFY(!enabled("cmdUndo"));
        QVERIFY(enabled("cmdSelezionaTutto"));
        stage().start("cmdSelezionaTutto");
        QVERIFY(enabled("cmdTaglia"));
        QVERIFY(enabled("cmdCopia"));
        stage().start("cmdTaglia");
        QVERIFY(enabled("cmdUndo"));
        QVERIFY(!enabled("cmdRedo"));
        QVERIFY(enabled("cmdIncolla"));
        stage().start("cmdUndo");
        QVERIFY(enabled("cmdRedo"));
        stage().chooseTab(0);
        QTRY_VERIFY(!enabled("cmdCopia"));
    }

    void atMostOnePriorityIsOn() {
        stage().start("cmdPriBassa");
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), 1);
        QVERIFY(stage().marked());
        stage().start("cmdPriAlta");
        QCOMPARE(stage().tool("cmdPriAlta").Checked(), 1);
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), 0);
        stage().start("cmdPriAlta");
        QCOMPARE(stage().tool("cmdPriAlta").Checked(), 0);
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), 0);
        stage().start("cmdPriAlta");
        stage().start("cmdPriBassa");
        QCOMPARE(stage().tool("cmdPriAlta").Checked(), 0);
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), 1);
    }

    void detailsAndBordersToggleWithoutTouchingTheDocument() {
        stage().fill("<p>testo</p>");
        const QString before = stage().design().documentHTML().value();
        for (const auto& [name, state] : {std::pair("cmdShowDetails", 1),
                                          {"cmdShowBorder", 0},
                                          {"cmdShowDetails", 0},
                                          {"cmdShowBorder", 1}}) {
            stage().start(name);
            QCOMPARE(stage().tool(name).Checked(), state);
        }
        QCOMPARE(stage().design().documentHTML().value(), before);
        QVERIFY(!stage().marked());
    }

    void aNewDocumentIsShownWithBordersAndWithoutDetailsLikeItsTools() {
        stage().start("cmdShowDetails");
        stage().start("cmdShowBorder");
        stage().editor().NuovoMessaggio();
        stage().fill("<table border=0><tbody><tr><td>x</td></tr></tbody></table><form><br></form>");
        const auto styleOf = [this](const QString& what) {
            return stage().design().evaluate("getComputedStyle(document.querySelector" + what).toString();
        };
        QCOMPARE(styleOf("('td')).outlineStyle"), "dotted");
        QCOMPARE(styleOf("('form'), '::before').content"), "none");
    }

    void theListsOfFontsAndSizes() {
        const ui::ComboTool& fonts = *bars().GetComboBox("cmbFontName");
        QCOMPARE(fonts.count(), QFontDatabase::families().size());
        for (int i = 1; i < fonts.count(); ++i)
            QVERIFY(QString::compare(fonts.itemText(i - 1), fonts.itemText(i), Qt::CaseInsensitive) <= 0);
        const ui::ComboTool& sizes = *bars().GetComboBox("cmbFontSize");
        QCOMPARE(sizes.count(), 7);
        QCOMPARE(sizes.itemText(0), "1");
        QCOMPARE(sizes.itemText(6), "7");
    }

    void theLoadChoosesTheFirstFontAndSizeAndTheLookOfTheSource() {
        frmEditor another(aroundEditor());
        another.Carica();
        QCOMPARE(another.Commands().GetComboBox("cmbFontName")->Text(), "Arial");
        QCOMPARE(another.Commands().GetComboBox("cmbFontSize")->Text(), "3");
        QCOMPARE(another.tb->currentIndex(), 0);
        QCOMPARE(another.titoloFile, "[NuovoFile.mss]");
        QCOMPARE(another.Allegati().LIST->columnCount(), 3);
    }

    void theSourceViewHasTheColoursOfTheTheme() {
        stage().fill("<p>testo</p>");
        stage().chooseTab(1);
        const QImage numbers = stage().source().grab(QRect(2, 40, 8, 8)).toImage();
        QCOMPARE(numbers.pixelColor(1, 1), coloreTema(0));
        stage().start("cmdSelezionaTutto");
        const QImage text = stage().source().grab().toImage();
        int selected = 0;
        for (int x = 0; x < text.width(); ++x)
            selected += text.pixelColor(x, 4) == coloreTema(13);
        QVERIFY(selected > 0);
    }

    void placeAndLayoutComeBackWithTheNextLoad() {
        stage().editor().showNormal();
        stage().editor().setGeometry(60, 50, 900, 600);
        auto& pane = EditorStage::in<QDockWidget>(stage().editor(), "dckAllegati");
        pane.hide();
        stage().start("cmdEsci");
        frmEditor another(aroundEditor());
        another.Carica();
        QCOMPARE(another.geometry().size(), QSize(900, 600));
        QVERIFY(EditorStage::in<QDockWidget>(another, "dckAllegati").isHidden());
        pane.show();
    }

    void theColourPopupShowsTheColourOfTheTextAndSetsAnother() {
        stage().fill("<p><font color=\"#ff0000\">testo</font></p>");
        stage().select("font", 0, 5);
        QTest::mouseClick(&EditorStage::in<QToolButton>(stage().editor(), "popColors"), Qt::LeftButton);
        auto& popup = EditorStage::in<QWidget>(stage().editor(), "pwnColor");
        auto& color = EditorStage::in<ui::ColorHexagon>(popup, "color");
        QVERIFY(popup.isVisible());
        QCOMPARE(color.Color(), 0x0000ffU);
        color.setColor(0xff0000);
        color.pick(color.currentCell());
        QVERIFY(!popup.isVisible());
        QTRY_COMPARE(stage().body(), "<p><font color=\"#0000ff\">testo</font></p>");
        QVERIFY(!stage().marked());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<p><font color=\"#ff0000\">testo</font></p>");
        QTest::mouseClick(&EditorStage::in<QToolButton>(stage().editor(), "popColors"), Qt::LeftButton);
        QTest::keyClick(&color, Qt::Key_Escape);
        QVERIFY(!popup.isVisible());
    }

    void threeBarsAreOnInTheDesignViewOnly() {
        for (const int tab : {1, 2, 0}) {
            stage().chooseTab(tab);
            for (const char* name : {"HTML", "Message", "View"})
                QCOMPARE(bar(name).isEnabled(), tab == 0);
            QVERIFY(bar("File").isEnabled());
            QVERIFY(bar("Modifica").isEnabled());
        }
    }

    void keysOfABarThatIsOffHaveNoEffect() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        stage().chooseTab(1);
        QTest::keyClick(stage().source().focusProxy(), Qt::Key_B, Qt::ControlModifier);
        stage().chooseTab(2);
        QCOMPARE(stage().body(), "<p>testo</p>");
    }

    void theStatusTextDescribesCommandsViewsAndAttachments() {
        stage().editor().findChild<QAction*>("cmdHR")->hover();
        QCOMPARE(stage().hint(), "Linea orizzontale");
        Q_EMIT stage().design().pointerEntered();
        QCOMPARE(stage().hint(), "Mod. Modifica");
        stage().editor().tb->setTabCaption(1, "Codice");
        stage().chooseTab(1);
        enter(*stage().editor().tb->tabBar());
        QCOMPARE(stage().hint(), "Mod. Codice");
        stage().editor().findChild<QAction*>("cmdHR")->hover();
        enter(*stage().source().focusProxy()->findChild<QWidget*>("qt_scrollarea_viewport"));
        QCOMPARE(stage().hint(), "Mod. Codice");
        stage().editor().tb->setTabCaption(1, "Origine");
        stage().chooseTab(2);
        Q_EMIT stage().editor().WEB->pointerEntered();
        QCOMPARE(stage().hint(), "Mod. Anteprima");
        QWidget& rows = *stage().editor().Allegati().LIST->viewport();
        QVERIFY(rows.hasMouseTracking());
        QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), rows.mapToGlobal(QPointF(3, 3)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&rows, &move);
        QCOMPARE(stage().hint(), "Allegati");
    }

    void aRightClickOpensTheMenuOfTheView() {
        Q_EMIT stage().design().contextMenuRequested(QPoint(50, 60));
        QVERIFY(openMenu());
        QCOMPARE(openMenu()->objectName(), "popModifica");
        openMenu()->hide();
        stage().chooseTab(1);
        auto* source = stage().source().focusProxy()->findChild<QWidget*>("qt_scrollarea_viewport");
        QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(9, 9), source->mapToGlobal(QPoint(9, 9)));
        QApplication::sendEvent(source, &request);
        QVERIFY(openMenu());
        QCOMPARE(openMenu()->objectName(), "popModifica");
        openMenu()->hide();
    }

    void keysGoRoundTheTabs() {
        auto& subject = EditorStage::in<QLineEdit>(stage().editor(), "txtOggetto");
        subject.setFocus();
        QTest::keyClick(&subject, Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(stage().editor().tb->currentIndex(), 1);
        QTest::keyClick(stage().source().focusProxy(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(stage().editor().tb->currentIndex(), 2);
        QTest::keyClick(&stage().editor(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(stage().editor().tb->currentIndex(), 1);
    }

    void tabLeadsFromTheSubjectIntoTheBody() {
        auto& subject = EditorStage::in<QLineEdit>(stage().editor(), "txtOggetto");
        subject.setFocus();
        QTest::keyClick(&subject, Qt::Key_Tab);
        QWidget* now = QApplication::focusWidget();
        QVERIFY(now);
        QVERIFY2(stage().design().isAncestorOf(now), qPrintable(now->objectName()));
    }

    void keysFormatTheSelection() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        QTest::keyClick(stage().design().inputWidget(), Qt::Key_B, Qt::ControlModifier);
        QTRY_COMPARE(stage().body(), "<p><b>testo</b></p>");
        QVERIFY(!stage().marked());
    }

    void eachDocumentTakesTheFontOfANewOne_data() {
        QTest::addColumn<QString>("way");
        QTest::newRow("opened") << "open";
        QTest::newRow("from the source view") << "source";
    }
    void eachDocumentTakesTheFontOfANewOne() {
        QFETCH(QString, way);
        if (way == "open") {
            stage().fill("<p>b</p>");
            stage().saveAs("f.mss");
            stage().open("f.mss");
        } else {
            stage().chooseTab(1);
            stage().source().setText("<p>b</p>");
            stage().chooseTab(0);
        }
        stage().type("a");
        QTRY_VERIFY2(stage().body().contains(R"(<font face="Verdana" size="2">a</font>)"),
                     qPrintable(stage().body()));
    }

    void theWindowRefusesToBeClosedAndItsCommandHidesIt() {
        stage().editor().close();
        QVERIFY(stage().editor().isVisible());
        QTest::keyClick(&stage().editor(), Qt::Key_Escape);
        QVERIFY(stage().editor().isVisible());
        stage().start("cmdEsci");
        QVERIFY(!stage().editor().isVisible());
        QVERIFY(!stage().bytes("data/frmEditor.imp").isEmpty());
        QVERIFY(stage().bytes("data/frmEditor.imp").startsWith("[Form frmMain]\r\nmnLeft........: "));
        QVERIFY(stage().bytes("data/LayoutEditor.imp").startsWith("VSTLAY1"));
    }

    void theMainWindowOpensItModalOnAnEmptyDocument() {
        const auto browser = [this] {
            return stage().design().findChild<QObject*>("page")->property("renderProcessPid").toLongLong();
        };
        stage().fill("<p>vecchio</p>");
        const qint64 first = browser();
        stage().editor().hide();
        bool modal = false;
        QString body;
        stage().inDialog<frmEditor>([&](frmEditor&) {
            modal = true;
            body = stage().body();
            stage().start("cmdEsci");
        });
        stage().command("cmdEditor");
        QVERIFY(modal);
        QCOMPARE(body.trimmed(), "");
        QVERIFY(!stage().editor().isVisible());
        // Its browser is kept between openings.
        QVERIFY(first > 0);
        QCOMPARE(browser(), first);
    }
};

TEST_CLASS(TestStato);

}  // namespace frmeditor_stato_test

#include "frmeditor_stato_test.moc"
