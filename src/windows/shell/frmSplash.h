// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The splash: the program's name and version over everything else while the program starts. It closes when
/// the start unloads it.
class frmSplash : public QWidget {
    Q_OBJECT

  public:
    frmSplash();

    /// The load of the window: shows it in the middle of the screen.
    void Carica();
};
