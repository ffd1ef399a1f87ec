#pragma once

#include <QScopeGuard>

/// The mouse pointer over all windows. Whatever was set before, and how often, the next call replaces it.

/// The hourglass: something takes its time.
void PuntatoreAttesa();

/// Back to what each window shows by itself.
void PuntatorePredefinito();

/// Runs `opera`, which may take its time and shows no box, with the hourglass.
template <class Opera>
auto conAttesa(Opera&& opera) {
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    return opera();
}
