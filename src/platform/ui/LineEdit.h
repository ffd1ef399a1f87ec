// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace ui {

/// A box for one line of text, the one that every window uses. A line break that comes in, pasted, dropped or
/// set, becomes a blank (CR LF one for both): the files that the texts go into are made of lines.
class LineEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit LineEdit(QWidget* parent = nullptr) : LineEdit(QString(), parent) {}
    explicit LineEdit(const QString& text, QWidget* parent = nullptr);

    /// The same for a box made elsewhere.
    static void keepToOneLine(QLineEdit& box);
};

}  // namespace ui
