// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace text {

/// The text without the blanks (U+0020, nothing else) at both ends. The result is a view into the given text.
QStringView trimBlanks(QStringView text);

}  // namespace text
