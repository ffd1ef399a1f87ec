#pragma once

#include <array>

#include "modules/store/Schema.h"

/// One text of a recipient, as the recipient form has it in its list.
struct VoceDestinatario {
    const char* chiave;       ///< of the item in the property list
    const char* descrizione;  ///< shown, with the limit, while the item is current
};

/// By schema::Campo. The form shows them in schema::ordineIstruzioni, after the yes/no "Spedire".
inline constexpr std::array<VoceDestinatario, schema::numeroCampi> vociDestinatario{{
    {"RagioneSociale", "Ragione sociale"},
    {"Nome", "Nome e/o cognome"},
    {"PIvaoCodFisc", "Partita Iva o codice fiscale"},
    {"Indirizzo", "Via e numero civico"},
    {"CAP", "Codice di avviamento postale"},
    {"Localit", "Località"},
    {"Provincia", "Sigla della provincia"},
    {"Telefono", "Numero di telefono"},
    {"Fax", "Numero di fax"},
    {"Email", "Specifica l'Email del destinatario"},
    {"Campo1", "Campo libero 1"},
    {"Campo2", "Campo libero 2"},
    {"Campo3", "Campo libero 3"},
    {"Campo4", "Campo libero 4"},
    {"Campo5", "Campo libero 5"},
    {"Campo6", "Campo libero 6"},
    {"Campo7", "Campo libero 7"},
    {"Campo8", "Campo libero 8"},
    {"Campo9", "Campo libero 9"},
}};
