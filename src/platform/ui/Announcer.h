// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace ui {

/// Sends sentences to assistive programs, which read each when it comes: a notification in the corner of its
/// window, of which there is nothing to see.
class Announcer : public QWidget {
    Q_OBJECT

  public:
    explicit Announcer(QWidget* window);

    void say(const QString& sentence);
};

}  // namespace ui
