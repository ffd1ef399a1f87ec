// SPDX-License-Identifier: GPL-3.0-or-later
// A run with the book of outcomes, and what the send window says of it on request.
#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>

#include "modules/core/bGlobal.h"
#include "modules/send/Esiti.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frmesiti_invio_test {

using namespace testing_support;
using mail::OutcomeKind;

namespace {

esiti::Invio newest() {
    const auto runs = mail::outcomes::runs(esiti::Cartella());
    return runs.isEmpty() ? esiti::Invio() : esigi(esiti::Leggi(runs.first().path));
}

/// The widget's tool tip, as shown to a resting pointer.
QString hovered(QWidget* widget) {
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), widget->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(widget, &event);
    return widget->toolTip();
}

QString described(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

}  // namespace

class TestFrmEsitiInvio : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void eachRecipientOfARunIsInTheBook() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.sink.refuse("b@x.it", "550 5.1.1 unknown");
        QVERIFY(stage.run());
        const esiti::Invio run = newest();
        QCOMPARE(run.righe.size(), 3);
        QCOMPARE(run.righe[0].esito.kind, OutcomeKind::Delivered);
        QCOMPARE(run.righe[1].esito.address, "b@x.it");
        QCOMPARE(run.righe[1].motivo, MotivoEsito::Inesistente);
        QVERIFY(IndirizzoInesistente(run.righe[1].esito));
        for (const esiti::Riga& row : run.righe)
            QVERIFY(row.delDatabase);
        const auto head = mail::outcomes::runs(esiti::Cartella()).first().head;
        QCOMPARE(head.title, ":::rgs:::");
        QCOMPARE(head.database.path, percorsoDB);
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 2}));
    }

    void rowThatCouldNotBeMarkedStaysDelivered() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.onMessage([&](const SmtpSink::Message& message) {
            if (message.recipient == "a@x.it") stage.folder.hideDatabase();
        });
        bool back = false;
        QObject::connect(stage.control<ui::ProgressCounter>("prgDaInviare"),
                         &ui::ProgressCounter::valueChanged, stage.window.get(), [&](double left) {
                             if (left == 1 && !back) stage.folder.showDatabase();
                             back = back || left == 1;
                         });
        QVERIFY(stage.run());
        // The second tick read him again and was refused.
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(stage.sink.messages().size(), 1);
        const esiti::Invio run = newest();
        QCOMPARE(run.righe.size(), 1);
        QCOMPARE(run.righe[0].esito.kind, OutcomeKind::Delivered);
    }

    void switchedOffNoBookIsKept() {
        SendStage stage({"a@x.it"});
        QVERIFY(esiti::Accendi(false).ok());
        QVERIFY(stage.run());
        QVERIFY(mail::outcomes::runs(esiti::Cartella()).isEmpty());
        QVERIFY(esiti::Accendi(true).ok());
        QVERIFY(esiti::Acceso());
    }

    void toDoShowsTheFoldersOfTheSelection() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        SampleFolder::run("UPDATE [tb_destinatari] SET [id_grp] = 999 WHERE [id] = 2;");
        stage.window->SetPrgBar();
        auto* label = stage.control<QLabel>("lblDaInviare");
        QVERIFY2(hovered(label).contains("Clienti 2, cartelle perdute 1"), qPrintable(hovered(label)));
        QCOMPARE(described(stage.control<QWidget>("prgDaInviare")), "Clienti 2, cartelle perdute 1");
    }

    void toDoShowsTheTimeLeft() {
        TestClock clock;
        SendStage stage({"a@x.it", "b@x.it", "c@x.it", "d@x.it", "e@x.it"});
        QString seen;
        int messages = 0;
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            clock.advance(90);
            if (++messages == 3) seen = described(stage.control<QWidget>("prgDaInviare"));
        });
        QVERIFY(stage.run());
        // Two are done after 270 s, three are left.
        QVERIFY2(seen.contains("Tempo rimanente: circa 7 minuti"), qPrintable(seen));
        QVERIFY(!described(stage.control<QWidget>("prgDaInviare")).contains("Tempo"));
    }

    void failuresShowTheLastReason() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.refuse("a@x.it", "550 5.1.1 <b>unknown</b>");
        auto* label = stage.control<QLabel>("lblFallite");
        QCOMPARE(hovered(label), "");
        QVERIFY(stage.run());
        QCOMPARE(described(stage.control<QWidget>("prgFallite")),
                 "Ultima non inviata: a@x.it\nCasella o indirizzo inesistente\n5.1.1 <b>unknown</b>");
        QVERIFY(hovered(label).contains("&lt;b&gt;unknown"));
        // The label's own text is only the counter.
        QCOMPARE(stage.label("lblFallite"), "Email non inviate: 1");
    }

    void bookThatCannotBeWrittenIsReported() {
        SendStage stage({"a@x.it"});
        QVERIFY(QFile(esiti::Cartella().chopped(1)).open(QFile::WriteOnly));
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QVERIFY(described(stage.control<QWidget>("prgFallite")).contains("registro degli esiti non si può"));
        QVERIFY(ui::MessageDialog::shown().isEmpty());
    }
};

TEST_CLASS(TestFrmEsitiInvio);

}  // namespace frmesiti_invio_test

#include "frmesiti_invio_test.moc"
