// SPDX-License-Identifier: GPL-3.0-or-later
// The windows that the design view asks for: image, link, properties of an element, search.
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "platform/mail/dkim_support.h"
#include "platform/ui/ElementDialog.h"
#include "platform/ui/FindDialog.h"
#include "platform/ui/ImageDialog.h"
#include "platform/ui/LinkDialog.h"
#include "support/SendStage.h"
#include "support/TestClass.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_dialoghi_test {

using namespace testing_support;

class TestDialoghi : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }
    static void set(QWidget& dialog, const char* name, const QString& text) {
        EditorStage::in<QLineEdit>(dialog, name).setText(text);
    }
    static QString get(QWidget& dialog, const char* name) {
        return EditorStage::in<QLineEdit>(dialog, name).text();
    }
    static void click(QWidget& dialog, const char* name) {
        QTest::mouseClick(&EditorStage::in<QPushButton>(dialog, name), Qt::LeftButton);
    }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void anImageIsInsertedFromItsDialog() {
        stage().fill("<p>testo</p>");
        stage().caret("p", 5);
        stage().inDialog<ui::ImageDialog>([&](QWidget& dialog) {
            QVERIFY(!EditorStage::in<QPushButton>(dialog, "cmdOk").isEnabled());
            set(dialog, "txtSource", "http://www.example.it/logo.png");
            set(dialog, "txtAlternative", "Il \"logo\"");
            set(dialog, "txtWidth", "120");
            set(dialog, "txtHeight", "50%");
            EditorStage::in<QComboBox>(dialog, "cmbAlign").setCurrentText("A destra");
            click(dialog, "cmdOk");
        });
        stage().start("cmdImage");
        const QString body = stage().body();
        for (const char* part : {"src=\"http://www.example.it/logo.png\"", "alt=\"Il &quot;logo&quot;\"",
                                 "width=\"120\"", "height=\"50%\"", "align=\"right\""})
            QVERIFY2(body.contains(part), qPrintable(body));
        QVERIFY(!stage().marked());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<p>testo</p>");
    }

    void theImageDialogTakesAFile() {
        stage().fill("<p>testo</p>");
        stage().caret("p", 0);
        ui::FileDialog::queue(stage().path("foto è.png"));
        stage().inDialog<ui::ImageDialog>([&](QWidget& dialog) {
            click(dialog, "cmdBrowse");
            QCOMPARE(get(dialog, "txtSource"), stage().path("foto è.png"));
            click(dialog, "cmdOk");
        });
        stage().start("cmdImage");
        QVERIFY2(stage().body().contains("src=\"file:///"), qPrintable(stage().body()));
    }

    void cancellingADialogChangesNothing() {
        stage().fill("<p>testo</p>");
        stage().caret("p", 0);
        stage().inDialog<ui::ImageDialog>([&](QWidget& dialog) {
            set(dialog, "txtSource", "x.png");
            click(dialog, "cmdCancel");
        });
        stage().start("cmdImage");
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) {
            set(dialog, "txtAddress", "http://x.it");
            click(dialog, "cmdCancel");
        });
        stage().start("cmdLink");
        QCOMPARE(stage().body(), "<p>testo</p>");
    }

    void aLinkIsMadeOfTheSelectionWithAPlaceholder() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) {
            QVERIFY(!EditorStage::in<QLineEdit>(dialog, "txtText").isVisible());
            set(dialog, "txtAddress", "http://www.example.it/?u=");
            auto& offers = EditorStage::in<QComboBox>(dialog, "cmbOffers");
            QCOMPARE(offers.count(), 20);
            const int email = offers.findText("Email");
            offers.setCurrentIndex(email);
            Q_EMIT offers.activated(email);
            click(dialog, "cmdOk");
        });
        stage().start("cmdLink");
        QCOMPARE(stage().body(), "<p><a href=\"http://www.example.it/?u=:::email:::\">testo</a></p>");
        QVERIFY(!stage().marked());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<p>testo</p>");
    }

    void aMailLinkIsInsertedWithItsWords() {
        stage().fill("<p>testo</p>");
        stage().caret("p", 5);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) {
            EditorStage::in<QComboBox>(dialog, "cmbKind").setCurrentText("Posta elettronica");
            set(dialog, "txtAddress", "info@example.it");
            set(dialog, "txtText", "scrivici");
            click(dialog, "cmdOk");
        });
        stage().start("cmdLink");
        QCOMPARE(stage().body(), "<p>testo<a href=\"mailto:info@example.it\">scrivici</a></p>");
    }

    void aLinkCanBeChangedAndRemoved() {
        stage().fill("<p><a href=\"mailto:a@x.it\">testo</a></p>");
        stage().caret("a", 2);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) {
            QCOMPARE(EditorStage::in<QComboBox>(dialog, "cmbKind").currentText(), "Posta elettronica");
            QCOMPARE(get(dialog, "txtAddress"), "a@x.it");
            EditorStage::in<QComboBox>(dialog, "cmbKind").setCurrentIndex(0);
            set(dialog, "txtAddress", "http://x.it");
            click(dialog, "cmdOk");
        });
        stage().start("cmdLink");
        QCOMPARE(stage().body(), "<p><a href=\"http://x.it\">testo</a></p>");
        stage().caret("a", 2);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) { click(dialog, "cmdRemove"); });
        stage().start("cmdLink");
        QCOMPARE(stage().body(), "<p>testo</p>");
    }

    void theLinkDialogShowsAndChangesWhetherALinkUnsubscribes() {
        stage().fill("<p><a rel=\"nofollow unsubscribe\" href=\"https://x.it/u\">via</a></p>");
        stage().caret("a", 1);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) {
            auto& box = EditorStage::in<QCheckBox>(dialog, "chkUnsubscribes");
            QVERIFY(box.isChecked());
            const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&box);
            QCOMPARE(told->text(QAccessible::Name), "Collegamento di disiscrizione");
            QVERIFY(!told->text(QAccessible::Description).isEmpty());
            auto& address = EditorStage::in<QLineEdit>(dialog, "txtAddress");
            for (QWidget* at = &address; at != &box; at = dialog.focusWidget())
                QTest::keyClick(at, Qt::Key_Tab);
            QTest::keyClick(&box, Qt::Key_Space);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        stage().start("cmdLink");
        QCOMPARE(stage().body(), "<p><a rel=\"nofollow\" href=\"https://x.it/u\">via</a></p>");
        stage().caret("a", 1);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) {
            auto& box = EditorStage::in<QCheckBox>(dialog, "chkUnsubscribes");
            QVERIFY(!box.isChecked());
            box.setChecked(true);
            click(dialog, "cmdOk");
        });
        stage().start("cmdLink");
        QCOMPARE(stage().body(),
                 "<p><a rel=\"nofollow unsubscribe one-click\" href=\"https://x.it/u\">via</a></p>");
        stage().caret("a", 1);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) { click(dialog, "cmdRemove"); });
        stage().start("cmdLink");
        QCOMPARE(stage().body(), "<p>via</p>");
    }

    void theUnsubscribeLinkOfTheDialogIsInTheHeadersOfADeliveredMessage() {
        stage().fill("<p>Non scrivetemi</p>");
        stage().select("p", 0, 14);
        stage().inDialog<ui::LinkDialog>([&](QWidget& dialog) {
            set(dialog, "txtAddress", "https://orto.example/via?chi=:::email:::");
            EditorStage::in<QCheckBox>(dialog, "chkUnsubscribes").setChecked(true);
            click(dialog, "cmdOk");
        });
        stage().start("cmdLink");
        stage().saveAs("invito.mss");

        SendStage run({"ada@cliente.example"});
        compose::makeDkimKey(run.folder.path("data/dkim"), "klukla.example", "maggio");
        run.pick(stage().path("invito.mss"));
        run.start();
        QVERIFY(run.waitForEnd());
        QCOMPARE(run.sink.messages().size(), 1);
        const QByteArray head = run.sink.messages()[0].data;
        QVERIFY2(head.contains("\r\nList-Unsubscribe: <https://orto.example/via?chi=ada%40cliente.example>,"),
                 head.constData());
        QCOMPARE(run.header(0, "List-Unsubscribe-Post"), "List-Unsubscribe=One-Click");
    }

    void theAttributesOfAnElementAreEditedAsAList() {
        stage().fill(
            "<table border=\"1\"><tbody><tr><td align=\"left\" nowrap=\"\">testo</td></tr></tbody></table>");
        stage().caret("td", 2);
        stage().inDialog<ui::ElementDialog>([&](QWidget& dialog) {
            auto& which = EditorStage::in<QComboBox>(dialog, "cmbElement");
            QCOMPARE(which.itemText(0), "<td>");
            QCOMPARE(which.itemText(which.count() - 1), "<body>");
            auto& list = EditorStage::in<QTableWidget>(dialog, "lstAttributes");
            QCOMPARE(list.rowCount(), 3);
            QCOMPARE(list.item(0, 0)->text(), "align");
            list.item(0, 1)->setText("right");
            list.item(1, 0)->setText("");
            list.setItem(2, 0, new QTableWidgetItem("bgcolor"));
            list.setItem(2, 1, new QTableWidgetItem("#ffeeaa"));
            QCOMPARE(list.rowCount(), 4);
            click(dialog, "cmdOk");
        });
        // A double click opens the same window.
        Q_EMIT stage().design().doubleClicked();
        QVERIFY2(stage().body().contains("<td align=\"right\" bgcolor=\"#ffeeaa\">testo</td>"),
                 qPrintable(stage().body()));
        QVERIFY(stage().body().contains("<table border=\"1\">"));
        QVERIFY(!stage().marked());
        stage().start("cmdUndo");
        QVERIFY(stage().body().contains("<td align=\"left\" nowrap=\"\">"));
    }

    void anOuterElementCanBeChosen() {
        stage().fill("<table border=\"1\"><tbody><tr><td>testo</td></tr></tbody></table>");
        stage().caret("td", 2);
        stage().inDialog<ui::ElementDialog>([&](QWidget& dialog) {
            EditorStage::in<QComboBox>(dialog, "cmbElement").setCurrentText("<table>");
            EditorStage::in<QTableWidget>(dialog, "lstAttributes").item(0, 1)->setText("3");
            click(dialog, "cmdOk");
        });
        Q_EMIT stage().design().doubleClicked();
        QVERIFY2(stage().body().contains("<table border=\"3\">"), qPrintable(stage().body()));
    }

    void theSearchFindsInTheDesignViewAndInTheSource() {
        stage().fill("<p>uno DUE uno due</p>");
        stage().caret("p", 0);
        stage().start("cmdTrova");
        QVERIFY(!stage().marked());
        auto& dialog = EditorStage::in<ui::FindDialog>(stage().editor(), "findDialog");
        QVERIFY(dialog.isVisible());
        QVERIFY(!EditorStage::in<QPushButton>(dialog, "cmdNext").isEnabled());
        set(dialog, "txtFind", "due");
        click(dialog, "cmdNext");
        QCOMPARE(stage().design().selectedText().value(), "DUE");
        click(dialog, "cmdNext");
        QCOMPARE(stage().design().selectedText().value(), "due");
        click(dialog, "cmdPrevious");
        QCOMPARE(stage().design().selectedText().value(), "DUE");
        EditorStage::in<QCheckBox>(dialog, "chkCase").setChecked(true);
        click(dialog, "cmdNext");
        QCOMPARE(stage().design().selectedText().value(), "due");
        set(dialog, "txtFind", "tre");
        click(dialog, "cmdNext");
        QCOMPARE(EditorStage::in<QLabel>(dialog, "lblAnswer").text(), "Testo non trovato.");
        stage().chooseTab(1);
        stage().start("cmdTrova");
        set(dialog, "txtFind", "uno");
        click(dialog, "cmdNext");
        QVERIFY(stage().source().CanCopy());
        QCOMPARE(EditorStage::in<QLabel>(dialog, "lblAnswer").text(), "");
        click(dialog, "cmdClose");
        QVERIFY(!dialog.isVisible());
    }
};

TEST_CLASS(TestDialoghi);

}  // namespace frmeditor_dialoghi_test

#include "frmeditor_dialoghi_test.moc"
