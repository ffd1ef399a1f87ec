// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include "modules/send/Esiti.h"

/// The recipients of a run as rows: time, address, outcome, reason, the server's words.
class EsitiModello : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Colonna { Ora, Indirizzo, Esito, Motivo, Risposta, numeroColonne };

    using QAbstractTableModel::QAbstractTableModel;

    void Mostra(QList<esiti::Riga> righe);
    const QList<esiti::Riga>& Righe() const { return m_righe; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QList<esiti::Riga> m_righe;
};

/// Those of them that fit what the user looks for.
class EsitiFiltro : public QSortFilterProxyModel {
    Q_OBJECT

  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void Filtra(std::optional<mail::OutcomeKind> esito, std::optional<MotivoEsito> motivo,
                const QString& testo);

  protected:
    bool filterAcceptsRow(int riga, const QModelIndex& sopra) const override;
    bool lessThan(const QModelIndex& sinistra, const QModelIndex& destra) const override;

  private:
    std::optional<mail::OutcomeKind> m_esito;
    std::optional<MotivoEsito> m_motivo;
    QString m_testo;
};
