// SPDX-License-Identifier: GPL-3.0-or-later
// Drives the program's own windows through one run, as a user would with the mouse: opens the send window
// from the main window's menu, picks the message and a log, starts, waits for the end, closes.
//
//     demo_send FOLDER MESSAGE.mss LOG.xt1 SCREENSHOT.png
//
// FOLDER is the program folder. LOG and SCREENSHOT may be "-" for none. Ends with 0 when the run came to its
// end.
#include <QAbstractButton>
#include <QAction>
#include <QTest>
#include <QTimer>

#include "controls.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/ProgressCounter.h"
#include "unattended.h"
#include "windows/entry/Finestre.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmMain.h"

namespace {

/// The run is over when the start button can be pressed again. The picture shows it half way.
void waitForEnd(QWidget& window, const QString& screenshot) {
    auto* start = find<QAbstractButton>(window, "cmdInvia");
    auto* left = find<ui::ProgressCounter>(window, "prgDaInviare");
    bool taken = screenshot == "-";
    while (!start->isEnabled()) {
        if (!taken && left->value() <= left->maximum() / 2) {
            taken = true;
            if (!window.grab().save(screenshot)) qFatal("cannot write the screenshot");
        }
        QTest::qWait(20);
    }
}

struct Choices {
    QString message;
    QString log;
    QString screenshot;
};

void runOnce(const Choices& choices) {
    frmInvia& window = finestre::Invia();
    if (!window.isVisible()) qFatal("the send window is not open");
    ui::FileDialog::queue(choices.message);
    click(window, "cmdFile");
    if (choices.log != "-") {
        ui::FileDialog::queue(choices.log);
        click(window, "chkLog");
    }
    // To the question about the attachment and the logo: the message was not saved in the editor.
    ui::MessageDialog::queue(ui::MessageDialog::Yes);
    click(window, "cmdInvia");
    waitForEnd(window, choices.screenshot);
    click(window, "cmdChiudi");
}

}  // namespace

int main(int argc, char** argv) {
    return runUnattended(argc, argv, "demo_send FOLDER MESSAGE.mss LOG.xt1 SCREENSHOT.png",
                         [](const QStringList& arguments) {
                             const Choices choices{arguments[1], arguments[2], arguments[3]};
                             auto* command = finestre::Main().findChild<QAction*>("cmdInvia");
                             if (!command) qFatal("the main window has no command cmdInvia");
                             QTimer::singleShot(0, [&choices] { runOnce(choices); });
                             command->trigger();
                         });
}
