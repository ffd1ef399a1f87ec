// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/Giro.h"

#include "modules/core/Fallimento.h"

void strumenti::GiraTutto(const std::function<Result<bool>(std::chrono::microseconds)>& parte,
                          const std::function<void()>& respiro) {
    constexpr std::chrono::milliseconds unaParte{15};
    while (!esigi(parte(unaParte)))
        respiro();
}
