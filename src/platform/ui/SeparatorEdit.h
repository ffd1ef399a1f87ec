// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ui/LineEdit.h"

namespace ui {

/// A text box for what is between two fields of a file. Ctrl+Tab puts a tab in, which the box shows as an
/// arrow.
class SeparatorEdit : public LineEdit {
  public:
    explicit SeparatorEdit(QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* key) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void tellTabs();
};

}  // namespace ui
