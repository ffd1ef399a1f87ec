#pragma once

#include <QHash>

#include "modules/lang/bLANG.h"

namespace bLANG {

using Chiavi = QHash<QString, Destinazione>;

/// The keys of the two windows that have bars: commands, menus, tools, panes, tabs.
void aggiungiMain(Chiavi& chiavi);
void aggiungiEditor(Chiavi& chiavi);

}  // namespace bLANG
