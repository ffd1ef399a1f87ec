// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/shell/Insegna.h"

#include <QLabel>
#include <QVBoxLayout>

#include "modules/core/bGlobal.h"
#include "modules/core/Prodotto.h"
#include "windows/core/bTheme.h"

namespace {

void colora(QWidget& riquadro, QPalette::ColorRole ruolo, const QColor& colore) {
    QPalette tavolozza = riquadro.palette();
    tavolozza.setColor(ruolo, colore);
    riquadro.setPalette(tavolozza);
}

QLabel* etichetta(const char* nome, const QString& testo) {
    auto* nuova = new QLabel(testo);
    nuova->setObjectName(nome);
    nuova->setTextFormat(Qt::PlainText);
    nuova->setMargin(4);
    return nuova;
}

}  // namespace

QVBoxLayout* CreaInsegna(QWidget& finestra) {
    colora(finestra, QPalette::Window, coloreTema(1));

    auto* riga = new QWidget;
    riga->setFixedWidth(8);
    riga->setAutoFillBackground(true);
    colora(*riga, QPalette::Window, coloreTema(13));

    QLabel* lblApplication = etichetta("lblApplication", prodotto::nome());
    QFont grande = lblApplication->font();
    grande.setBold(true);
    grande.setPointSizeF(grande.pointSizeF() * 2);
    lblApplication->setFont(grande);
    QLabel* lblVersion = etichetta("lblVersion", prodotto::versione());
    colora(*lblVersion, QPalette::WindowText, misto(20, 0, 165));

    auto* colonna = new QVBoxLayout;
    colonna->setContentsMargins(20, 20, 20, 20);
    colonna->setSpacing(0);
    colonna->addWidget(lblApplication);
    colonna->addWidget(lblVersion);

    auto* fila = new QHBoxLayout(&finestra);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(0);
    fila->addWidget(riga);
    fila->addLayout(colonna, 1);
    return colonna;
}
