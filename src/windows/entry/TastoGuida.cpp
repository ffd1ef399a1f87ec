// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/TastoGuida.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "modules/lang/Guida.h"

namespace {

/// The nearest of the windows and panels around a control that the help knows.
QString paginaPer(const QWidget* controllo) {
    for (; controllo; controllo = controllo->parentWidget())
        if (QString pagina = guida::PaginaDellaFinestra(controllo->objectName()); !pagina.isEmpty())
            return pagina;
    return guida::PrimaPagina();
}

class TastoGuida : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress || !oggetto->isWidgetType()) return false;
        const auto* tasto = static_cast<QKeyEvent*>(evento);
        if (tasto->key() != Qt::Key_F1 || tasto->modifiers() != Qt::NoModifier) return false;
        if (!tasto->isAutoRepeat()) guida::Apri(paginaPer(static_cast<QWidget*>(oggetto)));
        return true;
    }
};

}  // namespace

void SeguiTastoGuida() {
    qApp->installEventFilter(new TastoGuida(qApp));
}
