// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the pictures of docs/screenshots: each window over a sample folder, after a few clicks.
//
//     demo_screenshots FOLDER MESSAGE.mss OUTPUT_FOLDER
//
// FOLDER is a program folder made by demo_make.
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "controls.h"
#include "modules/core/bGlobal.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/TabStrip.h"
#include "unattended.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/Finestre.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/message/frmAllegati.h"
#include "windows/message/frmEditor.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/shell/frmMain.h"
#include "windows/shell/frmSplash.h"
#include "windows/store/frmDestinatario.h"

namespace {

QString outputFolder;

void take(QWidget& window, const QString& name) {
    QTest::qWait(150);
    if (!window.grab().save(outputFolder + '/' + name + ".png")) qFatal("cannot write a picture");
}

/// What takes the picture of a window under this name.
std::function<void(QWidget&)> taken(const QString& name) {
    return [name](QWidget& window) { take(window, name); };
}

/// The editor with a message: its tabs, its windows, its panels.
void takeEditor(const QString& message) {
    frmEditor& editor = finestre::Editor();
    const auto command = [&editor](const QString& name) { editor.findChild<QAction*>(name)->trigger(); };
    /// Runs a command, takes the picture of its modal window and hides it.
    const auto window = [&command](const QString& name, const QString& picture) {
        QTimer::singleShot(300, [picture] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal) qFatal("no window for %s", qUtf8Printable(picture));
            take(*modal, picture);
            modal->hide();
        });
        command(name);
    };
    editor.NuovoMessaggio();
    editor.show();
    editor.DHTML->wake();
    ui::FileDialog::queue(message);
    command("cmdApriMess");
    editor.Allegati().InsFile(message);
    editor.Commands().GetEdit("txtOggetto")->focusProxy()->setFocus();
    QTest::qWait(1000);
    take(editor, "frmEditor_modifica");
    editor.DHTML->evaluate("getSelection().selectAllChildren(document.querySelector('td')); 1");
    window("cmdLink", "frmEditor_collegamento");
    window("cmdImage", "frmEditor_immagine");
    window("cmdProprieta", "frmPropBody");
    QTimer::singleShot(300, [] {
        take(*QApplication::activeModalWidget(), "frmEditor_elemento");
        QApplication::activeModalWidget()->hide();
    });
    Q_EMIT editor.DHTML->doubleClicked();
    command("cmdTrova");
    take(*editor.findChild<QWidget*>("findDialog"), "frmEditor_trova");
    editor.findChild<QWidget*>("findDialog")->hide();
    editor.findChild<QAction*>("popColors")->trigger();
    take(*editor.findChild<QWidget*>("pwnColor"), "frmColor");
    editor.Commands().closePopup("popColors");
    editor.Commands().showPopup("popVariabili", editor.mapToGlobal(QPoint(100, 100)));
    take(*editor.findChild<QWidget*>("popVariabili"), "frmEditor_variabili");
    editor.findChild<QWidget*>("popVariabili")->hide();
    editor.tb->setCurrentIndex(1);
    take(editor, "frmEditor_origine");
    editor.tb->setCurrentIndex(2);
    QTest::qWait(700);
    take(editor, "frmEditor_anteprima");
    editor.hide();
}

void takeAll(const QString& message) {
    frmMain& main = finestre::Main();
    clickFirstGroup();
    take(main, "frmMain");
    during(
        "cmdFileAccount", []() -> QWidget& { return finestre::Account(); }, taken("frmAccount"));
    during(
        "cmdPopMailingUserMod", []() -> QWidget& { return finestre::Destinatario(); },
        taken("frmDestinatario"));
    during(
        "cmdHelpInfoSu", []() -> QWidget& { return finestre::InfoSu(); }, taken("frmInfoSu"));
    during(
        "cmdMailingImpTXT", []() -> QWidget& { return finestre::ImpTXT(); }, taken("frmImpTXT"));
    during(
        "cmdMailingImpDB",
        []() -> QWidget& {
            frmImpDB& window = finestre::ImpDB();
            window.findChild<QLineEdit*>("txtDatabase")->setText(percorsoDB);
            window.findChild<QAbstractButton*>("cmdApri")->click();
            window.findChild<QComboBox*>("cmbCmp(2)")->setCurrentText("email");
            return window;
        },
        taken("frmImpDB"));
    finestre::Scelta().show();
    take(finestre::Scelta(), "frmScelta");
    finestre::Scelta().hide();
    during(
        "cmdInvia",
        [&message]() -> QWidget& {
            ui::FileDialog::queue(message);
            auto* pick = finestre::Invia().findChild<QWidget*>("cmdFile");
            QTest::mouseClick(pick, Qt::LeftButton);
            return finestre::Invia();
        },
        taken("frmInvia_pronta"));
    takeEditor(message);
    finestre::Splash().show();
    take(finestre::Splash(), "frmSplash");
}

}  // namespace

int main(int argc, char** argv) {
    return runUnattended(argc, argv, "demo_screenshots FOLDER MESSAGE.mss OUTPUT_FOLDER",
                         [](const QStringList& arguments) {
                             outputFolder = arguments[2];
                             QDir().mkpath(outputFolder);
                             takeAll(arguments[1]);
                         });
}
