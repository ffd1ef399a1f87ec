// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/import/bWab.h"

#include <array>

#include "modules/core/bFunctions.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Blanks.h"

using contacts::PropertyTag;

namespace {

struct Proprieta {
    PropertyTag tag;
    schema::Campo campo;
};

/// In the order of the calls. The company is read twice; the second value counts.
constexpr std::array<Proprieta, 9> proprieta{{
    {PropertyTag::EmailAddress, schema::email},
    {PropertyTag::DisplayName, schema::nom},
    {PropertyTag::CompanyName, schema::rgs},
    {PropertyTag::CompanyName, schema::rgs},
    {PropertyTag::HomeAddressStreet, schema::ind},
    {PropertyTag::HomeAddressPostalCode, schema::cap},
    {PropertyTag::HomeAddressCity, schema::loc},
    {PropertyTag::BusinessTelephoneNumber, schema::tel},
    {PropertyTag::BusinessFaxNumber, schema::fax},
}};

}  // namespace

QString TagliaNulli(const QString& testo) {
    qsizetype fine = testo.size();
    while (fine > 0 && testo[fine - 1] == QChar::Null)
        --fine;
    return testo.left(fine);
}

std::optional<destinatario::Valori> LeggiVoceWab(const contacts::AddressBook& rubrica,
                                                 const contacts::Entry& voce, QString* rifiutato) {
    destinatario::Valori valori;
    // One buffer for all reads, and none of them clears it: what an earlier, longer value left after a
    // terminator would still be there.
    std::array<char, 256> buffer{};
    for (const auto& [tag, campo] : proprieta) {
        const bool presente = rubrica.text(voce, tag, buffer);
        valori[campo] =
            presente ? TagliaNulli(text::fromAnsi(QByteArrayView(buffer.data(), buffer.size()))) : QString();
    }
    for (QString& valore : valori)
        valore = text::trimBlanks(valore.remove(u'\'')).toString();
    QString& nome = valori[schema::nom];
    if (const qsizetype nullo = nome.indexOf(QChar::Null); nullo >= 0) nome.truncate(nullo);
    if (!EmailValida(valori[schema::email])) {
        if (rifiutato) *rifiutato = valori[schema::email];
        return std::nullopt;
    }
    for (const schema::Campo campo : schema::ordineTabella)
        valori[campo] = destinatario::Taglia(valori[campo], campo);
    return valori;
}
