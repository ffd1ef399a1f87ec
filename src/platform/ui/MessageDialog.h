// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMessageBox>
#include <QString>
#include <QStringList>

#include "platform/ui/ListQuestion.h"

namespace ui {

/// The one way to show a message box. Boxes are modal; the text is plain text whatever it contains.
class MessageDialog {
  public:
    /// What the user sees, by the number that the program's texts are written with: low bits for the buttons
    /// (0 OK, 4 Yes and No), then the icon (16 stop, 32 question, 64 information).
    enum Style : int { Plain = 0, Stop = 16, AskQuestion = 36, Notice = 64, AskNotice = 68 };
    /// Ok is also the one that closes a failure's box.
    /// YesAlways is Yes to a question with a list whose check box is on.
    enum Answer : int { Ok = 1, Restart = 4, Yes = 6, No = 7, YesAlways = 8 };

    /// A box as it was shown.
    struct Shown {
        QString text;
        int style = Plain;
        QString title;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons = QMessageBox::Ok;
        int answer = Ok;
        int defaultAnswer = Yes;    ///< of a box of Yes and No: what Return presses
        QString details;            ///< what is below the text of a failure
        QList<QStringList> rows{};  ///< of a question with a list
        bool remembers = false;     ///< it has a check box
    };

    /// Shows a box over the active window and waits for its answer. Lines are separated by CR LF. Closing a
    /// box of Yes and No by Esc answers No; `defaultAnswer` (Yes or No) says what Return presses in it.
    static int show(const QString& text, int style, const QString& title, int defaultAnswer = Yes);

    /// Shows a failure that ends the program, with the details below its text, and waits until it is closed
    /// (Ok, the default, "Chiudi") or, where that is offered, answered by Restart ("Riavvia").
    static int showFailure(const QString& text, const QString& details, bool offerRestart,
                           const QString& title);

    /// Asks about a list of items, with "No" as what Return and Esc press: Yes, YesAlways or No.
    static int askAbout(const ListQuestion::Content& question);

    /// For unattended runs: the answer of the next box that is not answered yet. A box that meets an empty
    /// queue ends the program, so that a run never hangs; so does an answer that the box does not offer.
    static void queue(int answer);
    static int queued();
    /// Every box since the last reset(), answered by a person or from the queue.
    static const QList<Shown>& shown();
    static void reset();
};

}  // namespace ui
