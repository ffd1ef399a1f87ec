// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/JetCheckerFile.h"

namespace jetcheck {

/// The valid encodings of a value in an index key; text with letters that count as one or as two places has
/// two. Empty when the table of weights has no entry.
std::vector<Bytes> keyForms(unsigned type, bool ascending, const Stored& value);

}  // namespace jetcheck
