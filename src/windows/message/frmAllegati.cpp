// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/message/frmAllegati.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "modules/core/bFunctions.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/Controls.h"
#include "windows/core/Evento.h"

namespace {

constexpr int altezzaRiga = 24;

/// Says that it is empty, where it is.
class Elenco : public QTreeWidget {
  public:
    using QTreeWidget::QTreeWidget;

  protected:
    void paintEvent(QPaintEvent* evento) override {
        QTreeWidget::paintEvent(evento);
        if (topLevelItemCount() > 0) return;
        QPainter pittore(viewport());
        pittore.setPen(palette().color(QPalette::PlaceholderText));
        pittore.drawText(viewport()->rect(), Qt::AlignCenter, Words::tr("Nessun allegato"));
    }
};

/// "1.024,51 Kb". A kilobyte counts as 1028 bytes here.
QString Dimensione(qint64 byte) {
    return QLocale().toString(static_cast<double>(byte) / 1028, 'f', 2) + " Kb";
}

}  // namespace

frmAllegati::frmAllegati(ui::CommandBars& barre, QWidget* parent)
    : QWidget(parent), LIST(new Elenco(this)), barreEditor(barre) {
    setObjectName("frmAllegati");
    setWindowTitle("Allegati");
    LIST->setObjectName("LIST");
    LIST->setAccessibleName("Allegati");
    LIST->setRootIsDecorated(false);
    LIST->setUniformRowHeights(true);
    // With it the name fits into the width that its column gets.
    LIST->setIconSize({12, 12});
    LIST->setAllColumnsShowFocus(true);
    LIST->setContextMenuPolicy(Qt::NoContextMenu);
    LIST->viewport()->setMouseTracking(true);
    LIST->header()->setStretchLastSection(true);
    auto* area = new QVBoxLayout(this);
    area->setContentsMargins(0, 0, 0, 0);
    area->addWidget(LIST);
    LIST->viewport()->installEventFilter(this);
    IniList();
}

void frmAllegati::IniList() {
    LIST->clear();
    LIST->setColumnCount(0);
    LIST->setHeaderLabels({"File", "Size", "Path"});
    LIST->headerItem()->setTextAlignment(Size, Qt::AlignRight | Qt::AlignVCenter);
}

void frmAllegati::InsFile(const QString& percorso) {
    const QFileInfo file(percorso);
    if (!file.exists()) fallisci(ErrorCode::FileNotFound);
    const QString nome = NomeDaPercorso(percorso);
    const QString dimensione = Dimensione(file.size());
    auto* riga = new QTreeWidgetItem(LIST, {nome, dimensione, percorso});
    riga->setIcon(File, QIcon::fromTheme("mail-attachment"));
    riga->setTextAlignment(Size, Qt::AlignRight | Qt::AlignVCenter);
    riga->setSizeHint(File, {0, ui::scaledToFont(*LIST, altezzaRiga)});
    // The columns fit the row that was added last.
    const QFontMetrics metrica = LIST->fontMetrics();
    LIST->setColumnWidth(File, metrica.horizontalAdvance(nome) + 36);
    LIST->setColumnWidth(Size, metrica.horizontalAdvance(dimensione) + 20);
    LIST->setColumnWidth(Path, metrica.horizontalAdvance(percorso) + 20);
}

void frmAllegati::TogliScelto() {
    constexpr ErrorCode oggettoAssente{91};
    QTreeWidgetItem* scelto = LIST->currentItem();
    if (!scelto) fallisci(oggettoAssente, Words::tr("Variabile oggetto non impostata"));
    delete LIST->takeTopLevelItem(LIST->indexOfTopLevelItem(scelto));
}

QStringList frmAllegati::Percorsi() const {
    QStringList percorsi;
    for (int i = 0; i < LIST->topLevelItemCount(); ++i)
        percorsi << LIST->topLevelItem(i)->text(Path);
    return percorsi;
}

bool frmAllegati::eventFilter(QObject* osservato, QEvent* che) {
    if (che->type() == QEvent::MouseMove)
        evento([this] { barreEditor.GetStatic("stcHelp")->setText("Allegati"); });
    if (che->type() == QEvent::MouseButtonRelease) {
        const auto* rilascio = static_cast<QMouseEvent*>(che);
        evento([&] { LISTMouseUp(rilascio->button(), rilascio->globalPosition().toPoint()); });
    }
    return QWidget::eventFilter(osservato, che);
}

void frmAllegati::LISTMouseUp(Qt::MouseButton pulsante, const QPoint& punto) {
    barreEditor.GetToolButton("cmdAllegatiDel")->setEnabled(LIST->topLevelItemCount() > 0);
    if (pulsante == Qt::RightButton) barreEditor.showPopup("popAllegati", punto);
}
