// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QStringList>
#include <vector>

namespace strumenti {

/// The numbers, joined by commas, in texts that are short enough for one statement each.
QStringList Blocchi(const std::vector<std::int32_t>& numeri);

}  // namespace strumenti
