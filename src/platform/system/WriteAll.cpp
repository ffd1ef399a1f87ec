// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/WriteAll.h"

#include <unistd.h>
#include <cerrno>

namespace sys {

bool writeAll(int file, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t wrote = ::write(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (wrote < 0 && errno == EINTR) continue;
        if (wrote < 0) return false;
        bytes = bytes.sliced(wrote);
    }
    return true;
}

}  // namespace sys
