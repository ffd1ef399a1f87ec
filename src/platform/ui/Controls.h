// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

class QFrame;
class QLabel;
class QPushButton;
class QWidget;

/// Measures and controls that the windows share.
namespace ui {

// Logical pixels.
inline constexpr int windowMargin = 12;   ///< between a window's edge and its content
inline constexpr int controlSpacing = 8;  ///< between controls that belong together
inline constexpr int fieldHeight = 26;    ///< least height of a text box or list
inline constexpr int fieldWidth = 100;    ///< least width of a text box for words
inline constexpr int rowHeight = 24;      ///< least height of a row of a list
inline constexpr int buttonWidth = 100;   ///< least width of a command button
inline constexpr int buttonHeight = 28;   ///< least height of a command button

/// Gives a control its object name and returns it.
template <class Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

/// A length that was designed for a font of 10 pt, for the font of a widget; never less than it was.
int scaledToFont(const QWidget& widget, int length);

/// A caption as assistive programs say it: without the mark of its access key and without the colon.
QString spokenCaption(QString caption);

/// Makes a label the one of a control: its access key leads there, and its caption is the control's name for
/// assistive programs.
void bindLabel(QLabel* label, QWidget* control);

/// A command button of a dialog, which presses it by the Enter key only where it is made the default one.
QPushButton* commandButton(const QString& caption, const QString& name, QWidget* parent);

/// Lets a window open at a size, or at what its texts ask for where that is more, at each opening.
void openAtLeast(QWidget& window, const QSize& size);

/// A thin line between two parts of a window, owned by the parent.
QFrame* separatorLine(QWidget* parent);

}  // namespace ui
