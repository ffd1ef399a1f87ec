#pragma once

#include <functional>

class QWidget;

/// The routines that remember where a window stood, as the entry routine hands them to the windows that are
/// placed by them (windows/entry/Posizione.h).
struct Posizionamento {
    std::function<void(QWidget& finestra)> carica;       ///< ignores every failure
    std::function<void(const QWidget& finestra)> salva;  ///< unguarded
};
