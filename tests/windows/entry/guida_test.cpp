// SPDX-License-Identifier: GPL-3.0-or-later
// F1 in each window, with the help as built: it opens the section about that window, in the language in
// use.
#include <QKeyEvent>
#include <QScopeGuard>
#include <QUrl>

#include "modules/lang/bLANG.h"
#include "modules/lang/Guida.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Language.h"
#include "support/TestClass.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/TastoGuida.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/message/frmAllegati.h"
#include "windows/message/frmEditor.h"
#include "windows/message/frmPropBody.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/shell/shell_support.h"
#include "windows/store/frmDestinatario.h"
#include "windows/strumenti/frmControlloMittente.h"
#include "windows/strumenti/frmEsiti.h"
#include "windows/strumenti/frmProva.h"
#include "windows/strumenti/frmUltimaImportazione.h"

namespace guida_test {

using namespace testing_support;

namespace {

QString pageOf(const QString& window, const QString& language = "it") {
    return QStringLiteral(HELP_DIR "/%1/windows/%2.html").arg(language, window);
}

void press(QWidget& control, const QKeyCombination& key) {
    QKeyEvent event(QEvent::KeyPress, key.key(), key.keyboardModifiers());
    QCoreApplication::sendEvent(&control, &event);
}

/// What F1 opens when `control` has the focus.
QString openedBy(QWidget& control) {
    const Opener opener;
    press(control, Qt::Key_F1);
    return QUrl(opener.opened()).toLocalFile();
}

/// The windows of the program, the main window hidden: its own F1 is a command.
struct Stage : StoreStage {
    Stage() { window().hide(); }
};

/// Notes the keys that reach it.
class Listener : public QWidget {
  public:
    using QWidget::QWidget;
    QList<QKeyCombination> heard;

  protected:
    void keyPressEvent(QKeyEvent* event) override { heard += event->keyCombination(); }
};

}  // namespace

class TestGuida : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        SeguiTastoGuida();
        sys::setHelpFolder(HELP_DIR);
    }

    void eachWindowHasItsPlace() {
        Stage stage;
        const QList<QWidget*> windows{&finestre::Account(),      &finestre::Invia(),
                                      &finestre::Destinatario(), &finestre::ImpTXT(),
                                      &finestre::ImpDB(),        &finestre::Scelta(),
                                      &finestre::InfoSu(),       &finestre::Prova(),
                                      &finestre::PropBody(),     &finestre::Editor(),
                                      &finestre::Esiti(),        &finestre::Controllo(),
                                      &stage.groups(),           &finestre::UltimaImportazione()};
        for (QWidget* window : windows) {
            const QString page = pageOf(window->objectName());
            QCOMPARE(openedBy(*window), page);
            QVERIFY(QFile::exists(page));
        }
    }

    void aModalWindowHearsTheKeyAndTheMainWindowDoesNot() {
        StoreStage stage;
        stage.window();
        QString opened;
        closeModalWindow([&](QWidget& window) {
            const Opener opener;
            QTest::keyClick(&window, Qt::Key_F1);
            opened = QUrl(opener.opened()).toLocalFile();
        });
        stage.command("cmdFileAccount");
        QCOMPARE(opened, pageOf("frmAccount"));
    }

    void aControlBelongsToTheNearestPanelThatTheHelpKnows() {
        const Stage stage;
        QCOMPARE(openedBy(*finestre::Invia().findChild<QWidget*>("cmbPausa")), pageOf("frmInvia"));
        QCOMPARE(openedBy(*finestre::Editor().Allegati().findChild<QWidget*>("LIST")), pageOf("frmAllegati"));
        QWidget box;
        box.setObjectName("messageDialog");
        QWidget button(&box);
        QCOMPARE(openedBy(button), pageOf("messageDialog"));
    }

    void aWindowThatTheHelpDoesNotKnowOpensItsFirstPage() {
        QWidget unknown;
        QCOMPARE(openedBy(unknown), QStringLiteral(HELP_DIR "/it/index.html"));
    }

    void theLanguageOfTheWindowsIsThatOfTheHelp_data() {
        QTest::addColumn<QString>("code");
        for (const char* code : {"it", "en", "es", "fr", "de"})
            QTest::newRow(code) << code;
    }
    void theLanguageOfTheWindowsIsThatOfTheHelp() {
        QFETCH(QString, code);
        text::setLanguage(code);
        const auto italian = qScopeGuard([] { text::setLanguage("it"); });
        const Stage stage;
        QCOMPARE(guida::PrimaPagina(), QStringLiteral(HELP_DIR "/%1/index.html").arg(code));
        QVERIFY(QFile::exists(guida::PrimaPagina()));
        QCOMPARE(openedBy(finestre::Invia()), pageOf("frmInvia", code));
    }

    void aLanguageOfTheUsersOwnIsHelpedInItalian() {
        text::setLanguage("nl");
        QCOMPARE(guida::PrimaPagina(), QStringLiteral(HELP_DIR "/it/index.html"));
    }

    void theLanguageChosenForTheNextStartIsNotYetInUse() {
        StoreStage stage;
        stage.window();
        bLANG::ScriviLinguaInUso("Deutsch");
        QCOMPARE(guida::PrimaPagina(), QStringLiteral(HELP_DIR "/it/index.html"));
    }

    void otherKeysGoTheirWay() {
        const Opener opener;
        Listener control;
        for (const QKeyCombination key :
             {Qt::SHIFT | Qt::Key_F1, QKeyCombination(Qt::Key_F2), QKeyCombination(Qt::Key_F1)})
            press(control, key);
        QCOMPARE(control.heard, (QList<QKeyCombination>{Qt::SHIFT | Qt::Key_F1, Qt::Key_F2}));
        QVERIFY(!opener.opened().isEmpty());
    }
};

TEST_CLASS(TestGuida);

}  // namespace guida_test

#include "guida_test.moc"
