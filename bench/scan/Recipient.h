// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "platform/jet/Value.h"

namespace bench {

inline constexpr size_t groups = 12;

/// Values of a row of tb_destinatari as a real list has them: most fields short and plain, some accents, some
/// empty, some Null.
inline std::vector<jet::Value> recipient(size_t n) {
    static const char* towns[] = {"Roma",   "Milano", "L'Aquila", "Forlì", "Cantù", "San Donà di Piave",
                                  "Bolzano"};
    static const char* provinces[] = {"RM", "MI", "AQ", "FC", "CO", "VE", "BZ"};
    static const char* names[] = {"Giulia Bianchi", "Niccolò D'Amico", "Anna Maria Però", "Luca Rossi"};
    const std::string number = std::to_string(n);
    std::vector<jet::Value> row(22);
    row[1] = static_cast<int64_t>(n % groups + 1);
    row[2] = "Azienda " + number + (n % 3 ? " S.r.l." : " & C. – società agricola");
    row[3] = std::string(names[n % 4]);
    row[4] = std::string("IT0") + std::to_string(1000000000 + n);
    row[5] = "Via della Libertà " + std::to_string(n % 300) + ", scala B, interno " + std::to_string(n % 40);
    row[6] = std::to_string(10000 + n % 90000);
    row[7] = std::string(towns[n % 7]);
    row[8] = std::string(provinces[n % 7]);
    row[9] = "06 " + std::to_string(5000000 + n % 4000000);
    if (n % 5) row[10] = "06 " + std::to_string(6000000 + n % 3000000);
    row[11] = "contatto" + number + "@azienda" + std::to_string(n % 5000) + ".example";
    row[12] = "Cliente dal " + std::to_string(1990 + n % 30);
    row[13] = std::string(n % 2 ? "Listino A" : "");
    if (n % 4 == 0) row[14] = "Nota: preferisce essere contattato al mattino, codice " + number;
    row[21] = n % 2 == 0;
    return row;
}

}  // namespace bench
