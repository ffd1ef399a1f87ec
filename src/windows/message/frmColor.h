// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class HtmlView;
namespace ui {
class ColorHexagon;
class CommandBars;
}  // namespace ui

/// The colours for the text, hosted in the panel "pwnColor" of the editor's bar.
class frmColor : public QWidget {
    Q_OBJECT

  public:
    /// The colours of `vista`, in a panel of `barre`; both outlive the window.
    frmColor(HtmlView& vista, ui::CommandBars& barre, QWidget* parent = nullptr);

    /// Selects the colour that the text has at the selection of the design view.
    void PrendiColore();

    ui::ColorHexagon* const color;

  private:
    void ColorePreso(quint32 colore);

    HtmlView& DHTML;
    ui::CommandBars& barreEditor;
};
