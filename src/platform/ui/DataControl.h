// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include "platform/ado/Snapshot.h"
#include "platform/Status.h"

namespace ui {

/// A data source: runs a statement for the grid that is bound to it (DataGrid::setDataSource).
class DataControl : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    void setConnectionString(const QString& text) { m_connectionString = text; }
    const QString& RecordSource() const { return m_recordSource; }
    void setRecordSource(const QString& statement) { m_recordSource = statement; }

    /// Runs the record source, a `SELECT * FROM table …`, and passes a snapshot of its rows to the grid. On
    /// failure the grid keeps what it shows.
    Status Refresh();

  Q_SIGNALS:
    /// The receiver may take the snapshot out of the reference.
    void refreshed(ado::Snapshot& rows);

  private:
    QString m_connectionString;
    QString m_recordSource;
};

}  // namespace ui
