// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/core/SchedaProprieta.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/ui/Controls.h"
#include "platform/ui/PropertyList.h"
#include "windows/core/bTheme.h"

namespace {

/// `pic`, shaded from top to bottom, with `img` and the heading.
QWidget* Testata(QDialog& finestra, QLabel* lbl, const QString& icona) {
    auto* pic = ui::named(new QWidget(&finestra), "pic");
    pic->setFixedHeight(48);
    QLinearGradient sfumatura(0, 0, 0, 1);
    sfumatura.setCoordinateMode(QGradient::ObjectMode);
    sfumatura.setColorAt(0, coloreTema(9));
    sfumatura.setColorAt(1, coloreTema(10));
    QPalette tavolozza = pic->palette();
    tavolozza.setBrush(QPalette::Window, sfumatura);
    pic->setPalette(tavolozza);
    pic->setAutoFillBackground(true);

    auto* img = ui::named(new QLabel(pic), "img");
    img->setPixmap(QIcon::fromTheme(icona).pixmap(32));
    QFont titolo = lbl->font();
    titolo.setBold(true);
    titolo.setPointSizeF(titolo.pointSizeF() * 1.2);
    lbl->setFont(titolo);
    auto* riga = new QHBoxLayout(pic);
    riga->setContentsMargins(ui::windowMargin, 0, ui::windowMargin, 0);
    riga->setSpacing(ui::windowMargin);
    riga->addWidget(img);
    riga->addWidget(lbl, 1);
    return pic;
}

}  // namespace

void DisponiScheda(QDialog& finestra, const ControlliScheda& controlli, const QString& icona) {
    auto* comandi = new QHBoxLayout;
    comandi->setSpacing(ui::controlSpacing);
    comandi->addStretch();
    comandi->addWidget(controlli.cdmSalva);
    comandi->addWidget(controlli.cmdAnnulla);
    controlli.cdmSalva->setDefault(true);

    auto* corpo = new QVBoxLayout;
    corpo->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    corpo->setSpacing(ui::windowMargin);
    corpo->addWidget(controlli.prp);
    corpo->addLayout(comandi);
    auto* tutto = new QVBoxLayout(&finestra);
    tutto->setContentsMargins(0, 0, 0, 0);
    tutto->setSpacing(0);
    tutto->addWidget(Testata(finestra, controlli.lbl, icona));
    tutto->addLayout(corpo);
}
