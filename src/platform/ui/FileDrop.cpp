// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/FileDrop.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

namespace ui {

FileDrop::FileDrop(QWidget& window, std::function<void(const QString& path)> dropped)
    : QObject(&window), m_dropped(std::move(dropped)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    // A text box would treat the file as a text and insert its address.
    for (QLineEdit* box : window.findChildren<QLineEdit*>())
        box->installEventFilter(this);
}

QString FileDrop::fileOf(const QMimeData* data) {
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
    const bool drop = event->type() == QEvent::Drop;
    if (!drop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove) return false;
    auto* dragged = static_cast<QDropEvent*>(event);
    const QString path = fileOf(dragged->mimeData());
    if (path.isEmpty()) return false;
    dragged->acceptProposedAction();
    if (drop) m_dropped(path);
    return true;
}

}  // namespace ui
