// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>

#include "modules/lang/bLANG.h"

namespace bLANG {

struct FinestreTradotte;

/// The keys of the language file and what each of them sets: a text of bVAR, or one property of one control
/// of a window.
using Chiavi = QHash<QString, Destinazione>;

/// Every known key. A window that a key names is made by the first text that arrives for it.
Chiavi TutteLeChiavi(const FinestreTradotte& finestre);

}  // namespace bLANG
