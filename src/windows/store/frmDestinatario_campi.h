// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "modules/store/Schema.h"
#include "platform/text/Words.h"

/// One text of a recipient, as the recipient form has it in its list.
struct VoceDestinatario {
    const char* chiave;       ///< of the item in the property list
    const char* descrizione;  ///< shown while the item is current; for Words::tr(), "%1" is the limit
};

/// By schema::Campo. The form shows them in schema::ordineIstruzioni, after the yes/no "Spedire".
inline constexpr std::array<VoceDestinatario, schema::numeroCampi> vociDestinatario{{
    {"RagioneSociale", QT_TRANSLATE_NOOP("Vestrola", "Ragione sociale (max %1 caratteri)")},
    {"Nome", QT_TRANSLATE_NOOP("Vestrola", "Nome e/o cognome (max %1 caratteri)")},
    {"PIvaoCodFisc", QT_TRANSLATE_NOOP("Vestrola", "Partita Iva o codice fiscale (max %1 caratteri)")},
    {"Indirizzo", QT_TRANSLATE_NOOP("Vestrola", "Via e numero civico (max %1 caratteri)")},
    {"CAP", QT_TRANSLATE_NOOP("Vestrola", "Codice di avviamento postale (max %1 caratteri)")},
    {"Localit", QT_TRANSLATE_NOOP("Vestrola", "Località (max %1 caratteri)")},
    {"Provincia", "Sigla della provincia (max %1 caratteri)"},
    {"Telefono", QT_TRANSLATE_NOOP("Vestrola", "Numero di telefono (max %1 caratteri)")},
    {"Fax", QT_TRANSLATE_NOOP("Vestrola", "Numero di fax (max %1 caratteri)")},
    {"Email", "Specifica l'Email del destinatario (max %1 caratteri)"},
    {"Campo1", "Campo libero 1 (max %1 caratteri)"},
    {"Campo2", "Campo libero 2 (max %1 caratteri)"},
    {"Campo3", "Campo libero 3 (max %1 caratteri)"},
    {"Campo4", "Campo libero 4 (max %1 caratteri)"},
    {"Campo5", "Campo libero 5 (max %1 caratteri)"},
    {"Campo6", "Campo libero 6 (max %1 caratteri)"},
    {"Campo7", "Campo libero 7 (max %1 caratteri)"},
    {"Campo8", "Campo libero 8 (max %1 caratteri)"},
    {"Campo9", "Campo libero 9 (max %1 caratteri)"},
}};
