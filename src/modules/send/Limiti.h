// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QDateTime>
#include <QString>

/// The limits on the speed of a run: pause, time-out and block limit.

/// Milliseconds between two messages, from the text of the pause list: its first three characters as seconds
/// with "." as decimal point; 200 for nothing.
int MillisecondiPausa(const QString& testo);

/// Whole seconds, from the first three characters of the text of the time-out list.
int SecondiTimeout(const QString& testo);

/// At most bloccoMax messages in bloccoSecondi seconds. Time is read from sys::clock() in whole seconds of
/// the clock.
struct LimiteBlocco {
    bool bloccoAttivo = false;
    std::int32_t bloccoSecondi = 0;
    std::int32_t bloccoMax = 0;
    std::int32_t bloccoConta = 0;
    std::int32_t bloccoTrascorsi = 0;
    QDateTime bloccoInizio;

    /// Starts the first window. The texts are numbers of the user's locale, the minutes with decimals; one
    /// that is no number leaves its value as it was.
    void avvia(const QString& txtBloccoMin, const QString& txtBloccoNum);

    /// The step at the end of a message when more will follow. Once the limit is reached it blocks the thread
    /// until the window is over and starts a new one. A window that runs out below the limit ends the
    /// limiting.
    void applica();
};
