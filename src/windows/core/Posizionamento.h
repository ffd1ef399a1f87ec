// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QWidget;

/// The routines that remember the placement of a window, passed by the entry routine to the windows that are
/// placed by them (windows/entry/Posizione.h).
struct Posizionamento {
    std::function<void(QWidget& finestra)> carica;       ///< ignores every failure
    std::function<void(const QWidget& finestra)> salva;  ///< unguarded
};
