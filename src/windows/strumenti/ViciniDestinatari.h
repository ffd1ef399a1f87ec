#pragma once

#include <functional>

/// What the tools that change recipients or groups need of the main window afterwards.
struct ViciniDestinatari {
    std::function<void()> RinfrescaGriglia;  ///< fills the grid anew, if it shows a group
    std::function<void()> RicaricaAlbero;    ///< builds the tree anew and opens the current group
};

/// The command "Indirizzi doppi...": lists the addresses that are selected more than once and deselects, on
/// the user's word, all but one of each. What fails is told, and nothing else happens.
void ControllaDoppi(const ViciniDestinatari& vicini);

/// The command "Recupera cartelle perdute...": lists groups and recipients that no way from the root reaches
/// and puts them, on the user's word, under the root. What fails is told, and nothing else happens.
void RecuperaPerdute(const ViciniDestinatari& vicini);
