// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iterator>
#include <string_view>

#include "modules/lang/bVAR.h"

/// Every text of bVAR by its name in the language file.
namespace bVAR {

struct Testo {
    const char* nome;
    QString* testo;
};

constexpr Testo voce(const char* nome, QString& testo) {
    return {nome, &testo};
}

#define TESTO(nome) voce(#nome, nome)

inline constexpr Testo elenco[] = {
    TESTO(Attenzione),
    TESTO(Lingua),
    TESTO(ChangeLang01),
    TESTO(ImpossibileContinuare),
    TESTO(accNomeVisual),
    TESTO(accEmailCorretta),
    TESTO(accServerSMTP),
    TESTO(accPort),
    TESTO(accAutenticazione),
    TESTO(goSecondi),
    TESTO(AddDestinatario),
    TESTO(goApriEmail),
    TESTO(goEmailDiOutlook),
    TESTO(AzzeraMailing),
    TESTO(FileAssistenza),
    TESTO(DestInserisciEmail),
    TESTO(xxxCAP),
    TESTO(DestAggiungiDestinatario),
    TESTO(DestInserireEmailCorretta),
    TESTO(MailingSalvata),
    TESTO(MailingSalva),
    TESTO(MailingImporta),
    TESTO(MailingOpen),
    TESTO(xxxRagioneSociale),
    TESTO(xxxNome),
    TESTO(xxxPIva),
    TESTO(xxxIndirizzo),
    TESTO(xxxLocalita),
    TESTO(xxxProvincia),
    TESTO(xxxTelefono),
    TESTO(xxxFax),
    TESTO(xxxCampo1),
    TESTO(xxxCampo2),
    TESTO(xxxCampo3),
    TESTO(xxxCampo4),
    TESTO(xxxCampo5),
    TESTO(xxxCampo6),
    TESTO(xxxCampo7),
    TESTO(xxxCampo8),
    TESTO(xxxCampo9),
    TESTO(varModDestinatario),
    TESTO(varTitlePropBody),
    TESTO(varAddDestinatario),
};

#undef TESTO

/// The text of that name. It has to be one of them, which the compiler verifies where it can.
constexpr const QString* Cerca(std::string_view nome) {
    const auto* voce = std::begin(elenco);
    while (nome != voce->nome)
        ++voce;
    return voce->testo;
}

}  // namespace bVAR
