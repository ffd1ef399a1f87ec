// SPDX-License-Identifier: GPL-3.0-or-later
// While the browser stalls, an older text is never taken for the message's: requests to it fail, with a
// notice, and work again when the browser does.
#include <csignal>
#include <QCursor>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/html/ViewFixture.h"
#include "platform/ui/FindDialog.h"
#include "support/TestClass.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_stallo_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

/// Stops the process that has the view's document for the object's lifetime.
class Stall {
  public:
    explicit Stall(const HtmlView& view) : m_process(rendererOf(view)) { send(SIGSTOP); }
    ~Stall() { send(SIGCONT); }
    Stall(const Stall&) = delete;
    Stall& operator=(const Stall&) = delete;

  private:
    void send(int signal) const { ::kill(m_process, signal); }

    const pid_t m_process;
};

}  // namespace

class TestStallo : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }

    void savedAs(const QString& name) {
        stage().fill("<p>vecchio</p>");
        stage().saveAs(name);
    }
    /// Types a text that is in the document, but not yet in a copy outside of the browser's process.
    void typeHeld() { stage().type("nuovo "); }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void aSaveWritesNothingAndKeepsTheMark() {
        savedAs("a.mss");
        const QByteArray before = stage().bytes("a.mss");
        {
            const Stall stall(stage().design());
            typeHeld();
            stage().editor().Commands().GetEdit("txtOggetto")->setText("Listino");
            MessageDialog::queue(MessageDialog::Ok);
            stage().start("cmdSalva");
            QVERIFY(stage().bytes("a.mss") == before);
            QVERIFY(stage().marked());
            QCOMPARE(MessageDialog::shown().size(), 1);
            QCOMPARE(MessageDialog::shown()[0].style, int{MessageDialog::Notice});
            QCOMPARE(MessageDialog::shown()[0].title, "Attenzione");
        }
        QTRY_VERIFY(stage().body().contains("nuovo"));
        stage().start("cmdSalva");
        QVERIFY(stage().bytes("a.mss").contains("nuovo"));
        QVERIFY(stage().bytes("a.mss").contains("Listino"));
        QVERIFY(!stage().marked());
    }

    void aSaveUnderANameTakesNeitherTitleNorPath() {
        stage().fill("<p>vecchio</p>");
        {
            const Stall stall(stage().design());
            typeHeld();
            FileDialog::queue(stage().path("mai.mss"));
            MessageDialog::queue(MessageDialog::Ok);
            stage().start("cmdSalvaAs");
        }
        QCOMPARE(stage().title(), "Editor Messaggi - [NuovoFile.mss*]");
        QVERIFY(!stage().editor().fileAperto);
        QVERIFY(!QFile::exists(stage().path("mai.mss")));
    }

    void aChangeOfTabStaysWhereItIs() {
        stage().fill("<p>vecchio</p>");
        stage().chooseTab(1);
        stage().chooseTab(0);
        {
            const Stall stall(stage().design());
            typeHeld();
            MessageDialog::queue(MessageDialog::Ok);
            stage().editor().tb->setCurrentIndex(1);
            QCOMPARE(stage().editor().tb->currentIndex(), 0);
            QCOMPARE(MessageDialog::shown().size(), 1);
            QVERIFY(stage().tool("cmdBold").isEnabled());
        }
        QTRY_VERIFY(stage().body().contains("nuovo"));
        stage().chooseTab(1);
        QVERIFY(stage().source().Text().contains("nuovo"));
    }

    void theSourceStaysOnShowWithWhatWasTypedThere() {
        stage().fill("<p>vecchio</p>");
        stage().chooseTab(1);
        stage().source().setText("<p>battuto</p>");
        for (const int tab : {0, 2}) {
            const Stall stall(stage().design());
            MessageDialog::queue(MessageDialog::Ok);
            stage().editor().tb->setCurrentIndex(tab);
            QCOMPARE(stage().editor().tb->currentIndex(), 1);
            QCOMPARE(stage().source().Text(), "<p>battuto</p>");
        }
        QCOMPARE(MessageDialog::shown().size(), 2);
        QCOMPARE(stage().body(), "<p>vecchio</p>");
        stage().chooseTab(0);
        QCOMPARE(stage().body(), "<p>battuto</p>");
    }

    void thePropertiesOfThePageDoNotOpenAndCommandsSayWhy() {
        stage().fill("<p>vecchio</p>");
        {
            const Stall stall(stage().design());
            MessageDialog::queue(MessageDialog::Ok);
            stage().start("cmdProprieta");
            QCOMPARE(MessageDialog::shown().size(), 1);
            stage().start("cmdLink");
            QVERIFY2(stage().hint().contains("non risponde"), qPrintable(stage().hint()));
        }
        QTRY_COMPARE(stage().body(), "<p>vecchio</p>");
    }

    void aSearchWithoutAnAnswerSaysSo() {
        stage().fill("<p>uno</p>");
        stage().start("cmdTrova");
        auto& dialog = EditorStage::in<ui::FindDialog>(stage().editor(), "findDialog");
        EditorStage::in<QLineEdit>(dialog, "txtFind").setText("uno");
        {
            const Stall stall(stage().design());
            EditorStage::in<QPushButton>(dialog, "cmdNext").click();
            QCOMPARE(EditorStage::in<QLabel>(dialog, "lblAnswer").text(),
                     "La vista del messaggio non risponde.");
        }
        QTRY_COMPARE(stage().body(), "<p>uno</p>");
        EditorStage::in<QPushButton>(dialog, "cmdNext").click();
        QCOMPARE(EditorStage::in<QLabel>(dialog, "lblAnswer").text(), "");
        dialog.close();
    }

    void aWaitThatLastsShowsTheHourglass() {
        stage().fill("<p>uno</p>");
        QVERIFY(!QApplication::overrideCursor());
        bool shown = false;
        QTimer look;
        look.callOnTimeout([&] {
            const QCursor* pointer = QApplication::overrideCursor();
            shown = shown || (pointer && pointer->shape() == Qt::WaitCursor);
        });
        look.start(10);
        {
            const Stall stall(stage().design());
            QVERIFY(!stage().design().responds().ok());
            QVERIFY(shown);
            QVERIFY(!QApplication::overrideCursor());
        }
        QTRY_COMPARE(stage().body(), "<p>uno</p>");
    }

    void aMessageThatIsOpenedMeanwhileIsThereAfterwards() {
        savedAs("b.mss");
        stage().editor().NuovoMessaggio();
        {
            const Stall stall(stage().design());
            stage().open("b.mss");
            QCOMPARE(stage().title(), "Editor Messaggi - [b.mss]");
        }
        QTRY_COMPARE(stage().body(), "<p>vecchio</p>");
    }

    void theSourceShowsAMessageThatIsOpenedMeanwhile() {
        savedAs("c.mss");
        stage().chooseTab(1);
        stage().editor().NuovoMessaggio();
        {
            const Stall stall(stage().design());
            stage().open("c.mss");
            QCOMPARE(stage().source().Text(), "<html><head></head><body><p>vecchio</p></body></html>");
        }
        stage().chooseTab(0);
        QTRY_COMPARE(stage().body(), "<p>vecchio</p>");
    }
};

TEST_CLASS(TestStallo);

}  // namespace frmeditor_stallo_test

#include "frmeditor_stallo_test.moc"
