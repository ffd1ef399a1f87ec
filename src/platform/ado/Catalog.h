// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "platform/ado/Connection.h"
#include "platform/jet/Value.h"
#include "platform/Status.h"

namespace ado {

/// The tables of a database and their columns.
class Catalog {
  public:
    enum class Kind { Table, SystemTable, LinkedTable, Query };
    struct TableEntry {
        QString name;
        Kind kind = Kind::Table;
    };
    struct ColumnEntry {
        QString name;
        jet::Type type = jet::Type::Text;
        int size = 0;  ///< most characters of a text, bytes of anything else
        bool autoNumber = false;
    };

    /// Its time-out bounds the waits of this catalogue as well.
    void setActiveConnection(const Connection& connection) {
        m_connection = connection.text();
        m_timeout = connection.connectionTimeout();
    }

    /// All entries, by name without regard to case.
    Result<std::vector<TableEntry>> tables() const;
    /// The columns of a local table in the order of SELECT *. Linked tables and queries are refused.
    Result<std::vector<ColumnEntry>> columns(const QString& table) const;

  private:
    QString m_connection;
    int m_timeout = Connection().connectionTimeout();
};

}  // namespace ado
