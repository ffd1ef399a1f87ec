// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/store/griglia.h"

#include <array>
#include <cassert>
#include <optional>
#include <QScopeGuard>

#include "modules/core/bGlobal.h"
#include "modules/lang/bVAR_elenco.h"
#include "modules/send/Accettati.h"
#include "modules/store/Destinatario.h"
#include "modules/store/nodo.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Command.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DataControl.h"
#include "platform/ui/DataGrid.h"
#include "windows/core/Evento.h"
#include "windows/core/Puntatore.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/Principale.h"

namespace {

using griglia::colonnaEmail;
using griglia::colonnaId;
using griglia::colonnaSel;

// Where a fill has put them: in the order of the table, after the leading column.
constexpr int colonnaEmailInTabella = 3 + schema::email;
constexpr int colonnaSelInTabella = schema::colonneDestinatari.size();

QString fraseVuota() {
    return Words::tr("Nessun destinatario in questa cartella");
}

/// None before the first main window, and after the end of one.
std::optional<Principale> collegata;

std::int32_t numeroMostrata = 0;

const Principale& FinestraDellaGriglia() {
    assert(collegata);
    return *collegata;
}

using griglia::grd;

void Aggiorna() {
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    const Status letta = FinestraDellaGriglia().Adodc.Refresh();
    if (!letta.ok()) griglia::SegnaNonLetta();
    esigi(letta);
}

/// The columns have come in the table's order.
void grd_AfterDataRefresh() {
    for (const int colonna : {0, 1, 2})
        grd().setColWidth(colonna, 0);
    grd().setColPosition(colonnaSelInTabella, colonnaSel);
    grd().setColPosition(colonnaEmailInTabella + 1, colonnaEmail);  // "sel" has moved before it
    grd().setTextMatrix(0, colonnaSel, "Send");
    for (const schema::Campo campo : schema::ordineIstruzioni)
        grd().setTextMatrix(0, griglia::ColonnaDi(campo), griglia::Intestazione(campo));
    grd().setEmptyText(fraseVuota());
    FinestraDellaGriglia().AggiornaComandi();
}

/// The cell changes first and the table second; nothing is read back.
void grd_Click() {
    assert(grd().Notice().isEmpty());
    if (grd().Row() < 1 || grd().Col() != colonnaSel) return;
    ado::Command comando;
    esigi(comando.setActiveConnection(connDB));
    comando.setCommandTimeout(0);
    comando.setPrepared(true);
    const QString id = griglia::idCorrente();
    DimenticaAccettato(id);
    if (grd().CellChecked() == 2) {
        grd().setCellChecked(1);
        comando.setCommandText("UPDATE [tb_destinatari] SET sel = True WHERE id = " + id + " ;");
    } else {
        grd().setCellChecked(2);
        comando.setCommandText("UPDATE [tb_destinatari] SET sel = False WHERE id = " + id + " ;");
    }
    esigi(comando.execute());
}

void grd_DblClick() {
    assert(grd().Notice().isEmpty());
    if (grd().Row() >= 1 && grd().Col() != colonnaSel) comandiDestinatario::Modifica();
}

/// Says in the status bar what a heading's arrow shows.
void grd_OrderChanged() {
    const auto& ordine = grd().sorted();
    QString testo = Words::tr("Ordine dell'elenco");
    if (ordine)
        testo = (ordine->direction == Qt::AscendingOrder ? Words::tr("Ordinati per %1, crescente")
                                                         : Words::tr("Ordinati per %1, decrescente"))
                    .arg(grd().TextMatrix(0, ordine->column));
    ui::StaticItem& stcHelp = *FinestraDellaGriglia().Commands.GetStatic("stcHelp");
    stcHelp.setText(testo);
    stcHelp.announce();
}

void grd_MouseMove(Qt::MouseButtons pulsanti) {
    ui::StaticItem& stcHelp = *FinestraDellaGriglia().Commands.GetStatic("stcHelp");
    stcHelp.setText("Email presenti: " + text::formatGrouped(grd().Rows() - 1));
    stcHelp.announce();
    if (pulsanti & Qt::LeftButton && grd().Row() > 0) grd().Drag();
}

void grd_MouseUp(Qt::MouseButton pulsante, const QPoint& punto) {
    if (pulsante == Qt::RightButton && grd().Rows() > 1)
        FinestraDellaGriglia().Commands.showPopup("popMailingGRD", punto);
}

}  // namespace

QString griglia::Intestazione(schema::Campo campo) {
    constexpr auto testi = [] {
        std::array<const QString*, schema::numeroCampi> trovati{};
        for (const schema::Campo uno : schema::ordineTabella)
            if (const auto chiave = schema::testi[uno].chiaveLingua; !chiave.empty())
                trovati[uno] = bVAR::Cerca(chiave);
        return trovati;
    }();
    return testi[campo] ? *testi[campo] : destinatario::Didascalia(campo);
}

ui::DataGrid& griglia::grd() {
    return FinestraDellaGriglia().grd;
}

frmDestinatario& griglia::Destinatario() {
    return FinestraDellaGriglia().Destinatario();
}

void griglia::Collega(const Principale& finestra) {
    using ui::DataGrid;
    DataGrid* grd = &finestra.grd;
    collegata.emplace(finestra);
    QObject::connect(grd, &QObject::destroyed, grd, [] { collegata.reset(); });
    // After the leading column in the order of schema::colonneDestinatari.
    std::vector<int> larghezze{0,   0,   0,   200, 140, 120, 170, 64,  130, 52,  110, 110,
                               230, 120, 120, 120, 120, 120, 120, 120, 120, 120, 56};
    for (int& larghezza : larghezze)
        larghezza = ui::scaledToFont(*grd, larghezza);
    grd->setColWidths(std::move(larghezze));
    grd->setRowNameColumn(colonnaEmail);
    QObject::connect(grd, &DataGrid::afterDataRefresh, grd, [] { evento(grd_AfterDataRefresh); });
    QObject::connect(grd, &DataGrid::click, grd, [] { evento(grd_Click); });
    QObject::connect(grd, &DataGrid::dblClick, grd, [] { evento(grd_DblClick); });
    QObject::connect(grd, &DataGrid::orderChanged, grd, [] { evento(grd_OrderChanged); });
    QObject::connect(grd, &DataGrid::mouseMove, grd,
                     [](Qt::MouseButtons pulsanti) { evento([&] { grd_MouseMove(pulsanti); }); });
    QObject::connect(grd, &DataGrid::mouseUp, grd, [](Qt::MouseButton pulsante, const QPoint& punto) {
        evento([&] { grd_MouseUp(pulsante, punto); });
    });
    finestra.Commands.offerPopup(grd, MenuOra);
}

void griglia::RiempiGriglia() {
    FinestraDellaGriglia().SvuotaGriglia();
    ui::DataControl& Adodc = FinestraDellaGriglia().Adodc;
    Adodc.setConnectionString(connDB);
    Adodc.setRecordSource("SELECT * FROM tb_destinatari WHERE id_grp = " + NumeroNodoCorrente() +
                          " ORDER BY rgs ASC;");
    numeroMostrata = NumeroNodoCorrente().toInt();
    Aggiorna();
}

std::int32_t griglia::CartellaMostrata() {
    return numeroMostrata;
}

void griglia::RinfrescaGriglia() {
    FinestraDellaGriglia().SvuotaGriglia();
    Aggiorna();
    // After a click that could not fill the grid these are the rows of the group before.
    if (nodoCorrente && NumeroNodoCorrente().toInt() != numeroMostrata) SegnaNonLetta();
}

void griglia::SegnaNonLetta() {
    grd().setNotice(Words::tr("Impossibile leggere i destinatari di questa cartella"));
}

void griglia::AggiornaFrase() {
    if (grd().Rows() > 1 || grd().EmptyText() != fraseVuota()) return;
    const bool vuota = ripiega(true, [] {
        ado::Recordset rs = RecordsetDB();
        rs.setSource(FinestraDellaGriglia().Adodc.RecordSource());
        esigi(rs.open());
        return rs.isEof();
    });
    if (!vuota) grd().setEmptyText(Words::tr("Fai clic sulla cartella per vedere i destinatari"));
}

QString griglia::SegnaRiga() {
    grd().markRow(grd().Row());
    return grd().TextMatrix(grd().Row(), colonnaEmail);
}

void griglia::ScegliRiga(const QString& id) {
    static_cast<void>(grd().setCurrentRow(colonnaId, id));
}

QString griglia::idCorrente() {
    QString id = grd().TextMatrix(grd().Row(), colonnaId);
    // Anything else (the heading, an emptied cell) would make its statement change other rows.
    bool numero = false;
    static_cast<void>(id.toLong(&numero));
    if (!numero) fallisci(ErrorCode::TypeMismatch);
    return id;
}

QString griglia::MenuOra() {
    if (grd().Rows() == 1 || !grd().Notice().isEmpty() || FinestraDellaGriglia().Gruppi().MenuOra().isEmpty())
        return {};
    return QStringLiteral("popMailingGRD");
}
