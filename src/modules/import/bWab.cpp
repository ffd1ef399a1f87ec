#include "modules/import/bWab.h"

#include <array>

#include "modules/core/bFunctions.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Blanks.h"

using contacts::PropertyTag;

namespace {

struct Proprieta {
    PropertyTag tag;
    inserimento::Colonna colonna;
};

/// In the order of the calls. The company is asked for twice; the second answer stands.
constexpr std::array<Proprieta, 9> proprieta{{
    {PropertyTag::EmailAddress, inserimento::email},
    {PropertyTag::DisplayName, inserimento::nom},
    {PropertyTag::CompanyName, inserimento::rgs},
    {PropertyTag::CompanyName, inserimento::rgs},
    {PropertyTag::HomeAddressStreet, inserimento::ind},
    {PropertyTag::HomeAddressPostalCode, inserimento::cap},
    {PropertyTag::HomeAddressCity, inserimento::loc},
    {PropertyTag::BusinessTelephoneNumber, inserimento::tel},
    {PropertyTag::BusinessFaxNumber, inserimento::fax},
}};

}  // namespace

QString TagliaNulli(const QString& testo) {
    qsizetype fine = testo.size();
    while (fine > 0 && testo[fine - 1] == QChar::Null)
        --fine;
    return testo.left(fine);
}

std::optional<inserimento::Valori> LeggiVoceWab(const contacts::AddressBook& rubrica,
                                                const contacts::Entry& voce, QString* rifiutato) {
    inserimento::Valori valori;
    // One buffer for all reads, and none of them clears it: what an earlier, longer value left behind a
    // terminator would still stand there.
    std::array<char, 256> buffer{};
    for (const auto& [tag, colonna] : proprieta) {
        const bool presente = rubrica.text(voce, tag, buffer);
        valori[colonna] =
            presente ? TagliaNulli(text::fromAnsi(QByteArrayView(buffer.data(), buffer.size()))) : QString();
    }
    for (QString& valore : valori)
        valore = text::trimBlanks(valore.remove(u'\'')).toString();
    QString& nome = valori[inserimento::nom];
    if (const qsizetype nullo = nome.indexOf(QChar::Null); nullo >= 0) nome.truncate(nullo);
    if (!EmailValida(valori[inserimento::email])) {
        if (rifiutato) *rifiutato = valori[inserimento::email];
        return std::nullopt;
    }
    for (int i = 0; i < inserimento::numeroColonne; ++i) {
        const auto colonna = static_cast<inserimento::Colonna>(i);
        valori[colonna] = inserimento::Taglia(valori[colonna], colonna);
    }
    return valori;
}
