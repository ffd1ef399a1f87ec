// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/message/frmColor.h"

#include <QVBoxLayout>

#include "modules/core/bFunctions.h"
#include "platform/html/HtmlView.h"
#include "platform/text/Words.h"
#include "platform/ui/ColorHexagon.h"
#include "platform/ui/CommandBars.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"

frmColor::frmColor(HtmlView& vista, ui::CommandBars& barre, QWidget* parent)
    : QWidget(parent), color(new ui::ColorHexagon(this)), DHTML(vista), barreEditor(barre) {
    RilevaTema(this);
    setObjectName("pwnColor");
    setAccessibleName("Tabella colori");
    color->setObjectName("color");
    color->setAccessibleName(Words::tr("Colore del testo"));
    setFocusProxy(color);
    QPalette tavolozza = palette();
    tavolozza.setColor(QPalette::Window, coloreTema(0));
    setPalette(tavolozza);
    auto* area = new QVBoxLayout(this);
    area->setContentsMargins(0, 0, 0, 0);
    area->addWidget(color);
    resize(color->sizeHint());
    connect(color, &ui::ColorHexagon::picked, this,
            [this](quint32 colore) { evento([this, colore] { ColorePreso(colore); }); });
}

void frmColor::PrendiColore() {
    const Result<QVariant> colore = DHTML.execCommand(HtmlView::GetForeColor);
    if (colore.ok()) color->setColor(ColoreDaHex(colore.value().toString()));
}

void frmColor::ColorePreso(quint32 colore) {
    static_cast<void>(DHTML.execCommand(HtmlView::SetForeColor, HexDaColore(colore)));
    barreEditor.closePopup("popColors");
}
