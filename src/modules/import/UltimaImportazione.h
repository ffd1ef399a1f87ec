// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <vector>

/// The outcome of each line of the last import since the program was started, in memory alone. Of imported
/// and of refused lines it keeps the first ones up to a bound, and counts the others.
class UltimaImportazione {
  public:
    struct Riga {
        qint64 numero;  ///< counted from 1, in the source
        bool importata;
        QString testo;   ///< the address of an imported line; of a refused one the text in the source, cut
        QString motivo;  ///< of the refusal
    };
    static constexpr std::size_t massimo = 10000;  ///< lines kept of either kind
    static constexpr int massimoTesto = 200;       ///< characters kept of each text

    /// Forgets the one before. `origine`: what was imported from, as the user knows it.
    void Comincia(const QString& origine);
    void Importata(qint64 numero, const QString& indirizzo);
    void Rifiutata(qint64 numero, const QString& testo, const QString& motivo);
    /// `scritte`: how many lines are committed. Where it is less than were imported, a
    /// failure at the end of a group lost the others.
    void Finisci(qint64 scritte);

    bool Avvenuta() const { return quando.isValid(); }
    const QString& Origine() const { return origine; }
    const QDateTime& Quando() const { return quando; }
    qint64 Importate() const { return importate; }
    qint64 Rifiutate() const { return rifiutate; }
    /// Less than Importate() where lines were lost; also while the import has not ended.
    qint64 Scritte() const { return scritte; }
    const std::vector<Riga>& Righe() const { return righe; }

  private:
    QString origine;
    QDateTime quando;
    qint64 importate = 0;
    qint64 rifiutate = 0;
    qint64 scritte = 0;
    std::vector<Riga> righe;
};

/// The one of this process.
UltimaImportazione& ultimaImportazione();

/// Why EmailValida() refuses an address.
QString MotivoIndirizzo(const QString& indirizzo);
