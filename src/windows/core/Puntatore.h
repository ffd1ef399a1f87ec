// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScopeGuard>

#include "platform/ui/PaintedWork.h"

/// The mouse pointer over all windows. Each call replaces all earlier ones.

/// The hourglass, for something slow.
void PuntatoreAttesa();

/// Back to what each window shows by itself.
void PuntatorePredefinito();

/// Runs `opera`, which may be slow and shows no box, with the hourglass. Windows are not painted meanwhile.
template <class Opera>
auto conAttesa(Opera&& opera) {
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    return opera();
}

/// The same in a thread of its own, for what needs no window: they are painted meanwhile
/// (platform/ui/PaintedWork.h).
template <class Opera>
auto inDisparte(Opera&& opera) {
    return conAttesa([&] { return ui::painted(opera); });
}
