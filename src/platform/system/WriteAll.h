// SPDX-License-Identifier: GPL-3.0-or-later
// Writing to a descriptor until everything is written.
#pragma once

#include <QByteArrayView>

namespace sys {

/// Writes all bytes at the descriptor's position. False where that fails, with errno; a part may be written.
bool writeAll(int file, QByteArrayView bytes);

}  // namespace sys
