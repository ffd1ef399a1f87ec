// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// A window's placement at the end of the last run: the file "<name of the window>.imp" in the data folder.
/// docs/formats/posizione.md shows its lines. Positions are twips, 15 to a pixel. Both routines work through
/// the one buffer posLeft … posWindowState, which is never reset: what a file lacks stays as it is in the
/// buffer.

/// Puts a window where its file says. Ignores every failure; a file that is missing, or damaged so that
/// nothing was ever read, leaves the window at its design place.
void CaricaPosizioneForm(QWidget& finestra);

/// Writes a window's file. The state is always that of the main window; a rectangle goes into the buffer only
/// while that state is normal, so that a maximised window keeps the rectangle that was read. Unguarded.
void SalvaPosizioneForm(const QWidget& finestra);

/// A placement that does not come from a file of the window, in the units of those files.
struct Rettangolo {
    int sinistra = 0;
    int alto = 0;
    int larghezza = 0;
    int altezza = 0;
    int stato = 0;
};

/// The placement of a window as SalvaPosizioneForm would write it.
Rettangolo PosizioneDi(const QWidget& finestra);
/// Puts a window there as CaricaPosizioneForm would, through the buffer. Ignores every failure.
void MettiInPosizione(QWidget& finestra, const Rettangolo& posizione);
