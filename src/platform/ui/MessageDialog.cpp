#include "platform/ui/MessageDialog.h"

#include <QApplication>

#include "platform/ui/DialogOwner.h"
#include "platform/ui/Unattended.h"

namespace ui {

namespace {

QList<int> queuedAnswers;
QList<MessageDialog::Shown> shownBoxes;

QMessageBox::Icon iconOf(int style) {
    switch (style & 0xf0) {
        case 16:
            return QMessageBox::Critical;
        case 32:
            return QMessageBox::Question;
        case 64:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons buttonsOf(int style) {
    return (style & 0x0f) == 4 ? QMessageBox::Yes | QMessageBox::No
                               : QMessageBox::StandardButtons(QMessageBox::Ok);
}

int queuedAnswer(const MessageDialog::Shown& box) {
    if (queuedAnswers.isEmpty()) failUnanswered("message box", qUtf8Printable(box.text));
    const int answer = queuedAnswers.takeFirst();
    const bool offered = box.buttons == QMessageBox::StandardButtons(QMessageBox::Ok)
                             ? answer == MessageDialog::Ok
                             : answer == MessageDialog::Yes || answer == MessageDialog::No;
    if (!offered) failUnanswered("message box that has no such button", qUtf8Printable(box.text));
    return answer;
}

int answerOfUser(const MessageDialog::Shown& box) {
    QMessageBox dialog(box.icon, box.title, QString(box.text).replace("\r\n", "\n"), box.buttons,
                       dialogOwner());
    dialog.setObjectName("messageDialog");
    dialog.setTextFormat(Qt::PlainText);
    if (box.defaultAnswer == MessageDialog::No && box.buttons.testFlag(QMessageBox::No))
        dialog.setDefaultButton(QMessageBox::No);
    switch (dialog.exec()) {
        case QMessageBox::Yes:
            return MessageDialog::Yes;
        case QMessageBox::No:
            return MessageDialog::No;
        default:
            return MessageDialog::Ok;
    }
}

}  // namespace

int MessageDialog::show(const QString& text, int style, const QString& title, int defaultAnswer) {
    Shown box{text, style, title, iconOf(style), buttonsOf(style), Ok, defaultAnswer};
    box.answer = unattended() ? queuedAnswer(box) : answerOfUser(box);
    shownBoxes.append(box);
    return box.answer;
}

void MessageDialog::queue(int answer) {
    queuedAnswers.append(answer);
}

int MessageDialog::queued() {
    return static_cast<int>(queuedAnswers.size());
}

const QList<MessageDialog::Shown>& MessageDialog::shown() {
    return shownBoxes;
}

void MessageDialog::reset() {
    queuedAnswers.clear();
    shownBoxes.clear();
}

}  // namespace ui
