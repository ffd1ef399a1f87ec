#pragma once

#include <QStringList>

#include "modules/lang/bLANG.h"

/// The keys of the language file and what each of them sets: a text of bVAR, or one property of one control
/// of a window. A window that a key names is created by the first text that arrives for it.
namespace bLANG {

/// Empty for a key that is not known.
Destinazione DestinazioneDi(const QString& chiave);

/// Every known key, in no order.
QStringList ChiaviNote();

}  // namespace bLANG
