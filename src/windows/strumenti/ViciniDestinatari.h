// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

/// The updates of the main window after a tool changed recipients or groups.
struct ViciniDestinatari {
    std::function<void()> RinfrescaGriglia;  ///< refills the grid, if it shows a group
    std::function<void()> RicaricaAlbero;    ///< rebuilds the tree and opens the current group
};

/// The command "Indirizzi doppi...": lists the addresses that are selected more than once and deselects, on
/// the user's word, all but one of each. A failure is reported, and nothing else happens.
void ControllaDoppi(const ViciniDestinatari& vicini);

/// The command "Recupera cartelle perdute...": lists groups and recipients that are unreachable from the root
/// and puts them, on the user's word, under the root. A failure is reported, and nothing else happens.
void RecuperaPerdute(const ViciniDestinatari& vicini);
