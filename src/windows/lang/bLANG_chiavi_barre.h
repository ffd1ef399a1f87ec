// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/lang/bLANG_chiavi.h"

namespace bLANG {

/// The keys of the two windows that have bars: commands, menus, tools, panes, tabs.
void aggiungiMain(Chiavi& chiavi, const FinestreTradotte& finestre);
void aggiungiEditor(Chiavi& chiavi, const FinestreTradotte& finestre);

}  // namespace bLANG
