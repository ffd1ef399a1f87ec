// SPDX-License-Identifier: GPL-3.0-or-later
// The rescue copy of the document in the editor: when it is written, what it contains, when it is removed,
// and how it is recovered.
#include <QDir>
#include <QTimer>

#include "modules/core/bImpostazioni.h"
#include "modules/message/CopiaRecupero.h"
#include "modules/message/MessaggiNoti.h"
#include "support/TestClass.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_recupero_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

constexpr int patience = 20000;  // milliseconds; a copy is due within five seconds

}  // namespace

class TestRecupero : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }

    static QString place() { return cartellaDati() + "recuperati"; }
    static QStringList copies() { return QDir(place()).entryList({"*.copia"}, QDir::Files); }
    static QByteArray all() {
        QByteArray bytes;
        for (const QString& name : copies()) {
            QFile file(place() + '/' + name);
            if (file.open(QIODevice::ReadOnly)) bytes += file.readAll();
        }
        return bytes;
    }
    static void leave(const MessaggioRecuperato& message) {
        CopiaRecupero copy;
        copy.Scrivi(message);
    }
    /// Answers the offer by Yes, and looks at the editor before it is closed again.
    void takeUp(const std::function<void()>& look) {
        stage().editor().hide();
        bool looked = false;
        QTimer watch;
        watch.callOnTimeout([&] {
            if (!stage().editor().isVisible()) return;
            watch.stop();
            looked = true;
            look();
            stage().editor().hide();
        });
        watch.start(10);
        stage().editor().OffriRecupero();
        QVERIFY(looked);
    }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() {
        stage().begin();
        QDir(place()).removeRecursively();
    }

    void whatIsTypedIsCopiedAndAnEmptyDocumentIsNot() {
        stage().editor().NuovoMessaggio();
        stage().chooseTab(1);
        stage().chooseTab(2);
        stage().chooseTab(0);
        stage().type("Gentile");
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("Gentile"), patience);
        QCOMPARE(copies().size(), 1);
        stage().type(" cliente");
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("cliente"), patience);
        QCOMPARE(copies().size(), 1);
    }

    void aFormatThatMarksNothingIsCopied() {
        stage().fill("<p>uno</p>");
        stage().select("p", 0, 3);
        stage().start("cmdBold");
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("<b>uno</b>"), patience);
        QVERIFY(!stage().marked());
    }

    void subjectPriorityAndAttachmentsAreCopied() {
        stage().write("a.pdf", "x");
        QTest::keyClick(stage().editor().Commands().GetEdit("txtOggetto")->focusProxy(), Qt::Key_Q);
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("\"oggetto\":\"q\""), patience);
        stage().start("cmdPriAlta");
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("\"priorita\":\"HI\""), patience);
        FileDialog::queue(stage().path("a.pdf"));
        stage().start("cmdAllegatiNew");
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("a.pdf"), patience);
    }

    void typingWithoutAPauseIsCopiedAllTheSame() {
        QElapsedTimer elapsed;
        elapsed.start();
        while (!all().contains("xxx") && elapsed.elapsed() < patience) {
            stage().type("x");
            QTest::qWait(50);
        }
        QVERIFY(all().contains("xxx"));
    }

    void aSaveRemovesTheCopy() {
        stage().type("x");
        QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, patience);
        stage().saveAs("a.mss");
        QCOMPARE(copies(), QStringList());
        stage().type("y");
        QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, patience);
        stage().start("cmdSalva");
        QCOMPARE(copies(), QStringList());
    }

    void aSaveRightAfterTheKeyLeavesNoCopy() {
        stage().saveAs("a.mss");
        stage().type("x");
        stage().start("cmdSalva");
        QVERIFY(stage().bytes("a.mss").contains('x'));
        // The next copy that is due would be written after this one.
        stage().editor().titoloFile = "[a.mss]";
        Q_EMIT stage().design().followed();
        const auto* due = stage().editor().findChild<QTimer*>("tempoCopia");
        QVERIFY(due->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(!due->isActive(), patience);
        QCOMPARE(copies(), QStringList());
        stage().type("y");
        QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, patience);
    }

    void aSaveFromTheSourceViewKeepsTheCopyOfWhatHasNotMoved() {
        stage().fill("<p>vecchio</p>");
        stage().saveAs("a.mss");
        stage().chooseTab(1);
        stage().source().setText("<p>nuovo</p>");
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("nuovo"), patience);
        stage().start("cmdSalva");
        QVERIFY(stage().bytes("a.mss").contains("vecchio"));
        QVERIFY(all().contains("nuovo"));
        stage().chooseTab(0);
        stage().start("cmdSalva");
        QVERIFY(stage().bytes("a.mss").contains("nuovo"));
        QCOMPARE(copies(), QStringList());
    }

    void aSaveFromASourceViewThatWasOnlyLookedAtRemovesTheCopy() {
        stage().type("x");
        QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, patience);
        stage().chooseTab(1);
        stage().saveAs("a.mss");
        QCOMPARE(copies(), QStringList());
    }

    void theUsersNoRemovesTheCopy() {
        stage().type("x");
        QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, patience);
        MessageDialog::queue(MessageDialog::No);
        stage().start("cmdNewMess");
        QCOMPARE(copies(), QStringList());
        stage().type("y");
        QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, patience);
    }

    void aYesWhoseSaveIsCancelledKeepsTheCopy() {
        stage().type("x");
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queueCancel();
        stage().start("cmdNewMess");
        QCOMPARE(stage().body().trimmed(), "");
        QCOMPARE(copies().size(), 1);
        QVERIFY2(all().contains(">x<"), all());
        QStringList damaged;
        QVERIFY(CopiaTrovata::Cerca(damaged).empty());  // of this program, which is running
        stage().type("y");
        QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 2, patience);
    }

    void aDocumentThatIsLeftUnmarkedKeepsItsCopy() {
        stage().fill("<p>uno</p>");
        stage().select("p", 0, 3);
        stage().start("cmdBold");
        QTRY_VERIFY_WITH_TIMEOUT(all().contains("<b>uno</b>"), patience);
        stage().start("cmdNewMess");
        QVERIFY(all().contains("<b>uno</b>"));
    }

    void aSaveThatFailsEndsTheProgramAndTheCopyContainsTheText() {
        stage().editor().fileAperto = true;
        stage().editor().percorsoFile = stage().path("manca/x.mss");
        stage().type("Gentile");
        MessageDialog::queue(MessageDialog::Ok);
        stage().start("cmdSalva");
        QCOMPARE(stage().ends, QList<int>{1});
        QVERIFY(all().contains("Gentile"));
    }

    void aSaveUnderANameThatFailsIsReportedAndTheCopyStays() {
        stage().type("Gentile");
        FileDialog::queue(stage().path("manca/x.mss"));
        MessageDialog::queue(MessageDialog::Ok);
        stage().start("cmdSalvaAs");
        QCOMPARE(stage().title(), "Editor Messaggi - [x.mss*]");
        QVERIFY(stage().editor().fileAperto);
        QCOMPARE(stage().editor().percorsoFile, stage().path("manca/x.mss"));
        QCOMPARE(MessageDialog::shown().size(), 1);
        QCOMPARE(MessageDialog::shown()[0].style, int{MessageDialog::Notice});
        QCOMPARE(MessageDialog::shown()[0].title, "Attenzione");
        QVERIFY(all().contains("Gentile"));
        QCOMPARE(stage().ends, QList<int>());
    }

    void whateverEndsTheProgramWritesTheLastChangeFirst() {
        stage().type("x");
        QTRY_VERIFY(stage().design().knownHTML().contains(">x<"));
        MessageDialog::queue(MessageDialog::Ok);
        stage().tool("cmdAllegatiDel").setEnabled(true);
        stage().start("cmdAllegatiDel");  // none is chosen
        QCOMPARE(stage().ends, QList<int>{1});
        QVERIFY2(all().contains(">x<"), all());
    }

    void whatCameInWithAReceivedMessageStaysUnknownThroughItsCopy() {
        const QString image = stage().path("loro.png"), own = stage().path("mia.png");
        const QString body = "<p><img src=\"" + image + "\"><img src=\"" + own + "\"></p>";
        for (const bool received : {true, false}) {
            leave({"ricevuto.mss", "", "NR", {}, body, {}, received, {own}});
            MessageDialog::queue(MessageDialog::Yes);
            takeUp([this] { stage().saveAs("recuperato.mss"); });
            const auto known = messaggiNoti::Cerca(stage().path("recuperato.mss"),
                                                   messaggiNoti::Impronta(stage().bytes("recuperato.mss")));
            QVERIFY(known.has_value());
            QCOMPARE(known->daConfermare, received ? QStringList{image} : QStringList());
        }
    }

    void nothingIsOfferedWhereThereIsNoCopy() {
        stage().editor().OffriRecupero();
        QCOMPARE(MessageDialog::shown().size(), 0);
    }

    void aCopyComesBackAsAChangedDocumentWithoutAFile() {
        stage().write("a.pdf", "x");
        stage().saveAs("prima.mss");
        leave({"offerta.mss",
               "Łódź",
               "LW",
               {stage().path("a.pdf"), stage().path("manca.pdf")},
               "<html><head></head><body><p>uno</p></body></html>",
               {}});
        MessageDialog::reset();
        MessageDialog::queue(MessageDialog::Yes);
        MessageDialog::queue(MessageDialog::Ok);
        takeUp([] {});
        QCOMPARE(MessageDialog::shown().size(), 2);
        QCOMPARE(MessageDialog::shown()[0].style, int{MessageDialog::AskNotice});
        QVERIFY(MessageDialog::shown()[0].text.contains("offerta.mss"));
        QVERIFY(MessageDialog::shown()[0].text.contains("Łódź"));
        QVERIFY(MessageDialog::shown()[1].text.contains("manca.pdf"));
        QCOMPARE(stage().subject(), "Łódź");
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), 1);
        QCOMPARE(stage().editor().Allegati().Percorsi(), QStringList{stage().path("a.pdf")});
        QCOMPARE(stage().body(), "<p>uno</p>");
        QVERIFY(stage().marked());
        QVERIFY(!stage().editor().fileAperto);
        QCOMPARE(copies().size(), 1);
        MessageDialog::queue(MessageDialog::Ok);
        stage().saveAs("dopo.mss");
        QCOMPARE(MessageDialog::shown().size(), 3);
        QVERIFY(MessageDialog::shown()[2].text.endsWith("Oggetto: Ł ź"));
        QCOMPARE(copies(), QStringList());
    }

    void aTextOfTheSourceViewComesBackThere() {
        MessageDialog::queue(MessageDialog::Yes);
        leave({"o.mss", "", "NR", {}, "<html><head></head><body><p>uno</p></body></html>", "<p>due"});
        takeUp([this] {
            QCOMPARE(stage().editor().tb->currentIndex(), 1);
            QCOMPARE(stage().source().Text(), "<p>due");
            QCOMPARE(stage().body(), "<p>uno</p>");
        });
        stage().editor().tb->setCurrentIndex(0);
        QCOMPARE(stage().body(), "<p>due</p>");
    }

    void aCopyThatIsNotWantedIsSetAsideAndTheNextIsOffered() {
        leave({"a.mss", "uno", "NR", {}, "<p>uno</p>", {}});
        leave({"b.mss", "due", "NR", {}, "<p>due</p>", {}});
        MessageDialog::queue(MessageDialog::No);
        MessageDialog::queue(MessageDialog::No);
        stage().editor().OffriRecupero();
        QCOMPARE(MessageDialog::shown().size(), 2);
        QCOMPARE(copies(), QStringList());
        QCOMPARE(QDir(place()).entryList({"*.rifiutata"}, QDir::Files).size(), 2);
        stage().editor().OffriRecupero();
        QCOMPARE(MessageDialog::shown().size(), 2);
    }

    void aDamagedCopyIsReportedAndIsNoFailure() {
        leave({"a.mss", "uno", "NR", {}, "<p>uno</p>", {}});
        QFile file(place() + '/' + copies().at(0));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        MessageDialog::queue(MessageDialog::Ok);
        stage().editor().OffriRecupero();
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY(MessageDialog::shown()[0].text.contains("recuperati"));
        QCOMPARE(stage().ends, QList<int>());
    }

    void aCopyThatCannotBeWrittenStopsNothing() {
        QFile file(place());
        QVERIFY(file.open(QIODevice::WriteOnly));  // no folder can have that name
        file.close();
        stage().type("x");
        stage().saveAs("a.mss");
        QVERIFY(stage().bytes("a.mss").contains('x'));
        QCOMPARE(stage().ends, QList<int>());
        QFile::remove(place());
    }
};

TEST_CLASS(TestRecupero);

}  // namespace frmeditor_recupero_test

#include "frmeditor_recupero_test.moc"
