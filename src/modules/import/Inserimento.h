#pragma once

#include <array>
#include <QString>

#include "platform/ado/GroupedInserts.h"

/// What the imports have in common when they write: one INSERT statement for each recipient.
namespace inserimento {

/// The columns that an import fills, in the order in which the statement lists them.
enum Colonna {
    email,
    rgs,
    nom,
    piva,
    ind,
    cap,
    loc,
    prov,
    tel,
    fax,
    campo1,
    campo2,
    campo3,
    campo4,
    campo5,
    campo6,
    campo7,
    campo8,
    campo9,
    numeroColonne
};

/// How many characters of a value are kept, counted from the left.
inline constexpr std::array<int, numeroColonne> limiti{255, 70,  70,  15,  255, 10,  70,  2,   15, 15,
                                                       255, 255, 255, 255, 255, 255, 255, 255, 255};

/// The values of one recipient. A column for which the source has nothing stays empty.
using Valori = std::array<QString, numeroColonne>;

/// The value as far as its column takes it.
QString Taglia(QStringView valore, Colonna colonna);

/// The statement that inserts a recipient, selected for sending, into the group of that number. Values go in
/// as they are, without any quoting: one with a single quote makes the statement invalid.
QString Istruzione(const QString& gruppo, const Valori& valori);

}  // namespace inserimento

/// The prepared command of one import. Rows are written to disk in groups: a crash of the program loses at
/// most those of the last moments, while whatever else uses the database in this program sees them all.
class Inserimento {
  public:
    /// Prepares the command on the current database. Unguarded.
    void Prepara();
    /// Inserts one recipient. Unguarded: a row that is refused leaves those before it and the database as
    /// they are.
    void Inserisci(const QString& gruppo, const inserimento::Valori& valori);
    /// Rows that stand in the database for good.
    qint64 Scritti() const { return comando.committed(); }
    /// Sees the last rows safely to disk, as the destructor does. Unguarded.
    void Conferma();

  private:
    ado::GroupedInserts comando;
};
