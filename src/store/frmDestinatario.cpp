#include "store/frmDestinatario.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Evento.h"
#include "platform/ui/Controls.h"
#include "platform/ui/PropertyList.h"
#include "shell/bTheme.h"
#include "store/frmDestinatario_campi.h"
#include "store/RecordsetDB.h"

frmDestinatario::frmDestinatario(QWidget* parent)
    : QDialog(parent),
      txtIDuser(new QLineEdit(this)),
      txtIDgroup(new QLineEdit(this)),
      lbl(new QLabel(this)),
      prp(new ui::PropertyList(this)),
      cdmSalva(new QPushButton("&Salva", this)),
      cmdAnnulla(new QPushButton("&Annulla", this)) {
    RilevaTema(this);
    setObjectName("frmDestinatario");
    txtIDuser->setObjectName("txtIDuser");
    txtIDgroup->setObjectName("txtIDgroup");
    lbl->setObjectName("lbl");
    prp->setObjectName("prp");
    prp->focusProxy()->setAccessibleName("Dati del destinatario");
    cdmSalva->setObjectName("cdmSalva");
    cmdAnnulla->setObjectName("cmdAnnulla");
    txtIDuser->hide();
    txtIDgroup->hide();
    CreaVoci();
    Disponi();
    connect(cdmSalva, &QPushButton::clicked, this, [this] { evento([this] { cdmSalva_Click(); }); });
    connect(cmdAnnulla, &QPushButton::clicked, this, [this] { evento([this] { hide(); }); });
    resize(460, 640);
}

void frmDestinatario::CreaVoci() {
    prp->addGroup("Datidestinatario", "Dati destinatario");
    prp->addBoolean("Spedire", "Send", "Il destinatario è compreso nel prossimo invio");
    for (const CampoDestinatario& campo : campiDestinatario) {
        if (qstrcmp(campo.chiave, "Campo1") == 0) prp->addGroup("Altro", "Altro");
        prp->addText(campo.chiave, campo.didascalia ? *campo.didascalia : "Email", campo.descrizione);
    }
}

void frmDestinatario::Disponi() {
    auto* pic = new QWidget(this);
    pic->setObjectName("pic");
    pic->setFixedHeight(48);
    QLinearGradient sfumatura(0, 0, 0, 1);
    sfumatura.setCoordinateMode(QGradient::ObjectMode);
    sfumatura.setColorAt(0, coloreTema(9));
    sfumatura.setColorAt(1, coloreTema(10));
    QPalette tavolozza = pic->palette();
    tavolozza.setBrush(QPalette::Window, sfumatura);
    pic->setPalette(tavolozza);
    pic->setAutoFillBackground(true);

    auto* img = new QLabel(pic);
    img->setObjectName("img");
    img->setPixmap(QIcon::fromTheme("user-properties").pixmap(32));
    QFont titolo = lbl->font();
    titolo.setBold(true);
    titolo.setPointSizeF(titolo.pointSizeF() * 1.2);
    lbl->setFont(titolo);
    auto* testata = new QHBoxLayout(pic);
    testata->setContentsMargins(ui::windowMargin, 0, ui::windowMargin, 0);
    testata->setSpacing(ui::windowMargin);
    testata->addWidget(img);
    testata->addWidget(lbl, 1);

    auto* comandi = new QHBoxLayout;
    comandi->setSpacing(ui::controlSpacing);
    comandi->addStretch();
    for (QPushButton* pulsante : {cdmSalva, cmdAnnulla}) {
        pulsante->setAutoDefault(false);
        pulsante->setMinimumSize(ui::buttonWidth, ui::buttonHeight);
        comandi->addWidget(pulsante);
    }
    cdmSalva->setDefault(true);

    auto* corpo = new QVBoxLayout;
    corpo->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    corpo->setSpacing(ui::windowMargin);
    corpo->addWidget(prp);
    corpo->addLayout(comandi);
    auto* finestra = new QVBoxLayout(this);
    finestra->setContentsMargins(0, 0, 0, 0);
    finestra->setSpacing(0);
    finestra->addWidget(pic);
    finestra->addLayout(corpo);
}

void frmDestinatario::PulisciCampi() {
    prp->Item("Spedire")->setValue(true);
    for (const CampoDestinatario& campo : campiDestinatario)
        prp->Item(campo.chiave)->setValue(QString());
}

void frmDestinatario::CaricaUser(std::int32_t id) {
    ado::Recordset rs = RecordsetDB();
    rs.setSource("SELECT * FROM [tb_destinatari] WHERE id = " + QString::number(id) + " ;");
    esigi(rs.open());
    prp->Item("Spedire")->setValue(esigi(esigi(rs.value(u"sel")).toBool()));
    for (const CampoDestinatario& campo : campiDestinatario)
        prp->Item(campo.chiave)->setValue(esigi(rs.value(QString(campo.colonna))).toTextOrEmpty());
}

void frmDestinatario::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmDestinatario::showEvent(QShowEvent* mostra) {
    QDialog::showEvent(mostra);
    prp->setFocus();
    prp->setCurrentItem(modo == 1 ? "Spedire" : "Email");
}
