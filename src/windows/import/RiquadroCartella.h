// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QWidget>

#include "windows/import/cartella.h"

class QLabel;
class QLineEdit;
class QRadioButton;

/// The question into which group the new recipients go, in the windows of the imports: a
/// label, two options, and the name of a new group, which can be changed while the second option is chosen.
class RiquadroCartella : public QWidget {
    Q_OBJECT

  public:
    RiquadroCartella(const QString& nomeEtichetta, QWidget* parent);

    /// Both options at once: 0 the selected group, 1 a new one.
    cartella::Scelta Scelta() const;

  protected:
    void showEvent(QShowEvent* mostra) override;

  private:
    void opt_Click();

    QLabel* lbl;
    std::array<QRadioButton*, 2> opt;
    QLineEdit* txtCartella;
};
