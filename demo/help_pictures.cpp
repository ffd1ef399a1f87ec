// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the pictures of the help in the language of a sample folder.
//
//     demo_help_pictures FOLDER MESSAGE.mss OUTPUT_FOLDER
//
// FOLDER is a program folder made by demo_make.
#include <algorithm>
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "controls.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/FileDialog.h"
#include "unattended.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/Finestre.h"
#include "windows/import/frmImpTXT.h"
#include "windows/message/frmEditor.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmMain.h"

namespace {

QString sampleFolder;
QString outputFolder;

/// With only the window's most frequent colours, which are nearly all: a third of the octets.
QImage withFewColours(const QImage& picture) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(), [&](QRgb one, QRgb other) {
        return counts[one] != counts[other] ? counts[one] > counts[other] : one < other;
    });
    return picture.convertToFormat(QImage::Format_Indexed8, colours.first(qMin(colours.size(), 256)),
                                   Qt::ThresholdDither | Qt::AvoidDither);
}

void take(QWidget& window, const QString& name) {
    QTest::qWait(150);
    const QImage picture = withFewColours(window.grab().toImage().convertToFormat(QImage::Format_RGB32));
    if (!picture.save(outputFolder + '/' + name + ".png", "PNG", 0)) qFatal("cannot write a picture");
}

/// What takes the picture of a window under this name.
std::function<void(QWidget&)> taken(const QString& name) {
    return [name](QWidget& window) { take(window, name); };
}

QWidget& filledImport() {
    QWidget& window = finestre::ImpTXT();
    window.findChild<QLineEdit*>("txtPath")->setText(QFileInfo(sampleFolder).path() + "/clienti.txt");
    const int fields[] = {1, 2, 3};
    for (const int field : fields)
        window.findChild<QComboBox*>(QString("cmbCmp(%1)").arg(field - 1))->setCurrentIndex(field);
    return window;
}

QWidget& filledAccount() {
    QWidget& window = finestre::Account();
    window.findChild<QListWidget*>("lstAccount")->setCurrentRow(0);
    window.findChild<QLineEdit*>("txtServerSMTP")->setText("smtp.example.com");
    window.findChild<QLineEdit*>("txtServerPORT")->setText("587");
    return window;
}

void takeAll(const QString& message) {
    frmMain& main = finestre::Main();
    main.resize(900, 420);
    clickFirstGroup();
    take(main, "main");
    during("cmdMailingImpTXT", filledImport, taken("import-text"));
    during("cmdFileAccount", filledAccount, taken("account"));
    during(
        "cmdInvia",
        [&message]() -> QWidget& {
            ui::FileDialog::queue(message);
            QWidget& window = finestre::Invia();
            QTest::mouseClick(window.findChild<QWidget*>("cmdFile"), Qt::LeftButton);
            return window;
        },
        taken("send"));

    frmEditor& editor = finestre::Editor();
    editor.NuovoMessaggio();
    editor.show();
    editor.DHTML->wake();
    ui::FileDialog::queue(message);
    editor.findChild<QAction*>("cmdApriMess")->trigger();
    editor.Commands().GetEdit("txtOggetto")->focusProxy()->setFocus();
    QTest::qWait(1000);
    take(editor, "editor");
    editor.hide();
}

}  // namespace

int main(int argc, char** argv) {
    return runUnattended(argc, argv, "demo_help_pictures FOLDER MESSAGE.mss OUTPUT_FOLDER",
                         [](const QStringList& arguments) {
                             sampleFolder = arguments[0];
                             outputFolder = arguments[2];
                             QDir().mkpath(outputFolder);
                             takeAll(arguments[1]);
                         });
}
