#pragma once

#include "support/JetCheckerFile.h"

namespace jetcheck {

/// The forms that the part of an index key may have for a value; text with letters that count as one or as
/// two places has two. Empty when the table of weights does not tell.
std::vector<Bytes> keyForms(unsigned type, bool ascending, const Stored& value);

}  // namespace jetcheck
