// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/strumenti/EsitiModello.h"

#include <QLocale>
#include <utility>

#include "platform/mail/SmtpReply.h"
#include "platform/text/Words.h"

namespace {

QString TestoCella(const esiti::Riga& riga, int colonna) {
    switch (colonna) {
        case EsitiModello::Ora:
            return riga.esito.time.toLocalTime().toString("dd/MM/yyyy HH:mm:ss");
        case EsitiModello::Indirizzo:
            return mail::printable(riga.esito.address.toUtf8());
        case EsitiModello::Esito:
            return TestoEsito(riga.esito.kind);
        case EsitiModello::Motivo:
            return TestoMotivo(riga.motivo);
        case EsitiModello::Risposta:
            return riga.esito.code ? QString::number(riga.esito.code) + ' ' + riga.esito.words
                                   : riga.esito.words;
        default:
            return {};
    }
}

}  // namespace

void EsitiModello::Mostra(QList<esiti::Riga> righe) {
    beginResetModel();
    m_righe = std::move(righe);
    endResetModel();
}

int EsitiModello::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_righe.size());
}

int EsitiModello::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : numeroColonne;
}

QVariant EsitiModello::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_righe.size()) return {};
    const QString testo = role == Qt::DisplayRole || role == Qt::ToolTipRole
                              ? TestoCella(m_righe[index.row()], index.column())
                              : QString();
    if (role == Qt::DisplayRole) return testo;
    if (role == Qt::ToolTipRole && !testo.isEmpty()) return "<qt>" + testo.toHtmlEscaped() + "</qt>";
    return {};
}

QVariant EsitiModello::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const QStringList teste{Words::tr("Data e ora"), Words::tr("Indirizzo"), Words::tr("Esito"),
                            Words::tr("Motivo"), Words::tr("Risposta del server")};
    return teste.value(section);
}

void EsitiFiltro::Filtra(std::optional<mail::OutcomeKind> esito, std::optional<MotivoEsito> motivo,
                         const QString& testo) {
    m_esito = esito;
    m_motivo = motivo;
    m_testo = testo.trimmed();
    invalidateFilter();
}

bool EsitiFiltro::filterAcceptsRow(int riga, const QModelIndex&) const {
    const esiti::Riga& una = static_cast<const EsitiModello*>(sourceModel())->Righe()[riga];
    if (m_esito && una.esito.kind != *m_esito) return false;
    if (m_motivo && una.motivo != *m_motivo) return false;
    if (m_testo.isEmpty()) return true;
    for (const int colonna : {EsitiModello::Indirizzo, EsitiModello::Risposta, EsitiModello::Motivo})
        if (TestoCella(una, colonna).contains(m_testo, Qt::CaseInsensitive)) return true;
    return false;
}

bool EsitiFiltro::lessThan(const QModelIndex& sinistra, const QModelIndex& destra) const {
    const auto& righe = static_cast<const EsitiModello*>(sourceModel())->Righe();
    const esiti::Riga& una = righe[sinistra.row()];
    const esiti::Riga& altra = righe[destra.row()];
    if (sinistra.column() == EsitiModello::Ora) return una.esito.time < altra.esito.time;
    return QString::compare(TestoCella(una, sinistra.column()), TestoCella(altra, destra.column()),
                            Qt::CaseInsensitive) < 0;
}
