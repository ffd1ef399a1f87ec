// Takes the pictures of docs/screenshots: each window over a sample folder, as it stands after a few clicks.
//
//     demo_screenshots FOLDER MESSAGE.mss OUTPUT_FOLDER
//
// FOLDER is a program folder made by demo_make.
#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "accounts/frmAccount.h"
#include "core/bGlobal.h"
#include "core/Finestre.h"
#include "import/frmImpDB.h"
#include "import/frmImpTXT.h"
#include "import/frmScelta.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/GroupTree.h"
#include "send/frmInvia.h"
#include "shell/frmInfoSu.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "store/frmDestinatario.h"
#include "unattended.h"

namespace {

QString outputFolder;

void take(QWidget& window, const QString& name) {
    QTest::qWait(150);
    if (!window.grab().save(outputFolder + '/' + name + ".png")) qFatal("cannot write a picture");
}

/// Runs one command of the main window; its modal window is taken by `meanwhile` and left by hiding it.
void during(const QString& command, const std::function<QWidget&()>& meanwhile, const QString& name) {
    QTimer::singleShot(200, [&] {
        QWidget& window = meanwhile();
        take(window, name);
        window.hide();
    });
    finestre::Main().ComandoPremuto(command);
}

void takeAll(const QString& message) {
    frmMain& main = finestre::Main();
    auto* tree = main.findChild<ui::GroupTree*>("TREE");
    auto* group = tree->topLevelItem(0)->child(0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(group).center());
    take(main, "frmMain");
    during(
        "cmdFileAccount", []() -> QWidget& { return finestre::Account(); }, "frmAccount");
    during(
        "cmdPopMailingUserMod", []() -> QWidget& { return finestre::Destinatario(); }, "frmDestinatario");
    during(
        "cmdHelpInfoSu", []() -> QWidget& { return finestre::InfoSu(); }, "frmInfoSu");
    during(
        "cmdMailingImpTXT", []() -> QWidget& { return finestre::ImpTXT(); }, "frmImpTXT");
    during(
        "cmdMailingImpDB",
        []() -> QWidget& {
            frmImpDB& window = finestre::ImpDB();
            window.findChild<QLineEdit*>("txtDatabase")->setText(percorsoDB);
            window.findChild<QAbstractButton*>("cmdApri")->click();
            window.findChild<QComboBox*>("cmbCmp(2)")->setCurrentText("email");
            return window;
        },
        "frmImpDB");
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
        "frmInvia_pronta");
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
