// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace ui {

/// An underlined text that acts like a link: a click, or Return while it has the keyboard, activates it.
/// Assistive programs find it as a link that can be pressed.
class LinkLabel : public QLabel {
    Q_OBJECT

  public:
    explicit LinkLabel(const QString& text, QWidget* parent = nullptr);

  Q_SIGNALS:
    void activated();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace ui
