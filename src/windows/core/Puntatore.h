#pragma once

#include <QScopeGuard>

/// The mouse pointer over all windows. Each call replaces all earlier ones.

/// The hourglass, for something slow.
void PuntatoreAttesa();

/// Back to what each window shows by itself.
void PuntatorePredefinito();

/// Runs `opera`, which may be slow and shows no box, with the hourglass.
template <class Opera>
auto conAttesa(Opera&& opera) {
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    return opera();
}
