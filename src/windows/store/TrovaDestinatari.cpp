// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/store/TrovaDestinatari.h"

#include <algorithm>
#include <QItemSelectionModel>
#include <QShortcut>

#include "modules/core/bGlobal.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/FindBar.h"
#include "platform/ui/GridSearch.h"
#include "windows/core/Evento.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/griglia.h"

QStringList TrovaDestinatari::Luoghi() {
    return {Words::tr("In questa cartella"), Words::tr("Ovunque")};
}

namespace {

QString Conta(qint64 quanti) {
    return text::formatGrouped(static_cast<double>(quanti));
}

}  // namespace

TrovaDestinatari::TrovaDestinatari(const Principale& finestra, ui::FindBar& barraTrova, QObject* parent)
    : QObject(parent),
      principale(finestra),
      barra(barraTrova),
      inGriglia(finestra.grd.search()),
      lavoro([this](const ui::SlicedWork::Slice&) {
          evento([this] { Avanza(); });
          return false;
      }),
      albero({}) {
    const auto guardato = [](auto passo) { return [passo] { evento(passo); }; };
    connect(&barra, &ui::FindBar::wantedChanged, this, guardato([this] { Cambiato(); }));
    connect(&barra, &ui::FindBar::dismissed, this, guardato([this] { Chiudi(); }));
    connect(&barra, &ui::FindBar::next, this, guardato([this] { Vai(Meta::Successiva); }));
    connect(&barra, &ui::FindBar::previous, this, guardato([this] { Vai(Meta::Precedente); }));
    connect(&inGriglia, &ui::GridSearch::progressed, this, guardato([this] {
        Avvicina();
        Racconta();
    }));
    connect(principale.grd.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            guardato([this] { Racconta(); }));
    const auto tasto = [&](const QKeySequence& tasti, Meta verso) {
        auto* scorciatoia = new QShortcut(tasti, principale.grd.window());
        connect(scorciatoia, &QShortcut::activated, this, guardato([this, verso] {
                    if (barra.isVisible()) Vai(verso);
                }));
    };
    tasto(Qt::Key_F3, Meta::Successiva);
    tasto(Qt::SHIFT | Qt::Key_F3, Meta::Precedente);
}

void TrovaDestinatari::Apri() {
    barra.present();
    Cambiato();
}

void TrovaDestinatari::Chiudi() {
    inGriglia.stop();
    lavoro.stop();
    ovunque.reset();
    meta = Meta::Nessuna;
    MostraAvviso({});
    principale.grd.setFocus(Qt::OtherFocusReason);
}

void TrovaDestinatari::Cambiato() {
    const QString testo = barra.text();
    const bool solo = barra.checkedOnly();
    rinuncia.clear();
    lavoro.stop();
    ovunque.reset();
    respinte = 0;
    meta = testo.isEmpty() ? Meta::Nessuna : Meta::Prima;
    inGriglia.start(testo, solo);
    if (barra.place() == Ovunque && (!testo.isEmpty() || solo)) {
        connessione = connDB;
        ovunque.emplace(connessione, testo, solo);
        lavoro.start();
    }
    Racconta();
}

/// Arms the next part itself, since what is told depends on whether there will be one.
void TrovaDestinatari::Avanza() {
    constexpr int pausa = 200;
    if (!ovunque) return;
    if (principale.ComandoInCorso()) {
        lavoro.restFor(pausa);
        return;
    }
    const Result<bool> finita = ovunque->Avanza(std::chrono::milliseconds(ui::SlicedWork::milliseconds));
    if (finita.status().code() == ErrorCode::FileInUse) {
        ++respinte;
        if (Bloccata()) Racconta();
        lavoro.restFor(pausa);
        return;
    }
    respinte = 0;
    if (!finita.ok()) {
        Rinuncia(finita.status().text());
        return;
    }
    if (!finita.value()) {
        lavoro.start();
    } else if (Prosegui tenta; !tenta([this] { albero = AlberoCartelle::Leggi(); })) {
        Rinuncia(tenta.testo());
        return;
    }
    Avvicina();
    Racconta();
}

void TrovaDestinatari::Rinuncia(const QString& motivo) {
    lavoro.stop();
    ovunque.reset();
    meta = Meta::Nessuna;
    rinuncia = Words::tr("Ricerca non riuscita: %1").arg(motivo);
    Racconta();
}

void TrovaDestinatari::Vai(Meta nuova) {
    if (principale.ComandoInCorso()) return;
    provate.clear();
    meta = nuova;
    Avvicina();
    Racconta();
}

/// The rows of the grid are not those of the folder.
bool TrovaDestinatari::NonLetta() const {
    return !principale.grd.Notice().isEmpty();
}

/// The row that a step leads to inside the grid; 0 where there is none so far.
int TrovaDestinatari::RigaDella(Meta quale) const {
    if (NonLetta()) return 0;
    const int riga = principale.grd.Row();
    switch (quale) {
        case Meta::Prima:
            return inGriglia.after(riga - 1);
        case Meta::Successiva:
            return inGriglia.after(riga);
        case Meta::Precedente:
            return inGriglia.before(riga);
        case Meta::PrimaDiCartella:
            return inGriglia.after(0);
        case Meta::UltimaDiCartella:
            return inGriglia.underWay() ? 0 : inGriglia.before(principale.grd.Rows());
        case Meta::Nessuna:
            break;
    }
    return 0;
}

/// Goes as far as the matches so far allow; the next part of a search continues.
void TrovaDestinatari::Avvicina() {
    if (meta == Meta::Nessuna) return;
    if (ovunque && connessione != connDB) {
        Cambiato();
        return;
    }
    if (const int riga = RigaDella(meta)) {
        meta = Meta::Nessuna;
        principale.grd.showFound(riga);
        return;
    }
    if (inGriglia.underWay()) return;
    if (meta == Meta::Prima) {
        // Typing stays in the folder: back to its first match.
        meta = Meta::Nessuna;
        if (const int riga = RigaDella(Meta::PrimaDiCartella)) principale.grd.showFound(riga);
        return;
    }
    const bool indietro = meta == Meta::Precedente || meta == Meta::UltimaDiCartella;
    if (ovunque && AllaCartella(indietro)) return;
    if (ovunque && lavoro.underWay()) return;
    meta = Meta::Nessuna;
    if (const int riga = RigaDella(indietro ? Meta::UltimaDiCartella : Meta::PrimaDiCartella))
        principale.grd.showFound(riga);
}

/// Opens the next folder with matches, in the order of the tree; false where there is none so far but the
/// shown one.
bool TrovaDestinatari::AllaCartella(bool indietro) {
    Prosegui tenta;
    bool aperta = false;
    const bool riuscito = tenta([&] {
        albero = AlberoCartelle::Leggi();
        std::vector<std::int32_t> ordine = albero.Ordine();
        if (indietro) std::reverse(ordine.begin(), ordine.end());
        const std::int32_t mostrata = griglia::CartellaMostrata();
        if (principale.grd.Rows() > 1) provate.insert(mostrata);
        std::rotate(ordine.begin(), std::find(ordine.begin(), ordine.end(), mostrata), ordine.end());
        const auto& trovati = ovunque->PerCartella();
        const auto prossima = std::find_if(ordine.begin(), ordine.end(), [&](std::int32_t id) {
            return trovati.contains(id) && !provate.contains(id);
        });
        if (prossima == ordine.end()) return;
        provate.insert(*prossima);
        meta = indietro ? Meta::UltimaDiCartella : Meta::PrimaDiCartella;
        principale.Gruppi().Apri(albero.Chiavi(*prossima));
        aperta = true;
    });
    if (!riuscito) Rinuncia(tenta.testo());
    if (NonLetta()) meta = Meta::Nessuna;
    return !riuscito || aperta;
}

/// A short wait is not reported.
bool TrovaDestinatari::Bloccata() const {
    constexpr int taciute = 5;
    return respinte > taciute;
}

QString TrovaDestinatari::EsitoCartella() const {
    if (NonLetta()) return Words::tr("Ricerca non riuscita: questa cartella non si può leggere");
    const std::vector<int>& righe = inGriglia.rows();
    const auto quante = static_cast<qint64>(righe.size());
    if (inGriglia.underWay())
        return Words::tr("%Ln trovati, ricerca in corso…", nullptr, static_cast<int>(quante));
    if (righe.empty()) return Words::tr("Nessun risultato");
    const auto posto = std::lower_bound(righe.begin(), righe.end(), principale.grd.Row());
    if (posto != righe.end() && *posto == principale.grd.Row())
        return Words::tr("%1 di %2").arg(Conta(posto - righe.begin() + 1), Conta(quante));
    return Words::tr("%Ln trovati", nullptr, static_cast<int>(quante));
}

QString TrovaDestinatari::EsitoOvunque() const {
    const qint64 tutti = ovunque->Trovati();
    if (Bloccata())
        return Words::tr(
                   "Trovati: %1. Il database è usato da un altro programma: la ricerca riprende quando "
                   "è libero.")
            .arg(Conta(tutti));
    if (lavoro.underWay())
        return Words::tr("%Ln trovati, ricerca in corso…", nullptr, static_cast<int>(tutti));
    if (tutti == 0) return Words::tr("Nessun risultato");
    qint64 perduti = tutti;
    qint64 cartelle = 0;
    for (const auto& [id, quanti] : ovunque->PerCartella()) {
        if (!albero.Raggiunta(id)) continue;
        perduti -= quanti;
        ++cartelle;
    }
    QString esito = Words::tr("%1 in %Ln cartelle", nullptr, static_cast<int>(cartelle)).arg(Conta(tutti));
    if (perduti > 0) esito += Words::tr(", %1 in cartelle perdute").arg(Conta(perduti));
    if (NonLetta()) return esito + Words::tr("; questa cartella non si può leggere");
    if (!inGriglia.underWay() && !inGriglia.rows().empty())
        esito += Words::tr("; qui %1").arg(EsitoCartella());
    return esito;
}

void TrovaDestinatari::Racconta() {
    if (!barra.isVisible()) return;
    const bool vuota = barra.text().isEmpty() && !barra.checkedOnly();
    const bool finita = Bloccata() || (!inGriglia.underWay() && !(ovunque && lavoro.underWay()));
    if (!rinuncia.isEmpty())
        barra.setAnswer(rinuncia, true);
    else if (vuota)
        barra.setAnswer({}, false);
    else
        barra.setAnswer(ovunque ? EsitoOvunque() : EsitoCartella(), finita);
    const bool ferma = !rinuncia.isEmpty() || (!vuota && (Bloccata() || NonLetta()));
    MostraAvviso(ferma ? barra.answer() : QString());
}

void TrovaDestinatari::MostraAvviso(const QString& frase) {
    if (frase == avviso) return;
    ui::StaticItem& stcHelp = *principale.Commands.GetStatic("stcHelp");
    if (avviso.isEmpty()) primaDellAvviso = stcHelp.Text();
    const bool ancora = stcHelp.Text() == avviso;
    avviso = frase;
    if (!frase.isEmpty())
        stcHelp.setText(frase);
    else if (ancora)
        stcHelp.setText(primaDellAvviso);
}
