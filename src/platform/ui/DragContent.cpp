// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DragContent.h"

#include <QCoreApplication>
#include <QMimeData>

namespace ui {

namespace {

const QString rowType = QStringLiteral("application/x-vestrola-row");
const QString nodeType = QStringLiteral("application/x-vestrola-node");

QByteArray thisProcess() {
    return QByteArray::number(QCoreApplication::applicationPid());
}

}  // namespace

QMimeData* dragContent(Dragged what) {
    auto* content = new QMimeData;
    content->setData(what == Dragged::Row ? rowType : nodeType, thisProcess());
    return content;
}

Dragged draggedIn(const QMimeData* content) {
    if (content->data(rowType) == thisProcess()) return Dragged::Row;
    return content->data(nodeType) == thisProcess() ? Dragged::Node : Dragged::Nothing;
}

}  // namespace ui
