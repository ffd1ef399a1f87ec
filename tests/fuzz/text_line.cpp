// SPDX-License-Identifier: GPL-3.0-or-later
// A line of a delimited text file under any choice of separator and fields.
//
// The first byte is the length of the separator (its low three bits), the next 19 the fields of the boxes,
// then come the separator and the line.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "modules/core/Fallimento.h"
#include "modules/import/RigaTesto.h"
#include "modules/store/Destinatario.h"
#include "platform/text/AnsiCodec.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

void check(const destinatario::Valori& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        require(values[i].size() <= schema::testi[i].massimo);
        require(!values[i].contains(u'\'') && !values[i].contains(u'"'));
        require(!values[i].startsWith(u' ') && !values[i].endsWith(u' '));
    }
    // Nothing but the quotes around the values: the statement is always well formed.
    const QString statement =
        destinatario::IstruzioneNuovo(QStringLiteral("0"), QStringLiteral("True"), values);
    require(statement.count(u'\'') == 2 * static_cast<qsizetype>(values.size()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr std::size_t header = 1 + campi::quanti;
    if (size < header) return 0;
    RigaTesto rule;
    for (std::size_t i = 0; i < rule.posizioni.size(); ++i)
        rule.posizioni[i] = data[1 + i] % (RigaTesto::campiOfferti + 1);
    const std::vector<char> bytes(data + header, data + size);
    const QString text = text::fromAnsi(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    const qsizetype separator = std::min<qsizetype>(data[0] % 8, text.size());
    rule.separatore = text.first(separator);
    const QString line = text.sliced(separator);
    const int wanted = rule.posizioni[campi::boxEmail];
    const qsizetype fields = line.isEmpty() ? 0 : separator == 0 ? 1 : line.count(rule.separatore) + 1;
    try {
        if (const auto values = rule.Leggi(line)) check(*values);
        require(wanted >= 1 && wanted <= fields);
    } catch (const Fallimento& failure) {
        require(failure.numero() == static_cast<int>(ErrorCode::SubscriptOutOfRange));
    }
    return 0;
}
