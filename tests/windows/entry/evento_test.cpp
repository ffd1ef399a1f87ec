// SPDX-License-Identifier: GPL-3.0-or-later
#include <QEventLoop>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "modules/core/bGlobal.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/TextFile.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/Unattended.h"
#include "support/TestClass.h"
#include "windows/core/Evento.h"

namespace evento_test {

using ui::MessageDialog;

class TestEvento : public QObject {
    Q_OBJECT

    QTemporaryDir folder;
    QList<int> ends;

  private Q_SLOTS:
    void init() {
        sys::setProgramFolder(folder.path());
        ui::setUnattended(true);
        MessageDialog::reset();
        ends.clear();
        sostituisciTermine([this](int status) { ends.append(status); });
    }
    void cleanup() { sostituisciTermine({}); }

    void handlerWithoutFailureRunsToItsEnd() {
        bool done = false;
        evento([&] { done = true; });
        QVERIFY(done);
        QVERIFY(ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void failureShowsTheCriticalBoxAndEndsTheProgramWithStatusOne() {
        MessageDialog::queue(MessageDialog::Ok);
        bool behind = false;
        evento([&] {
            fallisci(ErrorCode::InputPastEnd);
            behind = true;
        });
        QVERIFY(!behind);
        QCOMPARE(MessageDialog::shown().size(), 1);
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "Errore 62:\r\n\r\nInput oltre la fine del file");
        QCOMPARE(box.title, "Vestrola");
        QCOMPARE(box.icon, QMessageBox::Critical);
        QCOMPARE(int(box.buttons), int(QMessageBox::Close));
        QCOMPARE(box.details, "Il programma viene chiuso");
        QCOMPARE(ends, QList<int>{1});
    }

    void theBoxSaysWhatWasBeingDoneAndWithWhichFile() {
        MessageDialog::queue(MessageDialog::Ok);
        evento([] {
            const Operazione command("Importa Mailing List da file di testo");
            const Operazione import("Importazione da file di testo", "/a/lista.txt");
            fallisci(ErrorCode::SubscriptOutOfRange);
        });
        QCOMPARE(MessageDialog::shown().constLast().details,
                 "Operazione: Importazione da file di testo\r\nFile: /a/lista.txt\r\n\r\n"
                 "Il programma viene chiuso");
    }

    void theFileThatTheFailureIsAboutGoesFirst() {
        MessageDialog::queue(MessageDialog::Ok);
        evento([] {
            const Operazione import("Prova", "/a/lista.txt");
            text::LineReader file;
            esigi(file.open("/nowhere/b.txt", text::LineEnds::Any));
        });
        QCOMPARE(MessageDialog::shown().constLast().text, "Errore 53:\r\n\r\nImpossibile trovare il file");
        QCOMPARE(MessageDialog::shown().constLast().details,
                 "Operazione: Prova\r\nFile: /nowhere/b.txt\r\n\r\nIl programma viene chiuso");
    }

    void anOperationIsOverWithItsScopeAndAFailureOfTheDatabaseNamesTheDatabase() {
        MessageDialog::queue(MessageDialog::Ok);
        { const Operazione over("Prima", "/a/prima.txt"); }
        const auto restored = qScopeGuard([path = percorsoDB] { percorsoDB = path; });
        percorsoDB = "/a/data.mdb";
        evento([] { fallisci(ErrorCode::FileInUse); });
        QCOMPARE(MessageDialog::shown().constLast().details,
                 "File: /a/data.mdb\r\n\r\nIl programma viene chiuso");
    }

    void theBoxThatAPersonSeesClosesByReturnAndByEsc_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Esc") << int(Qt::Key_Escape);
    }
    void theBoxThatAPersonSeesClosesByReturnAndByEsc() {
        QFETCH(int, key);
        ui::setUnattended(false);
        QStringList captions;
        QString text;
        QTimer::singleShot(0, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            for (const QAbstractButton* button : box->buttons())
                captions << button->text();
            text = box->text() + '|' + box->informativeText();
            QTest::keyClick(box, Qt::Key(key));
        });
        evento([] { fallisci(ErrorCode::TypeMismatch); });
        QCOMPARE(captions, QStringList("&Chiudi"));
        QCOMPARE(text, "Errore 13:\n\nTipo non corrispondente|Il programma viene chiuso");
        QCOMPARE(ends, QList<int>{1});
    }

    void carryOnHandlesTheFailureBeforeTheEdge() {
        bool behind = false;
        evento([&] {
            Prosegui prosegui;
            prosegui([] { fallisci(ErrorCode::FileNotFound); });
            behind = prosegui.numero() == 53;
        });
        QVERIFY(behind);
        QVERIFY(ends.isEmpty());
    }

    void fallBackHandlesTheFailureBeforeTheEdge() {
        int value = 0;
        evento([&] { value = ripiega(7, []() -> int { fallisci(ErrorCode::FileNotFound); }); });
        QCOMPARE(value, 7);
        QVERIFY(ends.isEmpty());
    }

    void failureInANestedLoopStopsAtItsOwnHandler() {
        MessageDialog::queue(MessageDialog::Ok);
        bool outerWentOn = false;
        evento([&] {
            QEventLoop nested;
            QTimer::singleShot(0, this, [&] {
                evento([] { fallisci(ErrorCode::TypeMismatch); });
                nested.quit();
            });
            nested.exec();
            outerWentOn = true;
        });
        QVERIFY(outerWentOn);
        QCOMPARE(ends, QList<int>{1});
    }

    void carryOnAboveANestedLoopDoesNotSeeTheInnerFailure() {
        MessageDialog::queue(MessageDialog::Ok);
        evento([&] {
            Prosegui prosegui;
            prosegui([&] {
                QEventLoop nested;
                QTimer::singleShot(0, this, [&] {
                    evento([] { fallisci(ErrorCode::TypeMismatch); });
                    nested.quit();
                });
                nested.exec();
            });
            QCOMPARE(prosegui.numero(), 0);
        });
        QCOMPARE(ends, QList<int>{1});
    }

    void whileTheFailureIsOnShowNoFurtherEventRuns() {
        ui::setUnattended(false);
        bool ran = false;
        QTimer::singleShot(0, this, [&] { evento([&] { ran = true; }); });
        QTimer::singleShot(0, this, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            box->accept();
        });
        evento([] { fallisci(ErrorCode::TypeMismatch); });
        QVERIFY(!ran);
        QCOMPARE(ends, QList<int>{1});
        evento([&] { ran = true; });
        QVERIFY(ran);
    }

    void endOfTheProgramLeavesItsHandlerThroughCarryOnProcedures() {
        bool behind = false;
        evento([&] {
            Prosegui prosegui;
            prosegui([] { TerminaProgramma(0); });
            behind = true;
        });
        QVERIFY(!behind);
        QCOMPARE(ends, QList<int>{0});
        QVERIFY(MessageDialog::shown().isEmpty());
    }
};

TEST_CLASS(TestEvento);

}  // namespace evento_test

#include "evento_test.moc"
