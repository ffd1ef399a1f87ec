// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/strumenti/frmUltimaImportazione.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "modules/import/UltimaImportazione.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"
#include "platform/ui/DialogFrame.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"

namespace {

enum ColonnaRiga { NumeroRiga, Esito, Testo, Motivo };
/// As the list of what to show has them.
enum Scelta { SoloRifiutate, SoloImportate, Tutte };

QString Numerato(qint64 numero) {
    return text::formatGrouped(static_cast<double>(numero));
}

QString Riassunto(const UltimaImportazione& resoconto) {
    if (!resoconto.Avvenuta())
        return Words::tr("Dall'avvio del programma non è stata fatta nessuna importazione.");
    QString testo =
        Words::tr("Da %1, %2.\nImportate %3, rifiutate %4.")
            .arg(resoconto.Origine(), QLocale().toString(resoconto.Quando(), QLocale::ShortFormat),
                 Numerato(resoconto.Importate()), Numerato(resoconto.Rifiutate()));
    if (resoconto.Scritte() < resoconto.Importate())
        testo += '\n' + Words::tr("Nel database ne sono rimaste %1: le ultime non sono state scritte.")
                            .arg(Numerato(resoconto.Scritte()));
    const auto massimo = static_cast<qint64>(UltimaImportazione::massimo);
    if (resoconto.Importate() > massimo || resoconto.Rifiutate() > massimo)
        testo += '\n' + Words::tr("L'elenco ha le prime %1 righe importate e le prime %1 rifiutate.")
                            .arg(Numerato(massimo));
    return testo;
}

}  // namespace

frmUltimaImportazione::frmUltimaImportazione(QWidget* parent)
    : QDialog(parent),
      lblRiassunto((RilevaTema(this), ui::named(new QLabel(this), "lblRiassunto"))),
      cmbMostra(ui::choiceField(
          "cmbMostra",
          {Words::tr("Righe rifiutate"), Words::tr("Righe importate"), Words::tr("Tutte le righe")}, this)),
      lstRighe(ui::named(new QTreeWidget(this), "lstRighe")),
      cmdCopia(ui::commandButton(Words::tr("Co&pia"), "cmdCopia", this)),
      cmdChiudi(ui::commandButton(Words::tr("&Chiudi"), "cmdChiudi", this)) {
    setObjectName("frmUltimaImportazione");
    setWindowTitle(Words::tr("Ultima importazione"));
    lblRiassunto->setTextFormat(Qt::PlainText);
    lblRiassunto->setWordWrap(true);
    lstRighe->setAccessibleName(Words::tr("Righe dell'ultima importazione"));
    lstRighe->setRootIsDecorated(false);
    lstRighe->setUniformRowHeights(true);
    lstRighe->setAllColumnsShowFocus(true);
    lstRighe->setHeaderLabels(
        {Words::tr("Riga"), Words::tr("Esito"), Words::tr("Testo"), Words::tr("Motivo")});
    lstRighe->header()->resizeSection(NumeroRiga, ui::scaledToFont(*this, 70));
    lstRighe->header()->resizeSection(Esito, ui::scaledToFont(*this, 90));
    lstRighe->header()->resizeSection(Testo, ui::scaledToFont(*this, 260));
    auto* etichetta = new QLabel(Words::tr("&Mostra:"), this);
    ui::bindLabel(etichetta, cmbMostra);
    auto* scelta = new QHBoxLayout;
    scelta->setSpacing(ui::controlSpacing);
    scelta->addWidget(etichetta);
    scelta->addWidget(cmbMostra);
    scelta->addStretch();
    auto* pulsanti = new QHBoxLayout;
    pulsanti->setSpacing(ui::controlSpacing);
    pulsanti->addStretch();
    pulsanti->addWidget(cmdCopia);
    pulsanti->addWidget(cmdChiudi);
    auto* righe = new QVBoxLayout(this);
    righe->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    righe->setSpacing(ui::windowMargin);
    righe->addWidget(lblRiassunto);
    righe->addLayout(scelta);
    righe->addWidget(lstRighe, 1);
    righe->addLayout(pulsanti);
    cmdChiudi->setDefault(true);
    connect(cmdChiudi, &QPushButton::clicked, this, &QDialog::hide);
    alClick(cmdCopia, this, &frmUltimaImportazione::Copia);
    connect(cmbMostra, &QComboBox::currentIndexChanged, this, [this] { evento([this] { Filtra(); }); });
    ui::openAtLeast(*this, {720, 460});
    ui::setUpDialog(*this);
}

void frmUltimaImportazione::Mostra(const UltimaImportazione& resoconto) {
    lblRiassunto->setText(Riassunto(resoconto));
    setAccessibleDescription(lblRiassunto->text());
    lstRighe->clear();
    QList<QTreeWidgetItem*> voci;
    for (const UltimaImportazione::Riga& riga : resoconto.Righe()) {
        auto* voce = new QTreeWidgetItem({Numerato(riga.numero),
                                          riga.importata ? Words::tr("Importata") : Words::tr("Rifiutata"),
                                          riga.testo, riga.motivo});
        // In a tag, so that a text that looks like markup is shown as it is.
        voce->setToolTip(Testo, "<span>" + riga.testo.toHtmlEscaped() + "</span>");
        voci << voce;
    }
    lstRighe->addTopLevelItems(voci);
    cmbMostra->setCurrentIndex(resoconto.Rifiutate() > 0 ? SoloRifiutate : Tutte);
    Filtra();
}

void frmUltimaImportazione::Filtra() {
    const int scelta = cmbMostra->currentIndex();
    int mostrate = 0;
    for (int i = 0; i < lstRighe->topLevelItemCount(); ++i) {
        QTreeWidgetItem* voce = lstRighe->topLevelItem(i);
        const bool importata = voce->text(Esito) == Words::tr("Importata");
        const bool mostrata = scelta == Tutte || importata == (scelta == SoloImportate);
        voce->setHidden(!mostrata);
        mostrate += mostrata;
    }
    cmdCopia->setEnabled(mostrate > 0);
}

/// What is shown, as lines of fields with tabs between them, for a spreadsheet.
void frmUltimaImportazione::Copia() const {
    QString testo;
    for (int i = 0; i < lstRighe->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* voce = lstRighe->topLevelItem(i);
        if (voce->isHidden()) continue;
        QStringList campi;
        for (const int colonna : {NumeroRiga, Esito, Testo, Motivo})
            campi << voce->text(colonna).replace('\t', ' ');
        testo += campi.join('\t') + '\n';
    }
    QApplication::clipboard()->setText(testo);
}
