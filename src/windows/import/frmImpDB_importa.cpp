// SPDX-License-Identifier: GPL-3.0-or-later
// The source of the Access import: its tables, their columns, and the walk over the records.
#include <QComboBox>
#include <QLineEdit>
#include <QScopeGuard>

#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "modules/import/Inserimento.h"
#include "modules/import/UltimaImportazione.h"
#include "modules/store/Destinatario.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/ConnectionText.h"
#include "platform/text/Words.h"
#include "platform/ui/Busy.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/Puntatore.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/RiquadroCampi.h"
#include "windows/import/RiquadroCartella.h"

namespace {

using destinatario::Valori;

/// Cut shorter here than by the other imports.
constexpr int limiteEmail = 70;

/// The column of the source that feeds each column of a recipient; none where nothing does.
using Sorgenti = std::array<QString, schema::numeroCampi>;

void mostra(const QString& testo) {
    ui::MessageDialog::show(testo, ui::MessageDialog::Notice, "Attenzione");
}

QString tagliato(const QString& valore, schema::Campo campo) {
    return campo == schema::email ? valore.left(limiteEmail) : destinatario::Taglia(valore, campo);
}

/// A table of the program that made the database.
bool diSistema(const QString& tabella) {
    return tabella.left(4).toUpper() == QLatin1String("MSYS");
}

Sorgenti sorgentiDi(const RiquadroCampi& riquadro) {
    Sorgenti sorgenti;
    for (int box = 0; box < campi::quanti; ++box) {
        const QString testo = riquadro.cmbCmp(box).currentText();
        if (testo != campi::nessuno) sorgenti[campi::colonne[static_cast<std::size_t>(box)]] = testo;
    }
    return sorgenti;
}

/// Takes the values of the current record over. One that has no text, such as Null, leaves what the record
/// before it had there. False when the record itself is gone.
bool leggi(const ado::Recordset& rs, const Sorgenti& sorgenti, Valori& valori) {
    for (const schema::Campo campo : schema::ordineIstruzioni) {
        if (sorgenti[campo].isEmpty()) continue;
        const Result<ado::Value> letto = rs.value(sorgenti[campo]);
        if (letto.status().code() == ErrorCode::NoCurrentRecord) return false;
        if (!letto.ok()) continue;
        if (const Result<QString> testo = letto.value().toText(); testo.ok())
            valori[campo] = tagliato(testo.value(), campo);
    }
    return true;
}

void importaRecord(ado::Recordset& rs, const Sorgenti& sorgenti, const QString& gruppo,
                   Inserimento& inserimento, Prosegui& prosegui) {
    ui::Busy lavoro;
    Valori valori;
    UltimaImportazione& resoconto = ultimaImportazione();
    for (qint64 numero = 1; !rs.isEof(); ++numero) {
        if (!leggi(rs, sorgenti, valori))
            resoconto.Rifiutata(numero, {}, Words::tr("Il record non si legge"));
        else if (!EmailValida(valori[schema::email]))
            resoconto.Rifiutata(numero, valori[schema::email], MotivoIndirizzo(valori[schema::email]));
        else if (prosegui([&] { inserimento.Inserisci(gruppo, valori); }))
            resoconto.Importata(numero, valori[schema::email]);
        else
            resoconto.Rifiutata(numero, valori[schema::email], prosegui.testo());
        // Where reading the source fails, the same record would repeat for ever.
        if (!prosegui([&] { esigi(rs.moveNext()); })) break;
        lavoro.breathe();
    }
    prosegui([&] { inserimento.Conferma(); });
    resoconto.Finisci(inserimento.Scritti());
}

}  // namespace

QString frmImpDB::ConnessioneSorgente() const {
    QString testo = ado::connectionPrefix + PercorsoScritto(txtDatabase->text()) + ';';
    if (!txtPassword->text().isEmpty()) testo += ";Jet OLEDB:Database Password=" + txtPassword->text();
    return testo;
}

void frmImpDB::ElencaTabelle() {
    Prosegui prosegui;
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    cmbTab->clear();
    riquadroCampi->Svuota();
    AbilitaImportazione(false);
    ado::Connection connessione;
    if (!prosegui([&] { esigi(connessione.open(ConnessioneSorgente())); })) {
        PuntatorePredefinito();
        mostra(prosegui.testo());
        return;
    }
    ado::Catalog catalogo;
    catalogo.setActiveConnection(connessione);
    prosegui([&] {
        for (const ado::Catalog::TableEntry& tabella : esigi(catalogo.tables()))
            if (tabella.kind != ado::Catalog::Kind::Query && !diSistema(tabella.name))
                cmbTab->addItem(tabella.name);
    });
    cmbTab->setCurrentIndex(0);
    if (cmbTab->count() > 0) cmbTab_Click();
    AbilitaImportazione(true);
}

void frmImpDB::cmbTab_Click() {
    Prosegui prosegui;
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    riquadroCampi->Svuota();
    AbilitaImportazione(false);
    const QString tabella = cmbTab->currentText();
    ado::Connection connessione;
    prosegui([&] { esigi(connessione.open(ConnessioneSorgente())); });
    ado::Catalog catalogo;
    catalogo.setActiveConnection(connessione);
    riquadroCampi->Aggiungi(campi::nessuno);
    prosegui([&] {
        for (const ado::Catalog::ColumnEntry& colonna : esigi(catalogo.columns(tabella)))
            riquadroCampi->Aggiungi(colonna.name);
    });
    riquadroCampi->ScegliPrima();
}

void frmImpDB::cmdImportaDB_Click() {
    const QString campoEmail = riquadroCampi->cmbCmp(campi::boxEmail).currentText();
    if (campoEmail.isEmpty() || campoEmail == campi::nessuno) {
        mostra("Impossibile continuare.\r\nSelezionare almento un campo per l'email.");
        return;
    }
    Prosegui prosegui;
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    const QString tabella = cmbTab->currentText();
    ado::Recordset rs;
    prosegui([&] { rs = RecordsetDB(); });
    Inserimento inserimento;
    prosegui([&] { inserimento.Prepara(); });
    ado::Connection sorgente;
    prosegui([&] { esigi(sorgente.open(ConnessioneSorgente())); });
    if (prosegui.numero() != 0) {
        PuntatorePredefinito();
        mostra(prosegui.testo());
        return;
    }
    const auto gruppo = cartella::Scegli(riquadroCartella->Scelta(), rs,
                                         "Impossibile continuare.\r\n" + cartella::avvisoCartella,
                                         std::ref(prosegui), NuovoNodo);
    if (!gruppo) return;
    prosegui([&] { esigi(rs.setActiveConnection(sorgente)); });
    rs.setSource("SELECT * FROM [" + tabella + "] ;");
    prosegui([&] { esigi(rs.open()); });
    ultimaImportazione().Comincia(
        Words::tr("tabella \"%1\" di %2").arg(tabella, NomeDaPercorso(PercorsoScritto(txtDatabase->text()))));
    if (!rs.isBof() && !rs.isEof())
        importaRecord(rs, sorgentiDi(*riquadroCampi), *gruppo, inserimento, prosegui);
    rs.close();
    hide();
}
