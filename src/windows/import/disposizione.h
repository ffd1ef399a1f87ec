// SPDX-License-Identifier: GPL-3.0-or-later
// The common layout of the windows of the imports.
#pragma once

#include <initializer_list>

class QDialog;
class QLabel;
class QPushButton;
class QWidget;
class RiquadroCampi;
class RiquadroCartella;

/// One line of the controls that name the source of an import.
struct RigaSorgente {
    QLabel* etichetta;
    QWidget* campo;
    QPushButton* pulsante = nullptr;  ///< at the field's right, where there is one
};

/// Lays out a window of the imports: the source and the boxes of the columns, then a line, the question for
/// the group, and the buttons at the bottom right. A window without a source has no `campi` either.
void DisponiImportazione(QDialog& finestra, std::initializer_list<RigaSorgente> sorgente,
                         RiquadroCampi* campi, RiquadroCartella& cartella,
                         std::initializer_list<QPushButton*> comandi);
