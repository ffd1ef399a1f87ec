// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include "platform/Status.h"

namespace strumenti {

/// Goes over a table in parts to its end. `parte` runs for about the given time and returns
/// whether that was all (ado::TableWalk::step); `respiro` runs between two parts and lets windows be painted.
/// Unguarded.
void GiraTutto(const std::function<Result<bool>(std::chrono::microseconds)>& parte,
               const std::function<void()>& respiro);

}  // namespace strumenti
