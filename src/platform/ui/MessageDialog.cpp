// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/MessageDialog.h"

#include <algorithm>
#include <QAbstractButton>
#include <QApplication>

#include "platform/text/Words.h"
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

struct Offered {
    QMessageBox::StandardButton button;
    int answer;
    const char* caption;  ///< null for the desktop's own
};
constexpr Offered answers[] = {
    {QMessageBox::Ok, MessageDialog::Ok, nullptr},
    {QMessageBox::Close, MessageDialog::Ok, QT_TRANSLATE_NOOP("Vestrola", "&Chiudi")},
    {QMessageBox::Retry, MessageDialog::Restart, QT_TRANSLATE_NOOP("Vestrola", "&Riavvia")},
    {QMessageBox::Yes, MessageDialog::Yes, nullptr},
    {QMessageBox::No, MessageDialog::No, nullptr}};

int queuedAnswer(const MessageDialog::Shown& box) {
    if (queuedAnswers.isEmpty()) failUnanswered("message box", qUtf8Printable(box.text));
    const int answer = queuedAnswers.takeFirst();
    const bool offered = (answer == MessageDialog::YesAlways && box.remembers) ||
                         std::any_of(std::begin(answers), std::end(answers), [&](const Offered& one) {
                             return box.buttons.testFlag(one.button) && answer == one.answer;
                         });
    if (!offered) failUnanswered("message box that has no such button", qUtf8Printable(box.text));
    return answer;
}

QString lines(QString text) {
    return text.replace("\r\n", "\n");
}

int answerOfUser(const MessageDialog::Shown& box) {
    QMessageBox dialog(box.icon, box.title, lines(box.text), box.buttons, dialogOwner());
    dialog.setObjectName("messageDialog");
    dialog.setTextFormat(Qt::PlainText);
    // A screen reader reads the name of a window that comes up, and its description with it.
    dialog.setAccessibleDescription(dialog.text());
    if (box.defaultAnswer == MessageDialog::No && box.buttons.testFlag(QMessageBox::No))
        dialog.setDefaultButton(QMessageBox::No);
    dialog.setInformativeText(lines(box.details));
    for (const Offered& one : answers)
        if (QAbstractButton* button = dialog.button(one.button); button && one.caption)
            button->setText(Words::tr(one.caption));
    if (box.buttons.testFlag(QMessageBox::Close)) {
        dialog.setDefaultButton(QMessageBox::Close);
        dialog.setEscapeButton(QMessageBox::Close);
    }
    keepAboveOwner(dialog);
    const int pressed = dialog.exec();
    for (const Offered& one : answers)
        if (pressed == one.button) return one.answer;
    return MessageDialog::Ok;
}

int answerTo(MessageDialog::Shown box) {
    box.answer = unattended() ? queuedAnswer(box) : answerOfUser(box);
    shownBoxes.append(box);
    return box.answer;
}

int answerOfUser(const ListQuestion::Content& question) {
    ListQuestion dialog(dialogOwner(), question);
    keepAboveOwner(dialog);
    if (dialog.exec() != QDialog::Accepted) return MessageDialog::No;
    return dialog.remembers() ? MessageDialog::YesAlways : MessageDialog::Yes;
}

}  // namespace

int MessageDialog::show(const QString& text, int style, const QString& title, int defaultAnswer) {
    return answerTo({text, style, title, iconOf(style), buttonsOf(style), Ok, defaultAnswer, {}});
}

int MessageDialog::showFailure(const QString& text, const QString& details, bool offerRestart,
                               const QString& title) {
    QMessageBox::StandardButtons buttons = QMessageBox::Close;
    if (offerRestart) buttons |= QMessageBox::Retry;
    return answerTo({text, Stop, title, iconOf(Stop), buttons, Ok, Ok, details});
}

int MessageDialog::askAbout(const ListQuestion::Content& question) {
    Shown box{question.text,
              AskNotice,
              question.title,
              iconOf(AskNotice),
              buttonsOf(AskNotice),
              Ok,
              No,
              {},
              question.rows,
              !question.remember.isEmpty()};
    box.answer = unattended() ? queuedAnswer(box) : answerOfUser(question);
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
