// SPDX-License-Identifier: GPL-3.0-or-later
// The look of the window: its controls, their places and their names.
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/Controls.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/strumenti/frmControlloMittente.h"

namespace {

/// Wrapped lines of text keep a distance from those of the next row.
class RigheStaccate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& stile, const QModelIndex& cella) const override {
        return QStyledItemDelegate::sizeHint(stile, cella) + QSize(0, ui::controlSpacing);
    }
};

}  // namespace

void frmControlloMittente::CreaControlli() {
    // In tab order.
    lblAccount = ui::named(new QLabel(Words::tr("&Account mittente:"), this), "lblAccount");
    cmbAccount = ui::named(new QComboBox(this), "cmbAccount");
    cmbAccount->setMinimumSize(240, ui::fieldHeight);
    cmbAccount->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    cmbAccount->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmdControlla = ui::commandButton(Words::tr("C&ontrolla"), "cmdControlla", this);
    cmdInterrompi = ui::commandButton(Words::tr("&Interrompi"), "cmdInterrompi", this);
    lblEsito = ui::named(new QLabel(this), "lblEsito");
    lblEsito->setTextFormat(Qt::PlainText);
    lblEsito->setWordWrap(true);
    grdRighe = ui::named(new QTableWidget(0, 3, this), "grdRighe");
    grdRighe->setHorizontalHeaderLabels(
        {Words::tr("Controllo"), Words::tr("Esito"), Words::tr("Che cosa fare")});
    grdRighe->setAccessibleName(Words::tr("Righe del controllo"));
    grdRighe->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdRighe->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdRighe->setSelectionMode(QAbstractItemView::SingleSelection);
    grdRighe->setTabKeyNavigation(false);
    grdRighe->setShowGrid(false);
    grdRighe->setAlternatingRowColors(true);
    grdRighe->setWordWrap(true);
    grdRighe->setItemDelegate(new RigheStaccate(grdRighe));
    grdRighe->verticalHeader()->hide();
    grdRighe->verticalHeader()->setMinimumSectionSize(ui::rowHeight);
    grdRighe->horizontalHeader()->setHighlightSections(false);
    grdRighe->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    grdRighe->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    grdRighe->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    lblDettagli = ui::named(new QLabel(Words::tr("D&ettagli:"), this), "lblDettagli");
    txtDettagli = ui::named(new QPlainTextEdit(this), "txtDettagli");
    txtDettagli->setReadOnly(true);
    txtDettagli->setTabChangesFocus(true);
    txtDettagli->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtDettagli->setFixedHeight(fontMetrics().lineSpacing() * 6 + ui::windowMargin);
    cmdChiave = ui::commandButton(Words::tr("Crea chiave &DKIM..."), "cmdChiave", this);
    cmdCopia = ui::commandButton(Words::tr("Copia &tutto"), "cmdCopia", this);
    cmdChiudi = ui::commandButton(Words::tr("&Chiudi"), "cmdChiudi", this);
    annuncio = new ui::Announcer(this);
    ui::bindLabel(lblAccount, cmbAccount);
    ui::bindLabel(lblDettagli, txtDettagli);
    cmdChiave->setAccessibleDescription(
        Words::tr("Crea la chiave con cui firmare i messaggi, o mostra quella che c'è"));
}

void frmControlloMittente::DisponiControlli() {
    auto* alto = new QHBoxLayout;
    alto->setSpacing(ui::controlSpacing);
    alto->addWidget(lblAccount);
    alto->addWidget(cmbAccount, 1);
    alto->addWidget(cmdControlla);
    alto->addWidget(cmdInterrompi);
    auto* basso = new QHBoxLayout;
    basso->setSpacing(ui::controlSpacing);
    basso->addWidget(cmdChiave);
    basso->addWidget(cmdCopia);
    basso->addStretch();
    basso->addWidget(cmdChiudi);
    auto* finestra = new QVBoxLayout(this);
    finestra->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    finestra->setSpacing(ui::controlSpacing);
    finestra->addLayout(alto);
    finestra->addWidget(lblEsito);
    finestra->addWidget(grdRighe, 1);
    finestra->addWidget(lblDettagli);
    finestra->addWidget(txtDettagli);
    finestra->addSpacing(ui::windowMargin - ui::controlSpacing);
    finestra->addLayout(basso);
}

void frmControlloMittente::CollegaEventi() {
    alClick(cmdControlla, this, &frmControlloMittente::cmdControlla_Click);
    alClick(cmdInterrompi, this, &frmControlloMittente::Interrompi);
    alClick(cmdChiave, this, &frmControlloMittente::cmdChiave_Click);
    alClick(cmdCopia, this, &frmControlloMittente::cmdCopia_Click);
    alClick(cmdChiudi, this, &frmControlloMittente::cmdChiudi_Click);
    connect(grdRighe, &QTableWidget::currentCellChanged, this,
            [this] { evento([this] { MostraDettagli(); }); });
    // Queued: while rows are being measured, a scroll bar that comes narrows the column, and the rows would
    // keep the height that they had without it.
    connect(grdRighe->horizontalHeader(), &QHeaderView::sectionResized, grdRighe,
            &QTableWidget::resizeRowsToContents, Qt::QueuedConnection);
    connect(cmbAccount, &QComboBox::currentIndexChanged, this,
            [this] { evento([this] { AbilitaControlli(); }); });
}
