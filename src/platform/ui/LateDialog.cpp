// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/LateDialog.h"

#include <utility>

namespace ui {

void LateDialog::complete() {
    if (std::exchange(m_complete, true)) return;
    makeControls();
    for (const std::function<void()>& work : std::exchange(m_waiting, {}))
        work();
}

void LateDialog::whenComplete(std::function<void()> work) {
    if (m_complete)
        work();
    else
        m_waiting.push_back(std::move(work));
}

void LateDialog::setVisible(bool visible) {
    if (visible) complete();
    QDialog::setVisible(visible);
}

}  // namespace ui
