// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The operation that is under way, for the report of a failure.
struct Circostanze {
    QString operazione;  ///< as the user calls it, such as the description of a command; empty where unknown
    QString file;        ///< the file that it works on; empty for none
};

/// Names what is being done for as long as the object lives. Operations nest, since modal windows do: the
/// last one that began counts.
class Operazione {
  public:
    explicit Operazione(const QString& nome, const QString& file = {});
    ~Operazione();
    Operazione(const Operazione&) = delete;
    Operazione& operator=(const Operazione&) = delete;

    /// What is being done now.
    static Circostanze Ora();

  private:
    Circostanze circostanze;
    const Operazione* fuori;  ///< the operation in which this one began
};
