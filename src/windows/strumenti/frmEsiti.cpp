// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/strumenti/frmEsiti.h"

#include <algorithm>
#include <array>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include "modules/core/bGlobal.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/LineEdit.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/core/Puntatore.h"
#include "windows/strumenti/EsitiModello.h"

namespace {

QString Numero(qsizetype numero) {
    return text::formatGrouped(static_cast<double>(numero));
}

/// When, what, and from which database where it is another one.
QString NomeInvio(const mail::outcomes::Run& uno) {
    QString nome = uno.head.begun.toLocalTime().toString("dd/MM/yyyy HH:mm");
    if (!uno.head.title.isEmpty()) nome += "  " + uno.head.title;
    if (!uno.head.sender.isEmpty()) nome += "  (" + uno.head.sender + ')';
    if (!uno.head.database.path.isEmpty() && !uno.head.database.same(mail::DatabaseFile::at(percorsoDB)))
        nome += "  – " + Words::tr("database ") + QFileInfo(uno.head.database.path).fileName();
    return nome;
}

}  // namespace

frmEsiti::frmEsiti(std::function<void()> riempiGriglia, QWidget* parent)
    : QDialog(parent), RiempiGriglia(std::move(riempiGriglia)) {
    setObjectName("frmEsiti");
    setWindowTitle(Words::tr(" Esito degli invii"));
    RilevaTema(this);
    CreaControlli();
    Disponi();
    CollegaEventi();
    ui::openAtLeast(*this, {1000, 560});
    ui::setUpDialog(*this);
}

void frmEsiti::CreaControlli() {
    const auto elenco = [this](const char* nome, const QString& parlato) {
        auto* controllo = ui::named(new QComboBox(this), nome);
        controllo->setMinimumHeight(ui::fieldHeight);
        controllo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        controllo->setAccessibleName(parlato);
        return controllo;
    };
    const auto pulsante = [this](const char* nome, const QString& testo) {
        return ui::commandButton(testo, nome, this);
    };
    // In tab order.
    cmbInvio = elenco("cmbInvio", Words::tr("Invio"));
    cmdElimina = pulsante("cmdElimina", Words::tr("&Elimina"));
    cmdEliminaTutti = pulsante("cmdEliminaTutti", Words::tr("Elimina &tutti"));
    cmbEsito = elenco("cmbEsito", Words::tr("Esito"));
    cmbMotivo = elenco("cmbMotivo", Words::tr("Motivo"));
    txtCerca = ui::named(new ui::LineEdit({}, this), "txtCerca");
    txtCerca->setMinimumHeight(ui::fieldHeight);
    txtCerca->setClearButtonEnabled(true);
    txtCerca->setPlaceholderText(Words::tr("Indirizzo o risposta"));
    txtCerca->setAccessibleName(Words::tr("Trova"));
    tabella = ui::named(new QTableView(this), "tabella");
    tabella->setAccessibleName(Words::tr("Destinatari dell'invio"));
    lblRiassunto = ui::named(new QLabel(this), "lblRiassunto");
    lblRiassunto->setTextFormat(Qt::PlainText);
    lblRiassunto->setWordWrap(true);
    chkRegistro =
        ui::named(new QCheckBox(Words::tr("&Registra l'esito dei prossimi invii"), this), "chkRegistro");
    chkRegistro->setToolTip(
        Words::tr("Restano gli ultimi 50 invii, nella cartella \"esiti\" dei dati del programma"));
    cmdSeleziona = pulsante("cmdSeleziona", Words::tr("&Seleziona questi per il prossimo invio"));
    cmdCopia = pulsante("cmdCopia", Words::tr("C&opia"));
    cmdSalva = pulsante("cmdSalva", Words::tr("Sal&va CSV..."));
    cmdDeseleziona = pulsante("cmdDeseleziona", Words::tr("&Deseleziona gli indirizzi inesistenti"));
    cmdDeseleziona->setToolTip(
        Words::tr("Quelli che il server del destinatario ha rifiutato come inesistenti\n"
                  "(codici 5.1.1, 5.1.2, 5.1.3, 5.1.6 e 5.1.10)"));
    cmdChiudi = pulsante("cmdChiudi", Words::tr("&Chiudi"));
    cmdChiudi->setDefault(true);

    modello = new EsitiModello(this);
    filtro = new EsitiFiltro(this);
    filtro->setSourceModel(modello);
    tabella->setModel(filtro);
    tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tabella->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    tabella->setTabKeyNavigation(false);
    tabella->setWordWrap(false);
    tabella->setSortingEnabled(true);
    tabella->verticalHeader()->hide();
    tabella->verticalHeader()->setDefaultSectionSize(ui::scaledToFont(*this, ui::rowHeight));
    tabella->horizontalHeader()->setStretchLastSection(true);
    tabella->horizontalHeader()->setHighlightSections(false);
    tabella->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    constexpr std::array larghezze{150, 210, 110, 230};
    for (int colonna = 0; colonna < int(larghezze.size()); ++colonna)
        tabella->setColumnWidth(colonna, ui::scaledToFont(*this, larghezze[colonna]));
}

void frmEsiti::Disponi() {
    auto* invii = new QHBoxLayout;
    invii->setSpacing(ui::controlSpacing);
    auto* etichetta = new QLabel(Words::tr("I&nvio:"), this);
    etichetta->setBuddy(cmbInvio);
    invii->addWidget(etichetta);
    invii->addWidget(cmbInvio, 1);
    invii->addWidget(cmdElimina);
    invii->addWidget(cmdEliminaTutti);

    auto* finestra = new QVBoxLayout(this);
    finestra->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    finestra->setSpacing(ui::controlSpacing);
    finestra->addLayout(invii);
    finestra->addLayout(DisponiFiltri());
    finestra->addWidget(tabella, 1);
    finestra->addWidget(lblRiassunto);
    finestra->addWidget(chkRegistro);
    finestra->addWidget(ui::separatorLine(this));
    finestra->addLayout(DisponiComandi());
}

QLayout* frmEsiti::DisponiFiltri() {
    auto* filtri = new QHBoxLayout;
    filtri->setSpacing(ui::controlSpacing);
    const auto aggiungi = [&](const QString& testo, QWidget* controllo, int parte) {
        auto* etichetta = new QLabel(testo, this);
        etichetta->setBuddy(controllo);
        filtri->addWidget(etichetta);
        filtri->addWidget(controllo, parte);
    };
    aggiungi(Words::tr("Es&ito:"), cmbEsito, 2);
    aggiungi(Words::tr("&Motivo:"), cmbMotivo, 3);
    aggiungi(Words::tr("Trov&a:"), txtCerca, 2);
    return filtri;
}

QLayout* frmEsiti::DisponiComandi() {
    auto* prima = new QHBoxLayout;
    prima->setSpacing(ui::controlSpacing);
    prima->addWidget(cmdSeleziona);
    prima->addStretch();
    prima->addWidget(cmdCopia);
    prima->addWidget(cmdSalva);
    auto* seconda = new QHBoxLayout;
    seconda->setSpacing(ui::controlSpacing);
    seconda->addWidget(cmdDeseleziona);
    seconda->addStretch();
    seconda->addWidget(cmdChiudi);
    auto* comandi = new QVBoxLayout;
    comandi->setSpacing(ui::controlSpacing);
    comandi->addLayout(prima);
    comandi->addLayout(seconda);
    return comandi;
}

void frmEsiti::CollegaEventi() {
    alClick(cmdElimina, this, &frmEsiti::cmdElimina_Click);
    alClick(cmdEliminaTutti, this, &frmEsiti::cmdEliminaTutti_Click);
    alClick(cmdSeleziona, this, &frmEsiti::cmdSeleziona_Click);
    alClick(cmdDeseleziona, this, &frmEsiti::cmdDeseleziona_Click);
    alClick(cmdCopia, this, &frmEsiti::cmdCopia_Click);
    alClick(cmdSalva, this, &frmEsiti::cmdSalva_Click);
    alClick(chkRegistro, this, &frmEsiti::chkRegistro_Click);
    connect(cmdChiudi, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmbInvio, &QComboBox::currentIndexChanged, this, [this] { evento([&] { cmbInvio_Click(); }); });
    for (QComboBox* elenco : {cmbEsito, cmbMotivo})
        connect(elenco, &QComboBox::currentIndexChanged, this, [this] { evento([&] { AggiornaFiltro(); }); });
    connect(txtCerca, &QLineEdit::textChanged, this, [this] { evento([&] { AggiornaFiltro(); }); });
    connect(tabella->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { evento([&] { AggiornaComandi(); }); });
    const auto* copia = new QShortcut(QKeySequence::Copy, tabella, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copia, &QShortcut::activated, this, [this] { evento([&] { cmdCopia_Click(); }); });
    const auto* trova = new QShortcut(QKeySequence::Find, this);
    connect(trova, &QShortcut::activated, txtCerca, [this] { txtCerca->setFocus(Qt::ShortcutFocusReason); });
}

void frmEsiti::Carica() {
    {
        const QSignalBlocker fermo(cmbInvio);
        cmbInvio->clear();
        for (const mail::outcomes::Run& uno : mail::outcomes::runs(esiti::Cartella()))
            cmbInvio->addItem(NomeInvio(uno), uno.path);
    }
    chkRegistro->setChecked(esiti::Acceso());
    cmbInvio_Click();
    tabella->sortByColumn(EsitiModello::Ora, Qt::AscendingOrder);
    (cmbInvio->count() > 0 ? static_cast<QWidget*>(tabella) : cmdChiudi)->setFocus();
}

void frmEsiti::cmbInvio_Click() {
    invio = {};
    guasto.clear();
    if (cmbInvio->currentIndex() >= 0) {
        const QString percorso = cmbInvio->currentData().toString();
        Result<esiti::Invio> letto = inDisparte([&] { return esiti::Leggi(percorso); });
        if (letto.ok())
            invio = std::move(letto).value();
        else
            guasto = letto.status().text();
    }
    modello->Mostra(std::exchange(invio.righe, {}));
    RiempiFiltri();
    AggiornaFiltro();
}

/// Each filter offers what there is, with how many.
void frmEsiti::RiempiFiltri() {
    std::array<qsizetype, 4> esiti{};
    std::array<qsizetype, numeroMotivi> motivi{};
    for (const auto& riga : modello->Righe()) {
        ++esiti[static_cast<size_t>(riga.esito.kind)];
        ++motivi[static_cast<size_t>(riga.motivo)];
    }
    const QSignalBlocker fermi[] = {QSignalBlocker(cmbEsito), QSignalBlocker(cmbMotivo)};
    cmbEsito->clear();
    cmbEsito->addItem(Words::tr("Tutti"));
    for (size_t i = 0; i < esiti.size(); ++i)
        if (esiti[i] > 0)
            cmbEsito->addItem(
                QString("%1 (%2)").arg(TestoEsito(static_cast<mail::OutcomeKind>(i)), Numero(esiti[i])),
                static_cast<int>(i));
    cmbMotivo->clear();
    cmbMotivo->addItem(Words::tr("Tutti"));
    for (size_t i = 1; i < motivi.size(); ++i)
        if (motivi[i] > 0)
            cmbMotivo->addItem(
                QString("%1 (%2)").arg(TestoMotivo(static_cast<MotivoEsito>(i)), Numero(motivi[i])),
                static_cast<int>(i));
}

void frmEsiti::AggiornaFiltro() {
    const QVariant esito = cmbEsito->currentData(), motivo = cmbMotivo->currentData();
    filtro->Filtra(
        esito.isValid() ? std::optional(static_cast<mail::OutcomeKind>(esito.toInt())) : std::nullopt,
        motivo.isValid() ? std::optional(static_cast<MotivoEsito>(motivo.toInt())) : std::nullopt,
        txtCerca->text());
    lblRiassunto->setText(Riassunto());
    setAccessibleDescription(lblRiassunto->text());
    AggiornaComandi();
}

void frmEsiti::AggiornaComandi() {
    const bool qualcuno = filtro->rowCount() > 0;
    for (QPushButton* pulsante : {cmdCopia, cmdSalva})
        pulsante->setEnabled(qualcuno);
    const auto delDatabase = [](const esiti::Riga& riga) { return riga.delDatabase; };
    const bool suo = std::ranges::any_of(modello->Righe(), delDatabase);
    cmdSeleziona->setEnabled(qualcuno && suo);
    cmdDeseleziona->setEnabled(suo);
    cmdElimina->setEnabled(cmbInvio->currentIndex() >= 0);
    cmdEliminaTutti->setEnabled(cmbInvio->count() > 0);
}

QString frmEsiti::Riassunto() const {
    if (!guasto.isEmpty()) return guasto;
    if (cmbInvio->count() == 0)
        return Words::tr(
            "Nessun invio registrato. L'esito di ogni destinatario compare qui dopo il prossimo invio.");
    QStringList frasi;
    frasi << (filtro->rowCount() == modello->rowCount()
                  ? Words::tr("%Ln destinatari.", nullptr, modello->rowCount())
                  : Words::tr("%1 di %2 destinatari.")
                        .arg(Numero(filtro->rowCount()), Numero(modello->rowCount())));
    if (invio.rovinate > 0)
        frasi << Words::tr("%Ln righe del registro sono rovinate e non vengono mostrate.", nullptr,
                           static_cast<int>(invio.rovinate));
    if (invio.interrotto)
        frasi << Words::tr(
            "Il registro si interrompe a metà di una riga: il programma è terminato durante l'invio.");
    const auto delDatabase = [](const esiti::Riga& riga) { return riga.delDatabase; };
    if (modello->rowCount() > 0 && std::ranges::none_of(modello->Righe(), delDatabase))
        frasi << Words::tr("L'invio è di un altro database: la selezione non si può cambiare da qui.");
    return frasi.join(' ');
}
