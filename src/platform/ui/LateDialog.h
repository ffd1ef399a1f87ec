// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QDialog>
#include <vector>

namespace ui {

/// A dialog whose controls are made when they are first needed, since most runs of the program never show it:
/// by its first showing, or by complete() where somebody reads or fills them before.
class LateDialog : public QDialog {
  public:
    using QDialog::QDialog;

    /// Makes the controls and runs what waits for them. Has an effect once.
    void complete();

    /// Runs `work`, which needs the controls: at once where they are there, otherwise as soon as they are
    /// made, in the order of the calls.
    void whenComplete(std::function<void()> work);

    void setVisible(bool visible) override;

  protected:
    virtual void makeControls() = 0;

  private:
    bool m_complete = false;
    std::vector<std::function<void()>> m_waiting;
};

}  // namespace ui
