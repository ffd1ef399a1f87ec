#pragma once

#include <array>

#include "modules/lang/bVAR.h"

/// One text of a recipient, as the recipient form shows it.
struct CampoDestinatario {
    const char* chiave;         ///< of the item in the property list
    const QString* didascalia;  ///< null for the address, whose caption is not translated
    int massimo;                ///< most characters
    const char* colonna;        ///< of the table
    int colonnaGriglia;
    const char* descrizione;  ///< shown while the item is current
};

/// In the order of the form, behind the yes/no "Spedire" (column "sel", grid column 2).
inline constexpr std::array<CampoDestinatario, 19> campiDestinatario{{
    {"Email", nullptr, 255, "email", 3, "Specifica l'Email del destinatario (max 255 caratteri)"},
    {"RagioneSociale", &bVAR::xxxRagioneSociale, 70, "rgs", 5, "Ragione sociale (max 70 caratteri)"},
    {"Nome", &bVAR::xxxNome, 70, "nom", 6, "Nome e/o cognome (max 70 caratteri)"},
    {"PIvaoCodFisc", &bVAR::xxxPIva, 15, "piva", 7, "Partita Iva o codice fiscale (max 15 caratteri)"},
    {"Indirizzo", &bVAR::xxxIndirizzo, 255, "ind", 8, "Via e numero civico (max 255 caratteri)"},
    {"CAP", &bVAR::xxxCAP, 10, "cap", 9, "Codice di avviamento postale (max 10 caratteri)"},
    {"Localit", &bVAR::xxxLocalita, 70, "loc", 10, "Località (max 70 caratteri)"},
    {"Provincia", &bVAR::xxxProvincia, 2, "prov", 11, "Sigla della provincia (max 2 caratteri)"},
    {"Telefono", &bVAR::xxxTelefono, 15, "tel", 12, "Numero di telefono (max 15 caratteri)"},
    {"Fax", &bVAR::xxxFax, 15, "fax", 13, "Numero di fax (max 15 caratteri)"},
    {"Campo1", &bVAR::xxxCampo1, 255, "campo1", 14, "Campo libero 1 (max 255 caratteri)"},
    {"Campo2", &bVAR::xxxCampo2, 255, "campo2", 15, "Campo libero 2 (max 255 caratteri)"},
    {"Campo3", &bVAR::xxxCampo3, 255, "campo3", 16, "Campo libero 3 (max 255 caratteri)"},
    {"Campo4", &bVAR::xxxCampo4, 255, "campo4", 17, "Campo libero 4 (max 255 caratteri)"},
    {"Campo5", &bVAR::xxxCampo5, 255, "campo5", 18, "Campo libero 5 (max 255 caratteri)"},
    {"Campo6", &bVAR::xxxCampo6, 255, "campo6", 19, "Campo libero 6 (max 255 caratteri)"},
    {"Campo7", &bVAR::xxxCampo7, 255, "campo7", 20, "Campo libero 7 (max 255 caratteri)"},
    {"Campo8", &bVAR::xxxCampo8, 255, "campo8", 21, "Campo libero 8 (max 255 caratteri)"},
    {"Campo9", &bVAR::xxxCampo9, 255, "campo9", 22, "Campo libero 9 (max 255 caratteri)"},
}};
