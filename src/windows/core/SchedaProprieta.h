// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QDialog;
class QLabel;
class QPushButton;
namespace ui {
class PropertyList;
}

/// The controls of a window that is one list of properties.
struct ControlliScheda {
    QLabel* lbl;  ///< heading
    ui::PropertyList* prp;
    QPushButton* cdmSalva;
    QPushButton* cmdAnnulla;
};

/// Lays the window out: a shaded head with an icon and the heading, the list, the two buttons.
void DisponiScheda(QDialog& finestra, const ControlliScheda& controlli, const QString& icona);
