// SPDX-License-Identifier: GPL-3.0-or-later
// A datagram as a name server could send it, read as the answer to a look-up of exchangers.
#include <cstdint>
#include <cstdlib>

#include "modules/core/Fallimento.h"
#include "modules/send/bMXQuery.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray datagram(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QByteArray buffer = datagram.leftJustified(dimensioneRisposta, '\0', true);
    qsizetype count = 6;
    const std::uint16_t answers = LeggiParola(buffer, count);
    Prosegui prosegui;
    if (MotivoDiRisposta(buffer) == MotivoMX::Nessuno) std::abort();
    const bool sorted = prosegui([&] { LeggiRisposta(buffer, 12, answers); });

    if (static_cast<size_t>(mxCount) != mxList.size() || mxCount > answers) std::abort();
    if (mxList.empty()) {
        if (!bestMX.isEmpty()) std::abort();
        return 0;
    }
    const MXRecord* best = &mxList.front();
    for (size_t i = 1; i < mxList.size(); ++i) {
        if (sorted && mxList[i].preference < mxList[i - 1].preference) std::abort();
        if (mxList[i].preference < best->preference) best = &mxList[i];
    }
    if (bestMX != best->host) std::abort();
    return 0;
}
