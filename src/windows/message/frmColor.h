#pragma once

#include <QWidget>

namespace ui {
class ColorHexagon;
}

/// The colours for the text, hosted in the panel "pwnColor" of the editor's bar.
class frmColor : public QWidget {
    Q_OBJECT

  public:
    explicit frmColor(QWidget* parent = nullptr);

    /// Selects the colour that the text has at the selection of the design view.
    void PrendiColore();

    ui::ColorHexagon* const color;

  private:
    void ColorePreso(quint32 colore);
};
