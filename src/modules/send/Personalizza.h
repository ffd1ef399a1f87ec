// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bitset>
#include <functional>
#include <optional>
#include <QString>
#include <vector>

#include "modules/store/Schema.h"
#include "platform/ado/Recordset.h"
#include "platform/Status.h"

/// Personalisation: the fields of a recipient's row in place of ":::column:::".

inline constexpr std::size_t numeroSegnaposto = schema::numeroCampi;

/// The columns that have a placeholder, in the order in which they are applied: schema::ordineSegnaposto.
extern const std::array<QString, numeroSegnaposto> colonneSegnaposto;

/// The placeholder of a column, by its place there.
QString Segnaposto(std::size_t i);

/// Reads a column of the current row as text: no value for Null, a failure for a column that is missing or
/// where there is no row.
using LeggiColonna = std::function<Result<std::optional<QString>>(const QString& colonna)>;

/// Reads from the current row of a recordset, which must outlive the reader.
LeggiColonna ColonneDi(const ado::Recordset& destinatari);

/// The texts for the placeholders of one row, in the order of colonneSegnaposto. None for a column that is
/// Null or cannot be read: its placeholder stays in the text.
using ValoriSegnaposto = std::array<std::optional<QString>, numeroSegnaposto>;

ValoriSegnaposto LeggiValori(const LeggiColonna& leggi);

/// The template with the placeholders replaced one after the other, each everywhere in one pass, exactly and
/// with the value unchanged. A value with a later placeholder is therefore replaced further, one with
/// an earlier one is not.
QString Personalizza(QString modello, const ValoriSegnaposto& valori);

/// The same for one recipient after another: the template is split at its placeholders once where the result
/// is the same.
class ModelloDiviso {
  public:
    /// Personalizza(modello, valori). The template is split again where it is another one than the last time.
    QString Personalizza(const QString& modello, const ValoriSegnaposto& valori);

  private:
    struct Pezzo {
        qsizetype da = 0, lunghezza = 0;  ///< of the text before a placeholder
        std::size_t segnaposto = 0;       ///< the placeholder's number; numeroSegnaposto at the end
    };
    void Dividi();
    bool BastaUnGiro(const ValoriSegnaposto& valori) const;

    QString m_modello;
    std::vector<Pezzo> m_pezzi;  ///< empty: it cannot be split
    std::bitset<numeroSegnaposto> m_presenti;
};

/// The texts of a message, as its template or for one recipient.
struct TestiMessaggio {
    QString corpoHtml;
    QString corpoTesto;  ///< the visible text of corpoHtml
    QString oggetto;
    QString disiscrizione;  ///< the template's link marked rel="unsubscribe"
};

/// The texts for the recipient with these values.
TestiMessaggio PersonalizzaTesti(TestiMessaggio modello, const ValoriSegnaposto& valori);

/// The same for one recipient after another.
struct ModelliDivisi {
    ModelloDiviso corpoHtml, corpoTesto, oggetto;

    TestiMessaggio Personalizza(TestiMessaggio modello, const ValoriSegnaposto& valori);
};

/// The values inside a web address or a mail link: percent-encoded (RFC 3986), so that none of
/// them becomes a part of its own.
ValoriSegnaposto PerCollegamento(ValoriSegnaposto valori);

/// The name shown for the recipient: the first of "rgs" and "nom" that is not empty, Null counting as empty,
/// else "email". Fails where a column cannot be read, and where it comes to "email" and that is Null.
Result<QString> NomeDestinatario(const LeggiColonna& leggi);
