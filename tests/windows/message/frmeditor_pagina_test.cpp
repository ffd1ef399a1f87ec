// SPDX-License-Identifier: GPL-3.0-or-later
// The list of attachments, and the properties of the page.
#include <QDir>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>

#include "modules/core/bFunctions.h"
#include "platform/ui/ColorHexagon.h"
#include "platform/ui/PropertyList.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/message/editor_stage.h"
#include "windows/message/frmPropBody.h"

namespace frmeditor_pagina_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

class TestPagina : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }
    QTreeWidget& list() { return *stage().editor().Allegati().LIST; }
    QString cell(int row, int column) { return list().topLevelItem(row)->text(column); }
    void attach(const QString& name, int size = 10) {
        stage().write(name, QByteArray(size, 'x'));
        FileDialog::queue(stage().path(name));
        stage().start("cmdAllegatiNew");
    }
    void releaseInList(Qt::MouseButton button) {
        QTest::mouseClick(list().viewport(), button, {}, QPoint(5, list().viewport()->height() - 3));
    }
    QString bodyTag() {
        const QString html = stage().design().documentHTML().value();
        const qsizetype from = html.indexOf("<body");
        return html.mid(from, html.indexOf('>', from) + 1 - from);
    }
    /// Opens the properties, calls `change`, and presses a button.
    void properties(const char* button, std::function<void(ui::PropertyList&)> change = {}) {
        stage().inDialog<frmPropBody>([button, change](frmPropBody& window) {
            if (change) change(*window.prp);
            QTest::mouseClick(&EditorStage::in<QPushButton>(window, button), Qt::LeftButton);
        });
        stage().start("cmdProprieta");
    }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void theListHasItsThreeColumns() {
        QCOMPARE(list().columnCount(), 3);
        QCOMPARE(list().headerItem()->text(0), "File");
        QCOMPARE(list().headerItem()->text(1), "Size");
        QCOMPARE(list().headerItem()->text(2), "Path");
        QVERIFY(list().headerItem()->textAlignment(1) & Qt::AlignRight);
        for (const int left : {0, 2})
            QVERIFY(!(list().headerItem()->textAlignment(left) & Qt::AlignRight));
    }

    void anAttachmentShowsNameSizeAndPathAndMarks() {
        attach("listino.pdf", 1028);
        QCOMPARE(FileDialog::shown().constLast().title, "Inserisci allegato");
        QCOMPARE(FileDialog::shown().constLast().filter, "Tutti i file(*.*)|*.*");
        QCOMPARE(cell(0, 0), "listino.pdf");
        QCOMPARE(cell(0, 1), "1,00 Kb");
        QCOMPARE(cell(0, 2), stage().path("listino.pdf"));
        QVERIFY(!list().topLevelItem(0)->icon(0).isNull());
        QVERIFY(stage().marked());
    }

    void sizesHaveTwoDecimalsAndGrouping() {
        attach("vuoto.bin", 0);
        attach("grande.bin", 1028 * 1234 + 514);
        QCOMPARE(cell(0, 1), "0,00 Kb");
        QCOMPARE(cell(1, 1), "1.234,50 Kb");
    }

    void theColumnsFitTheRowThatWasAddedLast() {
        attach("un nome davvero molto lungo per un allegato.pdf");
        attach("b.txt");
        QCOMPARE(list().columnWidth(0), list().fontMetrics().horizontalAdvance("b.txt") + 36);
        QCOMPARE(list().columnWidth(1), list().fontMetrics().horizontalAdvance(cell(1, 1)) + 20);
    }

    void aLongPathIsNotCut() {
        const QString folder = QString(200, 'x');
        QVERIFY(QDir(stage().path("")).mkpath(folder));
        attach(folder + "/a.txt");
        const int wanted = list().fontMetrics().horizontalAdvance(cell(0, 2)) + 20;
        QVERIFY(wanted > list().viewport()->width());
        QCOMPARE(list().columnWidth(2), wanted);
        stage().editor().resize(stage().editor().width() + 20, stage().editor().height());
        QTest::qWait(0);
        QCOMPARE(list().columnWidth(2), wanted);
        attach("b.txt");
        QVERIFY(list().columnWidth(2) < wanted);
    }

    void theRowsAreHighEnoughToBeHit() {
        attach("a.txt");
        QVERIFY(list().visualItemRect(list().topLevelItem(0)).height() >= 24);
    }

    void theSameFileCanBeAddedTwice() {
        attach("a.txt");
        FileDialog::queue(stage().path("a.txt"));
        stage().start("cmdAllegatiNew");
        QCOMPARE(stage().editor().Allegati().Percorsi(),
                 (QStringList{stage().path("a.txt"), stage().path("a.txt")}));
    }

    void cancellingTheDialogMarksAllTheSame() {
        FileDialog::queueCancel();
        stage().start("cmdAllegatiNew");
        QCOMPARE(list().topLevelItemCount(), 0);
        QVERIFY(stage().marked());
    }

    void aFileThatIsNotThereIsSkipped() {
        FileDialog::queue(stage().path("manca.txt"));
        stage().start("cmdAllegatiNew");
        QCOMPARE(list().topLevelItemCount(), 0);
        QVERIFY(stage().marked());
        QCOMPARE(stage().ends, QList<int>());
    }

    void anOpenedMessageShowsTheSizesOfNow() {
        attach("a.txt", 1028);
        stage().saveAs("m.mss");
        QVERIFY(!stage().bytes("m.mss").contains("Kb"));
        stage().write("a.txt", QByteArray(3 * 1028, 'x'));
        stage().open("m.mss");
        QCOMPARE(cell(0, 1), "3,00 Kb");
    }

    void aNewMessageHasNoAttachments() {
        attach("a.txt");
        stage().editor().NuovoMessaggio();
        QCOMPARE(list().topLevelItemCount(), 0);
        QCOMPARE(list().columnCount(), 3);
    }

    void deletingTakesTheSelectedRowAndMarks() {
        attach("a.txt");
        attach("b.txt");
        releaseInList(Qt::LeftButton);
        list().setCurrentItem(list().topLevelItem(0));
        stage().editor().titoloFile = "[NuovoFile.mss]";
        stage().start("cmdAllegatiDel");
        QCOMPARE(stage().editor().Allegati().Percorsi(), QStringList(stage().path("b.txt")));
        QVERIFY(stage().marked());
    }

    void theDeleteCommandFollowsAMouseReleaseOnly() {
        QVERIFY(!stage().tool("cmdAllegatiDel").isEnabled());
        attach("a.txt");
        QVERIFY(!stage().tool("cmdAllegatiDel").isEnabled());
        releaseInList(Qt::LeftButton);
        QVERIFY(stage().tool("cmdAllegatiDel").isEnabled());
        list().setCurrentItem(list().topLevelItem(0));
        stage().start("cmdAllegatiDel");
        QVERIFY(stage().tool("cmdAllegatiDel").isEnabled());
        releaseInList(Qt::LeftButton);
        QVERIFY(!stage().tool("cmdAllegatiDel").isEnabled());
    }

    void deletingWithNothingSelectedEndsTheProgram() {
        MessageDialog::queue(MessageDialog::Ok);
        stage().tool("cmdAllegatiDel").setEnabled(true);
        stage().start("cmdAllegatiDel");
        QCOMPARE(stage().ends, QList<int>{1});
        QVERIFY(MessageDialog::shown().constLast().text.startsWith("Errore 91:"));
    }

    void aRightClickOpensTheMenuOfTheAttachments() {
        releaseInList(Qt::RightButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->objectName(), "popAllegati");
        menu->hide();
    }

    void anUntouchedPageIsWhiteWithTextInBlack() {
        stage().fill("<p>testo</p>");
        QStringList shown;
        properties("cmdAnnulla", [&shown](ui::PropertyList& prp) {
            for (const char* key : {"Sinistra", "Superiore", "Larghezza", "Altezza", "Immaginedisfondo"})
                shown << prp.Item(key)->Value().toString();
            for (const char* key : {"Sfondo", "Testo", "Link", "LinkAttivi", "LinkVisitati"})
                shown << QString::number(prp.Item(key)->Value().toUInt(), 16);
        });
        QCOMPARE(shown, (QStringList{"", "", "", "", "", "ffffff", "0", "ff0000", "ff0000", "800080"}));
        QCOMPARE(bodyTag(), "<body>");
    }

    void savingWritesEveryAttributeAndThePageStaysWhite() {
        stage().fill("<p>testo</p>");
        properties("cdmSalva");
        const QString tag = bodyTag();
        for (const char* part : {"leftmargin=\"\"", "topmargin=\"\"", "marginwidth=\"\"", "marginheight=\"\"",
                                 "bgcolor=\"#FFFFFF\"", "text=\"#000000\"", "link=\"#0000FF\"",
                                 "alink=\"#0000FF\"", "vlink=\"#800080\"", "background=\"\""})
            QVERIFY2(tag.contains(part), qPrintable(tag));
        QCOMPARE(stage().design().evaluate("getComputedStyle(document.body).backgroundColor").toString(),
                 "rgb(255, 255, 255)");
        QCOMPARE(stage().body(), "<p>testo</p>");
        QCOMPARE(stage().source().Text(), stage().design().documentHTML().value());
        QVERIFY(!stage().marked());
    }

    void whatIsTypedReachesThePage() {
        static_cast<void>(
            stage().design().setDocumentHTML("<body leftmargin=5 bgcolor=\"#102030\" text=red>x"));
        properties("cdmSalva", [](ui::PropertyList& prp) {
            QCOMPARE(prp.Item("Sinistra")->Value().toString(), "5");
            QCOMPARE(prp.Item("Sfondo")->Value().toUInt(), 0x302010U);
            // A colour's name is not a number.
            QCOMPARE(prp.Item("Testo")->Value().toUInt(), 0U);
            prp.Item("Sinistra")->setValue("0");
            prp.Item("Sfondo")->setValue(0x0000ffU);
            prp.Item("Immaginedisfondo")->setValue("http://x.it/fondo.png");
        });
        const QString tag = bodyTag();
        for (const char* part : {"leftmargin=\"0\"", "bgcolor=\"#FF0000\"", "text=\"#000000\"",
                                 "background=\"http://x.it/fondo.png\""})
            QVERIFY2(tag.contains(part), qPrintable(tag));
        QVERIFY(!stage().marked());
    }

    void aColourOfThePageIsPickedAmongTheColours() {
        static_cast<void>(stage().design().setDocumentHTML("<body bgcolor=\"#102030\">x"));
        quint32 wanted = 0;
        properties("cdmSalva", [&wanted](ui::PropertyList& prp) {
            prp.setCurrentItem("Sfondo");
            QTest::keyClick(prp.focusProxy(), Qt::Key_F4);
            auto& colours = EditorStage::in<ui::ColorHexagon>(prp, "color");
            QCOMPARE(colours.Color(), 0x302010U);
            wanted = colours.cellColor(20);
            colours.pick(20);
            QCOMPARE(prp.Item("Sfondo")->Value().toUInt(), wanted);
        });
        QVERIFY(bodyTag().contains("bgcolor=\"" + HexDaColore(wanted) + '"'));
    }

    void cancellingThePropertiesChangesNothing() {
        static_cast<void>(stage().design().setDocumentHTML("<body leftmargin=\"5\" bgcolor=\"#102030\">x"));
        const QString before = stage().design().documentHTML().value();
        properties("cmdAnnulla", [](ui::PropertyList& prp) {
            prp.Item("Sinistra")->setValue("9");
            prp.Item("Sfondo")->setValue(0xffffffU);
        });
        QCOMPARE(stage().design().documentHTML().value(), before);
        properties("cmdAnnulla", [](ui::PropertyList& prp) {
            QCOMPARE(prp.Item("Sinistra")->Value().toString(), "5");
            QCOMPARE(prp.Item("Sfondo")->Value().toUInt(), 0x302010U);
        });
    }

    void theFirstTwoMarginsAreWrittenAgainAndTheOthersInTheirPlace() {
        static_cast<void>(stage().design().setDocumentHTML(
            "<body leftmargin=\"1\" topmargin=\"2\" marginwidth=\"3\" marginheight=\"4\" id=\"x\">y"));
        properties("cdmSalva");
        QVERIFY2(bodyTag().startsWith("<body marginwidth=\"3\" marginheight=\"4\" id=\"x\" leftmargin=\"1\" "
                                      "topmargin=\"2\""),
                 qPrintable(bodyTag()));
    }

    void savingThePropertiesLosesTheSelection() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        QCOMPARE(stage().design().selectedText().value(), "testo");
        properties("cdmSalva");
        QCOMPARE(stage().design().selectedText().value(), "");
    }

    void aMarginIsAnyText() {
        stage().fill("x");
        properties("cdmSalva",
                   [](ui::PropertyList& prp) { prp.Item("Larghezza")->setValue("due \"o\" <tre>"); });
        QCOMPARE(stage().design().bodyAttribute("marginwidth").value(), "due \"o\" <tre>");
    }

    void theWindowOfThePropertiesRefusesToBeClosed() {
        bool stays = false;
        stage().inDialog<frmPropBody>([&stays](frmPropBody& window) {
            window.close();
            QTest::keyClick(&window, Qt::Key_Escape);
            stays = window.isVisible();
            window.hide();
        });
        stage().start("cmdProprieta");
        QVERIFY(stays);
    }

    void changingThePageAloneShowsNoGuard() {
        properties("cdmSalva", [](ui::PropertyList& prp) { prp.Item("Sfondo")->setValue(0x0000ffU); });
        stage().start("cmdEsci");
        QCOMPARE(MessageDialog::shown().size(), 0);
        QVERIFY(!stage().editor().isVisible());
    }
};

TEST_CLASS(TestPagina);

}  // namespace frmeditor_pagina_test

#include "frmeditor_pagina_test.moc"
