// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Porta.h"

#include <limits>

#include "modules/core/Fallimento.h"
#include "platform/text/NumberText.h"

quint16 NumeroPorta(const QString& testo) {
    const auto numero = esigi(text::int32FromText(testo));
    if (numero < 0 || numero > std::numeric_limits<quint16>::max()) fallisci(ErrorCode::Overflow);
    return static_cast<quint16>(numero);
}
