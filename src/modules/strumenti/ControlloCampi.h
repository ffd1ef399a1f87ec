// SPDX-License-Identifier: GPL-3.0-or-later
// The check of the values of all selected recipients for the placeholders that a message uses.
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <QtGlobal>

#include "modules/send/Personalizza.h"
#include "platform/ado/Recordset.h"

/// Where a placeholder occurs in a message.
struct UsoSegnaposto {
    bool inTesto = false;      ///< between the tags of the HTML form
    bool inAttributo = false;  ///< inside a tag of it
    bool altrove = false;      ///< in the subject, or in the text form alone

    bool alcuno() const { return inTesto || inAttributo || altrove; }
};
using UsiSegnaposto = std::array<UsoSegnaposto, numeroSegnaposto>;  ///< in the order of colonneSegnaposto

UsiSegnaposto UsiDi(const TestiMessaggio& modello);

/// Whether the value, unchanged, is parsed as something else than its own characters there: "<" as the begin
/// of a tag, "&" as that of a character reference, a double quote as the end of an attribute.
bool CambiaHtml(QStringView valore, const UsoSegnaposto& uso);

/// Counts over the selection in the order of a run, in slices. The window stays responsive between
/// them.
class ControlloCampi {
  public:
    /// What was found for one placeholder. Rows count from 0 in the order of a run.
    struct Campo {
        qint64 nulli = 0;                  ///< Null: the placeholder itself stays in the message
        qint64 vuoti = 0;                  ///< empty, or nothing but blanks
        qint64 html = 0;                   ///< values that change the HTML
        std::optional<qint64> primoVuoto;  ///< Null or empty
        std::optional<qint64> primoHtml;
    };

    /// Opens the selection. Unguarded.
    explicit ControlloCampi(const UsiSegnaposto& usi);

    /// Reads for about that long, one row at least; false when all rows are read. Unguarded.
    bool Avanza(std::chrono::milliseconds durata);

    qint64 righe() const { return m_riga; }  ///< read so far
    const std::array<Campo, numeroSegnaposto>& campi() const { return m_campi; }

  private:
    void GiudicaRiga();

    struct Colonna {
        std::size_t segnaposto;
        int indice;  ///< in the recordset
    };

    const UsiSegnaposto m_usi;
    ado::Recordset m_destinatari;
    std::vector<Colonna> m_colonne;  ///< those that are used and are there
    std::array<Campo, numeroSegnaposto> m_campi;
    qint64 m_riga = 0;
};
